#pragma once

#include "base/run_loop.h"
#include "displays/guard/guard_process.h"

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

/// The two guards of a program. Either does the whole work, so that the displays come back also
/// when the program is killed together with one of them. One that ends is replaced while it is
/// needed, a few times at most: one that cannot live is not tried for ever, and a sentence says so.
class Guards {
  public:
    /// `program` is a file, such as guardProgram(). It is started with these arguments, the spare
    /// guard with kSpareGuard as one more. The loop must outlive this.
    Guards(std::filesystem::path program, std::vector<std::string> arguments, RunLoop& runLoop,
           std::function<bool()> areNeeded);

    /// Starts those that are not running: the first at once, the spare one from the event loop, so
    /// that nobody waits for it.
    void start();

  private:
    struct Place {
        GuardProcess process;
        std::unique_ptr<Watch> end;
        int startsLeft = 0;
    };

    void startIn(std::size_t place);
    void replaceEnded(std::size_t place);
    void complain(const std::string& reason);

    std::filesystem::path program_;
    std::vector<std::string> arguments_;
    RunLoop& runLoop_;
    std::function<bool()> areNeeded_;
    std::array<Place, 2> places_;
    std::unique_ptr<Timer> spareStart_;
    bool complained_ = false;
};

} // namespace nocturo
