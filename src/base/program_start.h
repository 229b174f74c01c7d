#pragma once

#include "base/result.h"

#include <optional>
#include <string>
#include <vector>

#include <csignal>
#include <spawn.h>
#include <sys/types.h>

namespace nocturo {

/// How another program is started: as this one runs, but for what is asked for here.
class ProgramStart {
  public:
    ProgramStart();
    ~ProgramStart();
    ProgramStart(const ProgramStart&) = delete;
    ProgramStart& operator=(const ProgramStart&) = delete;

    /// In a session, and so a process group, of its own.
    void makeSession();
    /// With these signals blocked and no others.
    void blockSignals(const sigset_t& blocked);
    /// With every signal doing what it does by itself.
    void resetSignals();
    /// With /dev/null in place of that descriptor.
    void closeOff(int descriptor);
    /// With this descriptor under another number.
    void give(int descriptor, int as);
    /// With none of the descriptors from that one on.
    void closeFrom(int descriptor);

    /// Starts the program that the first of the words names, by its path, or as shells find it
    /// where that has no directory. `environment` has texts such as "NAME=value".
    Result<pid_t> start(std::vector<std::string> words,
                        std::optional<std::vector<std::string>> environment = {});

  private:
    void set(short flag);

    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
    short flags_ = 0;
};

} // namespace nocturo
