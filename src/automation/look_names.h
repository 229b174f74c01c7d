#pragma once

#include "base/result.h"

#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class ChosenLook;
class DefaultsStore;
class Looks;

/// Gives a look of the user's own another name, and with it whatever names it: points of the
/// schedule, rules and the looks of displays. It is one change, in which no name ever stands for
/// nothing. Problems are sentences for the user, after which all is as it was.
Result<void> renameLook(DefaultsStore& defaults, ChosenLook& chosen, std::string_view name,
                        const std::string& to);

/// What names a look, as people read it: "sunset Evening", "program mpv Evening", and of displays
/// their names.
std::vector<std::string> namingLook(const DefaultsStore& defaults, Looks& looks,
                                    std::string_view name);

} // namespace nocturo
