#include "platform/screensaver/screen_saver_state.h"

#include "platform/notification_center.h"

#include <gtest/gtest.h>

#include <string>

namespace nocturo {

namespace {

class SaverState : public testing::Test {
  protected:
    void SetUp() override {
        center_.addObserver(this, "com.apple.screensaver.didstart", [this] { told_ += '+'; });
        center_.addObserver(this, "com.apple.screensaver.didstop", [this] { told_ += '-'; });
    }

    NotificationCenter center_;
    ScreenSaverState state_{center_};
    std::string told_; // + for a start, - for a stop
};

TEST_F(SaverState, OneStartAndOneStopHoweverManySpeak) {
    state_.setActive("x", false);
    EXPECT_EQ(told_, "");
    state_.setActive("x", true);
    state_.setActive("x", true);
    state_.setActive("kde", true);
    EXPECT_EQ(told_, "+");
    state_.setActive("x", false);
    EXPECT_EQ(told_, "+");
    state_.setActive("kde", false);
    state_.setActive("kde", false);
    EXPECT_EQ(told_, "+-");
}

TEST_F(SaverState, ASourceThatVanishesIsNotActive) {
    state_.setActive("gnome", true);
    state_.forget("gnome");
    EXPECT_EQ(told_, "+-");
    state_.forget("gnome");
    state_.forget("never seen");
    EXPECT_EQ(told_, "+-");
}

TEST_F(SaverState, TheLockSpeaksOnlyWhereNobodyElseDoes) {
    state_.setSessionLocked(true);
    EXPECT_EQ(told_, "+");
    state_.setActive("kde", false); // knows better
    EXPECT_EQ(told_, "+-");
    state_.setSessionLocked(false);
    state_.setSessionLocked(true);
    EXPECT_EQ(told_, "+-");
    state_.forget("kde");
    EXPECT_EQ(told_, "+-+");
    state_.setSessionLocked(false);
    EXPECT_EQ(told_, "+-+-");
}

} // namespace

} // namespace nocturo
