#include "settings/defaults_store.h"

#include "base/notification_center.h"
#include "settings/settings_keys.h"

#include <cmath>
#include <utility>
#include <vector>

namespace nocturo {

DefaultsStore::DefaultsStore(NotificationCenter& notificationCenter)
    : notificationCenter_(notificationCenter) {}

const std::shared_ptr<DefaultsStore>& DefaultsStore::standardUserDefaults() {
    static const auto store = std::make_shared<DefaultsStore>(NotificationCenter::defaultCenter());
    return store;
}

const PropertyValue* DefaultsStore::objectForKey(std::string_view key) const {
    if (const auto found = userDomain_.find(key); found != userDomain_.end()) {
        return &found->second;
    }
    if (const auto found = registeredDefaults_.find(key); found != registeredDefaults_.end()) {
        return &found->second;
    }
    return nullptr;
}

const PropertyArray* DefaultsStore::arrayForKey(std::string_view key) const {
    const PropertyValue* value = objectForKey(key);
    return value != nullptr ? value->as<PropertyArray>() : nullptr;
}

bool DefaultsStore::boolForKey(std::string_view key) const {
    const PropertyValue* value = objectForKey(key);
    if (value == nullptr) {
        return false;
    }
    if (const bool* boolean = value->as<bool>()) {
        return *boolean;
    }
    return value->number().value_or(0.0) != 0.0;
}

std::int64_t DefaultsStore::integerForKey(std::string_view key) const {
    const PropertyValue* value = objectForKey(key);
    const auto* integer = value != nullptr ? value->as<std::int64_t>() : nullptr;
    return integer != nullptr ? *integer : 0;
}

float DefaultsStore::floatForKey(std::string_view key) const {
    const PropertyValue* value = objectForKey(key);
    const auto number = value != nullptr ? static_cast<float>(value->number().value_or(0.0)) : 0.0F;
    return std::isfinite(number) ? number : 0.0F;
}

float DefaultsStore::floatForKey(const RealSetting& setting) const {
    return objectForKey(setting.key) != nullptr ? floatForKey(setting.key) : setting.whenAbsent;
}

void DefaultsStore::setObject(PropertyValue value, std::string_view key) {
    auto found = userDomain_.find(key);
    if (found == userDomain_.end()) {
        userDomain_.emplace(key, std::move(value));
        didWrite(key, true);
        return;
    }
    const bool changed = !(found->second == value);
    found->second = std::move(value);
    didWrite(key, changed);
}

void DefaultsStore::setBool(bool value, std::string_view key) {
    setObject(PropertyValue(value), key);
}

void DefaultsStore::setInteger(std::int64_t value, std::string_view key) {
    setObject(PropertyValue(value), key);
}

void DefaultsStore::setFloat(float value, std::string_view key) {
    setObject(PropertyValue(static_cast<double>(value)), key);
}

void DefaultsStore::removeObjectForKey(std::string_view key) {
    const auto found = userDomain_.find(key);
    const bool changed = found != userDomain_.end();
    if (changed) {
        userDomain_.erase(found);
    }
    didWrite(key, changed);
}

void DefaultsStore::registerDefaults(const PropertyDictionary& defaults) {
    for (const auto& [key, value] : defaults) {
        registeredDefaults_.insert_or_assign(key, value);
    }
}

bool DefaultsStore::synchronize() {
    return persistence_ == nullptr || persistence_->synchronize();
}

void DefaultsStore::mergeUserDomain(PropertyDictionary kept) {
    for (const std::string& key : changedKeys_) {
        if (const auto mine = userDomain_.find(key); mine != userDomain_.end()) {
            kept.insert_or_assign(key, mine->second);
        } else {
            kept.erase(key);
        }
    }
    const Batch batch(*this);
    const auto noteMissing = [this](const PropertyDictionary& from, const PropertyDictionary& in) {
        for (const auto& [key, value] : from) {
            if (const auto found = in.find(key); found == in.end() || !(found->second == value)) {
                batchedKeys_.insert(key);
            }
        }
    };
    noteMissing(userDomain_, kept);
    noteMissing(kept, userDomain_);
    userDomain_ = std::move(kept);
}

void DefaultsStore::didWrite(std::string_view key, bool changed) {
    if (changed) {
        changedKeys_.emplace(key);
        if (persistence_ != nullptr) {
            persistence_->userDomainDidChange();
        }
    }
    const Batch batch(*this);
    batchedKeys_.emplace(key);
}

void DefaultsStore::endBatch() {
    if (--batches_ > 0 || batchedKeys_.empty()) {
        return;
    }
    const auto keys = std::exchange(batchedKeys_, {}); // those who are told may write as well
    const std::vector<std::string_view> subjects(keys.begin(), keys.end());
    notificationCenter_.post(NSUserDefaultsDidChangeNotification, Subjects(subjects));
}

} // namespace nocturo
