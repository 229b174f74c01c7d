#include "rig/color_profile.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <lcms2.h>

namespace nocturo::rig {

namespace {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using Curve = std::unique_ptr<cmsToneCurve, FreeCurve>;

std::vector<std::uint8_t> profileWith(const Channels* calibration) {
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
    const Curve gamma(cmsBuildGamma(nullptr, 2.2));
    const std::array<cmsToneCurve*, 3> gammas{gamma.get(), gamma.get(), gamma.get()};
    const std::unique_ptr<void, CloseProfile> profile(
        cmsCreateRGBProfile(&white, &primaries, gammas.data()));
    if (calibration != nullptr) {
        std::array<Curve, 3> curves;
        for (std::size_t i = 0; i < curves.size(); ++i) {
            const auto& channel = calibration->at(i);
            curves[i].reset(cmsBuildTabulatedToneCurve16(
                nullptr, static_cast<cmsUInt32Number>(channel.size()), channel.data()));
        }
        const std::array<cmsToneCurve*, 3> raw{curves[0].get(), curves[1].get(), curves[2].get()};
        if (!cmsWriteTag(profile.get(), cmsSigVcgtTag, raw.data())) {
            throw std::runtime_error("no calibration can be put into a profile");
        }
    }
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &size)) {
        throw std::runtime_error("no profile can be made");
    }
    return bytes;
}

} // namespace

std::vector<std::uint8_t> colorProfile(const Channels& calibration) {
    return profileWith(&calibration);
}

std::vector<std::uint8_t> plainColorProfile() {
    return profileWith(nullptr);
}

Channels calibration(unsigned number) {
    Channels channels;
    for (unsigned channel = 0; channel < 3; ++channel) {
        for (unsigned i = 0; i < 256; ++i) {
            channels.at(channel).push_back(
                static_cast<std::uint16_t>(i * (190 + 20 * channel) + i % 7 + number));
        }
    }
    return channels;
}

} // namespace nocturo::rig
