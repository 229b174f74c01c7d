#include "platform/displays/simulated/simulated_hardware.h"

#include "platform/log.h"
#include "temporary_directory.h"

#include <QColor>
#include <QImage>

#include <cmath>
#include <gmock/gmock.h>

namespace nocturo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class SimulatedHardwareTest : public testing::Test {
  protected:
    SimulatedHardwareTest() {
        setLogSink([this](LogLevel, std::string_view, std::string_view sentence) {
            said_.emplace_back(sentence);
        });
    }

    ~SimulatedHardwareTest() override {
        setLogSink([](LogLevel, std::string_view, std::string_view) {});
    }

    static QImage load(const fs::path& picture) {
        return QImage(QString::fromStdString(picture.string()), "png");
    }

    TemporaryDirectory directory_;
    const fs::path pictures_ = directory_ / "deep/pictures";
    std::vector<std::string> said_;
};

/// Red is reversed, green halved, blue squared: each channel tells a swap from the other two.
Ramp threeCurves() {
    Ramp ramp(256);
    for (std::size_t i = 0; i < 256; ++i) {
        const double x = static_cast<double>(i) / 255;
        ramp.red[i] = static_cast<std::uint16_t>(std::lround((1 - x) * 65535));
        ramp.green[i] = static_cast<std::uint16_t>(std::lround(x / 2 * 65535));
        ramp.blue[i] = static_cast<std::uint16_t>(std::lround(x * x * 65535));
    }
    return ramp;
}

TEST_F(SimulatedHardwareTest, HeadsStandSideBySideAndKeepTheirOwnRamps) {
    SimulatedHardware hardware(3, pictures_);
    std::vector<Head> heads(7);
    ASSERT_TRUE(hardware.listHeads(heads));
    ASSERT_EQ(heads.size(), 3U);
    EXPECT_EQ(heads[2].connector, "SIM-3");
    EXPECT_EQ(heads[2].bounds.x, 3840);
    EXPECT_TRUE(heads[0].primary && !heads[1].primary);

    ASSERT_TRUE(hardware.writeRamp(heads[1].crtc, threeCurves()));
    Ramp ramp(heads[0].rampSize);
    ASSERT_TRUE(hardware.readRamp(heads[0].crtc, ramp));
    EXPECT_EQ(ramp.green[128], 128 * 257);
    ASSERT_TRUE(hardware.readRamp(heads[1].crtc, ramp));
    EXPECT_EQ(ramp, threeCurves());

    // What does not fit is refused, and the old ramp stays.
    Ramp shortBlue = identityRamp(256);
    shortBlue.blue.pop_back();
    EXPECT_FALSE(hardware.writeRamp(heads[1].crtc, shortBlue));
    EXPECT_FALSE(hardware.writeRamp(heads[1].crtc, identityRamp(257)));
    EXPECT_FALSE(hardware.writeRamp(3, identityRamp(256)));
    EXPECT_FALSE(hardware.readRamp(3, ramp));
    ASSERT_TRUE(hardware.readRamp(heads[1].crtc, ramp));
    EXPECT_EQ(ramp, threeCurves());
}

TEST_F(SimulatedHardwareTest, PicturesShowTheTestCardThroughTheRamp) {
    SimulatedHardware hardware(2, pictures_);
    EXPECT_EQ(fs::status(pictures_).permissions(), fs::perms::owner_all);

    ASSERT_TRUE(hardware.writeRamp(0, identityRamp(256)));
    const QImage plain = load(pictures_ / "display-1.png");
    const QImage card = QImage(":/simulated/test-card.png");
    ASSERT_FALSE(plain.isNull());
    EXPECT_EQ(plain, card.convertToFormat(plain.format()));
    EXPECT_FALSE(fs::exists(pictures_ / "display-2.png"));

    ASSERT_TRUE(hardware.writeRamp(1, threeCurves()));
    const QImage shown = load(pictures_ / "display-2.png");
    ASSERT_EQ(shown.size(), plain.size());
    int wrong = 0;
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            const QColor before = plain.pixelColor(x, y);
            const QColor after = shown.pixelColor(x, y);
            wrong += after.red() != 255 - before.red() ||
                     std::fabs(after.green() - before.green() / 2.0) > 0.51 ||
                     std::fabs(after.blue() - before.blue() * before.blue() / 255.0) > 0.51;
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_TRUE(said_.empty());
    // A picture is put in place in one step: no half-written file stays beside it.
    EXPECT_THAT(namesIn(pictures_), ElementsAre("display-1.png", "display-2.png"));
}

TEST_F(SimulatedHardwareTest, WorksWithoutPicturesAndSaysSoOnce) {
    // A file in the place of the directory stops the superuser too, permissions would not.
    writeText(directory_ / "taken", "not a directory");
    SimulatedHardware hardware(2, directory_ / "taken/pictures");
    EXPECT_TRUE(hardware.writeRamp(0, threeCurves()));
    EXPECT_TRUE(hardware.writeRamp(1, threeCurves()));
    EXPECT_THAT(said_, ElementsAre(testing::HasSubstr(directory_ / "taken")));
}

TEST_F(SimulatedHardwareTest, AFullDiskKeepsTheOldPicture) {
    SimulatedHardware hardware(1, pictures_);
    ASSERT_TRUE(hardware.writeRamp(0, threeCurves()));
    const std::string old = readText(pictures_ / "display-1.png");
    testing::internal::CaptureStderr();
    {
        const FullDisk disk(4096);
        EXPECT_TRUE(hardware.writeRamp(0, identityRamp(256)));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(said_.size(), 1U);
    EXPECT_EQ(readText(pictures_ / "display-1.png"), old);
    EXPECT_THAT(namesIn(pictures_), ElementsAre("display-1.png"));
}

} // namespace
} // namespace nocturo
