// What the display services tell of changes, and the system colours that displays go back to.

#include "display_services_fixture.h"
#include "displays/display_gamma.h"
#include "fake_run_loop.h"

#include <gmock/gmock.h>

using namespace nocturo;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

Ramp inverted(std::uint32_t number) {
    return reversed(colors(number));
}

struct FakeCalibrations : CalibrationSource {
    CalibrationAnswer calibration(const std::string& connector, std::uint32_t size) override {
        const auto found = ramps.find(connector);
        return {found == ramps.end() ? std::nullopt
                                     : std::optional(resampledRamp(found->second, size)),
                settled};
    }
    std::uint64_t generation() override { return lastGeneration; }

    void assign(const std::string& connector, std::uint32_t number) {
        ramps[connector] = colors(number);
        ++lastGeneration;
    }

    std::map<std::string, Ramp> ramps; // by connector
    bool settled = true;
    std::uint64_t lastGeneration = 1;
};

struct DisplayChangesTest : DisplayServicesFixture {
    DisplayChangesTest() {
        add("A", 1, colors(1));
        add("B", 2, colors(2));
    }
    void start() {
        DisplayServicesFixture::start(std::move(ownedProfiles_), &runLoop_);
        services_->setChangeHandler([this](const DisplayChanges& each) { told_.push_back(each); });
        a_ = id("A");
        b_ = id("B");
    }
    /// What is told once all has settled.
    std::vector<DisplayChanges> toldAfter(std::int64_t milliseconds = 1000) {
        runLoop_.advance(milliseconds);
        return std::exchange(told_, {});
    }
    std::vector<DisplayChanges> toldAfterLook() {
        services_->lookForChanges();
        EXPECT_THAT(told_, IsEmpty()) << "never from inside a member";
        return toldAfter();
    }
    const Ramp& shown(std::uint32_t crtc) { return hardware_.ramps[crtc]; }

    std::unique_ptr<FakeCalibrations> ownedProfiles_ = std::make_unique<FakeCalibrations>();
    FakeCalibrations& profiles_ = *ownedProfiles_;
    FakeRunLoop runLoop_;
    std::vector<DisplayChanges> told_;
    CGDirectDisplayID a_ = 0;
    CGDirectDisplayID b_ = 0;
};

TEST_F(DisplayChangesTest, EachKindIsToldAndNothingElse) {
    start();
    ++hardware_.generation;
    EXPECT_THAT(toldAfterLook(), IsEmpty());
    hardware_.setMode("B");
    EXPECT_THAT(toldAfterLook(), ElementsAre(DisplayChanges{{b_}, false, {}}));
    hardware_.heads[0].bounds.x = 500;
    ++hardware_.generation;
    EXPECT_THAT(toldAfterLook(), ElementsAre(DisplayChanges{{}, true, {}}));
    hardware_.remove("A");
    EXPECT_THAT(toldAfterLook(), ElementsAre(DisplayChanges{{}, true, {}}));
    hardware_.add("A", 1);
    EXPECT_THAT(toldAfterLook(),
                ElementsAre(DisplayChanges{{a_}, false, {}}, DisplayChanges{{}, true, {}}));
    profiles_.assign("A", 3);
    EXPECT_THAT(toldAfterLook(), ElementsAre(DisplayChanges{{}, false, {a_}}));
    EXPECT_EQ(runLoop_.pendingTimers(), 0U);

    // What comes along with an answer is not missed.
    hardware_.afterRead = [&] { hardware_.setMode("A"); };
    EXPECT_EQ(ZQDisplayGammaCurve(a_).sampleCount, 256U);
    EXPECT_THAT(toldAfter(), ElementsAre(DisplayChanges{{a_}, false, {}}));
}

TEST_F(DisplayChangesTest, ABurstIsToldOnceWithinAQuarterOfASecondAndModesAtOnce) {
    start();
    const auto move = [this] {
        hardware_.heads[1].bounds.x += 1;
        ++hardware_.generation;
        services_->lookForChanges();
        EXPECT_THAT(told_, IsEmpty());
    };
    const DisplayChanges moved{{}, true, {}};
    move();
    EXPECT_THAT(toldAfter(49), IsEmpty());
    EXPECT_THAT(toldAfter(1), ElementsAre(moved));
    hardware_.setMode("B");
    for (int i = 0; i < 6; ++i) {
        hardware_.setMode("A");
        move();
        const auto told = toldAfter(0);
        ASSERT_EQ(told.size(), 1U);
        EXPECT_FALSE(told[0].arrangementChanged);
        EXPECT_THAT(told[0].modeChanged,
                    UnorderedElementsAreArray(i == 0 ? std::vector{a_, b_} : std::vector{a_}));
        EXPECT_THAT(toldAfter(41), IsEmpty());
    }
    EXPECT_THAT(toldAfter(3), IsEmpty());
    EXPECT_THAT(toldAfter(1), ElementsAre(moved));
}

TEST_F(DisplayChangesTest, WhatOthersPutThereWhileOffIsKeptOverAProfileThatChanged) {
    profiles_.assign("A", 1); // which is what it shows
    start();
    hardware_.writes.clear();
    // What others have put there since is no former colour.
    profiles_.assign("A", 9);
    services_->lookForChanges();
    EXPECT_THAT(hardware_.writes, IsEmpty());
    hardware_.ramps[1] = colors(20);
    const auto a = inverting(a_);
    EXPECT_EQ(shown(1), inverted(20));
    services_->restoreSystemColors();
    EXPECT_EQ(shown(1), colors(9));
    profiles_.ramps.clear();
    ++profiles_.lastGeneration;
    services_->restoreSystemColors();
    EXPECT_EQ(shown(1), colors(1)) << "what it had when it was first seen";
}

TEST_F(DisplayChangesTest, ALateFirstAnswerIsNoChangeOfTheProfile) {
    profiles_.settled = false;
    start();
    profiles_.settled = true;
    profiles_.assign("A", 7);
    services_->lookForChanges();
    const auto a = inverting(a_);
    EXPECT_EQ(shown(1), inverted(1));
    services_->restoreSystemColors();
    EXPECT_EQ(shown(1), colors(7));
}

TEST_F(DisplayChangesTest, APluggedInDisplayNeverTakesWhatWasWrittenForAnother) {
    profiles_.assign("A", 7);
    start();
    auto a = inverting(a_);
    const auto replaceBy = [&](const std::string& connector) { // on the first CRTC
        std::erase_if(hardware_.heads, [](const Head& head) { return head.crtc == 1; });
        hardware_.add(connector, 1);
        return inverting(id(connector));
    };
    auto c = replaceBy("C"); // while on
    EXPECT_EQ(shown(1), inverted(1));
    services_->restoreSystemColors();
    EXPECT_EQ(shown(1), colors(1));

    a = replaceBy("A"); // while off
    EXPECT_EQ(shown(1), inverted(7));
    services_->restoreSystemColors();
    EXPECT_EQ(shown(1), colors(7));
    const auto d = replaceBy("D");
    EXPECT_EQ(shown(1), inverted(1)); // what others had left there, not A's calibration
    hardware_.remove("D");
    services_->restoreSystemColors();
    EXPECT_EQ(shown(1), colors(1));
}

TEST_F(DisplayChangesTest, TheHardwareIsToldWhatToGiveBackBeforeAnyWrite) {
    hardware_.add("C", 3);
    profiles_.assign("A", 7);
    hardware_.reads = false;
    start();
    EXPECT_EQ(hardware_.kept, (std::map<std::uint32_t, Ramp>{{1, colors(7)}}));
    hardware_.reads = true;
    const auto a = inverting(a_);
    const auto b = inverting(b_);
    const std::vector<float> dark(256, 0.0F);
    EXPECT_TRUE(services_->writeTransferTable(id("C"), 256, dark.data(), dark.data(), dark.data()));
    EXPECT_EQ(hardware_.writesNotProvidedFor, 0);
    EXPECT_EQ(hardware_.kept[2], colors(2));
    EXPECT_EQ(hardware_.kept[3], identityRamp(256)); // nothing better is known
    profiles_.assign("B", 8);
    services_->lookForChanges();
    EXPECT_EQ(hardware_.kept[2], colors(8));
    hardware_.remove("A");
    hardware_.remove("B");
    hardware_.add("A", 2);
    services_->lookForChanges();
    EXPECT_EQ(hardware_.kept[2], colors(7));
    EXPECT_EQ(hardware_.kept[1], colors(7)); // still dark with A's effect in it
}
