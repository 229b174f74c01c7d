#include "effects/effect.h"

#include "settings/defaults_store.h"

#include <chrono>
#include <utility>

namespace nocturo {

namespace {

std::shared_ptr<DefaultsStore>& sharedDefaults() {
    static std::shared_ptr<DefaultsStore> store;
    return store;
}

} // namespace

void NDEffect::applyEffectOnGammaCurve(ZQGammaCurve* /*curve*/) {}

void NDEffect::applyEffectOnGammaCurve(ZQGammaCurve* curve, double /*atTime*/) {
    applyEffectOnGammaCurve(curve);
}

double NDEffect::animationTimeInterval() const {
    using namespace std::chrono;
    using Seconds = duration<double>; // the system clock's own unit would overflow
    constexpr sys_days distantFuture = year{4001} / January / 1;
    return (Seconds(distantFuture.time_since_epoch()) -
            Seconds(system_clock::now().time_since_epoch()))
        .count();
}

NSComparisonResult NDEffect::priorityCompare(const NDEffect& other) const {
    const std::int32_t mine = priority();
    const std::int32_t theirs = other.priority();
    if (mine == theirs) {
        return NSComparisonResult::NSOrderedSame;
    }
    return mine < theirs ? NSComparisonResult::NSOrderedAscending
                         : NSComparisonResult::NSOrderedDescending;
}

DefaultsStore& NDEffect::userDefaults() {
    auto& store = sharedDefaults();
    if (store == nullptr) {
        store = DefaultsStore::standardUserDefaults();
    }
    return *store;
}

std::shared_ptr<DefaultsStore> NDEffect::setUserDefaults(std::shared_ptr<DefaultsStore> store) {
    return std::exchange(sharedDefaults(), std::move(store));
}

} // namespace nocturo
