// Colour profiles come from files that anybody may have made.

#include "platform/displays/profiles/calibration_profile.h"
#include "platform/displays/profiles/profile_file.h"
#include "rig/color_profile.h"
#include "temporary_directory.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace nocturo {
namespace {

using rig::Channels;
using Bytes = std::vector<std::uint8_t>;

TEST(ColorProfile, ACalibrationIsReadAtTheSizeOfTheRamp) {
    const Channels table = rig::calibration(5);
    const Bytes profile = rig::colorProfile(table);
    const Ramp same = readCalibration(profile, 256).ramp.value();
    EXPECT_EQ(same.red, table[0]);
    EXPECT_EQ(same.green, table[1]);
    EXPECT_EQ(same.blue, table[2]);
    const Ramp fine = readCalibration(profile, 511).ramp.value();
    for (std::size_t i = 0; i < 255; ++i) {
        EXPECT_EQ(fine.green[2 * i], table[1][i]);
        EXPECT_NEAR(fine.green[2 * i + 1], (table[1][i] + table[1][i + 1]) / 2, 1);
    }
    const Ramp ends = readCalibration(profile, 2).ramp.value();
    EXPECT_EQ(ends.blue, (std::vector{table[2].front(), table[2].back()}));

    const CalibrationReading plain = readCalibration(rig::plainColorProfile(), 256);
    EXPECT_FALSE(plain.ramp);
    EXPECT_EQ(plain.problem, "");
}

TEST(ColorProfile, WhatIsNoneIsRefused) {
    const Bytes good = rig::colorProfile(rig::calibration(5));
    for (std::size_t size = 0; size < good.size(); size += 7) {
        const CalibrationReading reading = readCalibration({good.data(), size}, 256);
        EXPECT_FALSE(reading.ramp);
        EXPECT_NE(reading.problem, "") << size;
    }
    EXPECT_NE(readCalibration(Bytes(100000, 0), 256).problem, "");
    Channels dark;
    dark.fill(std::vector<std::uint16_t>(256));
    EXPECT_NE(readCalibration(rig::colorProfile(dark), 256).problem, "");
}

TEST(ColorProfile, OnlyRegularFilesOfASensibleSizeAreRead) {
    const TemporaryDirectory directory;
    writeText(directory / "good", "bytes");
    EXPECT_EQ(readProfileFile(directory / "good").bytes, (Bytes{'b', 'y', 't', 'e', 's'}));
    writeText(directory / "huge", "");
    std::filesystem::resize_file(directory / "huge", kMaxProfileSize + 1);
    ASSERT_EQ(mkfifo((directory / "fifo").c_str(), 0600), 0);
    for (const auto& path : {directory / "huge", directory / "fifo", directory / "missing",
                             directory.path(), std::filesystem::path("/dev/zero")}) {
        const ProfileFile file = readProfileFile(path);
        EXPECT_NE(file.problem, "") << path;
        EXPECT_TRUE(file.bytes.empty());
    }
}

} // namespace
} // namespace nocturo
