// The files that displays' colours come from, which anybody may have made or damaged.

#include "displays/calibration/calibration_profile.h"
#include "displays/calibration/profile_file.h"
#include "displays/guard/journal.h"
#include "displays/guard/journal_file.h"
#include "rig/color_profile.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <numeric>

#include <sys/stat.h>
#include <unistd.h>

using namespace nocturo;

Ramp countingRamp(std::uint32_t size, std::uint16_t first) {
    Ramp ramp(size);
    for (auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        std::iota(channel->begin(), channel->end(), first++);
    }
    return ramp;
}

Journal someJournal() {
    return {0xfedcba9876543210U, {{63, countingRamp(5, 300)}, {64, countingRamp(2, 65530)}}};
}

TEST(Journal, ComesBackAsItWas) {
    for (const Journal& journal :
         {Journal{}, someJournal(), Journal{1, {{7, countingRamp(kMaxRampSize, 0)}}}}) {
        EXPECT_TRUE(journalFromBytes(journalBytes(journal)) == journal);
    }
}

TEST(Journal, CutExtendedOrChangedItIsRefused) {
    const std::string whole = journalBytes(someJournal());
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(journalFromBytes(std::string_view(whole).substr(0, length))) << length;
    }
    EXPECT_FALSE(journalFromBytes(whole + '\0'));
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        std::string changed = whole;
        changed[bit / 8] = static_cast<char>(changed[bit / 8] ^ (1 << bit % 8));
        EXPECT_FALSE(journalFromBytes(changed)) << bit;
    }
}

// With a checksum that fits, as somebody who means harm would make it.
TEST(Journal, SizesBeyondTheDataAreRefused) {
    for (const std::uint32_t size : {0U, 1U, kMaxRampSize + 1}) {
        EXPECT_FALSE(journalFromBytes(journalBytes({1, {{7, Ramp(size)}}}))) << size;
    }
    Journal uneven = someJournal();
    uneven.entries[1].ramp.blue.clear();
    EXPECT_FALSE(journalFromBytes(journalBytes(uneven)));
}

TEST(JournalFile, IsReplacedAndReadBackUnlessItIsNoPlainFile) {
    namespace fs = std::filesystem;
    const TemporaryDirectory directory;
    const JournalFile file(directory.path(), "ramps");
    const auto writeTo = [](const JournalFile& to, std::string_view bytes) {
        return to.write(bytes, Durability::lastsWhileTheSystemRuns);
    };
    EXPECT_EQ(file.read().error().errorNumber, ENOENT);
    EXPECT_TRUE(writeTo(file, "one") && writeTo(file, "two"));
    EXPECT_EQ(file.read(), "two");
    EXPECT_EQ(fs::status(file.path()).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);

    fs::create_symlink(file.path(), directory / "link");
    fs::create_directory(directory / "directory");
    ASSERT_EQ(mkfifo((directory / "fifo").c_str(), 0600), 0);
    for (const char* name : {"link", "directory", "fifo"}) {
        const JournalFile other(directory.path(), name);
        ASSERT_FALSE(other.read()) << name;
        EXPECT_NE(other.read().error().errorNumber, ENOENT) << name;
    }
    // Only root can give files away, and only to others is a file of root's another user's.
    const bool given = ::chown(file.path().c_str(), 12345, 12345) == 0;
    const auto theirs = (given ? file : JournalFile("/etc", "passwd")).read();
    EXPECT_NE(theirs.error().text.find("another user's"), std::string::npos);
    EXPECT_TRUE(file.remove() && file.remove());
    EXPECT_EQ(file.read().error().errorNumber, ENOENT);

    fs::create_directory_symlink(directory.path(), directory / "way");
    fs::permissions(directory / "directory", fs::perms::all);
    for (const char* name : {"way", "directory", "none"}) {
        const JournalFile inside(directory / name, "ramps");
        EXPECT_FALSE(writeTo(inside, "x") || inside.read() || inside.remove()) << name;
    }
}

using rig::Channels;
using Bytes = std::vector<std::uint8_t>;

TEST(ColorProfile, ACalibrationIsReadAtTheSizeOfTheRamp) {
    const Channels table = rig::calibration(5);
    const Bytes profile = rig::colorProfile(table);
    const Ramp same = readCalibration(profile, 256).value().value();
    EXPECT_EQ(same.red, table[0]);
    EXPECT_EQ(same.green, table[1]);
    EXPECT_EQ(same.blue, table[2]);
    const Ramp fine = readCalibration(profile, 511).value().value();
    for (std::size_t i = 0; i < 255; ++i) {
        EXPECT_EQ(fine.green[2 * i], table[1][i]);
        EXPECT_NEAR(fine.green[2 * i + 1], (table[1][i] + table[1][i + 1]) / 2, 1);
    }
    const Ramp ends = readCalibration(profile, 2).value().value();
    EXPECT_EQ(ends.blue, (std::vector{table[2].front(), table[2].back()}));

    EXPECT_EQ(readCalibration(rig::plainColorProfile(), 256).value(), std::nullopt);
}

TEST(ColorProfile, WhatIsNoneIsRefused) {
    const Bytes good = rig::colorProfile(rig::calibration(5));
    for (std::size_t size = 0; size < good.size(); size += 7) {
        const auto reading = readCalibration({good.data(), size}, 256);
        ASSERT_FALSE(reading) << size;
        EXPECT_NE(reading.error().text, "") << size;
    }
    EXPECT_FALSE(readCalibration(Bytes(100000, 0), 256));
    // Black, black with white or nearly black at the end, white from the second entry on.
    for (const auto [second, last] :
         {std::array<std::uint16_t, 2>{0, 0}, {0, 65535}, {0, 1}, {65535, 65535}}) {
        std::vector<std::uint16_t> flat(256, second);
        flat.front() = 0;
        flat.back() = last;
        for (const std::uint32_t size : {256U, 1024U}) {
            EXPECT_FALSE(readCalibration(rig::colorProfile({flat, flat, flat}), size)) << last;
        }
    }
}

TEST(ColorProfile, OnlyFilesOfASensibleSizeAreRead) {
    const TemporaryDirectory directory;
    writeText(directory / "good", "bytes");
    EXPECT_EQ(readProfileFile(directory / "good"), (Bytes{'b', 'y', 't', 'e', 's'}));
    std::filesystem::resize_file(directory / "good", kMaxProfileSize + 1);
    EXPECT_FALSE(readProfileFile(directory / "good"));
    EXPECT_FALSE(readProfileFile(directory / "missing"));
}
