#pragma once

#include "displays/calibration_source.h"
#include "displays/gamma_hardware.h"
#include "displays/kde/output_profiles.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace nocturo {

class WaylandConnection;

/// The outputs of KWin 6, which has no ramps: what is written becomes the calibration of a colour
/// profile, and what an output is given back is its user's profile. Writes are taken later; an
/// output that did not take one is told with its obstacle.
class KdeHardware final : public GammaHardware {
  public:
    /// Whether the compositor is a KWin that offers what is needed here.
    static bool isOfferedBy(const WaylandConnection& compositor);

    /// Whether it is an earlier KWin.
    static bool isTooOld(const WaylandConnection& compositor);

    /// The loop must outlive this.
    KdeHardware(std::unique_ptr<WaylandConnection> compositor, KdePlaces places, RunLoop& runLoop);
    ~KdeHardware() override;

    std::string_view name() const override { return "kde"; }
    std::uint64_t topologyGeneration() override;
    bool listHeads(std::vector<Head>& heads) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;
    void keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) override { system_[crtc] = ramp; }
    void waitForWrites() override;

    OutputProfiles& profiles() { return profiles_; }

  private:
    const std::string* connectorOf(std::uint32_t crtc) const;

    std::unique_ptr<WaylandConnection> compositor_;
    OutputProfiles profiles_;
    std::map<std::uint32_t, Ramp> system_; // by CRTC, which is the output's global
};

/// The calibrations of the profiles that users chose in KWin's settings.
class KdeCalibrations final : public CalibrationSource {
  public:
    /// The profiles must outlive this.
    explicit KdeCalibrations(OutputProfiles& profiles) : profiles_(profiles) {}

    CalibrationAnswer calibration(const std::string& connector, std::uint32_t rampSize) override {
        return {resampledRamp(profiles_.calibration(connector), rampSize), true};
    }
    std::uint64_t generation() override { return profiles_.calibrationGeneration(); }

  private:
    OutputProfiles& profiles_;
};

} // namespace nocturo
