#pragma once

#include "base/result.h"
#include "displays/gamma_hardware.h"
#include "displays/x11/crtc_modes.h"
#include "displays/x11/lit_outputs.h"
#include "x11/x_connection.h"

#include <functional>
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
/// A server that goes away makes every member fail at once; nothing else happens.
class RandrHardware final : public GammaHardware {
  public:
    /// Over a connection, which must outlive it; null where no server is reached.
    static Result<std::unique_ptr<RandrHardware>, RandrRefusal> open(XConnection* connection);

    std::string_view name() const override { return "randr"; }

    std::uint64_t topologyGeneration() override;
    void whenChanged(std::function<void()> look) override;

    bool listHeads(std::vector<Head>& heads) override;
    void expectReads(std::span<const std::uint32_t> crtcs) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;

    /// True means sent. What the server refuses later, such as a CRTC that has vanished, is logged
    /// once.
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void waitForWrites() override;

    XConnection& connection() const { return connection_; }

  private:
    static constexpr std::uint64_t kFirstGeneration = 1;

    explicit RandrHardware(XConnection& connection);

    void subscribe(unsigned more);
    void listen(std::uint8_t firstEvent, std::uint8_t majorOpcode);
    void noteError(const xcb_generic_event_t& event, std::uint8_t majorOpcode);
    void noteChange(const xcb_generic_event_t& event);
    FoundOutputs takeFoundOutputs();
    void makeServerLook();
    void describe(std::vector<LitOutput>& lit, std::vector<Head>& heads);
    void fetchGammaSizes(const std::vector<LitOutput>& lit);
    std::optional<std::uint32_t> knownGammaSize(std::uint32_t crtc) const;

    XConnection& connection_;
    std::vector<XListener> listeners_;
    std::function<void()> look_;
    std::optional<FoundOutputs> found_; // while opening; none once there was a change
    std::uint32_t edidAtom_ = 0;
    std::uint32_t maximumRequestLength_ = 0; // in units of four bytes
    std::uint64_t generation_ = kFirstGeneration;
    CrtcModes modes_;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> gammaSizes_; // by CRTC; they never change
    std::vector<std::pair<std::uint32_t, unsigned>> rampsAsked_; // by CRTC: xcb's sequence number
    std::vector<std::uint32_t> unplugged_; // outputs that are lit although nothing is connected
    bool refusalLogged_ = false;
    bool lossCounted_ = false;
};

} // namespace nocturo
