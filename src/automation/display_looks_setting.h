#pragma once

#include "base/result.h"
#include "displays/display_services.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace nocturo {

class DefaultsStore;
class Looks;

/// The names of the looks that displays have of their own, whether the displays are there or not.
/// Of several the last counts. Words that cannot be read, or whose look is gone, are left out and
/// told.
std::map<CGDirectDisplayID, std::string>
looksOfDisplays(const DefaultsStore& defaults, Looks& looks,
                const std::function<void(const std::string& words)>& leftOut);

/// Gives a display a look of its own, which may be named by its title, or takes it away where that
/// is empty. Problems are sentences for the user.
Result<void> setLookOfDisplay(DefaultsStore& defaults, Looks& looks, CGDirectDisplayID display,
                              std::string_view look);

} // namespace nocturo
