#include "displays/edid.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <string_view>

namespace nocturo {

namespace {

constexpr std::array<std::uint8_t, 8> kHeader = {0, 255, 255, 255, 255, 255, 255, 0};
constexpr std::size_t kMakerOffset = 8;
constexpr std::array<std::size_t, 4> kDescriptorOffsets = {54, 72, 90, 108};
constexpr std::size_t kTagSize = 5; // 0, 0, 0, the kind, 0
constexpr std::size_t kTextSize = 13;

std::string printable(const std::string& text) {
    std::string result;
    std::ranges::copy_if(text, std::back_inserter(result),
                         [](char letter) { return letter >= ' ' && letter <= '~'; });
    result.erase(0, std::min(result.find_first_not_of(' '), result.size()));
    result.erase(result.find_last_not_of(' ') + 1);
    return result;
}

/// Three letters of five bits each.
std::string makersLetters(const std::vector<std::uint8_t>& edid) {
    const unsigned packed = unsigned{edid[kMakerOffset]} << 8U | edid[kMakerOffset + 1];
    std::string letters;
    for (const unsigned shift : {10U, 5U, 0U}) {
        letters += static_cast<char>('A' - 1 + (packed >> shift & 0x1FU));
    }
    return letters;
}

std::string nameOfMaker(const std::string& letters, const std::string& makers) {
    std::ifstream file(makers);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with(letters) && line.size() > letters.size() &&
            line[letters.size()] == '\t') {
            return printable(line.substr(letters.size()));
        }
    }
    return {};
}

/// Many models begin with their maker's name.
bool beginsAlike(std::string_view model, std::string_view maker) {
    const std::string_view word = maker.substr(0, maker.find(' '));
    return model.size() >= word.size() &&
           std::equal(word.begin(), word.end(), model.begin(), [](char one, char other) {
               return std::tolower(static_cast<unsigned char>(one)) ==
                      std::tolower(static_cast<unsigned char>(other));
           });
}

} // namespace

bool isEdid(const std::vector<std::uint8_t>& edid) {
    return edid.size() >= kEdidBlockSize &&
           std::equal(kHeader.begin(), kHeader.end(), edid.begin());
}

std::vector<std::string> edidTexts(const std::vector<std::uint8_t>& edid, EdidText kind) {
    const std::array<std::uint8_t, kTagSize> tag = {0, 0, 0, static_cast<std::uint8_t>(kind), 0};
    std::vector<std::string> texts;
    for (const std::size_t offset : kDescriptorOffsets) {
        const auto* descriptor = edid.data() + offset;
        if (std::equal(tag.begin(), tag.end(), descriptor)) {
            const auto* text = reinterpret_cast<const char*>(descriptor) + kTagSize;
            texts.emplace_back(text, std::find(text, text + kTextSize, '\n'));
        }
    }
    return texts;
}

std::string monitorName(const std::vector<std::uint8_t>& edid, const std::string& makers) {
    if (!isEdid(edid)) {
        return {};
    }
    const auto models = edidTexts(edid, EdidText::model);
    const std::string model = models.empty() ? std::string() : printable(models.front());
    const std::string maker = nameOfMaker(makersLetters(edid), makers);
    if (model.empty() || maker.empty() || beginsAlike(model, maker)) {
        return model.empty() ? maker : model;
    }
    return maker + ' ' + model;
}

} // namespace nocturo
