#include "displays/screen_controller.h"

#include "displays/display_functions.h"
#include "displays/display_gamma.h"

#include <array>
#include <utility>

namespace nocturo {

std::vector<std::unique_ptr<NDScreenController>>
NDScreenController::allScreensControllersWithEffect(const std::shared_ptr<NDEffect>& effect) {
    std::vector<std::unique_ptr<NDScreenController>> controllers;
    std::array<CGDirectDisplayID, kZQMaxDisplays> displays{};
    std::uint32_t count = 0;
    if (CGGetOnlineDisplayList(kZQMaxDisplays, displays.data(), &count) == kCGErrorSuccess) {
        for (std::uint32_t i = 0; i < count; ++i) {
            controllers.push_back(screenControllerWithEffect(effect, displays[i]));
        }
    }
    return controllers;
}

std::unique_ptr<NDScreenController>
NDScreenController::screenControllerWithEffect(std::shared_ptr<NDEffect> effect,
                                               CGDirectDisplayID forScreen) {
    return std::make_unique<NDScreenController>(std::move(effect), forScreen);
}

NDScreenController::NDScreenController(std::shared_ptr<NDEffect> effect,
                                       CGDirectDisplayID forScreen, Clock clock)
    : clock_(clock), _effect(std::move(effect)), _screen(forScreen) {
    retriveGammaCurve();
    startDate = clock_();
    updateEffect();
}

void NDScreenController::restoreGamma() {
    CGSetDisplayTransferByTable(_screen, _gammaCurve.sampleCount, _gammaCurve.redTable.data(),
                                _gammaCurve.greenTable.data(), _gammaCurve.blueTable.data());
}

void NDScreenController::setActivation(bool /*activation*/) {
    if (!_isActive) {
        retriveGammaCurve();
        updateEffect();
    }
}

void NDScreenController::updateEffect() {
    if (_gammaCurve.sampleCount == 0) {
        return;
    }
    ZQGammaCurve curve = _gammaCurve;
    // Negative once time has passed: the distance from now to the start.
    const std::chrono::duration<double> time = startDate - clock_();
    _effect->applyEffectOnGammaCurve(&curve, time.count());
    CGSetDisplayTransferByTable(_screen, curve.sampleCount, curve.redTable.data(),
                                curve.greenTable.data(), curve.blueTable.data());
}

void NDScreenController::retriveGammaCurve() {
    _gammaCurve = ZQDisplayGammaCurve(_screen);
}

} // namespace nocturo
