#include "displays/guard/guarded_hardware.h"

#include "base/log.h"

#include <algorithm>
#include <poll.h>
#include <random>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

// Without taking anything in, which is the event loop's to do.
bool hasHungUp(int descriptor) {
    pollfd source{descriptor, POLLRDHUP, 0};
    return poll(&source, 1, 0) > 0;
}

std::uint64_t randomToken() {
    std::random_device random;
    return std::uint64_t{random()} << 32 | random();
}

} // namespace

GuardedHardware::GuardedHardware(std::unique_ptr<RandrHardware> hardware, std::string displayName,
                                 std::filesystem::path journalFile, RunLoop& runLoop)
    : hardware_(std::move(hardware)), displayName_(std::move(displayName)),
      journalFile_(std::move(journalFile)),
      mark_(hardware_->connection()), ownMark_{randomToken(), mark_.createWindow()},
      guards_(guardProgram(),
              {"--guard", displayName_, journalFile_.string(), std::to_string(ownMark_.token),
               std::to_string(ownMark_.window)},
              // The server's end is the guards' as well, and may be told later.
              runLoop,
              [this] { return isMarked_ && !hasHungUp(hardware_->connection().descriptor()); }) {}

GuardedHardware::~GuardedHardware() {
    // With its server a ramp has gone as well.
    if (!isAnyChanged() || hardware_->connection().isLost()) {
        waitForWrites();
        std::error_code ignored;
        std::filesystem::remove(journalFile_, ignored);
    }
}

void GuardedHardware::keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) {
    Crtc& known = crtcs_[crtc];
    if (known.system != ramp) {
        known.system = ramp;
        journalIsStale_ = true;
        if (isMarked_) {
            storeJournal();
        }
    }
}

bool GuardedHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    const auto known = crtcs_.find(crtc);
    if (known != crtcs_.end()) {
        known->second.changed = ramp != known->second.system;
        if (known->second.changed && !isMarked_) {
            protect();
        }
    }
    return hardware_->writeRamp(crtc, ramp);
}

void GuardedHardware::waitForWrites() {
    if (isMarked_ && !isAnyChanged()) {
        mark_.remove();
        isMarked_ = false;
    }
    hardware_->waitForWrites();
}

bool GuardedHardware::isAnyChanged() const {
    return std::any_of(crtcs_.begin(), crtcs_.end(),
                       [](const auto& crtc) { return crtc.second.changed; });
}

// The order holds whenever this process is killed: who finds the mark finds the journal.
void GuardedHardware::protect() {
    guards_.start();
    if (journalIsStale_) {
        storeJournal();
    }
    mark_.set(ownMark_);
    isMarked_ = true;
}

void GuardedHardware::storeJournal() {
    Journal journal{ownMark_.token, getpid(), {}};
    for (const auto& [crtc, known] : crtcs_) {
        journal.entries.push_back({crtc, known.system});
    }
    const Result<void> written = writeJournal(journalFile_, journal);
    journalIsStale_ = !written;
    if (!written && !journalFailureLogged_) {
        journalFailureLogged_ = true;
        logWarning(kLogDisplays, "The displays' own colors cannot be kept in " +
                                     journalFile_.string() + " (" + written.error().text +
                                     "): if Nocturo is killed, the displays get plain ones.");
    }
}

} // namespace nocturo
