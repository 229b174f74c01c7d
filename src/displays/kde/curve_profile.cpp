#include "displays/kde/curve_profile.h"

#include <algorithm>
#include <array>
#include <memory>

#include <lcms2.h>

namespace nocturo {

namespace {

constexpr double kGamma = 2.2;

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, CloseProfile>;

/// Three curves, freed with this.
struct Curves {
    explicit Curves(std::array<cmsToneCurve*, 3> made) : each(made) {}
    ~Curves() { cmsFreeToneCurveTriple(each.data()); }
    Curves(const Curves&) = delete;
    Curves& operator=(const Curves&) = delete;

    std::array<cmsToneCurve*, 3> each;
};

std::vector<std::uint8_t> bytesOf(const Profile& profile) {
    cmsUInt32Number size = 0;
    if (profile == nullptr || !cmsSaveProfileToMem(profile.get(), nullptr, &size)) {
        return {};
    }
    std::vector<std::uint8_t> bytes(size);
    return cmsSaveProfileToMem(profile.get(), bytes.data(), &size) ? bytes
                                                                   : std::vector<std::uint8_t>();
}

Profile madeOf(const cmsCIExyY& white, const cmsCIExyYTRIPLE& primaries) {
    cmsToneCurve* curve = cmsBuildGamma(nullptr, kGamma);
    std::array<cmsToneCurve*, 3> curves = {curve, curve, curve};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves.data()));
    cmsFreeToneCurve(curve);
    return profile;
}

/// Where the EDID has its chromaticities: two bytes of low bits, then eight of high ones.
constexpr std::size_t kLowBits = 25;
constexpr std::size_t kHighBits = 27;
constexpr std::size_t kEdidSize = 128;

Profile madeOfEdid(std::span<const std::uint8_t> edid) {
    if (edid.size() < kEdidSize) {
        return nullptr;
    }
    const unsigned low = unsigned{edid[kLowBits]} << 8U | edid[kLowBits + 1];
    std::array<double, 8> values{}; // x and y of red, green, blue, white
    for (unsigned i = 0; i < values.size(); ++i) {
        values.at(i) = (unsigned{edid[kHighBits + i]} << 2U | (low >> (14U - 2 * i) & 3U)) / 1024.0;
    }
    const auto [redX, redY, greenX, greenY, blueX, blueY, whiteX, whiteY] = values;
    // Rising primaries around the white: what does not look so is no description of a display.
    if (redX <= whiteX || greenY <= whiteY || blueY >= whiteY || blueY <= 0 || whiteX <= 0) {
        return nullptr;
    }
    return madeOf({whiteX, whiteY, 1}, {{redX, redY, 1}, {greenX, greenY, 1}, {blueX, blueY, 1}});
}

} // namespace

std::vector<std::uint8_t> plainProfile(std::span<const std::uint8_t> edid) {
    std::vector<std::uint8_t> bytes = bytesOf(madeOfEdid(edid));
    constexpr cmsCIExyY kWhite = {0.3127, 0.3290, 1};
    constexpr cmsCIExyYTRIPLE kPrimaries = {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
    return bytes.empty() ? bytesOf(madeOf(kWhite, kPrimaries)) : bytes;
}

Result<std::vector<std::uint8_t>> profileWithCurve(std::span<const std::uint8_t> profile,
                                                   const Ramp& ramp) {
    const Profile opened(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
    if (opened == nullptr) {
        return failed("it is not a color profile");
    }
    const auto curve = [](const std::vector<std::uint16_t>& channel) {
        return cmsBuildTabulatedToneCurve16(nullptr, static_cast<cmsUInt32Number>(channel.size()),
                                            channel.data());
    };
    const Curves curves({curve(ramp.red), curve(ramp.green), curve(ramp.blue)});
    // The checksum in the header, which nobody has to give, would be that of the former content.
    std::array<cmsUInt8Number, 16> noChecksum{};
    cmsSetHeaderProfileID(opened.get(), noChecksum.data());
    if (!cmsWriteTag(opened.get(), cmsSigVcgtTag, curves.each.data())) {
        return failed("no calibration can be put into it");
    }
    std::vector<std::uint8_t> bytes = bytesOf(opened);
    return bytes.empty() ? failed("it is damaged") : Result<std::vector<std::uint8_t>>(bytes);
}

} // namespace nocturo
