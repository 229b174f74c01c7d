#include "displays/guard/guarded_hardware.h"

#include "base/log.h"

#include <algorithm>
#include <poll.h>
#include <utility>

namespace nocturo {

namespace {

// Without taking anything in, which is the event loop's to do.
bool hasHungUp(int descriptor) {
    pollfd source{descriptor, POLLRDHUP, 0};
    return poll(&source, 1, 0) > 0;
}

} // namespace

GuardedHardware::GuardedHardware(std::unique_ptr<RandrHardware> hardware,
                                 const std::string& displayName, RunLoop& runLoop,
                                 std::function<void()> letGo)
    : hardware_(std::move(hardware)), mark_(hardware_->connection()), self_{mark_.createOwner()},
      letGoAsked_(mark_.onLetGo(self_, std::move(letGo))),
      guards_(guardProgram(),
              {"--guard", displayName, std::to_string(self_.token), std::to_string(self_.window)},
              // The server's end is the guards' as well, and may be told later.
              runLoop,
              [this] { return isMarked_ && !hasHungUp(hardware_->connection().descriptor()); }) {}

GuardedHardware::~GuardedHardware() {
    waitForWrites();
}

void GuardedHardware::keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) {
    Crtc& known = crtcs_[crtc];
    if (known.system != ramp) {
        known.system = ramp;
        if (isMarked_) {
            keepJournal();
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
    keepJournal();
    mark_.set(self_);
    isMarked_ = true;
}

void GuardedHardware::keepJournal() {
    Journal journal{self_.token, {}};
    for (const auto& [crtc, known] : crtcs_) {
        journal.entries.push_back({crtc, known.system});
    }
    if (!mark_.keep(journal) && !std::exchange(journalFailureLogged_, true)) {
        logWarning(kLogDisplays, "The displays' own colors are more than the X server can keep: if "
                                 "Nocturo is killed, the displays get plain ones.");
    }
}

} // namespace nocturo
