#include "desktop/preview/preview_description.h"

#include "desktop/qt/localized.h"
#include "displays/readability.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr float kAlike = 0.02F; // differences that nobody sees are not worth a word

float brightest(const ZQGammaTable& table, std::uint32_t count) {
    float most = 0.0F;
    for (std::uint32_t i = 0; i < count; ++i) {
        most = std::max(most, limitedEntry(table[i]));
    }
    return most;
}

float brightnessAt(const ZQGammaCurve& curve, std::uint32_t i) {
    return 0.2126F * limitedEntry(curve.redTable[i]) + 0.7152F * limitedEntry(curve.greenTable[i]) +
           0.0722F * limitedEntry(curve.blueTable[i]);
}

QString percent(float share) {
    return filled(localized("%@ %%"), {QLocale().toString(std::lround(share * 100.0F))});
}

QString brightnessRange(const ZQGammaCurve& curve) {
    float least = 1.0F;
    float most = 0.0F;
    for (std::uint32_t i = 0; i < curve.sampleCount; ++i) {
        least = std::min(least, brightnessAt(curve, i));
        most = std::max(most, brightnessAt(curve, i));
    }
    return filled(localized("brightness from %@ to %@"), {percent(least), percent(most)});
}

/// Nothing when no channel stands out.
QString strongestChannels(const ZQGammaCurve& curve) {
    const std::array names{localized("red"), localized("green"), localized("blue")};
    std::array<float, 3> most{};
    for (std::size_t channel = 0; channel < most.size(); ++channel) {
        most[channel] = brightest(*channelsOf(curve)[channel], curve.sampleCount);
    }
    const float top = *std::max_element(most.begin(), most.end());
    QStringList strongest;
    for (std::size_t channel = 0; channel < most.size(); ++channel) {
        if (most[channel] >= top - kAlike) {
            strongest << names[channel];
        }
    }
    switch (strongest.size()) {
    case 1:
        return filled(localized("%@ strongest"), strongest);
    case 2:
        return filled(localized("%@ and %@ strongest"), strongest);
    default:
        return {};
    }
}

QString inWords(const PreviewCurves& curves) {
    const ZQGammaCurve& after = curves.after;
    if (after.sampleCount == 0) {
        return localized("The colors of this screen cannot be changed.");
    }
    QStringList parts{brightnessRange(after)};
    if (brightnessAt(after, 0) > brightnessAt(after, after.sampleCount - 1)) {
        parts << localized("inverted");
    }
    if (const auto strongest = strongestChannels(after); !strongest.isEmpty()) {
        parts << strongest;
    }
    const auto clipped = clippedEntries(after);
    if (clipped.anyBright) {
        parts << localized("bright tones clipped");
    }
    if (clipped.anyDark) {
        parts << localized("dark tones clipped");
    }
    if (isUnreadable(after)) {
        parts << localized("almost nothing can be told apart");
    }
    return parts.join(localized(", "));
}

} // namespace

QString previewDescription(const PreviewCurves& curves, const QString& displayName) {
    const QString words = inWords(curves);
    return displayName.isEmpty() ? words : filled(localized("%@: %@"), {displayName, words});
}

} // namespace nocturo
