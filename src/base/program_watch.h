#pragma once

#include "base/file_descriptor.h"
#include "base/run_loop.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

namespace nocturo {

/// Notices that a program's file is gone for good, as when its package is removed while it runs.
/// One that is replaced, as by a newer version, is not gone.
class ProgramWatch {
  public:
    /// Calls `gone` once, from the event loop, when the file has been missing for as long as
    /// `patience`. Never where the system does not tell of files. The run loop must outlive this.
    ProgramWatch(std::filesystem::path program, RunLoop& runLoop, std::function<void()> gone,
                 std::chrono::milliseconds patience = std::chrono::seconds(3));

  private:
    void takeEvents();
    bool isThere() const;

    std::filesystem::path program_;
    RunLoop& runLoop_;
    std::function<void()> gone_;
    std::chrono::milliseconds patience_;
    FileDescriptor events_;
    std::unique_ptr<Watch> watch_;
    std::unique_ptr<Timer> absence_; // runs while the file is missing
};

/// The file of the program that runs.
std::filesystem::path ownProgram();

} // namespace nocturo
