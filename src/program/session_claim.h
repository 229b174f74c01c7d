#pragma once

#include "program/instance_lock.h"

#include <QDBusConnection>
#include <QStringList>

#include <filesystem>
#include <optional>
#include <string>

namespace nocturo {

class BusFace;

/// Claims to be the one Nocturo of the session: its name on the session bus, or a lock where there
/// is no bus. Given up when destroyed.
class SessionClaim {
  public:
    /// Where there is another Nocturo it opens the documents at these absolute paths, or is
    /// re-opened when there are none.
    SessionClaim(BusFace& face, const std::filesystem::path& runtimeDirectory,
                 const QStringList& documents);

    /// False when there is another Nocturo.
    bool isGranted() const { return granted_; }

    /// What the other Nocturo could not do, in one sentence; empty when all is well.
    const std::string& problem() const { return problem_; }

  private:
    bool passOnOverBus(const QStringList& documents);
    void askForLock(const std::filesystem::path& runtimeDirectory, const QStringList& documents);

    std::optional<QDBusConnection> bus_;
    std::optional<InstanceLock> lock_;
    bool granted_ = false;
    std::string problem_;
};

} // namespace nocturo
