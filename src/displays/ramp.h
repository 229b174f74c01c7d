#pragma once

#include <cstdint>
#include <vector>

namespace nocturo {

/// Entries per channel that a usable ramp may have. What lies outside is a device without a ramp
/// (virtual outputs, headsets) or nonsense.
inline constexpr std::uint32_t kMinRampSize = 2;
inline constexpr std::uint32_t kMaxRampSize = 262145;

inline bool isUsableRampSize(std::uint32_t size) {
    return size >= kMinRampSize && size <= kMaxRampSize;
}

/// The gamma ramp of a CRTC: three channels of equal length, 0 black to 65535 full.
struct Ramp {
    Ramp() = default;
    explicit Ramp(std::uint32_t size) : red(size), green(size), blue(size) {}

    std::uint32_t size() const { return static_cast<std::uint32_t>(red.size()); }
    bool isAllZero() const;
    bool operator==(const Ramp&) const = default;

    std::vector<std::uint16_t> red;
    std::vector<std::uint16_t> green;
    std::vector<std::uint16_t> blue;
};

/// Entry i is i / (size - 1) of full.
Ramp identityRamp(std::uint32_t size);

/// `ramp` sampled at i / (size - 1), linear between its entries; equal sizes give an exact copy.
Ramp resampledRamp(const Ramp& ramp, std::uint32_t size);

/// Reads one channel of a ramp as `count` table entries: entry i is the channel at i / (count - 1),
/// linear between its entries, divided by 65535. Both lengths are at least 2.
void tableFromChannel(const std::vector<std::uint16_t>& channel, std::uint32_t count, float* table);

/// The reverse: fills the channel from `count` (at least 1) table entries, sampled at i / (n - 1),
/// as value x 65535 rounded to nearest after clamping to 0..1; not-a-number is 0.
/// With equal lengths a table read by tableFromChannel gives the same channel again, bit for bit.
void channelFromTable(const float* table, std::uint32_t count, std::vector<std::uint16_t>& channel);

} // namespace nocturo
