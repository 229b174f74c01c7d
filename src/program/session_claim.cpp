#include "program/session_claim.h"

#include "base/bus.h"
#include "base/log.h"
#include "base/texts/translated.h"
#include "bus/bus_names.h"
#include "bus/launcher_face.h"
#include "bus/running_application.h"

namespace nocturo {

namespace {

// A bus that hangs must not delay the first effect; one that is only slow is joined later.
constexpr int kPatienceWithBusMs = 100;
constexpr int kPatienceWithAnother = 2000; // milliseconds, too

} // namespace

SessionClaim::SessionClaim(const Bus* bus,
                           const std::optional<std::filesystem::path>& runtimeDirectory,
                           const std::vector<std::string>& documents, bool switchedOff,
                           bool atLogin)
    : bus_(bus), switchedOff_(switchedOff), atLogin_(atLogin) {
    auto claim =
        bus_ != nullptr ? bus_->claimName(kBusName, kPatienceWithBusMs) : Bus::Claim::busIsSilent;
    if (claim == Bus::Claim::taken && !passOnOverBus(documents)) {
        claim = bus_->claimName(kBusName, kPatienceWithBusMs); // one just killed may be gone by now
    }
    granted_ = claim == Bus::Claim::granted;
    if (granted_ && runtimeDirectory) {
        lock_.emplace(*runtimeDirectory); // for the next one, should the bus be silent for it
    } else if (claim == Bus::Claim::busIsSilent) {
        logInfo(kLogBus, "The session bus is silent, so nocturoctl cannot reach Nocturo.");
        askForLock(runtimeDirectory, documents);
    }
}

bool SessionClaim::passOnOverBus(const std::vector<std::string>& documents) {
    if (switchedOff_) {
        return switchRunningApplicationOff(*bus_, kPatienceWithAnother);
    }
    if (documents.empty() && atLogin_) {
        return true;
    }
    if (documents.empty()) {
        return reopenRunningApplication(*bus_);
    }
    const auto refusal = openInRunningApplication(*bus_, documents);
    problem_ = refusal.value_or(translated("The Nocturo that runs does not answer."));
    return refusal.has_value();
}

void SessionClaim::askForLock(const std::optional<std::filesystem::path>& runtimeDirectory,
                              const std::vector<std::string>& documents) {
    granted_ = true;
    if (runtimeDirectory) {
        lock_.emplace(*runtimeDirectory);
        granted_ = lock_->isHeld();
    }
    if (granted_) {
        return;
    }
    if (switchedOff_) {
        lock_->askHolder(InstanceLock::kSwitchOffSignal);
    } else if (documents.empty() && atLogin_) {
        return;
    } else if (documents.empty()) {
        lock_->askHolder(InstanceLock::kReopenSignal);
    } else {
        problem_ =
            translated("Without a session bus the Nocturo that runs cannot be given a document.");
    }
}

} // namespace nocturo
