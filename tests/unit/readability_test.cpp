#include "preferences/readability.h"

#include <gmock/gmock.h>

#include <limits>

namespace nocturo {
namespace {

ZQGammaCurve straight(const ZQChannelValues& from, const ZQChannelValues& to) {
    ZQGammaCurve curve;
    curve.sampleCount = 256;
    const std::array tables{&curve.redTable, &curve.greenTable, &curve.blueTable};
    for (std::size_t channel = 0; channel < tables.size(); ++channel) {
        for (std::size_t i = 0; i < 256; ++i) {
            (*tables[channel])[i] =
                from[channel] + (to[channel] - from[channel]) * static_cast<float>(i) / 255.0F;
        }
    }
    return curve;
}

TEST(Readability, IsWhatTheHardwareLeavesOfTheRange) {
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    struct Case {
        ZQChannelValues black;
        ZQChannelValues white;
        double contrast;
        bool unreadable;
        const char* name;
    };
    for (const auto& [black, white, contrast, unreadable, name] : {
             Case{{0, 0, 0}, {1, 1, 1}, 1.0, false, "unchanged"},
             Case{{1, 1, 1}, {0, 0, 0}, 1.0, false, "inverted"},
             Case{{-0.1F, -0.1F, -0.1F}, {1.1F, 1.1F, 1.1F}, 1.0, false, "overexposed"},
             Case{{0, 0, 0}, {0, 0, 0}, 0.0, true, "dimmed to black"},
             Case{{1, 1, 1}, {1, 1, 1}, 0.0, true, "dimmed to white"},
             Case{{1.5F, 1.5F, 1.5F}, {9, 9, 9}, 0.0, true, "all beyond white"},
             Case{{kNan, kNan, kNan}, {kNan, kNan, kNan}, 0.0, true, "not a number"},
             Case{{0, 0, 0}, {0.2F, 0.2F, 0.2F}, 0.2, false, "dimmed to a fifth"},
             Case{{0.8F, 0.8F, 0.8F}, {1, 1, 1}, 0.2, false, "lightened to a fifth"},
             Case{{0, 0, 0}, {0.1F, 0.1F, 0.1F}, 0.1, true, "dimmed to a tenth"},
             Case{{0.9F, 0.9F, 0.9F}, {1, 1, 1}, 0.1, true, "lightened to a tenth"},
             // 0.0722 and 0.2126 of the light; their 2.2nd roots
             Case{{0, 0, 0}, {0, 0, 1}, 0.3028, false, "blue alone"},
             Case{{0, 0, 0}, {1, 0, 0}, 0.4947, false, "red alone"},
         }) {
        const auto curve = straight(black, white);
        EXPECT_NEAR(remainingContrast(curve), contrast, 0.0005) << name;
        EXPECT_EQ(isUnreadable(curve), unreadable) << name;
    }
    EXPECT_FALSE(isUnreadable({})) << "a display without a usable ramp is not judged";
}

} // namespace
} // namespace nocturo
