#include "displays/readability.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace nocturo {

namespace {

constexpr double kLeastContrast = 0.125;

// Two levels that differ from all others, pure black perhaps, leave nothing to read.
constexpr std::size_t kLevelsPerStray = 64;

constexpr double kDisplayGamma = 2.2;
constexpr double kRedWeight = 0.2126;
constexpr double kGreenWeight = 0.7152;
constexpr double kBlueWeight = 0.0722;

double light(float entry) {
    // In this order not a number becomes 0.
    return std::pow(std::min(1.0, std::max(0.0, static_cast<double>(entry))), kDisplayGamma);
}

class Lightness {
  public:
    explicit Lightness(const ZQGammaCurve& curve) : count_(curve.sampleCount) {
        for (std::size_t i = 0; i < count_; ++i) {
            const double sum = kRedWeight * light(curve.redTable[i]) +
                               kGreenWeight * light(curve.greenTable[i]) +
                               kBlueWeight * light(curve.blueTable[i]);
            sorted_[i] = std::pow(sum, 1.0 / kDisplayGamma);
        }
        std::sort(sorted_.begin(), sorted_.begin() + static_cast<std::ptrdiff_t>(count_));
    }

    /// The least range that all levels lie in but these.
    double rangeWithout(std::size_t strays) const {
        double least = 1.0;
        for (std::size_t first = 0; first <= strays; ++first) {
            least = std::min(least, sorted_[first + count_ - strays - 1] - sorted_[first]);
        }
        return least;
    }

  private:
    std::size_t count_;
    std::array<double, kGammaCurveCapacity> sorted_{};
};

} // namespace

double remainingContrast(const ZQGammaCurve& after) {
    return after.sampleCount == 0 ? 1.0 : Lightness(after).rangeWithout(0);
}

bool isUnreadable(const ZQGammaCurve& after) {
    return after.sampleCount != 0 &&
           Lightness(after).rangeWithout(after.sampleCount / kLevelsPerStray) < kLeastContrast;
}

} // namespace nocturo
