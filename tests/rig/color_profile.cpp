#include "rig/color_profile.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include <lcms2.h>

namespace nocturo::rig {

namespace {

using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;

std::vector<std::uint8_t> bytesOf(const Profile& profile) {
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &size);
    std::vector<std::uint8_t> bytes(size);
    if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &size)) {
        throw std::runtime_error("no profile can be made");
    }
    return bytes;
}

} // namespace

std::vector<std::uint8_t> plainColorProfile() {
    return bytesOf(Profile(cmsCreate_sRGBProfile(), cmsCloseProfile));
}

std::vector<std::uint8_t> colorProfile(const Channels& calibration) {
    const Profile profile(cmsCreate_sRGBProfile(), cmsCloseProfile);
    std::array<cmsToneCurve*, 3> curves{};
    std::transform(calibration.begin(), calibration.end(), curves.begin(), [](const auto& channel) {
        const auto size = static_cast<cmsUInt32Number>(channel.size());
        return cmsBuildTabulatedToneCurve16(nullptr, size, channel.data());
    });
    const bool isWritten = cmsWriteTag(profile.get(), cmsSigVcgtTag, curves.data());
    cmsFreeToneCurveTriple(curves.data());
    if (!isWritten) {
        throw std::runtime_error("no calibration can be put into a profile");
    }
    return bytesOf(profile);
}

std::optional<Channels> calibrationIn(const std::string& file) {
    if (!std::filesystem::is_regular_file(file)) {
        return std::nullopt;
    }
    const Profile profile(cmsOpenProfileFromFile(file.c_str(), "r"), cmsCloseProfile);
    if (profile == nullptr) {
        return std::nullopt;
    }
    const auto* curves =
        static_cast<cmsToneCurve* const*>(cmsReadTag(profile.get(), cmsSigVcgtTag));
    Channels channels;
    for (unsigned channel = 0; channel < 3; ++channel) {
        for (unsigned i = 0; i < 256; ++i) {
            const auto entry = static_cast<std::uint16_t>(i * 257);
            channels.at(channel).push_back(
                curves != nullptr ? cmsEvalToneCurve16(curves[channel], entry) : entry);
        }
    }
    return channels;
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
