#include "displays/guard/guards.h"

#include "base/log.h"

#include <chrono>
#include <utility>

namespace nocturo {

namespace {

constexpr std::size_t kFirst = 0;
constexpr std::size_t kSpare = 1;

// For as long as displays are changed.
constexpr int kMostStarts = 5;

} // namespace

Guards::Guards(std::filesystem::path program, std::vector<std::string> arguments, RunLoop& runLoop,
               std::function<bool()> areNeeded)
    : program_(std::move(program)), arguments_(std::move(arguments)), runLoop_(runLoop),
      areNeeded_(std::move(areNeeded)) {
    for (std::size_t place = 0; place < places_.size(); ++place) {
        places_[place].end = runLoop_.watch(places_[place].process.endDescriptor(),
                                            [this, place] { replaceEnded(place); });
    }
}

void Guards::start() {
    for (Place& place : places_) {
        place.startsLeft = kMostStarts;
    }
    startIn(kFirst);
    if (!places_[kSpare].process.isRunning()) {
        spareStart_ =
            runLoop_.scheduleTimer(std::chrono::milliseconds(0), [this] { startIn(kSpare); });
    }
}

void Guards::startIn(std::size_t place) {
    Place& guard = places_[place];
    if (guard.process.isRunning()) {
        return;
    }
    if (guard.startsLeft-- <= 0) {
        complain("it does not stay alive");
        return;
    }
    std::vector<std::string> arguments = arguments_;
    if (place == kSpare) {
        arguments.emplace_back(kSpareGuard);
    }
    const Result<void> started = guard.process.start(program_, arguments);
    if (!started) {
        complain(started.error().text);
    }
}

void Guards::replaceEnded(std::size_t place) {
    if (places_[place].process.takeEnd() && areNeeded_()) {
        startIn(place);
    }
}

void Guards::complain(const std::string& reason) {
    if (!std::exchange(complained_, true)) {
        logWarning(kLogDisplays,
                   "The guard program " + program_.string() + " cannot be had (" + reason +
                       "): if Nocturo is killed, the displays get their own colors back "
                       "only when it starts again or with nocturoctl restore.");
    }
}

} // namespace nocturo
