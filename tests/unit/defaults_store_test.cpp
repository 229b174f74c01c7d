#include "platform/settings/defaults_store.h"

#include "platform/notification_center.h"

#include <gmock/gmock.h>
#include <limits>

namespace nocturo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CountingPersistence final : DefaultsPersistence {
    void userDomainDidChange() override { ++changes; }
    bool synchronize() override { return false; }
    int changes = 0;
};

class DefaultsStoreTest : public testing::Test {
  protected:
    NotificationCenter center;
    DefaultsStore store{center};
};

TEST_F(DefaultsStoreTest, ReadsEachTypeWithItsOwnConversions) {
    struct Case {
        PropertyValue value;
        bool asBool;
        std::int64_t asInteger;
        float asFloat;
    };
    for (const auto& [value, asBool, asInteger, asFloat] : {
             Case{true, true, 0, 0.0F},
             Case{std::int64_t{-7}, true, -7, -7.0F},
             Case{std::int64_t{0}, false, 0, 0.0F},
             Case{0.25, true, 0, 0.25F},
             Case{-0.0, false, 0, 0.0F},
             Case{1e300, true, 0, 0.0F}, // infinite in single precision
             Case{std::numeric_limits<double>::quiet_NaN(), true, 0, 0.0F},
             Case{std::string("1"), false, 0, 0.0F},
             Case{PropertyArray{true}, false, 0, 0.0F},
         }) {
        SCOPED_TRACE(value.index());
        store.setObject(value, "key");
        EXPECT_EQ(store.boolForKey("key"), asBool);
        EXPECT_EQ(store.integerForKey("key"), asInteger);
        EXPECT_EQ(store.floatForKey("key"), asFloat);
        EXPECT_EQ(store.arrayForKey("key") != nullptr, value.as<PropertyArray>() != nullptr);
    }
    EXPECT_FALSE(store.boolForKey("absent"));
}

TEST_F(DefaultsStoreTest, ARegisteredDefaultHoldsWhereTheUserSaidNothing) {
    store.registerDefaults({{"level", 0.5}, {"other", true}});
    store.registerDefaults({{"level", 0.75}});
    store.setObject(std::string("not a number"), "level");
    EXPECT_EQ(store.floatForKey("level"), 0.0F) << "a wrong type does not fall back";
    store.removeObjectForKey("level");
    EXPECT_EQ(store.floatForKey("level"), 0.75F);
    EXPECT_TRUE(store.boolForKey("other"));
    EXPECT_THAT(store.userDomain(), IsEmpty()) << "defaults are never kept";
}

TEST_F(DefaultsStoreTest, NotifiesAfterEveryWriteAndKeepsOnlyTrueChanges) {
    CountingPersistence persistence;
    store.setPersistence(&persistence);
    std::vector<float> seen;
    center.addObserver(this, NSUserDefaultsDidChangeNotification,
                       [&] { seen.push_back(store.floatForKey("level")); });
    store.setFloat(0.5F, "level");
    store.setFloat(0.5F, "level");
    store.removeObjectForKey("absent");
    store.removeObjectForKey("level");
    EXPECT_THAT(seen, ElementsAre(0.5F, 0.5F, 0.5F, 0.0F));
    EXPECT_EQ(persistence.changes, 2);

    store.setInteger(1, "type");
    store.setBool(true, "type");
    EXPECT_EQ(persistence.changes, 4) << "true is not the integer 1";
    EXPECT_FALSE(store.synchronize());
}

TEST_F(DefaultsStoreTest, AMergeTakesWhatOthersWroteButForKeysChangedHere) {
    store.mergeUserDomain({{"theirs", true}, {"both", std::int64_t{1}}, {"dropped", true}});
    store.setInteger(2, "both");
    store.removeObjectForKey("dropped");
    EXPECT_THAT(store.changedKeys(), ElementsAre("both", "dropped"));

    int notifications = 0;
    center.addObserver(this, NSUserDefaultsDidChangeNotification, [&] { ++notifications; });
    const PropertyDictionary merged{{"new", true}, {"both", std::int64_t{2}}};
    store.mergeUserDomain({{"new", true}, {"both", std::int64_t{9}}, {"dropped", true}});
    EXPECT_EQ(store.userDomain(), merged);
    EXPECT_EQ(notifications, 1);
    store.mergeUserDomain(merged);
    EXPECT_EQ(notifications, 1) << "nothing changed";

    store.markKept();
    store.mergeUserDomain({});
    EXPECT_THAT(store.userDomain(), IsEmpty());
}

} // namespace
} // namespace nocturo
