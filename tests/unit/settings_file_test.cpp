#include "platform/settings/settings_file.h"

#include "platform/property_lists/property_list.h"
#include "temporary_directory.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace nocturo {
namespace {

using State = PropertyListFileContents::State;
using testing::ElementsAre;

class SettingsFileTest : public testing::Test {
  protected:
    TemporaryDirectory home;
    std::filesystem::path directory = home / "config/nocturo";
    std::filesystem::path path = directory / "settings.plist";
    const PropertyDictionary before{{"a", true}};
    const PropertyDictionary after{{"a", false}};

    static mode_t modeOf(const std::filesystem::path& file) {
        struct stat status {};
        EXPECT_EQ(::stat(file.c_str(), &status), 0);
        return status.st_mode & mode_t{07777};
    }
};

TEST_F(SettingsFileTest, MakesItsDirectoryAndKeepsEverythingPrivate) {
    EXPECT_EQ(readPropertyListFile(path).state, State::absent);
    const PropertyListFileWrite written = writeSettingsFile(path, before);
    EXPECT_EQ(written.errorNumber, 0);
    EXPECT_EQ(modeOf(path), 0600U);
    EXPECT_EQ(modeOf(directory), 0700U);
    EXPECT_EQ(modeOf(directory.parent_path()), 0700U);
    const PropertyListFileContents read = readPropertyListFile(path);
    EXPECT_EQ(read.state, State::loaded);
    EXPECT_EQ(read.dictionary, before);
    EXPECT_EQ(read.stamp, written.stamp);
    EXPECT_EQ(fileStamp(path), written.stamp);

    ::chmod(path.c_str(), 0644);
    EXPECT_NE(writeSettingsFile(path, after).stamp, written.stamp);
    EXPECT_EQ(modeOf(path), 0644U);
    EXPECT_THAT(namesIn(directory), ElementsAre("settings.plist"));
}

TEST_F(SettingsFileTest, ALinkSurvivesAndItsTargetIsReplaced) {
    std::filesystem::create_directories(directory);
    std::filesystem::create_directory(home / "dotfiles");
    std::filesystem::create_symlink("../../dotfiles/link", path);
    std::filesystem::create_symlink(home / "dotfiles/real", home / "dotfiles/link");
    for (const PropertyDictionary& content : {before, after}) { // the target is missing at first
        EXPECT_EQ(writeSettingsFile(path, content).errorNumber, 0);
        EXPECT_TRUE(std::filesystem::is_symlink(path));
        EXPECT_EQ(readPropertyListFile(home / "dotfiles/real").dictionary, content);
    }
    std::filesystem::create_symlink("circle", home / "circle");
    EXPECT_EQ(readPropertyListFile(home / "circle").errorNumber, ELOOP);
}

TEST_F(SettingsFileTest, RefusesWhatIsNoSettingsFile) {
    ASSERT_EQ(writeSettingsFile(path, before).errorNumber, 0);
    EXPECT_EQ(readPropertyListFile(path / "below a file").errorNumber, ENOTDIR);
    EXPECT_EQ(writeSettingsFile(path / "below a file", after).errorNumber, ENOTDIR);
    std::filesystem::create_directories(directory / "occupied/x");
    EXPECT_EQ(readPropertyListFile(directory / "occupied").errorNumber, EISDIR);
    EXPECT_EQ(writeSettingsFile(directory / "occupied", after).errorNumber, EISDIR);
    ASSERT_EQ(::mkfifo((directory / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(readPropertyListFile(directory / "pipe").state, State::unreadable);
    EXPECT_THAT(namesIn(directory), ElementsAre("occupied", "pipe", "settings.plist"));

    writeText(path, propertyListXml(before) + std::string(2 << 20, ' '));
    EXPECT_EQ(readPropertyListFile(path).state, State::damaged) << "absurdly large";
}

TEST_F(SettingsFileTest, SetsAsideUnderTheLocalTimeWithoutReplacingAnything) {
    ::setenv("TZ", "XYZ-3", 1); // three hours ahead of UTC
    ::tzset();
    const auto when = std::chrono::sys_days(std::chrono::November / 21 / 2026) +
                      std::chrono::hours(6) + std::chrono::minutes(8) + std::chrono::seconds(38);
    std::filesystem::create_directories(directory);
    for (const char* content : {"first", "second"}) {
        writeText(path, content);
        EXPECT_EQ(setAsideDamagedFile(path, when).errorNumber, 0);
    }
    ::unsetenv("TZ");
    EXPECT_EQ(readText(directory / "settings.plist.damaged-20261121-090838"), "first");
    EXPECT_EQ(readText(directory / "settings.plist.damaged-20261121-090838-2"), "second");
    EXPECT_EQ(setAsideDamagedFile(path, when).errorNumber, ENOENT);
}

} // namespace
} // namespace nocturo
