#include "desktop/preferences/filter_colors.h"

#include "desktop/qt/localized.h"
#include "effects/color_filter_effect.h"
#include "effects/color_temperature.h"

#include <cmath>

namespace nocturo {

namespace {

QColor throughDisplay(const std::array<double, 3>& color, const std::array<LevelTable, 3>& levels) {
    const auto drawn = [&](std::size_t channel) {
        return levels[channel][static_cast<std::size_t>(std::lround(color[channel] * 255.0))];
    };
    return {drawn(0), drawn(1), drawn(2)};
}

QGradientStops stopsOf(int count, const std::function<QColor(double)>& colorAt) {
    QGradientStops stops;
    for (int i = 0; i <= count; ++i) {
        const double share = 1.0 * i / count;
        stops.append({share, colorAt(share)});
    }
    return stops;
}

} // namespace

QString hueWord(double degrees) {
    const std::array words{localized("red"),    localized("orange"),  localized("yellow"),
                           localized("lime"),   localized("green"),   localized("sea green"),
                           localized("cyan"),   localized("azure"),   localized("blue"),
                           localized("violet"), localized("magenta"), localized("pink")};
    const double turn = degrees / 360.0 - std::floor(degrees / 360.0);
    const auto nearest = static_cast<std::size_t>(std::lround(turn * words.size()));
    return std::isfinite(degrees) ? words[nearest % words.size()] : QString();
}

QString temperatureWord(double kelvin) {
    return kelvin < 2200.0   ? localized("candle")
           : kelvin < 3200.0 ? localized("tungsten")
           : kelvin < 5000.0 ? localized("sunset")
                             : localized("daylight");
}

QGradientStops hueStops(const std::array<LevelTable, 3>& levels) {
    const auto filter = NDColorFilterEffect::effect();
    return stopsOf(72, [&](double share) {
        const auto amount = [&](float phase) {
            return static_cast<double>(
                filter.colorAmmountForHue(static_cast<float>(share * 360.0), phase));
        };
        return throughDisplay({amount(0.0F), amount(1.0F / 3), amount(2.0F / 3)}, levels);
    });
}

QGradientStops temperatureStops(const std::array<LevelTable, 3>& levels,
                                const std::function<double(double)>& kelvinAt) {
    return stopsOf(48, [&](double share) {
        return throughDisplay(whiteAtTemperature(kelvinAt(share)), levels);
    });
}

} // namespace nocturo
