#include "base/notification_center.h"

#include <gtest/gtest.h>

using namespace nocturo;

TEST(NotificationCenter, ObserversComeAndGoWhileOthersAreTold) {
    NotificationCenter center;
    std::string told;
    const int first = 0; // observers are told apart by address
    const int second = 0;
    center.addObserver(&first, "outer", [&] {
        told += "(";
        center.post("inner");
    });
    center.addObserver(&second, "outer", [&] { told += "gone"; });
    center.addObserver(&first, "outer", [&] { told += ")"; });
    center.addObserver(&first, "inner", [&] {
        told += "i";
        center.removeObserver(&second);
        center.removeObserver(&first, "inner"); // the one that runs, too
        center.addObserver(&second, "outer", [&] { told += "new"; });
    });
    center.post("outer");
    EXPECT_EQ(told, "(i)");
    center.post("outer");
    EXPECT_EQ(told, "(i)()new");
}
