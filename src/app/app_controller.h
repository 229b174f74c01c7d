#pragma once

#include "automation/who_wins.h"
#include "base/notification_center.h"
#include "base/property_value.h"
#include "displays/display_services.h"
#include "displays/fades.h"
#include "displays/screen_controller.h"
#include "effects/group_effect.h"
#include "hotkeys/action_target.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class Automation;
class DefaultsStore;
class DesktopFace;
class InstalledApplications;
class RunLoop;
class Timer;
class UserInterface;

/// Posted on the local notification center at the end of every setEffectActive.
inline constexpr std::string_view kEffectActivationNotification =
    "NocturoEffectActivationNotification";

/// Posted on the local notification center by the 6-second timer just before it applies the effect
/// again, while the displays still show what became of the last time.
inline constexpr std::string_view kReapplicationNotification = "NocturoReapplicationNotification";

/// Posted on the local notification center by whoever launches the application.
inline constexpr std::string_view NSApplicationDidFinishLaunchingNotification =
    "NSApplicationDidFinishLaunchingNotification";

/// Switches the combined effect on and off, keeps one screen controller for each affected online
/// display while it is on, and applies it again on a timer, after every change of a setting and
/// when the desktop tells of something that may have touched the displays. Pauses it while the
/// screen saver runs. Settings are read when needed and never kept. Main thread only.
///
/// The hot key's target: it responds to "toggleGlobalEffect:".
class NDAppController : public ActionTarget {
  public:
    using ScreenControllers = std::vector<std::unique_ptr<NDScreenController>>;

    /// All must outlive the controller. Nothing is touched until the launch.
    NDAppController(DefaultsStore& defaults, const NotificationCenters& centers, RunLoop& runLoop);
    ~NDAppController() override;
    NDAppController(const NDAppController&) = delete;
    NDAppController& operator=(const NDAppController&) = delete;

    // What the controller shows itself with; each may be absent and must outlive the controller.

    /// Without it no window is shown and every document is refused.
    void setUserInterface(UserInterface* userInterface) { userInterface_ = userInterface; }
    /// Without it no question is asked and there is no menu.
    void setDesktopFace(DesktopFace* desktop) { desktop_ = desktop; }
    DesktopFace* desktopFace() const { return desktop_; }
    void setInstalledApplications(const InstalledApplications* applications) {
        installedApplications_ = applications;
    }
    /// Without it the user's switch alone decides.
    void setAutomation(Automation* automation);
    Automation* automation() const { return automation_; }
    /// Without them every change is there at once.
    void setFades(Fades* fades) { fades_ = fades; }
    Fades* fades() const { return fades_; }

    // Launch and end

    /// Has the launch leave the effect off, whatever the settings say, and save that it is.
    void startSwitchedOff() { startsSwitchedOff_ = true; }

    /// The desktop starts the application, and nobody waits for it: the launch asks nothing about
    /// the effects.
    void startWithSession() { startsWithSession_ = true; }

    /// Warns of f.lux, registers the defaults, switches the effect as "ActivateAtLaunch" and the
    /// saved "EffectActive" say, warns when no effect is selected, registers the hot key, shows the
    /// status item if it is wanted, makes the screen menus, and starts following the workspace and
    /// the displays' colour profiles. Goes on after a warning when it is answered; until the effect
    /// is back nothing switches it. `finished` is called at the end, which may be at once: with
    /// false when the user would rather quit, and then nothing was registered and no display
    /// touched.
    void applicationDidFinishLaunching(std::function<void(bool launched)> finished = {});

    /// Registers the default settings and starts following changes of settings and screens.
    void initDefaults();

    /// Tells the user, once in a run, that no effect is selected, and offers the preferences.
    /// Nothing before the launch, and nothing where the desktop started the application. `done` is
    /// called when the answer has been followed, or at once where nothing is asked.
    void warnIfNoEffects(std::function<void()> done = {});

    /// The user started the application again: toggles the effect if "ActivateOnClick" is set.
    /// Shows the preferences, if anybody can see them, where that changes nothing on the screens.
    /// Always false: nothing more is to be done.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    /// Gives the displays back if the effect is on, leaving the saved state for the next launch,
    /// and has the settings written.
    void applicationWillTerminate();

    /// Puts into `coder` whether the preference window is to be seen, and opens it if a former run
    /// put there that it was.
    void willEncodeRestorableState(PropertyDictionary& coder) const;
    void didDecodeRestorableState(const PropertyDictionary& coder);

    // Menus, windows and documents

    /// Makes the application one that lives in the status item if "ShowStatusItem" is 1, or else an
    /// ordinary one. Nothing before the launch has come that far.
    void updateStatusItem();

    /// Nothing while there is no status item.
    void updateStatusItemImage(bool active);

    /// What the activate items do.
    void activateEffect() { toggleGlobalEffect(); }

    void openPreferences();
    void openAboutBox();

    /// The desktop asks to open an effect document; false when it is refused. Loads and shows no
    /// window.
    bool openFile(const std::string& path);
    bool openFileWithoutUI(const std::string& path);

    /// Shows the user which of the documents from outside were refused, if anybody can see it.
    void showRefusedDocuments(const std::vector<std::string>& paths);

    // Activation

    /// The only way the effect is switched by hand; `saveState` also writes "EffectActive", and
    /// ends pauses. Switching to the state that holds already runs all steps again: displays that
    /// have become affected are added, or all displays restored. The distributed center is listened
    /// to while the effect is on; every switch-off ends that, also for colour profiles, which are
    /// not followed again.
    void setEffectActive(bool active, bool saveState);
    /// Whether it is on, for one display at least.
    bool effectActive() const { return screenControllers_.has_value(); }

    /// The user needs the displays as they are by themselves: switches the effect off at once.
    void giveDisplaysBack();

    /// While it lives all changes take that long, whatever "FadeSeconds" says. By itself what is
    /// done by hand, by the automation or to the settings of the effects takes as long as that
    /// says, and a point of the schedule as "ScheduleFadeMinutes" says; all else, and what gives
    /// the displays back at the end, is there at once.
    Fades::Change changeOver(Fades::Length length) const { return {fades_, length}; }

    /// What "FadeSeconds" says.
    Fades::Length lengthOfFades() const;

    /// Who says what a display shows, and for how long; of the screen saver it knows nothing.
    Ruling ruling(CGDirectDisplayID display) const;

    /// The same for all affected displays. Where they differ, for those of which nobody says
    /// anything in particular, or where there are none for one that just has a look of its own, or
    /// for the first.
    Ruling ruling() const;

    /// The title of the look that rules over the effects of the settings; empty where none does.
    std::string titleOfLook(const Ruling& ruling) const;

    /// The user cannot read the screens under looks of rules or the schedule: those that rule now
    /// mean off from then on. False where none does.
    bool refuseRuledLooks();

    /// Whether the effect is off only for a time, by the screen saver or a pause.
    bool isPaused() const { return paused_ || ruling().by == Ruler::pause; }

    /// Whether it is so for as long as the screen saver runs.
    bool isPausedForScreenSaver() const { return paused_; }

    /// False while the launch may still be forbidden by the answer to a question: nothing can be
    /// switched, and nobody is to write settings.
    bool isReady() const { return globalEffect_ != nullptr; }
    void toggleGlobalEffect();

    /// Switches the effect off for a time that is told in words, as Automation::pause() takes them.
    void pause(std::string_view words);

    /// Makes and drops screen controllers until they match the affected screen set and what rules
    /// on each display; changes nothing when the displays cannot be listed or there are none.
    void adjustScreenControllers();

    /// Displays that have a controller already keep it and the curve it captured; one that loses
    /// its controller gets that curve back.
    void setScreenControllerActive(bool active, CGDirectDisplayID forScreenID);

    /// Whether no display that the effect is on can be read. False while it is off; nothing where
    /// it is on and none of its displays is online.
    std::optional<bool> everyAffectedDisplayIsUnreadable() const;

    /// Applies the effect again on every display that has a controller.
    void updateEffect();

    /// A display's mode was set: applies the effect at once and again 0.05 seconds later, for
    /// drivers that reset the ramp only after they have told. Another mode meanwhile starts these
    /// 0.05 seconds anew.
    void displayModeDidChange();

    /// Starts or stops the 6-second timer as the state and "ContinuouslyApply" say; a running one
    /// keeps its phase.
    void updateApplyTimer();

    /// Follows a change of the settings named, or of the screens, which may concern everything:
    /// applies the effect again where one of its settings or the affected screens are named.
    void defaultsDidChange(const Subjects& settings);

    /// Has the user's hot key registered with the shared center, or none where "UseHotKey" is not
    /// set or no key is chosen. One that is registered already stays as it is. One that the desktop
    /// refuses leaves the program without a hot key until the next try.
    void updateHotKey();

    /// While a hot key is being recorded none is registered, or it would fire instead of being
    /// recorded.
    void setRecordingHotKey(bool recording);

    /// Switches the effect off without saving, if "NDDeactivateForScreenSaver" is set. Asked only
    /// while the effect is on.
    void screenSaverDidStart();

    /// Switches it on again without saving; asked unless the user switched the effect off in
    /// between.
    void screenSaverDidStop();

    /// The display of the older single-display setting if it is online; otherwise that setting is
    /// reset and the answer is 0.
    CGDirectDisplayID validatedDisplayID();

    /// The effect that new screen controllers get; null before launch.
    const std::shared_ptr<NDGroupEffect>& currentEffect() const { return globalEffect_; }
    void setCurrentEffect(std::shared_ptr<NDGroupEffect> effect);

    /// One per affected display; none while the effect is off.
    const std::optional<ScreenControllers>& screenControllers() const { return screenControllers_; }

    bool respondsTo(std::string_view action) const override;
    void perform(std::string_view action, const KeyEvent& event,
                 const std::shared_ptr<void>& object) override;
    std::string description() const override;

  private:
    using Handler = void (NDAppController::*)();
    void observe(NotificationCenter& center, std::string_view name, Handler handler);
    void bringEffectBack(std::function<void(bool launched)> finished);
    void restoreEffect();
    void followRuling();
    Fades::Length lengthOfRuledFades() const;
    bool isWanted() const;
    void takeRuledEffects();
    std::shared_ptr<NDEffect> effectInForce(CGDirectDisplayID display) const;
    void switchEffect(bool active);
    void appearOnDesktop();
    void setActivateItemTitles();

    DefaultsStore& defaults_;
    NotificationCenters centers_;
    RunLoop& runLoop_;
    UserInterface* userInterface_ = nullptr;
    DesktopFace* desktop_ = nullptr;
    const InstalledApplications* installedApplications_ = nullptr;
    Automation* automation_ = nullptr;
    Fades* fades_ = nullptr;
    bool startsSwitchedOff_ = false;
    bool startsWithSession_ = false;
    bool didCheckForNoEffectsAtStartup_ = false;
    bool statusItemReady_ = false;
    bool statusItemShown_ = false;
    bool recordingHotKey_ = false;
    bool paused_ = false;
    bool saverRuns_ = false;    // known while there is an automation
    bool isSwitchedOn_ = false; // what the user wants, whatever rules over it
    std::shared_ptr<NDGroupEffect> globalEffect_;
    std::optional<ScreenControllers> screenControllers_; // the effect is on exactly when it has one
    std::unique_ptr<Timer> continuousApplyTimer_;
    std::unique_ptr<Timer> modeChangeTimer_;
};

/// Has the controller follow when the flags say that a mode was set; all else is ignored.
void NDDisplayReconfigurationCallback(CGDirectDisplayID display, std::uint32_t flags,
                                      void* controller);

} // namespace nocturo
