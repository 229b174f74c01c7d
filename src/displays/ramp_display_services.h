#pragma once

#include "displays/burst_settler.h"
#include "displays/calibration_source.h"
#include "displays/crtc_ramp.h"
#include "displays/display_list.h"
#include "displays/display_services.h"
#include "displays/gamma_hardware.h"
#include "displays/system_colors.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

class Timer;

/// Display services over gamma hardware: tables of any length for ramps of any size, exact
/// write-back, and the ramps that each display is given back.
///
/// A display's system ramp is the calibration of the colour profile assigned to it; without one,
/// the ramp in force when it was first seen, at start or when it was plugged in; never one that was
/// written here. An all-zero ramp, which some servers show before the first write, counts as the
/// identity ramp: written back as it stands it would turn a screen black.
///
/// A change of the calibration writes nothing. The next restore goes to the new one, and so does
/// the next read, if the display still shows what was there before or what was written here.
class RampDisplayServices : public DisplayServices {
  public:
    /// Without calibrations no display has one. The run loop must outlive this; without one no
    /// change is told.
    explicit RampDisplayServices(std::unique_ptr<GammaHardware> hardware,
                                 std::unique_ptr<CalibrationSource> calibrations = nullptr,
                                 RunLoop* runLoop = nullptr);
    ~RampDisplayServices() override;

    std::string_view name() const override { return hardware_->name(); }
    const std::vector<DisplayInfo>* onlineDisplays() override;
    bool readTransferTable(CGDirectDisplayID display, std::uint32_t capacity, float* red,
                           float* green, float* blue, std::uint32_t& count) override;
    bool writeTransferTable(CGDirectDisplayID display, std::uint32_t count, const float* red,
                            const float* green, const float* blue) override;
    std::uint32_t takeBackDisturbedDisplays(std::span<const CGDirectDisplayID> displays) override;
    void restoreSystemColors() override;
    void setChangeHandler(std::function<void(const DisplayChanges&)> handler) override;

    /// Looks whether anything changed, for hardware that does not say by itself.
    void lookForChanges();

  private:
    // What was last handed out for a display, and the ramp that it stood for.
    struct Capture {
        std::vector<float> tables; // red, green, blue
        Ramp ramp;

        bool matches(std::uint32_t count, const float* red, const float* green,
                     const float* blue) const;
    };

    struct Display {
        SystemColors colors;
        std::optional<Capture> lastRead;
        CrtcRamp* crtc = nullptr; // null while offline or without a usable ramp
    };

    struct GiveBack {
        const Ramp* ramp = nullptr; // null when there is nothing to be given back
        CGDirectDisplayID display = 0;
    };

    bool refresh();
    void connectDisplays();
    CrtcRamp& crtcRamp(std::uint32_t crtc, std::uint32_t size);
    Display* usableDisplay(CGDirectDisplayID id);
    std::optional<Ramp> readRamp(CGDirectDisplayID id, Display& display);
    bool isOfDisplayThatLeft(const CrtcRamp& crtc, CGDirectDisplayID id) const;
    void takeCalibrations();
    GiveBack giveBack(const CrtcRamp& crtc) const;
    void keepSystemRamps();
    void noteChange();
    void noteWhatCameAlong();
    void tellModeChanges();
    void tellSettledChanges();
    void tell(const DisplayChanges& changes);

    std::unique_ptr<GammaHardware> hardware_;
    std::unique_ptr<CalibrationSource> calibrations_; // may be null
    RunLoop* runLoop_;                                // may be null
    std::optional<BurstSettler> settler_;
    std::unique_ptr<Timer> soon_; // runs while the event loop is to be come back to at once
    std::function<void(const DisplayChanges&)> changeHandler_;
    std::vector<CGDirectDisplayID> profilesChanged_;     // untold
    std::optional<std::uint64_t> calibrationGeneration_; // nothing when all must be asked for
    DisplayList list_;
    std::map<CGDirectDisplayID, Display> displays_; // every one seen so far
    std::map<std::uint32_t, CrtcRamp> crtcs_;
};

} // namespace nocturo
