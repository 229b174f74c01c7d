#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class DefaultsStore;

// A setting that is a list of texts, each of which says something in words.

/// Whatever is no text is told as an empty one.
std::vector<std::string> wordsOf(const DefaultsStore& defaults, std::string_view key);

/// False where the list has so many already. Words that are there stay as they are.
bool addWords(DefaultsStore& defaults, std::string_view key, const std::string& words,
              std::size_t most);

// False where there is none of that index.

bool replaceWords(DefaultsStore& defaults, std::string_view key, std::size_t index,
                  const std::string& words);
bool moveWords(DefaultsStore& defaults, std::string_view key, std::size_t from, std::size_t to);
bool removeWords(DefaultsStore& defaults, std::string_view key, std::size_t index);

} // namespace nocturo
