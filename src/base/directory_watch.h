#pragma once

#include "base/file_descriptor.h"
#include "base/run_loop.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace nocturo {

/// Notices what becomes of the files in directories, those that are made only later included.
class DirectoryWatch {
  public:
    /// Calls `changed` from the event loop once changes have settled. Never where the system does
    /// not tell of files. The run loop must outlive this.
    DirectoryWatch(std::vector<std::filesystem::path> directories, RunLoop& runLoop,
                   std::function<void()> changed);

  private:
    void watchAll();
    void takeEvents();

    std::vector<std::filesystem::path> directories_;
    RunLoop& runLoop_;
    std::function<void()> changed_;
    FileDescriptor events_;
    std::unique_ptr<Watch> watch_;
    std::unique_ptr<Timer> settling_;
};

} // namespace nocturo
