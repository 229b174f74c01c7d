#pragma once

#include "base/run_loop.h"
#include "displays/guard/guards.h"
#include "displays/guard/journal.h"
#include "displays/guard/server_mark.h"
#include "displays/x11/randr_hardware.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>

namespace nocturo {

/// The displays of an X server, given back even when this process is killed: before a CRTC gets
/// another ramp than the system's, its own is in the journal and a guard process is there that
/// writes it back when this process ends. Where that cannot be had, a sentence says so and the
/// displays are driven all the same.
///
/// Displays that were left changed are to be repaired before one is made.
class GuardedHardware final : public GammaHardware {
  public:
    /// The loop must outlive it.
    GuardedHardware(std::unique_ptr<RandrHardware> hardware, std::string displayName,
                    std::filesystem::path journalFile, RunLoop& runLoop);

    /// Ends the guard. It gives back what was not given back until now.
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
    void storeJournal();

    std::unique_ptr<RandrHardware> hardware_;
    std::string displayName_;
    std::filesystem::path journalFile_;
    ServerMark mark_;
    ServerMark::Content ownMark_;
    Guards guards_;
    std::map<std::uint32_t, Crtc> crtcs_;
    bool journalIsStale_ = true;
    bool isMarked_ = false;
    bool journalFailureLogged_ = false;
};

} // namespace nocturo
