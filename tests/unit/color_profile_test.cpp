// Colour profiles come from files that anybody may have made.

#include "platform/displays/profiles/calibration_profile.h"
#include "platform/displays/profiles/profile_calibrations.h"
#include "platform/displays/profiles/profile_file.h"
#include "rig/color_profile.h"
#include "temporary_directory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include <sys/stat.h>

namespace nocturo {

namespace {

using rig::Channels;
using Bytes = std::vector<std::uint8_t>;

TEST(ColorProfile, ACalibrationIsReadAtTheSizeOfTheRamp) {
    const Channels table = rig::calibration(5);
    const Bytes profile = rig::colorProfile(table);
    const CalibrationReading same = readCalibration(profile, 256);
    EXPECT_EQ(same.problem, "");
    ASSERT_TRUE(same.ramp);
    EXPECT_EQ(same.ramp->red, table[0]);
    EXPECT_EQ(same.ramp->green, table[1]);
    EXPECT_EQ(same.ramp->blue, table[2]);

    const CalibrationReading fine = readCalibration(profile, 511);
    const CalibrationReading ends = readCalibration(profile, 2);
    ASSERT_TRUE(fine.ramp && ends.ramp);
    for (std::size_t i = 0; i < 255; ++i) {
        EXPECT_EQ(fine.ramp->green[2 * i], table[1][i]);
        const int middle = (table[1][i] + table[1][i + 1]) / 2;
        EXPECT_NEAR(fine.ramp->green[2 * i + 1], middle, 1);
    }
    EXPECT_EQ(ends.ramp->blue, (std::vector{table[2].front(), table[2].back()}));
    EXPECT_EQ(readCalibration(profile, 262145).ramp->red.back(), table[0].back());

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
    EXPECT_NE(readCalibration(Bytes(100000, 255), 256).problem, "");

    Channels dark = rig::calibration(5);
    for (auto& channel : dark) {
        channel.assign(256, 0);
    }
    EXPECT_NE(readCalibration(rig::colorProfile(dark), 256).problem, "");
}

TEST(ColorProfile, DamageOfAnyKindIsSurvived) {
    const Bytes good = rig::colorProfile(rig::calibration(5));
    std::mt19937 random(20); // NOLINT: the same damage every time
    const auto below = [&](std::size_t limit) { return random() % limit; };
    int refused = 0;
    for (int round = 0; round < 20000; ++round) {
        Bytes damaged = good;
        for (std::size_t i = 0; i <= below(8); ++i) {
            // The header and the list of tags decide where all else is looked for.
            const std::size_t reach = round % 2 == 0 ? 300 : damaged.size();
            damaged[below(reach)] = static_cast<std::uint8_t>(random());
        }
        const CalibrationReading reading = readCalibration(damaged, 16);
        refused += reading.problem.empty() ? 0 : 1;
        EXPECT_TRUE(!reading.ramp || reading.problem.empty());
    }
    EXPECT_GT(refused, 1000);
}

TEST(ColorProfile, OnlyRegularFilesOfASensibleSizeAreRead) {
    const TemporaryDirectory directory;
    const auto path = [&](const char* name) { return directory / name; };
    const Bytes good = rig::colorProfile(rig::calibration(5));
    std::ofstream(path("good"), std::ios::binary)
        .write(reinterpret_cast<const char*>(good.data()), static_cast<long>(good.size()));
    EXPECT_EQ(readProfileFile(path("good")).bytes, good);
    std::ofstream(path("empty")).flush();
    EXPECT_EQ(readProfileFile(path("empty")).bytes, Bytes{});

    std::ofstream(path("huge")).flush();
    std::filesystem::resize_file(path("huge"), kMaxProfileSize + 1);
    ASSERT_EQ(mkfifo(path("fifo").c_str(), 0600), 0);
    std::filesystem::create_directory(path("directory"));
    for (const char* name : {"huge", "fifo", "directory", "missing"}) {
        const ProfileFile file = readProfileFile(path(name));
        EXPECT_NE(file.problem, "") << name;
        EXPECT_TRUE(file.bytes.empty());
    }
    EXPECT_NE(readProfileFile("/dev/zero").problem, "");
}

TEST(ColorProfile, WithoutABusThereIsNoneAndThatIsKnownAtOnce) {
    for (const char* address : {"unix:path=/nonexistent/bus", "", "nonsense"}) {
        ProfileCalibrations profiles("", address);
        const CalibrationAnswer answer = profiles.calibration("DP-1", 256);
        EXPECT_FALSE(answer.ramp);
        EXPECT_TRUE(answer.settled);
        EXPECT_TRUE(profiles.descriptors().empty());
        EXPECT_TRUE(profiles.waitForAnswers(std::chrono::milliseconds(0)));
    }
}

} // namespace

} // namespace nocturo
