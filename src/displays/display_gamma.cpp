#include "displays/display_gamma.h"

#include "displays/display_functions.h"

#include <array>

namespace nocturo {

namespace {

// `list` fills identifiers like CGGetOnlineDisplayList.
template <typename List>
void reverseGammaOfListedDisplays(List list) {
    std::array<CGDirectDisplayID, kZQMaxDisplays> displays{};
    std::uint32_t count = 0;
    if (list(kZQMaxDisplays, displays.data(), &count) != kCGErrorSuccess) {
        return;
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        ZQDisplayReverseGamma(displays[i]);
    }
}

} // namespace

ZQGammaCurve ZQDisplayGammaCurve(CGDirectDisplayID display) {
    ZQGammaCurve curve;
    if (CGGetDisplayTransferByTable(display, kGammaCurveCapacity, curve.redTable.data(),
                                    curve.greenTable.data(), curve.blueTable.data(),
                                    &curve.sampleCount) != kCGErrorSuccess) {
        curve.sampleCount = 0;
    }
    return curve;
}

void ZQDisplaySetGammaCurve(CGDirectDisplayID display, const ZQGammaCurve* curve) {
    if (curve->sampleCount != 0) {
        CGSetDisplayTransferByTable(display, curve->sampleCount, curve->redTable.data(),
                                    curve->greenTable.data(), curve->blueTable.data());
    }
}

void ZQDisplayRestoreColorSync() {
    CGDisplayRestoreColorSyncSettings();
}

int ZQDisplayGammaIsInverted(CGDirectDisplayID display) {
    const ZQGammaCurve curve = ZQDisplayGammaCurve(display);
    if (curve.sampleCount == 0) {
        return -1;
    }
    const bool rises = curve.redTable[255] > curve.redTable[0] ||
                       curve.greenTable[255] > curve.greenTable[0] ||
                       curve.blueTable[255] > curve.blueTable[0];
    return rises ? 0 : 1;
}

int ZQMainDisplayGammaIsInverted() {
    return ZQDisplayGammaIsInverted(CGMainDisplayID());
}

void ZQDisplayReverseGamma(CGDirectDisplayID display) {
    ZQGammaCurve curve = ZQDisplayGammaCurve(display);
    ZQGammaCurveReverse(&curve);
    ZQDisplaySetGammaCurve(display, &curve);
}

void ZQReverseGammaOfActiveDisplays() {
    reverseGammaOfListedDisplays(CGGetActiveDisplayList);
}

void ZQReverseGammaOfDisplaysInRect(const DisplayRect& rect) {
    reverseGammaOfListedDisplays([&](auto maxDisplays, auto* displays, auto* count) {
        return CGGetDisplaysWithRect(rect, maxDisplays, displays, count);
    });
}

CGDirectDisplayID ZQDisplayInRect(const DisplayRect& rect) {
    CGDirectDisplayID display = 0;
    std::uint32_t count = 0;
    CGGetDisplaysWithRect(rect, 1, &display, &count);
    return display;
}

} // namespace nocturo
