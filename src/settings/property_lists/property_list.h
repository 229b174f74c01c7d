#pragma once

#include "base/property_value.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace nocturo {

/// The XML text of a property list whose root is `dictionary`.
///
/// Everything reads back as it was, reals to the last bit, but for what the format has no room
/// for: the sign of a zero, the payload of a not-a-number, the microseconds of a date (the second
/// is kept, rounded down) and whatever follows a NUL in a string.
std::string propertyListXml(const PropertyDictionary& dictionary);

/// What a list may come to in XML, whatever form it is read in: hundreds of times what the settings
/// need, and still read without a noticeable wait.
inline constexpr std::size_t kLongestPropertyList = std::size_t{1} << 20;

/// Whether the text that propertyListXml() made can be read again: it is not too long, and has no
/// more than ten thousand arrays and dictionaries that hold anything, and of characters that XML
/// spells out.
bool isWithinLimits(std::string_view xml);

/// The root dictionary of a property list in XML or in the binary form, or nothing when the bytes
/// are no such list: cut off, of another format, with another root, or built to exhaust the reader.
/// What is read is within the limits, so that it can be written and read again.
/// A dictionary below the root whose only key is CF$UID is the XML form of a PropertyUid and reads
/// as one. An unsigned integer beyond the signed 64 bits wraps around.
std::optional<PropertyDictionary> parsePropertyList(std::string_view bytes);

} // namespace nocturo
