#pragma once

#include "base/file_descriptor.h"

#include <filesystem>

namespace nocturo {

/// The lock that lets one Nocturo run where there is no session bus to own a name on. Held until
/// destroyed, or until the process ends however it ends. One for each directory and process.
class InstanceLock {
  public:
    /// `directory` is the runtime directory.
    explicit InstanceLock(const std::filesystem::path& directory);

    /// False while another process holds the lock. A directory that takes no lock lets everybody
    /// run.
    bool isHeld() const { return held_; }

    /// Sends one of the signals below to the process that holds the lock.
    void askHolder(int signal) const;

    static const int kReopenSignal;
    static const int kSwitchOffSignal;

  private:
    FileDescriptor file_;
    bool held_;
};

} // namespace nocturo
