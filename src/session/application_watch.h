#pragma once

#include <QDBusConnection>
#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace nocturo {

class RunLoop;
class Timer;
class XEvents;

/// Notices that applications quit: by windows leaving the window manager's list of an X server, or,
/// where there is no such list, by names leaving the session bus. Connections without a name are
/// not looked at: nearly every program has some, and drops them while it runs.
class ApplicationWatch : public QObject {
    Q_OBJECT

  public:
    /// `events` may be null, `bus` may be none; both must outlive the watch. Calls `quit` from the
    /// run loop, once for all that quit within a moment.
    ApplicationWatch(XEvents* events, std::optional<QDBusConnection> bus, RunLoop& runLoop,
                     std::function<void()> quit);
    ~ApplicationWatch() override;

  private Q_SLOTS:
    void nameVanished(const QString& name);

  private:
    void readWindowList();
    void listenToBus(bool listen);
    void announceSoon();

    XEvents* events_;
    std::optional<QDBusConnection> bus_;
    RunLoop& runLoop_;
    std::function<void()> quit_;
    std::uint32_t windowListAtom_ = 0;
    std::optional<std::vector<std::uint32_t>> windows_; // sorted; none without a window manager
    bool listening_ = false;
    std::unique_ptr<Timer> announcement_;
};

} // namespace nocturo
