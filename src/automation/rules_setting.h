#pragma once

#include "base/result.h"

#include <cstddef>
#include <string_view>

namespace nocturo {

class DefaultsStore;
class Looks;

// These change the setting; problems are sentences for the user.

/// The look may be named by its title. A rule that is there already stays as it is.
Result<void> addRule(DefaultsStore& defaults, Looks& looks, std::string_view words);
Result<void> moveRule(DefaultsStore& defaults, std::size_t from, std::size_t to);
Result<void> removeRule(DefaultsStore& defaults, std::size_t index);

} // namespace nocturo
