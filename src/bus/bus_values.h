#pragma once

#include "base/property_value.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

#include <systemd/sd-bus.h>

namespace nocturo {

struct BusValue;

/// Travels as a{sv}.
using BusDictionary = std::map<std::string, BusValue, std::less<>>;

/// What Nocturo tells over the bus, with the type it has there: b, i, u, x, d, s, as, ax, a{sv} and
/// aa{sv}.
struct BusValue : std::variant<bool, std::int32_t, std::uint32_t, std::int64_t, double, std::string,
                               std::vector<std::string>, std::vector<std::int64_t>, BusDictionary,
                               std::vector<BusDictionary>> {
    using variant::variant;

    bool operator==(const BusValue& other) const;
};

/// A setting's value as it is told: b, x, d, s, as or ax. Reals are given the shortest decimal
/// number that is the same single, so that 0.3 is not told as 0.30000001192.
BusValue busValue(const PropertyValue& value);

/// A single as the shortest decimal number that stands for it.
double shortestReal(float value);

/// Appends the value by itself, a variant of it, or entries of a{sv}. A message that is full or
/// broken is left as it is; sending it fails.
void appendValue(sd_bus_message* message, const BusValue& value);
void appendVariant(sd_bus_message* message, const BusValue& value);
void appendDictionary(sd_bus_message* message, const BusDictionary& dictionary);

/// The longest list that is taken from others.
inline constexpr std::size_t kLongestList = 1000;

// Read the next argument of a call; false when it is of another type, or a list too long.
bool readArgument(sd_bus_message* call, bool& value);
bool readArgument(sd_bus_message* call, std::int32_t& value);
bool readArgument(sd_bus_message* call, std::uint32_t& value);
bool readArgument(sd_bus_message* call, double& value); // a finite one
bool readArgument(sd_bus_message* call, std::string& value);
bool readArgument(sd_bus_message* call, std::vector<std::string>& value);
bool readArgument(sd_bus_message* call, std::vector<std::int64_t>& value);

/// A variant that may be stored as a setting; nothing in it for every other type of variant.
bool readArgument(sd_bus_message* call, std::optional<PropertyValue>& value);

/// The arguments of a call, in order.
template <typename... Arguments>
bool readArguments(sd_bus_message* call, std::tuple<Arguments...>& arguments) {
    return std::apply([call](auto&... each) { return (readArgument(call, each) && ...); },
                      arguments);
}

} // namespace nocturo
