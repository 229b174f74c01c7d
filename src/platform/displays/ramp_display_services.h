#pragma once

#include "platform/displays/display_identifiers.h"
#include "platform/displays/display_services.h"
#include "platform/displays/gamma_hardware.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace nocturo {

/// Display services over gamma hardware: tables of any length for ramps of any size, exact
/// write-back, and the ramps that each display is given back.
///
/// A display's system ramp is the one in force when it was first seen, at start or when it was
/// plugged in; never one that was written here. An all-zero ramp, which some servers show before
/// the first write, counts as the identity ramp: written back as it stands it would turn a screen
/// black.
class RampDisplayServices : public DisplayServices {
  public:
    explicit RampDisplayServices(std::unique_ptr<GammaHardware> hardware);

    std::string_view name() const override { return hardware_->name(); }
    const std::vector<DisplayInfo>* onlineDisplays() override;
    bool readTransferTable(CGDirectDisplayID display, std::uint32_t capacity, float* red,
                           float* green, float* blue, std::uint32_t& count) override;
    bool writeTransferTable(CGDirectDisplayID display, std::uint32_t count, const float* red,
                            const float* green, const float* blue) override;
    std::uint32_t takeBackDisturbedDisplays(std::span<const CGDirectDisplayID> displays) override;
    void restoreSystemColors() override;

  private:
    // Two displays may share a CRTC, and a display may come to a CRTC that was written for another.
    // So each CRTC keeps the last ramp that others left in it apart from the one written here.
    struct Crtc {
        std::uint32_t id = 0;
        Ramp own;
        Ramp written;
        Ramp scratch;
        CGDirectDisplayID writer = 0; // whom `written` was for; 0 when nothing was written
    };

    // What was last handed out for a display, and the ramp that it stood for.
    struct Capture {
        std::vector<float> tables; // red, green, blue
        Ramp ramp;

        bool matches(std::uint32_t count, const float* red, const float* green,
                     const float* blue) const;
    };

    struct Display {
        std::optional<Ramp> systemRamp;
        std::optional<Capture> lastRead;
        Crtc* crtc = nullptr; // null while offline or without a usable ramp
    };

    bool refresh();
    void takeHead(const Head& head, CGDirectDisplayID id);
    void keepSystemRamps();
    Crtc& crtcOf(const Head& head);
    Display* usableDisplay(CGDirectDisplayID id);
    std::optional<Ramp> readRamp(CGDirectDisplayID id, Display& display);
    bool writeScratch(Crtc& crtc, CGDirectDisplayID writer);

    std::unique_ptr<GammaHardware> hardware_;
    DisplayIdentifiers identifiers_;
    std::optional<std::uint64_t> generation_;
    std::vector<DisplayInfo> online_;
    std::map<CGDirectDisplayID, Display> displays_; // every one seen so far
    std::map<std::uint32_t, Crtc> crtcs_;
};

} // namespace nocturo
