#pragma once

#include "base/run_loop.h"
#include "displays/fades.h"
#include "displays/gamma_hardware.h"
#include "displays/ramp_fade.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace nocturo {

/// Hardware that shows a new ramp little by little, as long as the fades say: the first step at
/// once, the others a frame apart, or less often where nobody could see the steps, and at the end
/// the very ramp. To whoever reads it the new ramp
/// is there from the beginning, so nobody takes a step on the way for anything.
class FadingHardware final : public GammaHardware {
  public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    static constexpr std::chrono::milliseconds kFrame{16};

    /// The fades and the loop must outlive it.
    FadingHardware(std::unique_ptr<GammaHardware> hardware, Fades& fades, RunLoop& runLoop,
                   Clock clock = std::chrono::steady_clock::now);

    /// Ends what is under way at its result.
    ~FadingHardware() override;

    std::string_view name() const override { return hardware_->name(); }
    std::uint64_t topologyGeneration() override { return hardware_->topologyGeneration(); }
    void whenChanged(std::function<void()> look) override;
    bool listHeads(std::vector<Head>& heads) override { return hardware_->listHeads(heads); }
    /// Allocates nothing where nothing fades.
    void expectReads(std::span<const std::uint32_t> crtcs) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;
    void expectWrite(std::uint32_t crtc) override { hardware_->expectWrite(crtc); }
    /// The same where nothing is to be faded.
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override {
        hardware_->keepSystemRamp(crtc, ramp);
    }
    /// In a change that takes its time, until the first steps are in force.
    void waitForWrites() override;

  private:
    using Moment = std::chrono::steady_clock::time_point;
    struct Fade {
        RampFade ramp;
        Moment start;
        Fades::Length length;
    };

    bool begin(std::uint32_t crtc, const Ramp& ramp, Fades::Length length);
    float shareOf(const Fade& fade) const;
    void keepPace();
    void showNextFrame();
    void finish();
    void endAwaited();

    std::unique_ptr<GammaHardware> hardware_;
    Fades& fades_;
    RunLoop& runLoop_;
    Clock clock_;
    std::function<void()> look_;
    std::map<std::uint32_t, Fade> underWay_; // by CRTC
    std::unique_ptr<Timer> frames_;          // while there are some
    Fades::Length pace_{0};                  // from one to the next
    bool isEndAwaited_ = false;
};

} // namespace nocturo
