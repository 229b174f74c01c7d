#pragma once

#include "base/run_loop.h"
#include "displays/guard/guards.h"
#include "displays/guard/server_mark.h"
#include "displays/x11/randr_hardware.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>

namespace nocturo {

/// The displays of an X server, given back even when this process is killed: before a CRTC gets
/// another ramp than the system's, the server keeps its own and guard processes are there, which
/// write it back when this process ends. Where that cannot be had, a sentence says so and the
/// displays are driven all the same.
///
/// Displays that were left changed are to be repaired before one is made.
class GuardedHardware final : public GammaHardware {
  public:
    /// The loop must outlive it. From it `letGo` is called when another program asks that the
    /// displays be given back.
    GuardedHardware(std::unique_ptr<RandrHardware> hardware, const std::string& displayName,
                    RunLoop& runLoop, std::function<void()> letGo);

    /// Ends the guards. They give back what was not given back until now.
    ~GuardedHardware() override;

    std::string_view name() const override { return hardware_->name(); }
    std::uint64_t topologyGeneration() override { return hardware_->topologyGeneration(); }
    void whenChanged(std::function<void()> look) override {
        hardware_->whenChanged(std::move(look));
    }
    bool listHeads(std::vector<Head>& heads) override { return hardware_->listHeads(heads); }
    void expectReads(std::span<const std::uint32_t> crtcs) override {
        hardware_->expectReads(crtcs);
    }
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override {
        return hardware_->readRamp(crtc, ramp);
    }
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void waitForWrites() override;

  private:
    struct Crtc {
        Ramp system;
        bool changed = false; // holds another ramp, written here
    };

    bool isAnyChanged() const;
    void protect();
    void keepJournal();

    std::unique_ptr<RandrHardware> hardware_;
    ServerMark mark_;
    ServerMark::Owner self_;
    XListener letGoAsked_;
    Guards guards_;
    std::map<std::uint32_t, Crtc> crtcs_;
    bool isMarked_ = false;
    bool journalFailureLogged_ = false;
};

} // namespace nocturo
