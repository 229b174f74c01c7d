// Displays that change while the effect is on, on a real X server. Re-application every 6 seconds
// is off throughout, so whatever is put right was put right because the server told.

#include "nocturo_test.h"

#include <random>

namespace nocturo::rig {

namespace {

Channels ownRamp(int display) {
    Channels channels;
    for (auto& channel : channels) {
        for (int i = 0; i < 256; ++i) {
            channel.push_back(static_cast<std::uint16_t>(i * 250 + display));
        }
    }
    return channels;
}

class DisplayEvents : public NocturoOnX {
  protected:
    static constexpr int kDisplays = 4;

    DisplayEvents() : NocturoOnX(kDisplays) {
        for (int display = 0; display < kDisplays; ++display) {
            setOwn(display);
        }
        nocturo_ = session_.startNocturo();
        ctl({"set", "ContinuouslyApply", "false"});
        ctl({"effects", "only", "invert"});
        ctl({"on"});
    }
    void setOwn(int display) { NocturoOnX::setOwn(display, ownRamp(display)); }
    void dockAndUndock(int rounds);

    XServer& server_ = session_.server();
};

TEST_F(DisplayEvents, DisplaysChangeComeAndGo) {
    server_.run("xrandr", {"--fb", "5120x480", "--output", "DUMMY1", "--mode", "640x400"});
    setOwn(1); // as drivers do
    EXPECT_TRUE(becomes("iiii"));
    server_.switchOff(2);
    setOwn(2);
    server_.switchOn(2);
    EXPECT_TRUE(becomes("iiii"));

    server_.switchOff(1);
    server_.switchOff(3);
    ctl({"off"});
    EXPECT_EQ(shown(), "oooo");
    ctl({"on"});
    EXPECT_EQ(shown(), "ioio");
    server_.switchOn(1);
    server_.switchOn(3);
    EXPECT_TRUE(becomes("iiii"));

    const Channels own = ownRamp(100);
    server_.switchOn(6); // never seen before
    client_.setRamp(output(6), own);
    EXPECT_TRUE(waitUntil([&] { return client_.ramp(output(6))[0][0] == own[0][255]; }));
    ctl({"quit"});
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(shown(), "oooo");
    EXPECT_EQ(nocturo_->errors(), kNoEffectSentence);
}

// Three of four displays leave and come back at once, while another client writes ramps, its own or
// nonsense, to those that are there and those that are not.
void DisplayEvents::dockAndUndock(int rounds) {
    std::mt19937 random(4);
    const auto overwrite = [&] {
        const int display = static_cast<int>(random() % kDisplays);
        client_.setRamp(output(display), ownRamp(static_cast<int>(random() % 1000)));
    };
    for (int round = 0; round < rounds; ++round) {
        for (int display = 1; display < kDisplays; ++display) {
            server_.switchOff(display);
            overwrite();
        }
        for (int display = 1; display < kDisplays; ++display) {
            overwrite();
            server_.switchOn(display);
            setOwn(display); // as drivers do
        }
        ASSERT_TRUE(becomes("iiii")) << round << ": " << shown();
    }
    ctl({"off"});
    EXPECT_EQ(shown(), "oooo");
    EXPECT_EQ(nocturo_->errors(), kNoEffectSentence);
}

TEST_F(DisplayEvents, ADockEndsRightWhateverOthersWriteMeanwhile) {
    dockAndUndock(5);
}

TEST_F(DisplayEvents, SoakADockEndsRightTwoHundredTimes) {
    dockAndUndock(200);
}

} // namespace

} // namespace nocturo::rig
