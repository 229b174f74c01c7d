// The preview is itself looked at on a screen that passes through a ramp. With B what the display
// does by itself, A what it does with the effect and H what the screen does on which the preview is
// seen, a level v of the picture has to reach the eye as A(v). What is drawn as p reaches it as
// H(p), so p is H's inverse of A(v):
//
// - effect off (H = B): the level that B makes look like A(v), plain A(v) on an uncalibrated
// screen;
// - effect on (H = A): p = v. The screen already does what the preview wants to show, and drawing
//   A(v) would show the effect twice: a negative of a negative would look like nothing at all;
// - a window on another display than the previewed one: the same formula, with its curve.
//
// H has no inverse where it is flat, and cannot reach what lies outside its range: then the nearest
// it can show is taken, and of several levels that look alike the one closest to v.

#include "desktop/preview/preview_curves.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace nocturo {

namespace {

using Outputs = std::array<float, 256>;

/// What comes out for each 8-bit level; a curve without samples passes everything.
Outputs outputsOf(const ZQGammaTable& table, std::uint32_t count) {
    Outputs outputs{};
    for (std::size_t level = 0; level < outputs.size(); ++level) {
        const float input = static_cast<float>(level) / 255.0F;
        if (count == 0) {
            outputs[level] = input;
            continue;
        }
        const float place = input * static_cast<float>(count - 1);
        const auto lower = static_cast<std::size_t>(place);
        const std::size_t upper = std::min<std::size_t>(lower + 1, count - 1);
        const float low = limitedEntry(table[lower]);
        outputs[level] =
            low + (limitedEntry(table[upper]) - low) * (place - static_cast<float>(lower));
    }
    return outputs;
}

/// The level that looks like `target` on a screen with these outputs.
std::uint8_t levelFor(float target, const Outputs& screen, std::size_t preferred) {
    std::size_t best = preferred;
    float distance = std::abs(screen[preferred] - target);
    for (std::size_t level = 0; level < screen.size() && distance > 0.0F; ++level) {
        const float other = std::abs(screen[level] - target);
        const auto from = [&](std::size_t candidate) {
            return std::abs(static_cast<int>(candidate) - static_cast<int>(preferred));
        };
        if (other < distance || (other == distance && from(level) < from(best))) {
            best = level;
            distance = other;
        }
    }
    return static_cast<std::uint8_t>(best);
}

bool isLimit(float entry) {
    return entry == 1.0F || entry == 0.0F;
}

} // namespace

std::array<const ZQGammaTable*, 3> channelsOf(const ZQGammaCurve& curve) {
    return {&curve.redTable, &curve.greenTable, &curve.blueTable};
}

float limitedEntry(float entry) {
    return std::min(1.0F, std::max(0.0F, entry)); // in this order not a number becomes 0
}

std::array<LevelTable, 3> pictureLevels(const PreviewCurves& curves) {
    const auto& own = curves.after.sampleCount != 0 ? curves.after : curves.before;
    const auto& screen = curves.seenThrough.sampleCount != 0 ? curves.seenThrough : curves.before;
    std::array<LevelTable, 3> levels{};
    for (std::size_t channel = 0; channel < levels.size(); ++channel) {
        const auto wanted = outputsOf(*channelsOf(own)[channel], own.sampleCount);
        const auto shown = outputsOf(*channelsOf(screen)[channel], screen.sampleCount);
        for (std::size_t level = 0; level < wanted.size(); ++level) {
            levels[channel][level] = levelFor(wanted[level], shown, level);
        }
    }
    return levels;
}

std::array<LevelTable, 3> plainLevels(const PreviewCurves& curves) {
    return pictureLevels({curves.before, {}, curves.seenThrough});
}

ClippedEntries clippedEntries(const ZQGammaCurve& curve) {
    ClippedEntries clipped;
    const std::uint32_t count = curve.sampleCount;
    for (const auto* table : channelsOf(curve)) {
        const auto isFlat = std::all_of(table->begin(), table->begin() + count, [&](float entry) {
            return limitedEntry(entry) == limitedEntry((*table)[0]);
        });
        for (std::uint32_t i = 0; i < count; ++i) {
            const float entry = (*table)[i];
            const auto isSame = [&](std::uint32_t j) { return j < count && (*table)[j] == entry; };
            const bool isCut = !isFlat && isLimit(entry) && (isSame(i + 1) || isSame(i - 1));
            if (!(entry > 1.0F || entry < 0.0F || isCut)) {
                continue;
            }
            const bool isBright = entry >= 1.0F;
            (isBright ? clipped.bright : clipped.dark)[i] = true;
            (isBright ? clipped.anyBright : clipped.anyDark) = true;
        }
    }
    return clipped;
}

} // namespace nocturo
