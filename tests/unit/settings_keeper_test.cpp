#include "platform/settings/settings_keeper.h"

#include "fake_run_loop.h"
#include "platform/log.h"
#include "platform/notification_center.h"
#include "platform/property_lists/property_list.h"
#include "temporary_directory.h"

#include <fstream>
#include <gmock/gmock.h>
#include <poll.h>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SettingsKeeperTest : public testing::Test {
  protected:
    SettingsKeeperTest() {
        setLogSink([this](LogLevel level, std::string_view, std::string_view sentence) {
            if (level == LogLevel::warning) {
                warnings.emplace_back(sentence);
            }
        });
        center.addObserver(this, NSUserDefaultsDidChangeNotification, [this] { ++notifications; });
        std::filesystem::create_directories(directory);
    }
    ~SettingsKeeperTest() override {
        setLogSink([](LogLevel, std::string_view, std::string_view) {});
    }

    void start() {
        keeper.emplace(store, path, runLoop,
                       [] { return std::chrono::system_clock::time_point{}; });
        notifications = 0;
    }
    PropertyDictionary onDisk() const { return readPropertyListFile(path).dictionary; }
    void editElsewhere(const PropertyDictionary& content) const {
        writeText(path, propertyListXml(content));
    }
    /// Whether an event arrived; true at once where it did, as the kernel queues it within the call
    /// that causes it.
    bool eventPending() const {
        pollfd descriptor{keeper->fileEventDescriptor(), POLLIN, 0};
        return ::poll(&descriptor, 1, 0) == 1;
    }
    std::ptrdiff_t setAsideFiles() const {
        const auto names = namesIn(directory);
        return std::count_if(names.begin(), names.end(), [](const std::string& name) {
            return name.starts_with("settings.plist.damaged-");
        });
    }

    TemporaryDirectory home;
    std::filesystem::path directory = home / "nocturo";
    std::filesystem::path path = directory / "settings.plist";
    NotificationCenter center;
    DefaultsStore store{center};
    FakeRunLoop runLoop;
    std::vector<std::string> warnings;
    int notifications = 0;
    std::optional<SettingsKeeper> keeper;
};

TEST_F(SettingsKeeperTest, ABurstOfChangesIsOneWriteWithinASecond) {
    start();
    int writes = 0;
    std::optional<FileStamp> last;
    for (int step = 1; step <= 30; ++step) { // a slider dragged for three seconds
        store.setInteger(step, "level");
        runLoop.advance(100);
        writes += fileStamp(path) == last ? 0 : 1;
        last = fileStamp(path);
    }
    EXPECT_GE(writes, 2) << "saved on the way";
    EXPECT_LE(writes, 4);
    runLoop.advance(1000);
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"level", std::int64_t{30}}}));
    store.setInteger(30, "level"); // an equal value is no change
    EXPECT_EQ(runLoop.pendingTimers(), 0U) << "nothing ticks when nothing changes";
}

TEST_F(SettingsKeeperTest, SynchronizeWritesAtOnceAndItsOwnWriteIsNoNews) {
    start();
    store.setBool(true, "a");
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(runLoop.pendingTimers(), 0U);
    EXPECT_TRUE(eventPending());
    notifications = 0;
    keeper->processFileEvents();
    EXPECT_EQ(notifications, 0);
    EXPECT_FALSE(eventPending());

    const auto written = fileStamp(path);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(fileStamp(path), written) << "nothing to write";
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"a", true}}));
}

TEST_F(SettingsKeeperTest, FollowsEditsOnceTheyAreComplete) {
    editElsewhere({{"a", std::int64_t{1}}});
    start();
    EXPECT_EQ(store.integerForKey("a"), 1);

    const std::string xml = propertyListXml({{"a", std::int64_t{2}}, {"unknown", true}});
    {
        std::ofstream editor(path);
        editor << xml.substr(0, xml.size() / 2) << std::flush;
        keeper->processFileEvents();
        EXPECT_EQ(store.integerForKey("a"), 1) << "half-written";
        editor << xml.substr(xml.size() / 2);
    }
    keeper->processFileEvents();
    EXPECT_EQ(store.integerForKey("a"), 2);
    EXPECT_EQ(notifications, 1);

    writeText(directory / "new", propertyListXml({{"a", std::int64_t{3}}}));
    keeper->processFileEvents();
    EXPECT_EQ(store.integerForKey("a"), 2) << "another file";
    std::filesystem::rename(directory / "new", path);
    keeper->processFileEvents();
    EXPECT_EQ(store.integerForKey("a"), 3);

    std::filesystem::remove(path);
    keeper->processFileEvents();
    EXPECT_EQ(store.integerForKey("a"), 3) << "deleting changes nothing";
    store.setBool(true, "b");
    runLoop.advance(1000);
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"a", std::int64_t{3}}, {"b", true}}));
}

TEST_F(SettingsKeeperTest, FollowsTheTargetOfALinkAndADirectoryMadeAgain) {
    std::filesystem::create_directory(home / "dotfiles");
    std::filesystem::create_symlink(home / "dotfiles/real", path);
    start();
    writeText(home / "dotfiles/real", propertyListXml({{"a", true}}));
    keeper->processFileEvents();
    EXPECT_TRUE(store.boolForKey("a"));

    std::filesystem::remove_all(directory);
    keeper->processFileEvents();
    store.setBool(true, "b");
    runLoop.advance(1000);
    editElsewhere({{"c", true}});
    keeper->processFileEvents();
    EXPECT_TRUE(store.boolForKey("c"));
}

TEST_F(SettingsKeeperTest, AnEditMadeElsewhereBeforeAWriteIsNotLost) {
    editElsewhere({{"mine", std::int64_t{1}}, {"theirs", std::int64_t{1}}, {"gone", true}});
    start();
    store.setInteger(2, "mine");
    store.removeObjectForKey("gone");
    editElsewhere({{"mine", std::int64_t{99}}, {"theirs", std::int64_t{99}}, {"gone", true}});
    runLoop.advance(1000);
    const PropertyDictionary merged{{"mine", std::int64_t{2}}, {"theirs", std::int64_t{99}}};
    EXPECT_EQ(onDisk(), merged);
    EXPECT_EQ(store.userDomain(), merged);
}

TEST_F(SettingsKeeperTest, ADamagedFileIsSetAsideAtStartAndTheDefaultsHold) {
    writeText(path, "<plist><dict><key>a");
    start();
    EXPECT_THAT(store.userDomain(), IsEmpty());
    EXPECT_EQ(setAsideFiles(), 1);
    EXPECT_THAT(warnings, ElementsAre(HasSubstr("settings.plist.damaged-")));
}

TEST_F(SettingsKeeperTest, AFileDamagedWhileRunningIsSetAsideAndTheSettingsAreSavedAnew) {
    start();
    store.setBool(true, "a");
    runLoop.advance(1000);
    keeper->processFileEvents();
    writeText(path, "damaged, then noticed");
    keeper->processFileEvents();
    runLoop.advance(500 + 1000);
    EXPECT_EQ(setAsideFiles(), 1);
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"a", true}}));

    writeText(path, "damaged, then found by the next write");
    store.setBool(true, "b");
    runLoop.advance(800 + 500 + 800);
    EXPECT_EQ(setAsideFiles(), 2);
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"a", true}, {"b", true}}));
    EXPECT_EQ(warnings.size(), 2U);
}

TEST_F(SettingsKeeperTest, AFileThatIsBeingWrittenInItsPlaceIsWaitedFor) {
    start();
    store.setBool(true, "a");
    runLoop.advance(1000);
    store.setBool(true, "b");
    runLoop.advance(700);
    writeText(path, ""); // as an editor leaves it for a moment
    keeper->processFileEvents();
    runLoop.advance(400); // neither the event nor the write that falls due touch it
    EXPECT_EQ(std::filesystem::file_size(path), 0U);
    editElsewhere({{"a", false}, {"theirs", true}});
    runLoop.advance(2000);
    EXPECT_EQ(setAsideFiles(), 0);
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"a", false}, {"b", true}, {"theirs", true}}));
}

TEST_F(SettingsKeeperTest, AFailedWriteIsSaidOnceAndTriedAgain) {
    editElsewhere({{"old", true}});
    start();
    for (std::size_t round = 1; round <= 2; ++round) {
        const PropertyDictionary before = onDisk();
        std::optional<FullDisk> fullDisk(100);
        for (const std::size_t change : {round, round + 10}) {
            store.setInteger(static_cast<std::int64_t>(change), "new");
            runLoop.advance(1000);
        }
        EXPECT_FALSE(store.synchronize());
        EXPECT_EQ(onDisk(), before);
        EXPECT_THAT(namesIn(directory), ElementsAre("settings.plist"));
        EXPECT_EQ(warnings.size(), round) << "again after a success";
        fullDisk.reset();
        EXPECT_TRUE(store.synchronize());
        EXPECT_EQ(onDisk(), store.userDomain());
    }
}

TEST_F(SettingsKeeperTest, AFileThatCannotBeReadIsNeverWrittenOver) {
    std::filesystem::create_symlink("settings.plist", path); // a circle
    start();
    store.setBool(true, "mine");
    runLoop.advance(1000);
    EXPECT_FALSE(store.synchronize());
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_THAT(warnings, ElementsAre(HasSubstr("cannot be read")));

    std::filesystem::remove(path);
    editElsewhere({{"theirs", true}});
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(onDisk(), (PropertyDictionary{{"mine", true}, {"theirs", true}}));
}

TEST_F(SettingsKeeperTest, WorksWhereNothingCanBeKept) {
    writeText(home / "file", "");
    path = home / "file/nocturo/settings.plist";
    start();
    store.setBool(true, "a");
    runLoop.advance(1000);
    EXPECT_FALSE(store.synchronize());
    EXPECT_EQ(warnings.size(), 1U);
}

} // namespace
} // namespace nocturo
