#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <systemd/sd-bus.h>

namespace nocturo {

/// Calls `entry` with the key of each entry of an a{sv}, and the message at its variant. It must
/// read or skip that. False for a message that holds something else.
bool forEachEntry(sd_bus_message* message, const std::function<void(std::string_view key)>& entry);

/// Reads a variant of a text, without control characters and no longer than a line; of anything
/// else nothing, which is skipped.
std::string readTextVariant(sd_bus_message* message);

} // namespace nocturo
