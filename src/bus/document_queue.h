#pragma once

#include "base/run_loop.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

class NDAppController;

/// Opens the documents that others ask for, in their order. Each may be built to be slow, so that
/// after some of them the event loop has its turn.
class DocumentQueue {
  public:
    /// Both must outlive the queue.
    DocumentQueue(NDAppController& controller, RunLoop& runLoop)
        : controller_(controller), runLoop_(runLoop) {}

    /// Told the paths of those that were refused.
    using Opened = std::function<void(const std::vector<std::string>& refused)>;

    /// Opens the documents at these paths and shows the user which are refused. `opened` is called
    /// when all is done, maybe at once. False, and nothing is done, when too many wait already.
    [[nodiscard]] bool open(std::vector<std::string> paths, Opened opened);

  private:
    struct Request {
        std::vector<std::string> paths;
        Opened opened;
        std::size_t next = 0;
        std::vector<std::string> refused;
    };

    void openSome();

    NDAppController& controller_;
    RunLoop& runLoop_;
    std::deque<Request> requests_;
    std::size_t waiting_ = 0; // documents of all requests
    std::unique_ptr<Timer> nextTurn_;
};

/// One sentence that names these documents, of which there is one at least, as refused.
std::string refusalOf(const std::vector<std::string>& refused);

} // namespace nocturo
