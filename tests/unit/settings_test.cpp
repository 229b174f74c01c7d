// The settings in memory, in their file and between the two, and who is told of them.

#include "settings/settings_keeper.h"

#include "base/environment.h"
#include "base/log.h"
#include "base/notification_center.h"
#include "fake_run_loop.h"
#include "settings/property_lists/property_list.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <limits>

using namespace nocturo;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Keys = PropertyDictionary;

TEST(NotificationCenter, ObserversComeAndGoWhileOthersAreTold) {
    NotificationCenter center;
    std::string told;
    const int first = 0; // observers are told apart by address
    const int second = 0;
    center.addObserver(&first, "outer", [&] {
        told += "(";
        center.post("inner");
    });
    center.addObserver(&second, "outer", [&] { told += "gone"; });
    center.addObserver(&first, "outer", [&] { told += ")"; });
    center.addObserver(&first, "inner", [&] {
        told += "i";
        center.removeObserver(&second);
        center.removeObserver(&first, "inner"); // the one that runs, too
        center.addObserver(&second, "outer", [&] { told += "new"; });
    });
    center.post("outer");
    EXPECT_EQ(told, "(i)");
    center.post("outer");
    EXPECT_EQ(told, "(i)()new");
}

struct DefaultsStoreTest : testing::Test {
    NotificationCenter center;
    DefaultsStore store{center};
};

TEST_F(DefaultsStoreTest, ReadsEachTypeWithItsOwnConversions) {
    using Case = std::tuple<PropertyValue, bool, std::int64_t, float>;
    for (const auto& [value, asBool, asInteger, asFloat] : {
             Case{true, true, 0, 0.0F},
             Case{std::int64_t{-7}, true, -7, -7.0F},
             Case{std::int64_t{0}, false, 0, 0.0F},
             Case{0.25, true, 0, 0.25F},
             Case{1e300, true, 0, 0.0F}, // infinite in single precision
             Case{std::numeric_limits<double>::quiet_NaN(), true, 0, 0.0F},
             Case{"1", false, 0, 0.0F},
             Case{PropertyArray{true}, false, 0, 0.0F},
         }) {
        SCOPED_TRACE(value.index());
        store.setObject(value, "key");
        EXPECT_EQ(store.boolForKey("key"), asBool);
        EXPECT_EQ(store.integerForKey("key"), asInteger);
        EXPECT_EQ(store.floatForKey("key"), asFloat);
    }
}

TEST_F(DefaultsStoreTest, ARegisteredDefaultHoldsWhereTheUserSaidNothing) {
    store.registerDefaults({{"level", 0.5}, {"other", true}});
    store.registerDefaults({{"level", 0.75}});
    store.setObject("not a number", "level");
    EXPECT_EQ(store.floatForKey("level"), 0.0F) << "a wrong type does not fall back";
    store.removeObjectForKey("level");
    EXPECT_EQ(store.floatForKey("level"), 0.75F);
    EXPECT_TRUE(store.boolForKey("other"));
    EXPECT_THAT(store.userDomain(), IsEmpty()) << "defaults are never kept";
}

TEST_F(DefaultsStoreTest, NotifiesAfterEveryWriteAndKeepsOnlyTrueChanges) {
    std::vector<float> seen;
    center.addObserver(this, NSUserDefaultsDidChangeNotification,
                       [&] { seen.push_back(store.floatForKey("level")); });
    store.setFloat(0.5F, "level");
    store.markKept();
    store.setFloat(0.5F, "level");
    store.removeObjectForKey("absent");
    EXPECT_THAT(store.changedKeys(), IsEmpty());
    store.setInteger(1, "type");
    store.markKept();
    store.setBool(true, "type"); // which is not the integer 1
    store.removeObjectForKey("level");
    EXPECT_THAT(store.changedKeys(), ElementsAre("level", "type"));
    EXPECT_THAT(seen, ElementsAre(0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.0F));
}

TEST_F(DefaultsStoreTest, TellsWhichKeysChangedAndABatchAllOfThemAtOnce) {
    std::vector<std::string> told;
    center.addObserver(this, NSUserDefaultsDidChangeNotification, [&](const Subjects& settings) {
        std::string keys;
        for (const char* key : {"a", "b", "c", "d"}) {
            keys += settings.contain(key) ? key : "-";
        }
        told.push_back(keys);
    });
    store.setBool(true, "a");
    {
        const DefaultsStore::Batch outer(store);
        store.setBool(true, "b");
        { const DefaultsStore::Batch inner(store); }
        store.setBool(true, "c");
    }
    { const DefaultsStore::Batch nothing(store); }
    store.markKept();
    store.mergeUserDomain({{"a", true}, {"c", false}, {"d", true}}); // as by an edit of the file
    store.mergeUserDomain(PropertyDictionary(store.userDomain()));
    center.post(NSUserDefaultsDidChangeNotification);
    EXPECT_THAT(told, ElementsAre("a---", "-bc-", "-bcd", "abcd"));
}

struct SettingsKeeperTest : DefaultsStoreTest {
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
    Keys onDisk() const { return readPropertyListFile(path).dictionary; }
    void editElsewhere(const Keys& content) const { writeText(path, propertyListXml(content)); }
    std::ptrdiff_t setAsideFiles() const {
        const auto names = namesIn(directory);
        return std::count_if(names.begin(), names.end(), [](const std::string& name) {
            return name.starts_with("settings.plist.damaged-");
        });
    }
    TemporaryDirectory home;
    std::filesystem::path directory = home / "nocturo";
    std::filesystem::path path = directory / "settings.plist";
    FakeRunLoop runLoop;
    std::vector<std::string> warnings;
    int notifications = 0;
    std::optional<SettingsKeeper> keeper;
};

TEST_F(SettingsKeeperTest, MakesAPrivateFileInADirectoryOfItsOwn) {
    using std::filesystem::perms;
    EXPECT_TRUE(writeSettingsFile(home / "config/nocturo/file", {{"a", true}}));
    for (const auto& [name, permissions] :
         {std::pair("config/nocturo/file", perms{0600}), std::pair("config/nocturo", perms{0700}),
          std::pair("config", perms{0700})}) {
        EXPECT_EQ(std::filesystem::status(home / name).permissions(), permissions) << name;
    }
}

TEST_F(SettingsKeeperTest, LiesInNoDirectoryThatDependsOnWhereOneIs) {
    const std::string before = std::getenv("HOME");
    for (const char* odd : {"", "."}) {
        ::setenv("HOME", odd, 1);
        EXPECT_TRUE(userDirectory("NO_SUCH_VARIABLE", ".config").is_absolute()) << odd;
    }
    ::setenv("HOME", before.c_str(), 1);
}

TEST_F(SettingsKeeperTest, SetsAsideUnderTheLocalTimeWithoutReplacingAnything) {
    ::setenv("TZ", "XYZ-3", 1); // three hours ahead of UTC
    ::tzset();
    const std::chrono::system_clock::time_point when{std::chrono::seconds(1795241318)};
    for (const char* content : {"first", "second"}) {
        writeText(path, content);
        EXPECT_TRUE(setAsideDamagedFile(path, when));
    }
    ::unsetenv("TZ");
    EXPECT_EQ(readText(path.string() + ".damaged-20261121-090838"), "first");
    EXPECT_EQ(readText(path.string() + ".damaged-20261121-090838-2"), "second");
    EXPECT_EQ(setAsideDamagedFile(path, when).error().errorNumber, ENOENT);
}

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
    EXPECT_TRUE(store.synchronize()); // at once
    EXPECT_EQ(onDisk(), (Keys{{"level", std::int64_t{30}}}));
    last = fileStamp(path);
    store.setInteger(30, "level"); // an equal value is no change
    EXPECT_EQ(runLoop.pendingTimers(), 0U) << "nothing ticks when nothing changes";
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(fileStamp(path), last);

    notifications = 0;
    EXPECT_TRUE(runLoop.serveDescriptors()); // at once, as the kernel queues within the call
    EXPECT_EQ(notifications, 0) << "its own writes are no news";
    EXPECT_FALSE(runLoop.serveDescriptors());
}

TEST_F(SettingsKeeperTest, FollowsEditsOnceTheyAreComplete) {
    editElsewhere({{"a", std::int64_t{1}}});
    start();
    EXPECT_EQ(store.integerForKey("a"), 1);

    const std::string xml = propertyListXml({{"a", std::int64_t{2}}, {"unknown", true}});
    {
        std::ofstream editor(path);
        editor << xml.substr(0, xml.size() / 2) << std::flush;
        runLoop.serveDescriptors();
        EXPECT_EQ(store.integerForKey("a"), 1) << "half-written";
        editor << xml.substr(xml.size() / 2);
    }
    runLoop.serveDescriptors();
    EXPECT_EQ(store.integerForKey("a"), 2);
    EXPECT_EQ(notifications, 1);

    writeText(directory / "new", propertyListXml({{"a", std::int64_t{3}}}));
    std::filesystem::rename(directory / "new", path);
    runLoop.serveDescriptors();
    EXPECT_EQ(store.integerForKey("a"), 3);

    std::filesystem::remove(path);
    runLoop.serveDescriptors();
    EXPECT_EQ(store.integerForKey("a"), 3) << "deleting changes nothing";
    store.setBool(true, "b");
    runLoop.advance(1000);
    EXPECT_EQ(onDisk(), (Keys{{"a", std::int64_t{3}}, {"b", true}}));
}

TEST_F(SettingsKeeperTest, FollowsTheTargetOfALinkAndMakesItsDirectoryAgain) {
    std::filesystem::create_directory(home / "dotfiles");
    std::filesystem::create_symlink("../dotfiles/link", path);
    std::filesystem::create_symlink(home / "dotfiles/real", home / "dotfiles/link");
    start();
    writeText(home / "dotfiles/real", propertyListXml({{"a", true}}));
    runLoop.serveDescriptors();
    EXPECT_TRUE(store.boolForKey("a"));
    store.setBool(false, "a");
    EXPECT_TRUE(store.synchronize());
    EXPECT_TRUE(std::filesystem::is_symlink(path));
    EXPECT_EQ(readPropertyListFile(home / "dotfiles/real").dictionary, (Keys{{"a", false}}));
    runLoop.serveDescriptors();
    std::filesystem::remove_all(directory);
    store.setBool(true, "b");
    runLoop.advance(1000);
    EXPECT_EQ(onDisk(), (Keys{{"a", false}, {"b", true}}));
    editElsewhere({{"a", true}}); // in the new directory
    runLoop.serveDescriptors();
    EXPECT_TRUE(store.boolForKey("a"));
}

TEST_F(SettingsKeeperTest, AnEditIsNoticedThoughTheKernelHadTooMuchToTell) {
    start();
    for (int left = std::stoi(readText("/proc/sys/fs/inotify/max_queued_events")); left >= 0;
         --left) {
        std::ofstream(directory / (left % 2 == 0 ? "even" : "odd")); // equal neighbours are one
    }
    editElsewhere({{"a", true}});
    runLoop.serveDescriptors();
    EXPECT_TRUE(store.boolForKey("a"));
}

TEST_F(SettingsKeeperTest, AnEditMadeElsewhereBeforeAWriteIsNotLost) {
    editElsewhere({{"mine", std::int64_t{1}}, {"theirs", std::int64_t{1}}, {"gone", true}});
    start();
    store.setInteger(2, "mine");
    store.removeObjectForKey("gone");
    editElsewhere({{"mine", std::int64_t{99}}, {"theirs", std::int64_t{99}}, {"gone", true}});
    runLoop.advance(1000);
    const Keys merged{{"mine", std::int64_t{2}}, {"theirs", std::int64_t{99}}};
    EXPECT_EQ(onDisk(), merged);
    EXPECT_EQ(store.userDomain(), merged);
    editElsewhere({}); // what was written is the user's no longer
    runLoop.serveDescriptors();
    EXPECT_THAT(store.userDomain(), IsEmpty());
}

TEST_F(SettingsKeeperTest, ADamagedFileIsSetAsideAndTheSettingsInUseAreSavedAnew) {
    writeText(path, "<plist><dict><key>a");
    start();
    EXPECT_THAT(store.userDomain(), IsEmpty());
    EXPECT_EQ(setAsideFiles(), 1);
    EXPECT_THAT(warnings, ElementsAre(HasSubstr("settings.plist.damaged-")));

    store.setBool(true, "a");
    runLoop.advance(1000);
    runLoop.serveDescriptors();
    writeText(path, "damaged, then noticed");
    runLoop.serveDescriptors();
    runLoop.advance(500 + 1000);
    EXPECT_EQ(setAsideFiles(), 2);
    EXPECT_EQ(onDisk(), (Keys{{"a", true}}));

    writeText(path, "damaged, then found by the next write");
    store.setBool(true, "b");
    runLoop.advance(800 + 500 + 800);
    EXPECT_EQ(setAsideFiles(), 3);
    EXPECT_EQ(onDisk(), (Keys{{"a", true}, {"b", true}}));
    EXPECT_EQ(warnings.size(), 3U);
}

TEST_F(SettingsKeeperTest, AFileThatIsBeingWrittenInItsPlaceIsWaitedFor) {
    start();
    store.setBool(true, "a");
    runLoop.advance(1000);
    store.setBool(true, "b");
    runLoop.advance(700);
    writeText(path, ""); // as an editor leaves it for a moment
    runLoop.serveDescriptors();
    runLoop.advance(400); // neither the event nor the write that falls due touch it
    EXPECT_EQ(std::filesystem::file_size(path), 0U);
    editElsewhere({{"a", false}, {"theirs", true}});
    runLoop.advance(2000);
    EXPECT_EQ(setAsideFiles(), 0);
    EXPECT_EQ(onDisk(), (Keys{{"a", false}, {"b", true}, {"theirs", true}}));
}

TEST_F(SettingsKeeperTest, AFailedWriteIsSaidOnceAndTriedAgain) {
    editElsewhere({{"old", true}});
    start();
    for (std::size_t round = 1; round <= 2; ++round) {
        const Keys before = onDisk();
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
    EXPECT_EQ(onDisk(), (Keys{{"mine", true}, {"theirs", true}}));
}
