#include "platform/displays/simulated/simulated_hardware.h"

#include "platform/log.h"
#include "temporary_directory.h"

#include <QColor>
#include <QImage>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <cmath>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {
namespace {

namespace fs = std::filesystem;

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
    EXPECT_TRUE(heads[0].primary);
    EXPECT_FALSE(heads[1].primary);

    ASSERT_TRUE(hardware.writeRamp(heads[1].crtc, threeCurves()));
    Ramp first(heads[0].rampSize);
    Ramp second(heads[1].rampSize);
    ASSERT_TRUE(hardware.readRamp(heads[0].crtc, first));
    ASSERT_TRUE(hardware.readRamp(heads[1].crtc, second));
    EXPECT_EQ(first.green[128], 128 * 257);
    EXPECT_EQ(second, threeCurves());
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
            const double blue = before.blue() / 255.0;
            if (after.red() != 255 - before.red() ||
                std::fabs(after.green() - before.green() / 2.0) > 0.51 ||
                std::fabs(after.blue() - blue * blue * 255) > 0.51) {
                ++wrong;
            }
        }
    }
    EXPECT_EQ(wrong, 0);
    EXPECT_TRUE(said_.empty());
    // A picture is put in place in one step: no half-written file stays beside it.
    EXPECT_THAT(namesIn(pictures_), testing::ElementsAre("display-1.png", "display-2.png"));
}

TEST_F(SimulatedHardwareTest, RefusesARampThatDoesNotFitAndKeepsTheOldOne) {
    SimulatedHardware hardware(1, pictures_);
    Ramp shortBlue = threeCurves();
    shortBlue.blue.pop_back();
    EXPECT_FALSE(hardware.writeRamp(0, shortBlue));
    EXPECT_FALSE(hardware.writeRamp(0, identityRamp(257)));
    EXPECT_FALSE(hardware.writeRamp(0, Ramp()));
    EXPECT_FALSE(hardware.writeRamp(1, identityRamp(256)));
    Ramp ramp(256);
    EXPECT_FALSE(hardware.readRamp(1, ramp));
    ASSERT_TRUE(hardware.readRamp(0, ramp));
    EXPECT_EQ(ramp, identityRamp(256));
    EXPECT_TRUE(fs::is_empty(pictures_));
}

TEST_F(SimulatedHardwareTest, WorksWithoutPicturesAndSaysSoOnce) {
    // A file in the place of the directory stops the superuser too, permissions would not.
    const fs::path taken = directory_ / "taken";
    writeText(taken, "not a directory");
    SimulatedHardware hardware(2, taken / "pictures");
    EXPECT_TRUE(hardware.writeRamp(0, threeCurves()));
    EXPECT_TRUE(hardware.writeRamp(1, threeCurves()));
    Ramp ramp(256);
    ASSERT_TRUE(hardware.readRamp(1, ramp));
    EXPECT_EQ(ramp, threeCurves());
    EXPECT_THAT(said_, testing::ElementsAre(testing::HasSubstr(taken.string())));
}

TEST_F(SimulatedHardwareTest, AFullDiskKeepsTheOldPicture) {
    SimulatedHardware hardware(1, pictures_);
    ASSERT_TRUE(hardware.writeRamp(0, threeCurves()));
    const std::string old = readText(pictures_ / "display-1.png");

    // A limit on the size of files is the full disk that needs no mount.
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto onLimit = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{4096, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &tight), 0);
    testing::internal::CaptureStderr();
    EXPECT_TRUE(hardware.writeRamp(0, identityRamp(256)));
    const std::string complaints = testing::internal::GetCapturedStderr();
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, onLimit);

    EXPECT_EQ(complaints, "");
    EXPECT_EQ(said_.size(), 1U);
    EXPECT_EQ(readText(pictures_ / "display-1.png"), old);
    EXPECT_EQ(namesIn(pictures_), std::vector<std::string>{"display-1.png"});
}

} // namespace
} // namespace nocturo
