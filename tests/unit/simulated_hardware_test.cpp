#include "displays/simulated/simulated_hardware.h"

#include "desktop/test_card/test_card.h"
#include "temporary_directory.h"

#include <QColor>
#include <QImage>

#include <cmath>
#include <gtest/gtest.h>

using namespace nocturo;

TEST(SimulatedHardware, PicturesShowTheTestCardThroughEachRamp) {
    const TemporaryDirectory directory;
    const auto pictures = directory / "deep/pictures";
    SimulatedHardware hardware(2, pictures, writeTestCard);
    EXPECT_EQ(std::filesystem::status(pictures).permissions(), std::filesystem::perms::owner_all);
    // Red is reversed, green halved, blue squared: each channel tells a swap from the other two.
    Ramp curves = identityRamp(256);
    std::reverse(curves.red.begin(), curves.red.end());
    for (std::size_t i = 0; i < 256; ++i) {
        curves.green[i] /= 2;
        curves.blue[i] = static_cast<std::uint16_t>(curves.blue[i] * i / 255);
    }
    ASSERT_TRUE(hardware.writeRamp(0, identityRamp(256)));
    ASSERT_TRUE(hardware.writeRamp(1, curves));
    Ramp read(256);
    ASSERT_TRUE(hardware.readRamp(1, read));
    EXPECT_EQ(read, curves);
    EXPECT_FALSE(hardware.writeRamp(1, identityRamp(257)));

    const QImage card = QImage(":/simulated/test-card.png");
    const QImage plain((pictures / "display-1.png").c_str());
    const QImage shown((pictures / "display-2.png").c_str());
    EXPECT_EQ(plain, card.convertToFormat(plain.format()));
    ASSERT_EQ(shown.size(), card.size());
    int wrong = 0;
    for (int y = 0; y < card.height(); ++y) {
        for (int x = 0; x < card.width(); ++x) {
            const QColor before = card.pixelColor(x, y);
            const QColor after = shown.pixelColor(x, y);
            wrong += after.red() != 255 - before.red() ||
                     std::fabs(after.green() - before.green() / 2.0) > 0.51 ||
                     std::fabs(after.blue() - before.blue() * before.blue() / 255.0) > 0.51;
        }
    }
    EXPECT_EQ(wrong, 0);
}
