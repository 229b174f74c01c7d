#pragma once

#include "base/texts/translated.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace nocturo {

/// Of names that may be any number these are said, and then how many more there are.
inline std::span<const std::string> firstNames(const std::vector<std::string>& names) {
    constexpr std::size_t kMostNames = 10;
    return std::span(names).first(std::min(names.size(), kMostNames));
}

/// "and 990 more"; empty where firstNames() are all.
inline std::string howManyMore(const std::vector<std::string>& names) {
    const std::size_t left = names.size() - firstNames(names).size();
    return left > 0 ? translated("and %d more", {std::to_string(left)}) : std::string();
}

} // namespace nocturo
