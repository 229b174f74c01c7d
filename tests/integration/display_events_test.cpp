// Displays that change while the effect is on, on a real X server. Re-application every 6 seconds
// is off throughout, so whatever is put right was put right because the server told.

#include "rig/session.h"

#include <gtest/gtest.h>

#include <algorithm>

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

class DisplayEvents : public testing::Test {
  protected:
    static constexpr int kDisplays = 4;

    void SetUp() override {
        for (int i = 0; i < kDisplays; ++i) {
            setOwn(i);
        }
        nocturo_ = session_.startNocturo();
        ctl({"set", "ContinuouslyApply", "false"});
        ctl({"effects", "only", "invert"});
        ctl({"on"});
    }
    void ctl(const std::vector<std::string>& arguments) {
        const RunResult result = session_.run("nocturoctl", arguments);
        EXPECT_EQ(result.exit, 0) << result.errors;
    }
    static std::string output(int display) { return "DUMMY" + std::to_string(display); }
    void setOwn(int display) { client_.setRamp(output(display), ownRamp(display)); }

    /// One letter a display: i inverted, o its own ramp, ? anything else.
    std::string shown() {
        std::string letters;
        for (int display = 0; display < kDisplays; ++display) {
            const Channels ramp = client_.ramp(output(display));
            Channels reversed = ownRamp(display);
            for (auto& channel : reversed) {
                std::reverse(channel.begin(), channel.end());
            }
            letters += ramp == ownRamp(display) ? 'o' : ramp == reversed ? 'i' : '?';
        }
        return letters;
    }
    bool becomes(const std::string& letters) {
        return waitUntil([&] { return shown() == letters; });
    }

    Session session_{kDisplays};
    XClient client_{session_.server().display()};
    std::unique_ptr<Process> nocturo_;
};

TEST_F(DisplayEvents, AModeChangeAppliesAtOnceAndOnceMore) {
    const auto setMode = [&](std::uint32_t mode) {
        client_.switchOn(client_.outputs()[1], mode, XServer::kWidth, 0);
        setOwn(1); // as drivers do
    };
    // The second time is 0.05 seconds after the first; a busy machine may be late to look.
    bool seen = false;
    for (int attempt = 0; attempt < 5 && !seen; ++attempt) {
        setMode(client_.createMode(320 + attempt, 200));
        EXPECT_TRUE(becomes("iiii"));
        setOwn(1);
        seen = waitUntil([&] { return shown() == "iiii"; }, Milliseconds(1000));
        setOwn(1);
        EXPECT_FALSE(waitUntil([&] { return shown() == "iiii"; }, Milliseconds(200))) << "a third";
    }
    EXPECT_TRUE(seen);
    ctl({"off"});
    setMode(client_.createMode(300, 200));
    EXPECT_FALSE(waitUntil([&] { return shown() != "oooo"; }, Milliseconds(200)));
}

TEST_F(DisplayEvents, DisplaysComeAndGo) {
    auto& server = session_.server();
    server.switchOff(2);
    setOwn(2);
    server.switchOn(2);
    EXPECT_TRUE(becomes("iiii"));

    server.switchOff(1);
    server.switchOff(3);
    ctl({"off"});
    EXPECT_EQ(shown(), "oooo");
    ctl({"on"});
    EXPECT_EQ(shown(), "ioio");
    server.switchOn(1);
    server.switchOn(3);
    EXPECT_TRUE(becomes("iiii"));

    const Channels own = ownRamp(100);
    server.switchOn(6); // never seen before
    client_.setRamp(output(6), own);
    EXPECT_TRUE(waitUntil([&] { return client_.ramp(output(6))[0][0] == own[0][255]; }));
    ctl({"quit"});
    EXPECT_EQ(nocturo_->wait(), 0);
    EXPECT_EQ(shown(), "oooo");
    EXPECT_EQ(nocturo_->errors(), "");
}

TEST_F(DisplayEvents, ADockEndsRightWhateverOthersWriteMeanwhile) {
    auto& server = session_.server();
    for (int round = 0; round < 5; ++round) {
        for (int display = 1; display < kDisplays; ++display) {
            server.switchOff(display);
            setOwn(display);
        }
        for (int display = 1; display < kDisplays; ++display) {
            server.switchOn(display);
            setOwn(display);
        }
        EXPECT_TRUE(becomes("iiii")) << round;
    }
    ctl({"off"});
    EXPECT_EQ(shown(), "oooo");
}

} // namespace

} // namespace nocturo::rig
