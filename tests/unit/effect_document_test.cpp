#include "preferences/documents/effect_document_file.h"

#include "platform/property_lists/property_list.h"
#include "temporary_directory.h"

#include <gmock/gmock.h>
#include <limits>
#include <sys/stat.h>

namespace nocturo {
namespace {

using testing::ElementsAre;

const EffectDocument kEverything{true, true, true, true, 359.9F, 0.1F, true, -1.0F / 3.0F};

std::string xml(std::string_view entries) {
    return "<plist version=\"1.0\"><dict>" + std::string(entries) + "</dict></plist>";
}

std::string accepted(std::string_view entries) {
    return xml("<key>NDSaveFormat</key><integer>2</integer>" + std::string(entries));
}

class EffectDocumentTest : public testing::Test {
  protected:
    TemporaryDirectory home;
    std::filesystem::path path = home / "evening.nocturo";

    std::optional<EffectDocument> reading(std::string_view text) const {
        writeText(path, text);
        return readEffectDocument(path);
    }

    static mode_t modeOf(const std::filesystem::path& file) {
        struct stat status {};
        EXPECT_EQ(::stat(file.c_str(), &status), 0);
        return status.st_mode & mode_t{07777};
    }
};

TEST(EffectDocumentDictionaryTest, HoldsNineEntriesOfTheirOwnTypes) {
    const PropertyDictionary expected{
        {"NDSaveFormat", std::int64_t{2}}, {"InvertScreen", true}, {"Overexposure", false},
        {"HDTVLuminance", true},           {"ColorFilter", false}, {"ColorFilterHue", 240.5},
        {"ColorFilterVividness", 0.75},    {"Dim", true},          {"DimLevel", -0.25}};
    EXPECT_EQ(propertyDictionary({true, false, true, false, 240.5F, 0.75F, true, -0.25F}),
              expected);
}

TEST_F(EffectDocumentTest, TakesOnlyTheNumberTwoForItsFormat) {
    for (const char* marker : {"", "<integer>1</integer>", "<integer>3</integer>",
                               "<string>2</string>", "<real>2.5</real>", "<true/>",
                               "<real>nan</real>", "<array><integer>2</integer></array>"}) {
        const std::string key = *marker != '\0' ? "<key>NDSaveFormat</key>" : "";
        EXPECT_FALSE(reading(xml(key + marker + "<key>Dim</key><true/>"))) << marker;
    }
    for (const char* marker : {"<integer>2</integer>", "<real>2.0</real>"}) {
        EXPECT_EQ(reading(xml(std::string("<key>NDSaveFormat</key>") + marker)), EffectDocument())
            << marker;
    }
}

TEST_F(EffectDocumentTest, ReadsABooleanAsOnOnlyWhenItEqualsTrue) {
    const auto isOn = [this](const std::string& value) {
        return reading(accepted("<key>InvertScreen</key>" + value)).value().invertScreen;
    };
    for (const char* on : {"<true/>", "<integer>1</integer>", "<real>1.0</real>"}) {
        EXPECT_TRUE(isOn(on)) << on;
    }
    for (const char* off :
         {"<false/>", "<integer>0</integer>", "<integer>2</integer>", "<integer>-1</integer>",
          "<real>1.5</real>", "<string>1</string>", "<string>true</string>", "<dict/>"}) {
        EXPECT_FALSE(isOn(off)) << off;
    }
}

TEST_F(EffectDocumentTest, ReadsARealAsANumberOfSinglePrecisionOrAsZero) {
    const auto level = [this](const std::string& value) {
        return reading(accepted("<key>DimLevel</key>" + value)).value().dimLevel;
    };
    EXPECT_EQ(level("<real>0.1</real>"), 0.1F);
    EXPECT_EQ(level("<integer>-7</integer>"), -7.0F) << "no range is checked";
    for (const char* zero : {"<string>0.5</string>", "<true/>", "<array/>", "<real>nan</real>",
                             "<real>inf</real>", "<real>1e300</real>"}) {
        EXPECT_EQ(level(zero), 0.0F) << zero;
    }
}

TEST_F(EffectDocumentTest, ReadsWhatItWroteAndTheBinaryForm) {
    for (const EffectDocument& document :
         {kEverything, EffectDocument(),
          EffectDocument{false, true, false, true, std::numeric_limits<float>::min(), 1.0F, false,
                         std::numeric_limits<float>::max()}}) {
        EXPECT_TRUE(writeEffectDocument(path, document));
        EXPECT_EQ(readEffectDocument(path), document);
    }
    EXPECT_THAT(readText(path), testing::HasSubstr("<plist version=\"1.0\">"));
    // As Python's plistlib writes it.
    constexpr std::string_view binary(
        "bplist00\xD3\1\2\3\4\5\6SDimXDimLevel\\NDSaveFormat\t#?\xE0\0\0\0\0\0\0\x10\2"
        "\x08\x0F\x13\x1C)*3\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\7\0\0\0\0\0\0\0\0"
        "\0\0\0\0\0\0\0\x35",
        92);
    const EffectDocument half{false, false, false, false, 0.0F, 0.0F, true, 0.5F};
    EXPECT_EQ(reading(binary), half);
}

TEST_F(EffectDocumentTest, RefusesWhatIsNoDocument) {
    const std::string whole = propertyListXml(propertyDictionary(kEverything));
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += "<array>";
    }
    for (const std::string& text :
         {std::string(), std::string("NDSaveFormat = 2"), whole.substr(0, whole.size() / 2),
          "<plist version=\"1.0\"><array>" + accepted("") + "</array></plist>",
          accepted("<key>a</key>" + deep), whole + std::string(1 << 20, ' ')}) {
        EXPECT_FALSE(reading(text)) << text.substr(0, 80);
    }
    EXPECT_TRUE(reading(whole + std::string(1000, ' ')));
    ASSERT_EQ(::mkfifo((home / "pipe").c_str(), 0600), 0);
    for (const auto& file : {home / "pipe", home.path(), home / "absent", path / "below a file",
                             std::filesystem::path("/dev/zero"), std::filesystem::path()}) {
        EXPECT_FALSE(readEffectDocument(file)) << file;
    }
}

TEST_F(EffectDocumentTest, ReplacesAsAWholeAndKeepsThePermissions) {
    const mode_t before = ::umask(027);
    EXPECT_TRUE(writeEffectDocument(path, EffectDocument()));
    ::umask(before);
    EXPECT_EQ(modeOf(path), 0640U);
    ::chmod(path.c_str(), 0604);
    std::filesystem::create_symlink("evening.nocturo", home / "link.nocturo");
    EXPECT_TRUE(writeEffectDocument(home / "link.nocturo", kEverything));
    EXPECT_TRUE(std::filesystem::is_symlink(home / "link.nocturo"));
    EXPECT_EQ(modeOf(path), 0604U);
    EXPECT_EQ(readEffectDocument(path), kEverything);
    EXPECT_THAT(namesIn(home.path()), ElementsAre("evening.nocturo", "link.nocturo"));
}

TEST_F(EffectDocumentTest, AFailedWriteLeavesEverythingAsItWas) {
    ASSERT_TRUE(writeEffectDocument(path, kEverything));
    std::filesystem::create_directory(home / "folder");
    ASSERT_EQ(::mkfifo((home / "pipe").c_str(), 0600), 0);
    for (const auto& place : {path / "below a file", home / "folder", home / "pipe",
                              home / "missing/x", std::filesystem::path()}) {
        EXPECT_FALSE(writeEffectDocument(place, EffectDocument())) << place;
    }
    {
        const FullDisk full(100);
        EXPECT_FALSE(writeEffectDocument(path, EffectDocument()));
    }
    EXPECT_EQ(readEffectDocument(path), kEverything);
    EXPECT_THAT(namesIn(home.path()), ElementsAre("evening.nocturo", "folder", "pipe"));
}

TEST_F(EffectDocumentTest, ShowsNoExtensionWhereItIsHidden) {
    setExtensionHidden(path, true); // there is no file yet
    EXPECT_EQ(documentDisplayName(path), "evening.nocturo");
    ASSERT_TRUE(writeEffectDocument(path, kEverything));
    EXPECT_EQ(documentDisplayName(path), "evening.nocturo");
    setExtensionHidden(path, true);
    if (!isExtensionHidden(path)) {
        GTEST_SKIP() << "no extended attributes here";
    }
    EXPECT_TRUE(writeEffectDocument(path, EffectDocument()));
    EXPECT_EQ(documentDisplayName(path), "evening") << "the mark outlives a replacement";
    setExtensionHidden(path, false);
    EXPECT_EQ(documentDisplayName(path), "evening.nocturo");
}

} // namespace
} // namespace nocturo
