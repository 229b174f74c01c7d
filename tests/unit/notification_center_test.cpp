#include "platform/notification_center.h"

#include <gtest/gtest.h>

#include <functional>

namespace nocturo {
namespace {

class Center : public testing::Test {
  protected:
    /// Registers an observer whose mark is noted when it is told.
    void add(
        const void* observer, const char* name, const char* mark,
        std::function<void()> then = [] {}) {
        center_.addObserver(observer, name, [this, mark, then] {
            told_ += mark;
            then();
        });
    }
    std::string toldOf(const char* name) {
        told_.clear();
        center_.post(name);
        return told_;
    }

    NotificationCenter center_;
    std::string told_;
    int first_ = 0; // observers are told apart by address
    int second_ = 0;
};

TEST_F(Center, TellsInOrderAndAsOftenAsRegistered) {
    add(&first_, "a", "1");
    add(&second_, "a", "2");
    add(&first_, "a", "1");
    add(&first_, "b", "b");
    EXPECT_EQ(toldOf("a") + toldOf("b") + toldOf("c"), "121b");
    center_.removeObserver(&first_, "a");
    EXPECT_EQ(toldOf("a") + toldOf("b"), "2b");
    center_.removeObserver(&first_);
    EXPECT_EQ(toldOf("a") + toldOf("b"), "2");
}

TEST_F(Center, ObserversMayComeAndGoAndPostsMayNest) {
    add(&first_, "a", "1", [&] {
        center_.removeObserver(&second_);
        center_.removeObserver(&first_, "a"); // the one that runs, too
        add(&first_, "a", "new");
    });
    add(&first_, "a", "1");
    add(&second_, "a", "2");
    EXPECT_EQ(toldOf("a"), "1");
    EXPECT_EQ(toldOf("a"), "new");

    add(&first_, "outer", "(", [&] { center_.post("inner"); });
    add(&first_, "inner", "i", [&] { center_.removeObserver(&second_, "outer"); });
    add(&second_, "outer", "gone");
    add(&first_, "outer", ")");
    EXPECT_EQ(toldOf("outer"), "(i)");
}

} // namespace
} // namespace nocturo
