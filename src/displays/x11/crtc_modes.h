#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace nocturo {

/// Numbers the modes that were set on CRTCs. An output that is switched off and on again between
/// two looks seems unchanged, but its driver may have reset the ramp.
class CrtcModes {
  public:
    /// Takes in what an event or an answer says about a CRTC, a mode of 0 being off, and returns
    /// the number of the mode that is set: never the same for two.
    std::uint64_t note(std::uint32_t crtc, std::uint32_t mode, std::uint16_t rotation) {
        auto known = std::find_if(known_.begin(), known_.end(),
                                  [&](const Known& each) { return each.crtc == crtc; });
        if (known == known_.end()) {
            known = known_.insert(known_.end(), {crtc, mode, rotation, ++last_});
        } else if (known->mode != mode || known->rotation != rotation) {
            *known = {crtc, mode, rotation, ++last_};
        }
        return known->number;
    }

  private:
    struct Known {
        std::uint32_t crtc;
        std::uint32_t mode;
        std::uint16_t rotation;
        std::uint64_t number;
    };

    std::vector<Known> known_;
    std::uint64_t last_ = 0;
};

} // namespace nocturo
