#pragma once

#include "base/file_descriptor.h"
#include "base/result.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace nocturo {

/// Where a guard program is: beside the running program, else where it is installed to. The first
/// of them when it is in neither place.
std::filesystem::path guardProgram(const char* name = "nocturo-guard");

/// The guard's end of the connection, from its start on.
inline constexpr int kGuardDescriptor = 3;

/// The last argument of the guard that is there for when the first one is killed as well, and what
/// it calls itself (prctl PR_SET_NAME): who kills everything called Nocturo misses it, and it has
/// ended a moment later.
inline constexpr std::string_view kSpareGuard = "--spare";
inline constexpr const char* kSpareGuardName = "display-keeper";

/// A guard process, held by a connection that ends with this process, however it ends. It lives in
/// a session of its own and takes no signals, so what is sent to a terminal's or a desktop's
/// processes does not end it first.
class GuardProcess {
  public:
    GuardProcess();

    /// Starts the program as a guard where none is running.
    Result<void> start(const std::filesystem::path& program,
                       const std::vector<std::string>& arguments);

    bool isRunning() const { return connection_.get() >= 0; }

    /// Readable when a guard that was started has ended.
    int endDescriptor() const { return ends_.get(); }

    /// True once for each guard that has ended.
    bool takeEnd();

  private:
    FileDescriptor ends_; // readable when the connection, of whichever guard, is
    FileDescriptor connection_;
    pid_t process_ = -1;
};

} // namespace nocturo
