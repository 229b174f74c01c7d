#include "base/notification_center.h"

#include <algorithm>
#include <utility>

namespace nocturo {

bool Subjects::contain(std::string_view name) const {
    return names_.empty() || std::find(names_.begin(), names_.end(), name) != names_.end();
}

bool Subjects::containAnyOf(std::span<const std::string_view> names) const {
    return std::any_of(names.begin(), names.end(),
                       [this](std::string_view name) { return contain(name); });
}

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void* observer, std::string_view name, Handler handler) {
    registrations_.push_back({observer, std::string(name), std::move(handler)});
}

void NotificationCenter::addObserver(const void* observer, std::string_view name,
                                     std::function<void()> handler) {
    addObserver(observer, name,
                Handler([act = std::move(handler)](const Subjects& /*subjects*/) { act(); }));
}

void NotificationCenter::removeObserver(const void* observer, std::string_view name) {
    removeMatching([&](const Registration& registration) {
        return registration.observer == observer && registration.name == name;
    });
}

void NotificationCenter::removeObserver(const void* observer) {
    removeMatching(
        [&](const Registration& registration) { return registration.observer == observer; });
}

void NotificationCenter::post(std::string_view name, const Subjects& subjects) {
    // Handlers may add and remove registrations, their own included: list nodes stay where they
    // are, removed ones are only marked until the outermost delivery ends, and additions lie
    // beyond the count taken here.
    ++deliveriesRunning_;
    auto registration = registrations_.begin();
    for (auto left = registrations_.size(); left > 0; --left, ++registration) {
        if (registration->observer != nullptr && registration->name == name) {
            registration->handler(subjects);
        }
    }
    --deliveriesRunning_;
    sweep();
}

template <typename Predicate>
void NotificationCenter::removeMatching(Predicate matches) {
    for (Registration& registration : registrations_) {
        if (matches(registration)) {
            registration.observer = nullptr;
        }
    }
    sweep();
}

void NotificationCenter::sweep() {
    if (deliveriesRunning_ == 0) {
        registrations_.remove_if(
            [](const Registration& registration) { return registration.observer == nullptr; });
    }
}

} // namespace nocturo
