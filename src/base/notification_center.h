#pragma once

#include <functional>
#include <list>
#include <string>
#include <string_view>

namespace nocturo {

/// Broadcasts named notifications to whoever registered for the name, synchronously and in the
/// order of registration. Main thread only.
class NotificationCenter {
  public:
    using Handler = std::function<void()>;

    /// The process's local center, made on first use.
    static NotificationCenter& defaultCenter();

    /// Registers `handler` for `name`. The same observer added twice is told twice.
    void addObserver(const void* observer, std::string_view name, Handler handler);

    /// Drops every registration of `observer` for `name`, or for every name.
    void removeObserver(const void* observer, std::string_view name);
    void removeObserver(const void* observer);

    /// Returns after every handler has run. An observer removed during delivery is not told any
    /// more; one added during delivery is told from the next notification on.
    void post(std::string_view name);

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
