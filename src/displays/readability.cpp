#include "displays/readability.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr double kLeastContrast = 0.125;

constexpr double kDisplayGamma = 2.2;
constexpr double kRedWeight = 0.2126;
constexpr double kGreenWeight = 0.7152;
constexpr double kBlueWeight = 0.0722;

double light(float entry) {
    // In this order not a number becomes 0.
    return std::pow(std::min(1.0, std::max(0.0, static_cast<double>(entry))), kDisplayGamma);
}

} // namespace

double remainingContrast(const ZQGammaCurve& after) {
    if (after.sampleCount == 0) {
        return 1.0;
    }
    double darkest = 1.0;
    double lightest = 0.0;
    for (std::uint32_t i = 0; i < after.sampleCount; ++i) {
        const double sum = kRedWeight * light(after.redTable[i]) +
                           kGreenWeight * light(after.greenTable[i]) +
                           kBlueWeight * light(after.blueTable[i]);
        darkest = std::min(darkest, sum);
        lightest = std::max(lightest, sum);
    }
    const auto lightness = [](double sum) { return std::pow(sum, 1.0 / kDisplayGamma); };
    return lightness(lightest) - lightness(darkest);
}

bool isUnreadable(const ZQGammaCurve& after) {
    return remainingContrast(after) < kLeastContrast;
}

} // namespace nocturo
