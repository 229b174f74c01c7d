#pragma once

#include "displays/burst_settler.h"
#include "displays/calibration_source.h"
#include "displays/display_identifiers.h"
#include "displays/display_services.h"
#include "displays/gamma_hardware.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

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

    std::string_view name() const override { return hardware_->name(); }
    const std::vector<DisplayInfo>* onlineDisplays() override;
    bool readTransferTable(CGDirectDisplayID display, std::uint32_t capacity, float* red,
                           float* green, float* blue, std::uint32_t& count) override;
    bool writeTransferTable(CGDirectDisplayID display, std::uint32_t count, const float* red,
                            const float* green, const float* blue) override;
    std::uint32_t takeBackDisturbedDisplays(std::span<const CGDirectDisplayID> displays) override;
    void restoreSystemColors() override;
    void setChangeHandler(std::function<void(const DisplayChanges&)> handler) override;

    /// Looks whether anything changed; for the event loop, when hardware or profiles have something
    /// to say. What comes along while another member is used is found without it.
    void lookForChanges();

  private:
    // Two displays may share a CRTC, and a display may come to a CRTC that was written for another.
    // So each CRTC keeps the last ramp that others left in it apart from the one written here.
    struct Crtc {
        std::uint32_t id = 0;
        Ramp own;
        Ramp written;
        Ramp scratch;
        Ramp kept;                        // what the hardware was told to give back; empty at first
        CGDirectDisplayID writer = 0;     // whom an effect was written for; 0 once given back
        CGDirectDisplayID writtenFor = 0; // whom `written` was for, an effect or not; 0 at first
    };

    // What was last handed out for a display, and the ramp that it stood for.
    struct Capture {
        std::vector<float> tables; // red, green, blue
        Ramp ramp;

        bool matches(std::uint32_t count, const float* red, const float* green,
                     const float* blue) const;
    };

    struct Display {
        std::optional<Ramp> firstSeen;
        std::optional<Ramp> calibration;
        bool calibrationSettled = false;
        std::optional<Capture> lastRead;
        // The calibration is newer than what was written here,
        bool calibrationIsNews = false;
        // and than this content of the hardware, which stands for the calibration from then on.
        std::optional<Ramp> superseded;
        std::optional<std::uint64_t> modeGeneration; // nothing while offline
        Crtc* crtc = nullptr;                        // null while offline or without a usable ramp

        const std::optional<Ramp>& systemRamp() const {
            return calibration ? calibration : firstSeen;
        }
    };

    struct GiveBack {
        const Ramp* ramp = nullptr; // null when there is nothing to be given back
        CGDirectDisplayID display = 0;
    };

    bool refresh();
    void takeHead(const Head& head, CGDirectDisplayID id);
    Crtc& crtcOf(const Head& head);
    Display* usableDisplay(CGDirectDisplayID id);
    std::optional<Ramp> readRamp(CGDirectDisplayID id, Display& display);
    bool isForeign(const Crtc& crtc, CGDirectDisplayID id) const;
    bool writeScratch(Crtc& crtc, CGDirectDisplayID writer, CGDirectDisplayID writtenFor);
    void takeCalibrations();
    bool takeCalibration(Display& display, const std::string& connector);
    void supersede(Display& display);
    GiveBack giveBack(const Crtc& crtc) const;
    void keepSystemRamps();
    void keepSystemRamp(Crtc& crtc, const Ramp& ramp);
    void noteChange();
    void noteWhatCameAlong();
    void tellChanges();

    std::unique_ptr<GammaHardware> hardware_;
    std::unique_ptr<CalibrationSource> calibrations_; // may be null
    std::optional<BurstSettler> settler_;
    std::function<void(const DisplayChanges&)> changeHandler_;
    DisplayChanges pending_;
    DisplayIdentifiers identifiers_;
    std::optional<std::uint64_t> generation_;            // nothing when the heads must be listed
    std::optional<std::uint64_t> calibrationGeneration_; // nothing when all must be asked for
    std::vector<DisplayInfo> online_;
    std::map<CGDirectDisplayID, Display> displays_; // every one seen so far
    std::map<std::uint32_t, Crtc> crtcs_;
};

} // namespace nocturo
