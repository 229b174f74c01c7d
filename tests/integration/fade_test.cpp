// Changes that take their time, on a real X server.

#include "nocturo_test.h"

using namespace nocturo::rig;

using Clock = std::chrono::steady_clock;

struct Fade : NocturoOnX {
    Fade() : NocturoOnX(4) {
        select("NDInvertEffect", "<key>FadeSeconds</key><real>2</real>");
        nocturo_ = session_.startNocturo();
    }
    void startOff() {
        ctl({"off", "--fade", "0"});
        ASSERT_EQ(shown(), "oooo");
    }
};

TEST_F(Fade, ShowsManyStepsAndEndsExactly) {
    ASSERT_TRUE(becomes("iiii"));
    startOff();
    const auto start = Clock::now();
    ctl({"on"});
    int frames = 0;
    Clock::duration worst{};
    Channels before = client_.ramp(output(3));
    for (auto last = Clock::now();
         before != reversed(own_[3]) && Clock::now() - start < kPatience;) {
        const Channels now = client_.ramp(output(3));
        if (now != before) {
            before = now;
            ++frames;
            worst = std::max(worst, Clock::now() - last);
            last = Clock::now();
        }
    }
    EXPECT_GE(Clock::now() - start, Milliseconds(1950));
    EXPECT_GE(frames, 55);
    EXPECT_LE(frames, 126);
    EXPECT_LE(worst, Milliseconds(500)); // on a machine that has other things to do as well
    EXPECT_TRUE(becomes("iiii")) << shown();
    EXPECT_EQ(status()["disturbances"], 0);
}

TEST_F(Fade, HoldsUpNobodyWhoNeedsTheDisplays) {
    becomes("iiii");
    ctl({"off", "--fade", "5"});
    ctl({"restore"});
    EXPECT_TRUE(allOwnWithin(Milliseconds(100))) << shown();
    ctl({"on", "--fade", "5"});
    ctl({"on", "--fade", "0"});
    EXPECT_EQ(shown(), "iiii") << "what was on its way has ended";
    ctl({"off"});
    EXPECT_EQ(shown(), "????");
    kill(false);
    EXPECT_TRUE(allOwnWithin()) << "by the guard: " << shown();
    EXPECT_FALSE(isMarked());
    nocturo_ = session_.startNocturo();
    ctl({"on", "--fade", "0"});
    ctl({"look", "Just dimmer"});
    ctl({"off"});
    end();
    EXPECT_EQ(shown(), "oooo");
    says("nocturoctl", {"on", "--fade", "6"}, 2, "--fade");
}

TEST_F(Fade, SoakThousandTogglesOnTheWay) {
    becomes("iiii");
    for (int i = 0; i < 1000; ++i) {
        ctl({"toggle", "--fade", i % 3 == 0 ? "0.1" : "5"});
    }
    ctl({"on", "--fade", "0.2"});
    EXPECT_TRUE(becomes("iiii")) << shown();
    ctl({"off", "--fade", "0.2"});
    EXPECT_TRUE(becomes("oooo")) << shown();
}
