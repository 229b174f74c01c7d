#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace nocturo {

/// The status item's image while the effect is off, and while it is on.
inline constexpr std::string_view kStatusTemplate = "NDStatusTemplate";
inline constexpr std::string_view kStatusActiveTemplate = "NDStatusActiveTemplate";

/// The sides in pixels in which trays usually show images.
inline constexpr int kStatusImageSides[] = {16, 22, 24, 32, 48};

/// The pixels of the template image of that name as a square of that side, row by row, each
/// 0xAARRGGBB with colors that are not multiplied by alpha. Drawn in `rgb` (0xRRGGBB), and where
/// that is not known as a dark shape on a light ground with a light edge, to be seen on any panel.
/// The one of an effect that is on has an accent of its own color besides.
/// Empty for any other name.
std::vector<std::uint32_t> statusImage(std::string_view name, int side,
                                       std::optional<std::uint32_t> rgb);

/// The image of that name as icon themes know it.
const char* statusIconName(std::string_view name);

} // namespace nocturo
