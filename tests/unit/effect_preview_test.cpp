// What a curve leaves of a picture: how much of it can be told apart, how it is drawn and
// described.

#include "preferences/preview/effect_preview.h"
#include "preferences/readability.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>

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
    };
    for (const auto& [black, white, contrast, unreadable] : {
             Case{{0, 0, 0}, {1, 1, 1}, 1.0, false},
             Case{{1, 1, 1}, {0, 0, 0}, 1.0, false},
             Case{{-0.1F, -0.1F, -0.1F}, {1.1F, 1.1F, 1.1F}, 1.0, false},
             Case{{0, 0, 0}, {0, 0, 0}, 0.0, true},
             Case{{1.5F, 1.5F, 1.5F}, {9, 9, 9}, 0.0, true},
             Case{{kNan, kNan, kNan}, {kNan, kNan, kNan}, 0.0, true},
             Case{{0, 0, 0}, {0.2F, 0.2F, 0.2F}, 0.2, false},
             Case{{0.9F, 0.9F, 0.9F}, {1, 1, 1}, 0.1, true},
             // 0.0722 and 0.2126 of the light; their 2.2nd roots
             Case{{0, 0, 0}, {0, 0, 1}, 0.3028, false},
             Case{{0, 0, 0}, {1, 0, 0}, 0.4947, false},
         }) {
        SCOPED_TRACE(testing::PrintToString(black) + " to " + testing::PrintToString(white));
        const auto curve = straight(black, white);
        EXPECT_NEAR(remainingContrast(curve), contrast, 0.0005);
        EXPECT_EQ(isUnreadable(curve), unreadable);
    }
    EXPECT_FALSE(isUnreadable({})) << "a display without a usable ramp is not judged";
}

PreviewCurves changedTo(const ZQChannelValues& black, const ZQChannelValues& white) {
    PreviewCurves curves;
    curves.before = straight({0, 0, 0}, {1, 1, 1});
    curves.after = straight(black, white);
    return curves;
}

int pixelsOf(const QImage& image, QRgb color) {
    const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
    return static_cast<int>(std::count(pixels, pixels + image.width() * image.height(), color));
}

QImage drawn(const PreviewCurves& curves, double ratio = 1) {
    QPalette grey; // nothing of the plot or its surroundings is pure red or cyan
    grey.setColor(QPalette::Window, QColor(0xee, 0xee, 0xee));
    return renderEffectPreview(curves, {480, 220}, ratio, grey)
        .convertToFormat(QImage::Format_ARGB32);
}

TEST(EffectPreviewDrawing, ShowsThePictureAsTheDisplayWill) {
    const auto plain = drawn(changedTo({0, 0, 0}, {1, 1, 1}));
    auto inverted = changedTo({1, 1, 1}, {0, 0, 0});
    const auto negative = drawn(inverted);
    // The red patch turns into a cyan one where it is.
    int exchanged = 0;
    for (int x = 240; x < 480; ++x) {
        for (int y = 0; y < 220; ++y) {
            if (plain.pixel(x, y) == 0xffff0000) {
                ASSERT_EQ(negative.pixel(x, y), 0xff00ffff) << x << ' ' << y;
                ++exchanged;
            }
        }
    }
    EXPECT_GT(exchanged, 200);
    inverted.seenThrough = inverted.after; // the screen turns it around by itself
    EXPECT_EQ(pixelsOf(drawn(inverted), 0xffff0000), pixelsOf(plain, 0xffff0000));
    EXPECT_EQ(drawn(inverted, 2).size(), QSize(960, 440));
}

TEST(EffectPreviewDrawing, IsDescribedInWords) {
    EffectPreview preview;
    preview.setDisplayName("Screen 1");
    const auto heard = [&](const PreviewCurves& curves) {
        preview.setCurves(curves);
        return QAccessible::queryAccessibleInterface(&preview)->text(QAccessible::Description);
    };
    // 0.2126 of 0.6 and the rest of 0.3
    EXPECT_EQ(heard(changedTo({0.6F, 0.3F, 0.3F}, {0, 0, 0})),
              "Screen 1: brightness from 0 % to 36 %, inverted, red strongest");
    EXPECT_EQ(heard(changedTo({0, 0, 0}, {1.2F, 1.2F, 0})),
              "Screen 1: brightness from 0 % to 93 %, red and green strongest, "
              "bright tones clipped");
    EXPECT_EQ(heard({}), "Screen 1: The colors of this screen cannot be changed.");
}

} // namespace
} // namespace nocturo
