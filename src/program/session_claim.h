#pragma once

#include "program/instance_lock.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace nocturo {

class Bus;

/// Claims to be the one Nocturo of the session: its name on the session bus, or a lock where there
/// is no bus; where there is no runtime directory either, nobody is kept out. The name is held
/// until the bus is closed, the lock until this is destroyed.
class SessionClaim {
  public:
    /// `bus` is the session bus, or null. One that does not answer within 0.1 s counts as none, and
    /// gives the name when it answers.
    /// Where there is another Nocturo it opens the documents at these absolute paths, or is
    /// re-opened when there are none. With `switchedOff` it is switched off instead of that, and at
    /// a login left alone.
    SessionClaim(const Bus* bus, const std::optional<std::filesystem::path>& runtimeDirectory,
                 const std::vector<std::string>& documents, bool switchedOff, bool atLogin);

    /// False when there is another Nocturo.
    bool isGranted() const { return granted_; }

    /// What the other Nocturo could not do, in one sentence; empty when all is well.
    const std::string& problem() const { return problem_; }

  private:
    bool passOnOverBus(const std::vector<std::string>& documents);
    void askForLock(const std::optional<std::filesystem::path>& runtimeDirectory,
                    const std::vector<std::string>& documents);

    const Bus* bus_;
    bool switchedOff_;
    bool atLogin_;
    std::optional<InstanceLock> lock_;
    bool granted_ = false;
    std::string problem_;
};

} // namespace nocturo
