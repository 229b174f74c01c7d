#pragma once

#include "base/run_loop.h"
#include "displays/gamma_hardware.h"
#include "displays/gnome/desktop_shell.h"
#include "displays/gnome/monitor_calibration.h"
#include "displays/gnome/ramp_sender.h"
#include "displays/gnome/shell_guard.h"
#include "displays/gnome/shell_questions.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace nocturo {

/// The displays of GNOME Shell or Cinnamon, over the session bus.
///
/// A shell that lends monitors to calibrating programs (GNOME 49 and later) is asked for each that
/// another ramp than its system ramp is wanted on: then nobody else writes it, and the shell puts
/// its own back afterwards, whatever becomes of this process. Where it lends none ramps are written
/// past what the shell writes itself, which it may overwrite: they are told as displays whose mode
/// was set whenever it may have.
///
/// Ramps are sent without waiting, one at a time for each CRTC, and only the newest of those that
/// come meanwhile. What is asked is waited for half a second; a shell that does not answer is then
/// left in peace for a while.
class GnomeHardware final : public GammaHardware {
  public:
    /// A bus of its own, which nothing else waits for, and a guard that may be null. `connectors`
    /// is where the kernel has the connectors' directories. The loop must outlive it.
    GnomeHardware(std::unique_ptr<Bus> bus, Shell shell, std::unique_ptr<ShellGuard> guard,
                  std::filesystem::path connectors, RunLoop& runLoop);
    ~GnomeHardware() override;

    std::string_view name() const override { return "gnome"; }
    std::uint64_t topologyGeneration() override { return generation_; }
    void whenChanged(std::function<void()> look) override { look_ = std::move(look); }
    bool listHeads(std::vector<Head>& heads) override;
    void expectReads(std::span<const std::uint32_t> crtcs) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;
    void expectWrite(std::uint32_t crtc) override;
    /// True means sent, or kept to be sent. What the shell refuses later is logged once.
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void waitForWrites() override;

    /// Waits for a shell that is still starting, for some seconds at most; false when it does not
    /// tell its displays.
    bool waitForShell();

    /// The shell is one that runs as a window of another session, and shows nothing else.
    bool isNested() const;

  private:
    using Clock = std::chrono::steady_clock;

    struct Crtc {
        std::string connector; // of its first output; empty while it is off
        bool nested = false;
        std::optional<std::uint32_t> size; // as told last; nothing until it was asked for
        Ramp system;
        Ramp last;                          // read or written directly; empty at first
        std::unique_ptr<RampSender> sender; // of ramps that are written directly
        std::unique_ptr<MonitorCalibration> calibration;
        bool isLost = false;    // the shell has ended the calibration
        bool isNotLent = false; // it cannot be calibrated, so it is written directly
        bool isTaken = false;   // by another program that calibrates
        Clock::time_point askAgain{};
    };

    void noteChange();

    void hear(ShellQuestions::News news);
    void placeOutputs();
    bool fetchSizes();
    bool take(Crtc& crtc, const ShellQuestions::RampAnswer& answer);
    void setSize(Crtc& crtc, std::uint32_t size);

    MonitorCalibration* held(Crtc& crtc);
    bool borrow(Crtc& crtc);
    void lose(Crtc& crtc);
    void setTaken(Crtc& crtc, bool taken);

    void writeDirectly(std::uint32_t id, Crtc& crtc, const Ramp& ramp);
    RampSender::Refusal refused(sd_bus_message* answer);

    const std::unique_ptr<Bus> bus_;
    const Shell shell_;
    const std::unique_ptr<ShellGuard> guard_;
    const std::filesystem::path connectors_;
    RunLoop& runLoop_;
    ShellQuestions questions_;
    std::function<void()> look_;
    std::unique_ptr<Timer> lookSoon_;
    std::uint64_t generation_ = 1;
    std::uint64_t modes_ = 1; // one number for all: what concerns one may concern all
    std::map<std::uint32_t, Crtc> crtcs_;
    std::vector<std::unique_ptr<BusSlot>> listening_;
    bool refusalLogged_ = false;
};

} // namespace nocturo
