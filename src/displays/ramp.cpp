#include "displays/ramp.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace nocturo {

namespace {

constexpr double kFull = 65535.0;

// Walks `from` entries at the places of `to` evenly spaced samples, both ends included. Positions
// are formed in integers, so that a sample which falls on an entry is that entry exactly.
class Sampler {
  public:
    Sampler(std::uint32_t from, std::uint32_t to)
        : span_(from - 1), steps_(std::max<std::uint32_t>(to, 2) - 1) {}

    template <typename Entry>
    double operator()(const Entry* entries, std::uint32_t sample) const {
        const std::uint64_t position = static_cast<std::uint64_t>(sample) * span_;
        const auto index = static_cast<std::size_t>(position / steps_);
        const std::uint64_t rest = position % steps_;
        const auto low = static_cast<double>(entries[index]);
        if (rest == 0) {
            return low;
        }
        const auto high = static_cast<double>(entries[index + 1]);
        return low + (high - low) * (static_cast<double>(rest) / static_cast<double>(steps_));
    }

  private:
    std::uint64_t span_;
    std::uint64_t steps_;
};

// `value` x 65535; comparisons with not-a-number are false, which makes it 0.
std::uint16_t quantized(double value) {
    if (!(value > 0.0)) {
        return 0;
    }
    return value >= 1.0 ? std::uint16_t{65535}
                        : static_cast<std::uint16_t>(std::lround(value * kFull));
}

} // namespace

bool Ramp::isAllZero() const {
    const auto allZero = [](const std::vector<std::uint16_t>& channel) {
        return std::all_of(channel.begin(), channel.end(), [](auto entry) { return entry == 0; });
    };
    return allZero(red) && allZero(green) && allZero(blue);
}

Ramp identityRamp(std::uint32_t size) {
    Ramp ramp(size);
    for (std::uint32_t i = 0; i < size; ++i) {
        ramp.red[i] = quantized(static_cast<double>(i) / (size - 1.0));
    }
    ramp.green = ramp.red;
    ramp.blue = ramp.red;
    return ramp;
}

Ramp resampledRamp(const Ramp& ramp, std::uint32_t size) {
    if (ramp.size() == size) {
        return ramp;
    }
    Ramp result(size);
    const Sampler sampler(ramp.size(), size);
    for (std::uint32_t i = 0; i < size; ++i) {
        result.red[i] = quantized(sampler(ramp.red.data(), i) / kFull);
        result.green[i] = quantized(sampler(ramp.green.data(), i) / kFull);
        result.blue[i] = quantized(sampler(ramp.blue.data(), i) / kFull);
    }
    return result;
}

void tableFromChannel(const std::vector<std::uint16_t>& channel, std::uint32_t count,
                      float* table) {
    const Sampler sampler(static_cast<std::uint32_t>(channel.size()), count);
    for (std::uint32_t i = 0; i < count; ++i) {
        table[i] = static_cast<float>(sampler(channel.data(), i) / kFull);
    }
}

void channelFromTable(const float* table, std::uint32_t count,
                      std::vector<std::uint16_t>& channel) {
    const auto size = static_cast<std::uint32_t>(channel.size());
    if (size == count) {
        std::transform(table, table + count, channel.begin(), [](float v) { return quantized(v); });
        return;
    }
    const Sampler sampler(count, size);
    for (std::uint32_t i = 0; i < size; ++i) {
        channel[i] = quantized(sampler(table, i));
    }
}

} // namespace nocturo
