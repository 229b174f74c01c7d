// The hot key field under real keys of a real X server.

#include "rig/session.h"

#include <gtest/gtest.h>

#include <sstream>

namespace nocturo::rig {
namespace {

class HotKeyFieldWindow : public testing::Test {
  protected:
    void SetUp() override {
        session_.environment()["QT_QPA_PLATFORM"] = "xcb";
        run("setxkbmap", {"us"});
        window_ = session_.start("hot_key_field_window");
        std::istringstream places(line());
        std::string ready;
        places >> ready >> fieldX_ >> fieldY_;
        ASSERT_EQ(ready, "ready") << window_->errors();
    }

    void run(const std::string& program, const std::vector<std::string>& arguments) {
        const RunResult result = session_.run(program, arguments);
        EXPECT_EQ(result.exit, 0) << result.errors;
    }
    void press(const std::string& keys) { run("xdotool", {"key", keys}); }
    void clickField() {
        run("xdotool", {"mousemove", fieldX_, fieldY_, "click", "1"});
        EXPECT_EQ(line(), "started");
    }
    void record(const std::string& keys, const std::string& result) {
        press(keys);
        EXPECT_EQ(line(), "edited " + result);
        EXPECT_EQ(line(), "ended");
    }
    std::string line() { return window_->readLine().value_or("(nothing)"); }

    Session session_{1};
    std::unique_ptr<Process> window_;
    std::string fieldX_, fieldY_;
};

// Everything the window says is read in order, so that a shortcut, button or line edit that got a
// key would show up in the next line.
TEST_F(HotKeyFieldWindow, RecordsWhatTheUserPresses) {
    clickField();
    for (const char* key : {"k", "Tab", "space"}) {
        press(key);
    }
    record("ctrl+super+k", "40 1310720 ⌃⌘K");
    press("ctrl+super+k");
    EXPECT_EQ(line(), "shortcut");
    clickField();
    record("alt+k", "40 524288 ⌥K");
    press("alt+k");
    EXPECT_EQ(line(), "button");

    press("Caps_Lock");
    clickField();
    record("super+k", "40 1114112 ⌘K");
    press("Caps_Lock");
    press("Tab");
    press("k");
    EXPECT_EQ(line(), "name k");
    press("shift+Tab"); // into the field
    EXPECT_EQ(line(), "started");
    record("F5", "96 8388608 F5");
}

} // namespace
} // namespace nocturo::rig
