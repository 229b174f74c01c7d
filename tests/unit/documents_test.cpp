// Property lists and the documents that are made of them. Both may come from anybody.

#include "settings/property_lists/property_list.h"
#include "settings/property_lists/property_list_file.h"

#include "documents/effect_document_file.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>

#include <bit>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <limits>

#include <plist/plist.h>
#include <sys/stat.h>

using namespace nocturo;

constexpr std::string_view kHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist "
                                   "version=\"1.0\">";

std::string repeated(std::string_view text, int times) {
    std::string all;
    for (; times > 0; --times) {
        all += text;
    }
    return all;
}

std::string xmlWith(const std::string& value) {
    return std::string(kHead) + "<dict><key>a</key>" + value + "</dict></plist>";
}

std::string nested(int depth) {
    return xmlWith(repeated("<array>", depth) + repeated("</array>", depth));
}

/// Parses an exact copy, so that the sanitizer sees a read beyond its end.
std::optional<PropertyDictionary> parseBeginning(const std::string& text, std::size_t length) {
    const std::vector<char> cut(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(length));
    return parsePropertyList({cut.data(), cut.size()});
}

/// Puts a locale with a decimal comma in force, which is made for the occasion; false where it
/// cannot be made.
bool useDecimalComma(const TemporaryDirectory& directory) {
    writeText(directory / "source", "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\n"
                                    "grouping -1\nEND LC_NUMERIC\n");
    const std::string place = directory / "";
    // The other categories are missing, which localedef reports and survives.
    [[maybe_unused]] const int reported =
        std::system(("localedef --no-archive -c -i " + place + "source " + place + "comma >" +
                     place + "log 2>&1")
                        .c_str());
    ::setenv("LOCPATH", place.c_str(), 1);
    return std::setlocale(LC_NUMERIC, "comma") != nullptr;
}

TEST(PropertyListTest, RealsReadBackToTheLastBitWhereHalfIsWrittenWithAComma) {
    const TemporaryDirectory directory;
    ASSERT_TRUE(useDecimalComma(directory)) << readText(directory / "log");
    for (const double real : {static_cast<double>(0.1F), -1.0 / 3.0, 5e-324, 1.7976931348623157e308,
                              9007199254740993.0, 0.5}) {
        const auto read = parsePropertyList(propertyListXml({{"real", real}}));
        ASSERT_TRUE(read && read->at("real").as<double>()) << real;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*read->at("real").as<double>()),
                  std::bit_cast<std::uint64_t>(real));
    }
    std::setlocale(LC_NUMERIC, "C");
}

TEST(PropertyListTest, ReadsWhatOthersWrite) {
    const auto read =
        parsePropertyList(std::string(kHead) +
                          "<!-- by hand --><dict><key>i</key><integer> -5 </integer>"
                          "<key>r</key><real>2.5</real><key>s</key><string>a&#xE9;&lt;<![CDATA[<b>"
                          "]]></string><key>d</key><data> AQI=\n</data></dict></plist>");
    EXPECT_EQ(read, (PropertyDictionary{{"i", std::int64_t{-5}},
                                        {"r", 2.5},
                                        {"s", "a\xC3\xA9<<b>"},
                                        {"d", PropertyData{{1, 2}}}}));
}

TEST(PropertyListTest, RefusesWhatIsNoListOrIsBuiltToExhaustIt) {
    for (const std::string& text :
         {std::string("{\"json\": true}"), std::string(4, '\0'),
          std::string(kHead) + "<array/></plist>", std::string(kHead) + "</plist>",
          std::string(kHead) + "<dict><true/></dict></plist>", xmlWith("<x/>"), nested(400),
          nested(500000), xmlWith("<string>" + repeated("&amp;", 100000) + "</string>")}) {
        EXPECT_FALSE(parsePropertyList(text)) << text.substr(0, 80);
    }
    EXPECT_TRUE(parsePropertyList(nested(100)));
    EXPECT_TRUE(parsePropertyList(xmlWith("<string>" + repeated("&amp;", 5000) + "</string>")));
}

TEST(PropertyListTest, WhatCouldNotBeReadBackIsNeitherReadNorWritten) {
    const TemporaryDirectory directory;
    const std::filesystem::path file = directory / "list";
    ASSERT_TRUE(writePropertyListFile(file, {{"a", true}}, 0600));
    const PropertyDictionary lists[] = {
        {{"a", PropertyArray(100000, std::int64_t{7})}},
        {{"a", std::string(20000, '&')}},
        {{"a", PropertyArray(20000, PropertyArray{true})}},
    };
    for (const PropertyDictionary& list : lists) {
        EXPECT_FALSE(parsePropertyList(propertyListXml(list)));
        EXPECT_EQ(writePropertyListFile(file, list, 0600).error().errorNumber, EFBIG);
        EXPECT_EQ(readPropertyListFile(file).dictionary, (PropertyDictionary{{"a", true}}));
    }
    // Shorter than it would be once it is written.
    const std::string compact =
        xmlWith("<array>" + repeated("<integer>7</integer>", 47000) + "</array>");
    ASSERT_LT(compact.size(), kLongestPropertyList);
    EXPECT_FALSE(parsePropertyList(compact));
}

/// What another program makes of the list.
std::string binaryListOf(const std::string& xml) {
    plist_t list = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &list);
    char* bytes = nullptr;
    std::uint32_t length = 0;
    plist_to_bin(list, &bytes, &length);
    std::string binary(bytes, length);
    std::free(bytes); // As every version of libplist has it; the names for it differ.
    plist_free(list);
    return binary;
}

TEST(PropertyListTest, ReadsEveryTypeInBothFormatsAndNothingOfACutOffList) {
    const PropertyDictionary whole{
        {"true", true},
        {"minus one", std::int64_t{-1}},
        {"least", std::numeric_limits<std::int64_t>::min()},
        {"most", std::numeric_limits<std::int64_t>::max()},
        {"real one", 1.0},
        {"third", -1.0 / 3.0},
        {"text", " <a href=\"x\">&amp; ]]>\t\xC3\xA9\xF0\x9F\x8C\x99 'q'\n "},
        {"empty text", ""},
        {"data", PropertyData{{0, 255, 10, 60, 0}}},
        {"no data", PropertyData{}},
        {"date", PropertyDate{781000000, 0}},
        {"early date", PropertyDate{-1, 0}},
        {"uid", PropertyUid{42}},
        {"empty dictionary", PropertyDictionary{}},
        {"<key> & \xC3\xBC", PropertyArray{false, std::int64_t{256}, 0.0, PropertyArray{"x"}}},
    };
    const std::string xml = propertyListXml(whole);
    for (const std::string& list : {xml, binaryListOf(xml)}) {
        EXPECT_EQ(parsePropertyList(list), whole);
        for (std::size_t length = 0; length < list.size(); ++length) {
            const auto read = parseBeginning(list, length);
            EXPECT_TRUE(!read || (*read == whole && length > list.size() - 20)) << length;
        }
    }
}

std::string bigEndian(std::uint64_t value, int width) {
    std::string bytes;
    for (int shift = 8 * (width - 1); shift >= 0; shift -= 8) {
        bytes += static_cast<char>(value >> shift & 0xFFU);
    }
    return bytes;
}

/// A container of any number of references, two bytes each.
std::string container(unsigned type, std::size_t count, const std::vector<std::size_t>& to) {
    std::string bytes = bigEndian(type << 4U | 0xFU, 1) + '\x12' + bigEndian(count, 4);
    for (const std::size_t reference : to) {
        bytes += bigEndian(reference, 2);
    }
    return bytes;
}

/// The objects as a binary list, the first at its root.
std::string binaryList(const std::vector<std::string>& objects) {
    std::string bytes = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets += bigEndian(bytes.size(), 4);
        bytes += object;
    }
    const std::size_t table = bytes.size();
    return bytes + offsets + std::string(6, '\0') + "\x04\x02" + bigEndian(objects.size(), 8) +
           bigEndian(0, 8) + bigEndian(table, 8);
}

/// {"a": the object after the next}, with whatever else is given.
std::string withRootDictionary(std::vector<std::string> objects) {
    objects.insert(objects.begin(), {container(0xD, 1, {1, 2}), "Qa"});
    return binaryList(objects);
}

/// Arrays below the root, each naming the next one as often as `times`, down to an empty one.
std::string chain(std::size_t length, std::size_t times) {
    std::vector<std::string> arrays;
    for (std::size_t i = 0; i < length; ++i) {
        arrays.push_back(container(0xA, times, std::vector<std::size_t>(times, i + 3)));
    }
    arrays.push_back("\xA0");
    return withRootDictionary(arrays);
}

TEST(PropertyListTest, RefusesBinaryListsThatWouldExhaustIt) {
    EXPECT_TRUE(parsePropertyList(chain(60, 1)));
    for (const std::size_t tooDeep : {65, 65000}) {
        EXPECT_FALSE(parsePropertyList(chain(tooDeep, 1)));
    }
    EXPECT_TRUE(parsePropertyList(chain(2, 200)));
    EXPECT_FALSE(parsePropertyList(chain(3, 200))) << "eight million arrays";
    EXPECT_FALSE(parsePropertyList(
        withRootDictionary({"\x5F\x12" + bigEndian(20000, 4) + std::string(20000, '&')})))
        << "more than XML may spell out";
    const std::string text = "\x5F\x12" + bigEndian(500000, 4) + std::string(500000, 'x');
    EXPECT_TRUE(parsePropertyList(withRootDictionary({container(0xA, 2, {3, 3}), text})));
    EXPECT_FALSE(parsePropertyList(
        withRootDictionary({container(0xA, 60000, std::vector<std::size_t>(60000, 3)), text})))
        << "thirty gigabytes of text";
}

TEST(PropertyListTest, RefusesBinaryListsThatAreDamaged) {
    for (const std::vector<std::string>& objects : std::vector<std::vector<std::string>>{
             {container(0xA, 1, {2})},                         // itself
             {container(0xA, 1, {3}), container(0xA, 1, {0})}, // the root
             {container(0xA, 1, {7})},                         // no object
             {container(0xA, 0xFFFFFFFF, {})},
             {container(0xD, 0x80000000, {})},
             {"\x5F\x13" + bigEndian(std::numeric_limits<std::uint64_t>::max(), 8) + "text"},
             {"\x6F\x13" + bigEndian(std::uint64_t{1} << 63U, 8) + "text"},
             {"\x5F\x1F" + std::string(64, '\0')}, // a size of 32768 bytes
             {"\x4F"},
             {"\x14" + std::string(4, '\0')},
             {container(0xD, 1, {3, 3}), "\x09"}, // a key that is no text
             {container(0xD, 1, {3, 4}), std::string("\x52x\0", 3), "\x09"},
             {container(0xD, 1, {3, 4}), std::string("\x61\0\0", 3), "\x09"},
             {"\x70"}}) {
        EXPECT_FALSE(parsePropertyList(withRootDictionary(objects))) << objects[0].substr(0, 12);
    }
    EXPECT_FALSE(parsePropertyList(binaryList({"\xA0"})));
    EXPECT_FALSE(parsePropertyList(binaryList({})));
}

const EffectDocument kEverything{true, true, true, true, 359.9F, 0.1F, true, -1.0F / 3.0F};

struct EffectDocumentTest : testing::Test {
    /// A document of that format and those other entries.
    std::optional<EffectDocument> reading(const std::string& format,
                                          const std::string& entries = "") const {
        writeText(path, std::string(kHead) + "<dict><key>NDSaveFormat</key>" + format + entries +
                            "</dict></plist>");
        return readEffectDocument(path);
    }
    EffectDocument withValue(const std::string& key, const std::string& value) const {
        return reading("<integer>2</integer>", "<key>" + key + "</key>" + value).value();
    }
    std::filesystem::perms mode() const { return std::filesystem::status(path).permissions(); }

    TemporaryDirectory home;
    std::filesystem::path path = home / "evening.nocturo";
};

TEST_F(EffectDocumentTest, HoldsNineEntriesOfTheirOwnTypes) {
    const PropertyDictionary entries{
        {"NDSaveFormat", std::int64_t{2}}, {"InvertScreen", true}, {"Overexposure", false},
        {"HDTVLuminance", true},           {"ColorFilter", false}, {"ColorFilterHue", 240.5},
        {"ColorFilterVividness", 0.75},    {"Dim", true},          {"DimLevel", -0.25}};
    const EffectDocument some{true, false, true, false, 240.5F, 0.75F, true, -0.25F};
    EXPECT_EQ(propertyDictionary(some), entries);
    for (const EffectDocument& document :
         {some, EffectDocument{true, true, false, false, std::numeric_limits<float>::min(), 1.0F,
                               false, std::numeric_limits<float>::max()}}) {
        EXPECT_TRUE(writeEffectDocument(path, document));
        EXPECT_EQ(readEffectDocument(path), document);
    }
}

TEST_F(EffectDocumentTest, ReadsEachEntryByItsTypeAndValue) {
    for (const char* format :
         {"<integer>1</integer>", "<integer>3</integer>", "<string>2</string>", "<real>2.5</real>",
          "<true/>", "<real>nan</real>", "<array><integer>2</integer></array>"}) {
        EXPECT_FALSE(reading(format)) << format;
    }
    for (const char* format : {"<integer>2</integer>", "<real>2.0</real>"}) {
        EXPECT_EQ(reading(format), EffectDocument()) << format;
    }
    for (const char* on : {"<true/>", "<integer>1</integer>", "<real>1.0</real>"}) {
        EXPECT_TRUE(withValue("InvertScreen", on).invertScreen) << on;
    }
    for (const char* off :
         {"<false/>", "<integer>0</integer>", "<integer>2</integer>", "<integer>-1</integer>",
          "<real>1.5</real>", "<string>1</string>", "<string>true</string>", "<dict/>"}) {
        EXPECT_FALSE(withValue("InvertScreen", off).invertScreen) << off;
    }
    EXPECT_EQ(withValue("DimLevel", "<real>0.1</real>").dimLevel, 0.1F);
    EXPECT_EQ(withValue("DimLevel", "<integer>-7</integer>").dimLevel, -7.0F);
    for (const char* zero : {"<string>0.5</string>", "<true/>", "<array/>", "<real>nan</real>",
                             "<real>inf</real>", "<real>1e300</real>"}) {
        EXPECT_EQ(withValue("DimLevel", zero).dimLevel, 0.0F) << zero;
    }
}

TEST_F(EffectDocumentTest, IsAFileOfASensibleSize) {
    const std::string whole = propertyListXml(propertyDictionary(kEverything));
    writeText(path, whole + std::string(1000, ' '));
    EXPECT_EQ(readEffectDocument(path), kEverything);
    writeText(path, whole + std::string(1 << 20, ' '));
    EXPECT_FALSE(readEffectDocument(path));
    ASSERT_EQ(::mkfifo((home / "pipe").c_str(), 0600), 0);
    for (const auto& place : {home / "pipe", home.path(), path / "below a file", home / "no/x"}) {
        EXPECT_FALSE(readEffectDocument(place)) << place;
        EXPECT_FALSE(writeEffectDocument(place, kEverything)) << place;
    }
    EXPECT_FALSE(readEffectDocument("/dev/zero"));
}

TEST_F(EffectDocumentTest, IsReplacedAsAWholeOrNotAtAll) {
    using std::filesystem::perms;
    const mode_t before = ::umask(027);
    EXPECT_TRUE(writeEffectDocument(path, EffectDocument()));
    ::umask(before);
    EXPECT_EQ(mode(), perms{0640});
    std::filesystem::permissions(path, perms{0604});
    EXPECT_TRUE(writeEffectDocument(path, kEverything));
    EXPECT_EQ(mode(), perms{0604});
    {
        const FullDisk full(100);
        EXPECT_FALSE(writeEffectDocument(path, EffectDocument()));
    }
    EXPECT_EQ(readEffectDocument(path), kEverything);
    EXPECT_THAT(namesIn(home.path()), testing::ElementsAre("evening.nocturo"));
}
