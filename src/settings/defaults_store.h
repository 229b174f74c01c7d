#pragma once

#include "base/property_value.h"

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace nocturo {

class NotificationCenter;
struct RealSetting;

/// Posted on the store's notification center after every write, before the write returns. Its
/// subjects are the keys that were written.
inline constexpr std::string_view NSUserDefaultsDidChangeNotification =
    "NSUserDefaultsDidChangeNotification";

/// Where a store's user domain is kept between runs.
class DefaultsPersistence {
  public:
    virtual ~DefaultsPersistence() = default;

    /// The user domain differs from what is kept; write it at the next convenient moment.
    virtual void userDomainDidChange() = 0;

    /// Writes at once whatever is not yet kept; false when that failed.
    virtual bool synchronize() = 0;
};

/// The user's settings: a flat map from key to property-list value (the user domain), and below it
/// the registered defaults, which are consulted for absent keys and never kept. Main thread only.
///
/// Typed reads never fail: an absent key or a value of another type reads as false, 0, 0.0 or null.
/// Strings are never converted, and a boolean is no number.
class DefaultsStore {
  public:
    /// Change notifications go to `notificationCenter`, which must outlive the store.
    explicit DefaultsStore(NotificationCenter& notificationCenter);

    /// The process's own settings, made on first use on the local notification center. In memory
    /// alone until a persistence is set.
    static const std::shared_ptr<DefaultsStore>& standardUserDefaults();

    /// The value in force for `key` or null; valid until the next write.
    const PropertyValue* objectForKey(std::string_view key) const;

    /// The array in force for `key` or null; valid until the next write.
    const PropertyArray* arrayForKey(std::string_view key) const;

    /// A boolean as it stands; a number is true when it is not 0.
    bool boolForKey(std::string_view key) const;

    /// An integer as it stands; everything else, reals included, is 0.
    std::int64_t integerForKey(std::string_view key) const;

    /// An integer or a real rounded to single precision; 0 when that is not finite, so that a
    /// damaged number can never reach a curve.
    float floatForKey(std::string_view key) const;

    /// The same; what holds when absent is the setting's own.
    float floatForKey(const RealSetting& setting) const;

    void setObject(PropertyValue value, std::string_view key);
    void setBool(bool value, std::string_view key);
    void setInteger(std::int64_t value, std::string_view key);
    void setFloat(float value, std::string_view key);

    /// Drops the user's value, so that the registered default holds again.
    void removeObjectForKey(std::string_view key);

    /// Adds to the registered defaults, replacing earlier ones of the same keys. Posts nothing.
    void registerDefaults(const PropertyDictionary& defaults);

    /// While one lives nothing is posted. The end of the last one posts one notification about all
    /// keys that were written meanwhile, if any was. The store must outlive it.
    class Batch {
      public:
        explicit Batch(DefaultsStore& store) : store_(store) { ++store_.batches_; }
        ~Batch() { store_.endBatch(); }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

      private:
        DefaultsStore& store_;
    };

    /// Asks the persistence to keep everything now; true when there is none.
    bool synchronize();

    /// The persistence must outlive the store or be taken away again with null.
    void setPersistence(DefaultsPersistence* persistence) { persistence_ = persistence; }

    // For the persistence.

    const PropertyDictionary& userDomain() const { return userDomain_; }

    /// Keys written since the last markKept; true changes only, a write of an equal value is none.
    const std::set<std::string, std::less<>>& changedKeys() const { return changedKeys_; }
    void markKept() { changedKeys_.clear(); }

    /// Takes what another program or the user wrote as the user domain. Keys changed here since the
    /// last markKept keep this store's value. Posts one notification about every key that changed,
    /// if any did.
    void mergeUserDomain(PropertyDictionary kept);

  private:
    void didWrite(std::string_view key, bool changed);
    void endBatch();

    NotificationCenter& notificationCenter_;
    PropertyDictionary userDomain_;
    PropertyDictionary registeredDefaults_;
    std::set<std::string, std::less<>> changedKeys_;
    std::set<std::string, std::less<>> batchedKeys_; // written since the first batch began
    int batches_ = 0;
    DefaultsPersistence* persistence_ = nullptr;
};

} // namespace nocturo
