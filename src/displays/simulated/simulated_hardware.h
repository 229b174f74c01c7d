#pragma once

#include "displays/gamma_hardware.h"
#include "displays/simulated/draw_picture.h"

#include <filesystem>
#include <vector>

namespace nocturo {

inline constexpr unsigned kMaxSimulatedHeads = 16;

/// Displays that exist only in memory, for machines without any: "SIM-1", "SIM-2", ... side by
/// side, 1920 x 1080 each, the first one primary, with 256-entry identity ramps at start. After
/// each write display n's test card, as seen through its ramp, is put at
/// `pictureDirectory`/display-<n>.png.
class SimulatedHardware : public GammaHardware {
  public:
    /// `count` is 1 to kMaxSimulatedHeads. The directory is created, for this user alone, where it
    /// does not exist. When pictures cannot be written that is said once and the ramps still work;
    /// an empty path asks for none.
    SimulatedHardware(unsigned count, std::filesystem::path pictureDirectory,
                      DrawPicture drawPicture);

    std::string_view name() const override { return "simulated"; }
    std::uint64_t topologyGeneration() override { return 1; }
    bool listHeads(std::vector<Head>& heads) override;
    bool readRamp(std::uint32_t crtc, Ramp& ramp) override;
    /// Drawing the picture allocates; the ramp itself is written without.
    bool writeRamp(std::uint32_t crtc, const Ramp& ramp) override;

  private:
    void draw(std::uint32_t crtc);

    std::vector<Ramp> ramps_; // by CRTC
    std::filesystem::path pictureDirectory_;
    DrawPicture drawPicture_;
    bool drawingFailureSaid_ = false;
};

} // namespace nocturo
