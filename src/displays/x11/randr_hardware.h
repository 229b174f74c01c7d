#pragma once

#include "base/result.h"
#include "displays/gamma_hardware.h"
#include "displays/x11/crtc_modes.h"
#include "displays/x11/lit_outputs.h"
#include "x11/xcb_handles.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace nocturo {

/// Why the displays of an X server cannot be opened; openingProblem() says it to users.
enum class RandrRefusal {
    unreachable,
    noRandr,      // RandR is missing or older than 1.3
    waylandGuest, // Xwayland: its ramps change nothing
};

/// The displays of an X server, through RandR 1.3 or later. All screens of the server are covered;
/// the primary output is that of the screen the display name chooses.
///
/// A server that goes away makes every member fail at once and connectionLost() true; nothing else
/// happens.
class RandrHardware final : public GammaHardware {
  public:
    /// Connects to the server of a display name such as ":0".
    static Result<std::unique_ptr<RandrHardware>, RandrRefusal>
    open(const std::string& displayName);

    std::string_view name() const override { return "randr"; }

    /// Also takes in what the server has sent, like processEvents().
    std::uint64_t topologyGeneration() override;

    bool listHeads(std::vector<Head>& heads) override;
    void expectReads(std::span<const std::uint32_t> crtcs) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;

    /// True means sent. What the server refuses later, such as a CRTC that has vanished, is logged
    /// once.
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void waitForWrites() override;

    /// Readable whenever the server sent something, and when it is gone. It stays the hardware's.
    int descriptor() const;

    /// Takes in what the server has sent without waiting for more. Replies that were waited for may
    /// have brought events along, so an event loop also calls this after using other members.
    void processEvents();

    bool connectionLost() const;

    /// For what else is to be asked of the server. It stays the hardware's.
    xcb_connection_t* connection() const { return connection_.get(); }

  private:
    RandrHardware(XcbConnection connection, int preferredScreen);

    void subscribe(bool withResourceChanges);
    void handle(const xcb_generic_event_t& event);
    void makeServerLook();
    void describe(std::vector<LitOutput>& lit, std::vector<Head>& heads);
    void fetchGammaSizes(const std::vector<LitOutput>& lit);
    std::optional<std::uint32_t> knownGammaSize(std::uint32_t crtc) const;

    XcbConnection connection_;
    std::vector<std::uint32_t> roots_; // the preferred one first
    std::uint32_t edidAtom_ = 0;
    std::uint8_t firstEvent_ = 0;
    std::uint32_t maximumRequestLength_ = 0; // in units of four bytes
    std::uint64_t generation_ = 1;
    CrtcModes modes_;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> gammaSizes_; // by CRTC; they never change
    std::vector<std::pair<std::uint32_t, unsigned>> rampsAsked_; // by CRTC: xcb's sequence number
    std::vector<std::uint32_t> unplugged_; // outputs that are lit although nothing is connected
    bool refusalLogged_ = false;
    bool lossCounted_ = false;
};

} // namespace nocturo
