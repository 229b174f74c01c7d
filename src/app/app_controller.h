#pragma once

#include "display/screen_controller.h"
#include "effects/group_effect.h"
#include "platform/displays/display_services.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace nocturo {

class DefaultsStore;
class NotificationCenter;
class RunLoop;
class Timer;

/// Posted on the local notification center at the end of every setEffectActive.
inline constexpr std::string_view kEffectActivationNotification =
    "NocturoEffectActivationNotification";

/// Posted on the local notification center when displays were plugged, unplugged, moved, switched
/// on or off.
inline constexpr std::string_view NSApplicationDidChangeScreenParametersNotification =
    "NSApplicationDidChangeScreenParametersNotification";

/// Switches the combined effect on and off, keeps one screen controller for each affected online
/// display while it is on, and applies it again on a timer and after every change of a setting.
/// Settings are read when needed and never kept. Main thread only.
class NDAppController {
  public:
    using ScreenControllers = std::vector<std::unique_ptr<NDScreenController>>;

    /// All three must outlive the controller. Nothing is touched until the launch.
    NDAppController(DefaultsStore& defaults, NotificationCenter& localCenter, RunLoop& runLoop);
    ~NDAppController();
    NDAppController(const NDAppController&) = delete;
    NDAppController& operator=(const NDAppController&) = delete;

    // Launch and end

    /// Registers the defaults and switches the effect as "ActivateAtLaunch" and the saved
    /// "EffectActive" say.
    void applicationDidFinishLaunching();

    /// Registers the default settings and starts following changes of settings and screens.
    void initDefaults();

    /// The user started the application again: toggles the effect if "ActivateOnClick" is set.
    /// Always false: nothing more is to be done.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    /// Gives the displays back if the effect is on, leaving the saved state for the next launch,
    /// and has the settings written.
    void applicationWillTerminate();

    // Activation

    /// The only way the effect is switched; `saveState` also writes "EffectActive". Switching to
    /// the state that holds already runs all steps again: displays that have become affected are
    /// added, or all displays restored.
    void setEffectActive(bool active, bool saveState);
    bool effectActive() const { return screenControllers_.has_value(); }
    void toggleGlobalEffect();

    /// Makes and drops screen controllers until they match the affected screen set; changes nothing
    /// when the displays cannot be listed or there are none.
    void adjustScreenControllers();

    /// Displays that have a controller already keep it and the curve it captured; one that loses
    /// its controller gets that curve back.
    void setScreenControllerActive(bool active, CGDirectDisplayID forScreenID);

    /// Applies the effect again on every display that has a controller.
    void updateEffect();

    /// A display's mode was set: applies the effect at once and again 0.05 seconds later, for
    /// drivers that reset the ramp only after they have told. Another mode meanwhile starts these
    /// 0.05 seconds anew.
    void displayModeDidChange();

    /// Starts or stops the 6-second timer as the state and "ContinuouslyApply" say; a running one
    /// keeps its phase.
    void updateApplyTimer();

    /// Follows a change of settings or screens.
    void defaultsDidChange();

    /// The display of the older single-display setting if it is online; otherwise that setting is
    /// reset and the answer is 0.
    CGDirectDisplayID validatedDisplayID();

    /// The effect that new screen controllers get; null before launch.
    const std::shared_ptr<NDGroupEffect>& currentEffect() const { return globalEffect_; }
    void setCurrentEffect(std::shared_ptr<NDGroupEffect> effect);

    /// One per affected display; none while the effect is off.
    const std::optional<ScreenControllers>& screenControllers() const { return screenControllers_; }

  private:
    DefaultsStore& defaults_;
    NotificationCenter& localCenter_;
    RunLoop& runLoop_;
    std::shared_ptr<NDGroupEffect> globalEffect_;
    std::optional<ScreenControllers> screenControllers_; // the effect is on exactly when it has one
    std::unique_ptr<Timer> continuousApplyTimer_;
    std::unique_ptr<Timer> modeChangeTimer_;
};

/// Has the controller follow when the flags say that a mode was set; all else is ignored.
void NDDisplayReconfigurationCallback(CGDirectDisplayID display, std::uint32_t flags,
                                      void* controller);

} // namespace nocturo
