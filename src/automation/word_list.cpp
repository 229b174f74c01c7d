#include "automation/word_list.h"

#include "settings/defaults_store.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

PropertyArray stored(const DefaultsStore& defaults, std::string_view key) {
    const PropertyArray* array = defaults.arrayForKey(key);
    return array != nullptr ? *array : PropertyArray();
}

} // namespace

std::vector<std::string> wordsOf(const DefaultsStore& defaults, std::string_view key) {
    std::vector<std::string> words;
    for (const PropertyValue& element : stored(defaults, key)) {
        const auto* text = element.as<std::string>();
        words.push_back(text != nullptr ? *text : std::string());
    }
    return words;
}

bool addWords(DefaultsStore& defaults, std::string_view key, const std::string& words,
              std::size_t most) {
    PropertyArray list = stored(defaults, key);
    const PropertyValue added = words;
    if (std::find(list.begin(), list.end(), added) != list.end()) {
        return true;
    }
    if (list.size() >= most) {
        return false;
    }
    list.push_back(added);
    defaults.setObject(std::move(list), key);
    return true;
}

bool replaceWords(DefaultsStore& defaults, std::string_view key, std::size_t index,
                  const std::string& words) {
    PropertyArray list = stored(defaults, key);
    if (index >= list.size()) {
        return false;
    }
    list[index] = words;
    defaults.setObject(std::move(list), key);
    return true;
}

bool moveWords(DefaultsStore& defaults, std::string_view key, std::size_t from, std::size_t to) {
    PropertyArray list = stored(defaults, key);
    if (std::max(from, to) >= list.size()) {
        return false;
    }
    PropertyValue moved = std::move(list[from]);
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(from));
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(to), std::move(moved));
    defaults.setObject(std::move(list), key);
    return true;
}

bool removeWords(DefaultsStore& defaults, std::string_view key, std::size_t index) {
    PropertyArray list = stored(defaults, key);
    if (index >= list.size()) {
        return false;
    }
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(index));
    defaults.setObject(std::move(list), key);
    return true;
}

} // namespace nocturo
