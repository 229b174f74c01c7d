#include "bus/document_queue.h"

#include "app/app_controller.h"
#include "app/listed_names.h"
#include "base/texts/translated.h"
#include "bus/bus_values.h"

#include <chrono>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kTurn = 10ms;
constexpr auto kTurnOfOthers = 1ms; // not less: the bus comes after timers that are due

} // namespace

bool DocumentQueue::open(std::vector<std::string> paths, Opened opened) {
    if (waiting_ > 0 && waiting_ + paths.size() > kLongestList) {
        return false;
    }
    waiting_ += paths.size();
    requests_.push_back({std::move(paths), std::move(opened), 0, {}});
    if (nextTurn_ == nullptr) {
        openSome();
    }
    return true;
}

void DocumentQueue::openSome() {
    const auto end = std::chrono::steady_clock::now() + kTurn;
    while (!requests_.empty()) {
        if (std::chrono::steady_clock::now() > end) {
            nextTurn_ = runLoop_.scheduleTimer(kTurnOfOthers, [this] {
                nextTurn_.reset();
                openSome();
            });
            return;
        }
        Request& request = requests_.front();
        if (request.next < request.paths.size()) {
            const std::string& path = request.paths[request.next++];
            --waiting_;
            if (!controller_.openFile(path)) {
                request.refused.push_back(path);
            }
        } else {
            const Request done = std::move(request);
            requests_.pop_front();
            if (!done.refused.empty()) {
                // Whoever opened them with a click sees no standard error, and launchers drop the
                // answer.
                controller_.showRefusedDocuments(done.refused);
            }
            done.opened(done.refused);
        }
    }
}

std::string refusalOf(const std::vector<std::string>& refused) {
    if (refused.size() == 1) {
        return translated("\"%@\" is not an effect document.", {refused.front()});
    }
    std::string names;
    for (const std::string& path : firstNames(refused)) {
        names += (names.empty() ? "" : ", ") + path;
    }
    const std::string more = howManyMore(refused);
    return translated("These are not effect documents: %@",
                      {names + (more.empty() ? "" : ", ") + more});
}

} // namespace nocturo
