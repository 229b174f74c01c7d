#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nocturo {

inline constexpr std::size_t kEdidBlockSize = 128;

/// Whether it begins with a whole first block of what monitors tell of themselves.
bool isEdid(const std::vector<std::uint8_t>& edid);

/// What a text in an EDID is.
enum class EdidText : std::uint8_t { serial = 0xFF, model = 0xFC };

/// The texts of that kind, as they are there up to their ends. `edid` must be one.
std::vector<std::string> edidTexts(const std::vector<std::uint8_t>& edid, EdidText kind);

/// Who made a monitor and its model, such as "Dell Inc. U2720Q", as far as its EDID tells: nothing
/// but printable ASCII. Makers are told by three letters, and `makers` is the file that has their
/// names, a line for each: without it the model alone is told. Empty where nothing is known.
std::string monitorName(const std::vector<std::uint8_t>& edid, const std::string& makers);

} // namespace nocturo
