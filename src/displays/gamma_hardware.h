#pragma once

#include "displays/display_services.h"
#include "displays/ramp.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace nocturo {

/// A connected output that shows something, as the hardware tells it.
struct Head {
    std::string connector;          // unique among the heads of one moment
    std::vector<std::uint8_t> edid; // as read; empty when the monitor has none
    std::uint32_t crtc = 0;         // several heads may show the same CRTC
    std::uint32_t rampSize = 0;     // entries per channel as reported, whatever it is
    DisplayRect bounds;
    bool primary = false;
    /// Another number than before whenever a mode was set since, also if it was the same again.
    std::uint64_t modeGeneration = 0;
    Obstacle obstacle = Obstacle::none;
};

/// Devices with 16-bit gamma ramps per CRTC. What a desktop offers is adapted to this, and
/// RampDisplayServices makes display services of it.
class GammaHardware {
  public:
    virtual ~GammaHardware() = default;

    /// "randr", "simulated".
    virtual std::string_view name() const = 0;

    /// A number that differs from the one before whenever the heads may have changed since. Cheap:
    /// asked before every use of the list.
    virtual std::uint64_t topologyGeneration() = 0;

    /// Has `look` called from the event loop when that number may be another, for hardware that
    /// hears of changes.
    // Others keep it. NOLINTNEXTLINE(performance-unnecessary-value-param)
    virtual void whenChanged(std::function<void()> /*look*/) {}

    /// The heads that are on, in a stable order; false when they cannot be listed.
    virtual bool listHeads(std::vector<Head>& heads) = 0;

    /// Says that the ramps of these CRTCs are read next, each once, so that hardware which takes
    /// time to answer can be asked for all of them together.
    virtual void expectReads(std::span<const std::uint32_t> /*crtcs*/) {}

    /// Reads the ramp of a CRTC into `ramp`, which has the CRTC's size already; false on failure.
    virtual bool readRamp(std::uint32_t crtc, Ramp& ramp) = 0;

    /// Says that a ramp of the CRTC is about to be written, for hardware that learns its size only
    /// then. The heads may have changed afterwards.
    virtual void expectWrite(std::uint32_t /*crtc*/) {}

    /// Writes a ramp of the CRTC's own size; false on failure. A CRTC that is switched off keeps
    /// the ramp for when it is switched on. Allocates nothing.
    virtual bool writeRamp(std::uint32_t crtc, const Ramp& ramp) = 0;

    /// What the CRTC is to be given back; told before its first write and whenever it changes.
    virtual void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) {
        static_cast<void>(crtc);
        static_cast<void>(ramp);
    }

    /// Returns once every ramp written so far is in force, for hardware that takes them later.
    virtual void waitForWrites() {}
};

} // namespace nocturo
