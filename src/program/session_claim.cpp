#include "program/session_claim.h"

#include "base/log.h"
#include "base/texts/translated.h"
#include "bus/bus_face.h"
#include "bus/launcher_face.h"
#include "desktop/qt/session_bus.h"

namespace nocturo {

SessionClaim::SessionClaim(BusFace& face, const std::filesystem::path& runtimeDirectory,
                           const QStringList& documents)
    : bus_(connectToSessionBus()) {
    if (!bus_) {
        logInfo(kLogBus, "There is no session bus, so nocturoctl cannot reach Nocturo.");
        askForLock(runtimeDirectory, documents);
        return;
    }
    granted_ = face.takeName(*bus_);
    if (!granted_ && !passOnOverBus(documents)) {
        granted_ = face.takeName(*bus_); // one that was just killed may be gone by now
    }
}

bool SessionClaim::passOnOverBus(const QStringList& documents) {
    if (documents.isEmpty()) {
        return reopenRunningApplication(*bus_);
    }
    const auto refusal = openInRunningApplication(*bus_, documents);
    problem_ = refusal.value_or(translated("The Nocturo that runs does not answer."));
    return refusal.has_value();
}

void SessionClaim::askForLock(const std::filesystem::path& runtimeDirectory,
                              const QStringList& documents) {
    lock_.emplace(runtimeDirectory);
    granted_ = lock_->isHeld();
    if (granted_) {
        return;
    }
    if (documents.isEmpty()) {
        lock_->askHolderToReopen();
    } else {
        problem_ =
            translated("Without a session bus the Nocturo that runs cannot be given a document.");
    }
}

} // namespace nocturo
