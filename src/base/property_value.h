#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace nocturo {

struct PropertyValue;

using PropertyArray = std::vector<PropertyValue>;
using PropertyDictionary = std::map<std::string, PropertyValue, std::less<>>;

/// Opaque bytes.
struct PropertyData {
    std::vector<std::uint8_t> bytes;
    bool operator==(const PropertyData&) const = default;
};

/// A moment, in whole seconds and microseconds since 2001-01-01 00:00:00 UTC.
struct PropertyDate {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    bool operator==(const PropertyDate&) const = default;
};

/// The object reference of archived object graphs; only carried, never interpreted.
struct PropertyUid {
    std::uint64_t value = 0;
    bool operator==(const PropertyUid&) const = default;
};

/// One value of a property list. The alternatives are exact types: a boolean is not the integer 1
/// and a real is not an integer, neither when compared nor when written and read again.
struct PropertyValue : std::variant<bool, std::int64_t, double, std::string, PropertyData,
                                    PropertyDate, PropertyUid, PropertyArray, PropertyDictionary> {
    using variant::variant;

    /// The alternative T, or null when the value is of another type.
    template <typename T>
    const T* as() const {
        return std::get_if<T>(static_cast<const variant*>(this));
    }

    /// The numeric value of an integer or a real; nothing for every other type, booleans included.
    std::optional<double> number() const;

    bool operator==(const PropertyValue& other) const;
};

} // namespace nocturo
