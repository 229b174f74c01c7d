#pragma once

#include "displays/gamma_hardware.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

struct wl_proxy;

namespace nocturo {

class RunLoop;
class WaylandConnection;
struct WaylandOutput;

/// The outputs of a compositor of the wlroots family, through wlr-gamma-control.
///
/// An output's control is held only while a ramp other than its system ramp is wanted, so that
/// other programs may have it otherwise. Giving it up, and the end of this process however it
/// comes, makes the compositor put its own ramp back, so no guard is needed. Ramps cannot be read:
/// what is read is the ramp that was written, or the system ramp while no control is held.
///
/// An output's ramp size is known only once it has been controlled; until then it is told as 256.
class WlrHardware : public GammaHardware {
  public:
    /// Whether the compositor offers what is needed here.
    static bool isOfferedBy(const WaylandConnection& compositor);

    /// `edidDirectory` is where the kernel has the connectors' directories, "/sys/class/drm".
    WlrHardware(std::unique_ptr<WaylandConnection> compositor, std::filesystem::path edidDirectory);
    ~WlrHardware() override;

    std::string_view name() const override { return "wlr"; }
    std::uint64_t topologyGeneration() override;
    bool listHeads(std::vector<Head>& heads) override;
    void expectWrite(std::uint32_t crtc) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void waitForWrites() override;

    WaylandConnection& compositor() { return *compositor_; }

  private:
    struct Control;
    struct Listeners;

    Control& controlOf(std::uint32_t crtc);
    const WaylandOutput* outputOf(std::uint32_t crtc) const;
    bool take(std::uint32_t crtc, Control& control);
    void ask(const WaylandOutput& output, Control& control);
    void release(Control& control);
    bool noteObstacle(Control& control, Obstacle obstacle);
    void lose(Control& control);

    std::unique_ptr<WaylandConnection> compositor_;
    std::filesystem::path edidDirectory_;
    wl_proxy* manager_;
    std::map<std::uint32_t, Control> controls_; // by CRTC, which is the output's global
    std::uint64_t ownGeneration_ = 1;           // for what the outputs themselves do not tell
    std::chrono::steady_clock::time_point silentUntil_{}; // a compositor that did not answer
};

} // namespace nocturo
