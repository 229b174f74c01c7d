#pragma once

#include "base/notification_center.h"
#include "effects/group_effect.h"
#include "settings/defaults_store.h"

#include <gtest/gtest.h>

namespace nocturo {

/// Settings that every effect reads.
struct SettingsFixture : testing::Test {
    SettingsFixture() { NDEffect::setUserDefaults(store_); }
    ~SettingsFixture() override { NDEffect::setUserDefaults(nullptr); }

    void chooseEffects(PropertyArray names) {
        store_->setObject(std::move(names), NDGroupEffect::kName);
    }
    PropertyArray chosenEffects() const { return *store_->arrayForKey(NDGroupEffect::kName); }

    NotificationCenter center_;
    std::shared_ptr<DefaultsStore> store_ = std::make_shared<DefaultsStore>(center_);
};

} // namespace nocturo
