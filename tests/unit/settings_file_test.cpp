#include "platform/settings/settings_file.h"

#include "platform/property_lists/property_list.h"
#include "temporary_directory.h"

#include <bit>
#include <clocale>
#include <cstdlib>
#include <gmock/gmock.h>
#include <limits>
#include <sys/stat.h>

namespace nocturo {
namespace {

using State = PropertyListFileContents::State;
using testing::ElementsAre;

constexpr std::string_view kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist "
                                   "version=\"1.0\">";

PropertyDictionary oneOfEach() {
    return {
        {"true", true},
        {"one", std::int64_t{1}},
        {"minus one", std::int64_t{-1}},
        {"least", std::numeric_limits<std::int64_t>::min()},
        {"most", std::numeric_limits<std::int64_t>::max()},
        {"real one", 1.0},
        {"text", std::string(" <a href=\"x\">&amp; ]]>\t\xC3\xA9\xF0\x9F\x8C\x99 'q'\n ")},
        {"empty text", std::string()},
        {"data", PropertyData{{0, 255, 10, 60, 0}}},
        {"no data", PropertyData{}},
        {"date", PropertyDate{781000000, 0}},
        {"early date", PropertyDate{-1, 0}},
        {"uid", PropertyUid{42}},
        {"empty array", PropertyArray{}},
        {"empty dictionary", PropertyDictionary{}},
        {"<key> & \xC3\xBC", false},
        {"nested", PropertyDictionary{{"array", PropertyArray{false, std::int64_t{0}, 0.0,
                                                              PropertyArray{std::string("x")}}}}},
    };
}

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (; times > 0; --times) {
        all += text;
    }
    return all;
}

std::string nested(int depth) {
    return std::string(kHead) + "<dict><key>a</key>" + repeated("<array>", depth) +
           repeated("</array>", depth) + "</dict></plist>";
}

/// Puts a locale with a decimal comma in force, which is made for the occasion; false where it
/// cannot be made.
bool useDecimalComma(const TemporaryDirectory& directory) {
    writeText(directory / "source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\n"
                                    "grouping -1\nEND LC_NUMERIC\n");
    const std::string place = directory / "";
    // The other categories are missing, which localedef reports and survives.
    static_cast<void>(std::system(("localedef --no-archive -c -i " + place + "source " + place +
                                   "comma >" + place + "log 2>&1")
                                      .c_str()));
    ::setenv("LOCPATH", place.c_str(), 1);
    return std::setlocale(LC_NUMERIC, "comma") != nullptr;
}

TEST(PropertyListTest, RealsReadBackToTheLastBitWhereHalfIsWrittenWithAComma) {
    const TemporaryDirectory directory;
    if (!useDecimalComma(directory)) {
        GTEST_SKIP() << "localedef made no locale";
    }
    for (const double real : {static_cast<double>(0.1F), -1.0 / 3.0, 5e-324, 1.7976931348623157e308,
                              9007199254740993.0, 0.5}) {
        const auto read = parsePropertyListXml(propertyListXml({{"real", real}}));
        ASSERT_TRUE(read && read->at("real").as<double>()) << real;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*read->at("real").as<double>()),
                  std::bit_cast<std::uint64_t>(real));
    }
    std::setlocale(LC_NUMERIC, "C");
}

TEST(PropertyListTest, ReadsWhatOthersWrite) {
    const auto read = parsePropertyListXml(
        std::string(kHead) +
        "<!-- by hand --><dict><key>i</key><integer> -5 </integer>"
        "<key>r</key><real>2.5</real><key>s</key><string>a&#xE9;&lt;<![CDATA[<b>"
        "]]></string><key>d</key><data> AQI=\n</data></dict></plist>");
    const PropertyDictionary expected{{"i", std::int64_t{-5}},
                                      {"r", 2.5},
                                      {"s", std::string("a\xC3\xA9<<b>")},
                                      {"d", PropertyData{{1, 2}}}};
    EXPECT_EQ(read, expected);
}

TEST(PropertyListTest, RefusesWhatIsNoListOrIsBuiltToExhaustIt) {
    for (const std::string& text :
         {std::string("{\"json\": true}"), std::string("bplist00"), std::string(4, '\0'),
          std::string(kHead) + "<array/></plist>", std::string(kHead) + "</plist>",
          std::string(kHead) + "<dict><true/></dict></plist>",
          std::string(kHead) + "<dict><key>a</key><x/></dict></plist>", nested(400),
          nested(500000)}) {
        EXPECT_FALSE(parsePropertyListXml(text)) << text.substr(0, 80);
    }
    EXPECT_TRUE(parsePropertyListXml(nested(100)));
}

TEST(PropertyListTest, ReadsBackWhatItWroteAndNothingOfACutOffList) {
    const PropertyDictionary whole = oneOfEach();
    const std::string xml = propertyListXml(whole);
    EXPECT_EQ(parsePropertyListXml(xml), whole);
    for (std::size_t length = 0; length < xml.size(); ++length) {
        // An exact copy, so that the sanitizer sees a read beyond its end.
        const std::vector<char> cut(xml.begin(), xml.begin() + static_cast<std::ptrdiff_t>(length));
        const auto read = parsePropertyListXml({cut.data(), cut.size()});
        EXPECT_TRUE(!read || (*read == whole && length > xml.size() - 20)) << length;
    }
}

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
