// Roots and powers of every entry in every frame would cost more than sending the ramps, and those
// of the first frame would delay it. Tables stand in for them: both curves are smooth enough that
// straight lines between so many nodes are off by less than the eye sees, and where a fade ends no
// table is asked.

#include "displays/ramp_fade.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <utility>

namespace nocturo {

namespace {

constexpr int kIntervals = 2048;
constexpr float kFullRamp = 65535.0F;

double lightOfSignal(double signal) {
    return signal <= 0.04045 ? signal / 12.92 : std::pow((signal + 0.055) / 1.055, 2.4);
}

double signalOfLight(double light) {
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

double lightnessOfLight(double light) {
    constexpr double kStraightUpTo = 216.0 / 24389.0;
    constexpr double kSlope = 24389.0 / 27.0;
    return (light <= kStraightUpTo ? kSlope * light : 116 * std::cbrt(light) - 16) / 100;
}

double lightOfLightness(double lightness) {
    constexpr double kStraightUpTo = 0.08;
    constexpr double kSlope = 24389.0 / 27.0;
    return lightness <= kStraightUpTo ? lightness * 100 / kSlope
                                      : std::pow((lightness * 100 + 16) / 116, 3);
}

/// A curve over 0 to 1; a little beyond does no harm.
class Table {
  public:
    template <typename Curve>
    explicit Table(Curve curve) {
        for (int i = 0; i <= kIntervals; ++i) {
            nodes_[static_cast<std::size_t>(i)] =
                static_cast<float>(curve(static_cast<double>(i) / kIntervals));
        }
        nodes_.back() = nodes_[kIntervals];
    }
    float operator()(float value) const {
        const float place = value * kIntervals;
        const auto whole = static_cast<int>(place);
        const float* node = nodes_.data() + whole;
        return node[0] + (node[1] - node[0]) * (place - static_cast<float>(whole));
    }

  private:
    std::array<float, kIntervals + 2> nodes_{};
};

void appendLightness(const std::vector<std::uint16_t>& channel, std::vector<float>& lightness) {
    static const Table table([](double signal) { return lightnessOfLight(lightOfSignal(signal)); });
    for (const std::uint16_t entry : channel) {
        lightness.push_back(table(static_cast<float>(entry) / kFullRamp));
    }
}

std::vector<float> lightnessOf(const Ramp& ramp) {
    std::vector<float> lightness;
    lightness.reserve(std::size_t{3} * ramp.size());
    appendLightness(ramp.red, lightness);
    appendLightness(ramp.green, lightness);
    appendLightness(ramp.blue, lightness);
    return lightness;
}

bool haveEqualChannels(const Ramp& ramp) {
    return ramp.red == ramp.green && ramp.red == ramp.blue;
}

/// Entries of lightnesses, to be cut off.
const Table& entryTable() {
    constexpr double kHalf = 0.5; // rounds
    static const Table table([](double lightness) {
        return signalOfLight(lightOfLightness(lightness)) * kFullRamp + kHalf;
    });
    return table;
}

} // namespace

RampFade::RampFade(const Ramp& from, Ramp to) : shown_(from) {
    turn(std::move(to));
}

void RampFade::turn(Ramp to) {
    to_ = std::move(to);
    isGray_ = haveEqualChannels(shown_) && haveEqualChannels(to_);
    from_ = lightnessOf(shown_);
    change_ = lightnessOf(to_);
    std::transform(change_.begin(), change_.end(), from_.begin(), change_.begin(), std::minus<>());
}

const Ramp& RampFade::at(float share) {
    const Table& entries = entryTable();
    const float* from = from_.data();
    const float* change = change_.data();
    for (auto* channel : {&shown_.red, &shown_.green, &shown_.blue}) {
        if (isGray_ && channel != &shown_.red) {
            *channel = shown_.red;
            continue;
        }
        for (std::uint16_t& entry : *channel) {
            entry = static_cast<std::uint16_t>(entries(*from++ + *change++ * share));
        }
    }
    return shown_;
}

} // namespace nocturo
