#pragma once

#include "nocturo_test.h"

namespace nocturo::rig {

inline constexpr int kDisplays = 4;
inline constexpr const char* kAllOwn = "oooo";
inline constexpr const char* kAllChanged = "????"; // inverted and dimmed

/// Four displays with ramps of a shape that no effect makes, each its own.
class FourDisplays : public NocturoOnX {
  protected:
    FourDisplays() : NocturoOnX(kDisplays) {
        for (int i = 0; i < kDisplays; ++i) {
            Channels own;
            for (std::size_t channel = 0; channel < own.size(); ++channel) {
                for (int entry = 0; entry < 256; ++entry) {
                    own[channel].push_back(
                        static_cast<std::uint16_t>(entry * entry + 7 * i + int(channel)));
                }
            }
            setOwn(i, own);
        }
    }

    /// With its effect on and every display changed.
    void startChanging() {
        nocturo_ = session_.startNocturo();
        ctl({"effects", "only", "invert", "dim"});
        ctl({"on"});
        ASSERT_TRUE(becomes(kAllChanged)) << shown();
    }
    bool allArePlain() {
        for (int i = 0; i < kDisplays; ++i) {
            const Channels ramp = client_.ramp(output(i));
            if (ramp[0] != ramp[1] || ramp[0][1] != 257 || ramp[0][255] != 65535) {
                return false;
            }
        }
        return true;
    }
};

} // namespace nocturo::rig
