#pragma once

#include <functional>
#include <list>
#include <span>
#include <string>
#include <string_view>

namespace nocturo {

/// What a notification is about: the keys of the settings that changed, for one. Without names it
/// is about everything. Valid during the delivery.
class Subjects {
  public:
    Subjects() = default;
    explicit Subjects(std::span<const std::string_view> names) : names_(names) {}

    bool contain(std::string_view name) const;
    bool containAnyOf(std::span<const std::string_view> names) const;

  private:
    std::span<const std::string_view> names_;
};

/// Broadcasts named notifications to whoever registered for the name, synchronously and in the
/// order of registration. Main thread only.
class NotificationCenter {
  public:
    using Handler = std::function<void(const Subjects&)>;

    /// The process's local center, made on first use.
    static NotificationCenter& defaultCenter();

    /// Registers `handler` for `name`. The same observer added twice is told twice.
    void addObserver(const void* observer, std::string_view name, Handler handler);

    /// The same for a handler that acts whatever the notification is about.
    void addObserver(const void* observer, std::string_view name, std::function<void()> handler);

    /// Drops every registration of `observer` for `name`, or for every name.
    void removeObserver(const void* observer, std::string_view name);
    void removeObserver(const void* observer);

    /// Returns after every handler has run. An observer removed during delivery is not told any
    /// more; one added during delivery is told from the next notification on.
    void post(std::string_view name, const Subjects& subjects = {});

  private:
    struct Registration {
        const void* observer; // null once removed
        std::string name;
        Handler handler;
    };

    template <typename Predicate>
    void removeMatching(Predicate matches);
    void sweep();

    std::list<Registration> registrations_;
    int deliveriesRunning_ = 0;
};

/// The centers that the application listens to. They must outlive whoever is given them.
struct NotificationCenters {
    NotificationCenter& local;       // within the process: settings, screens, the effect itself
    NotificationCenter& workspace;   // the computer, the session, other applications
    NotificationCenter& distributed; // the whole desktop: screen savers, colour profiles
};

} // namespace nocturo
