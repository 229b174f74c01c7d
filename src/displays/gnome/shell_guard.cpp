#include "displays/gnome/shell_guard.h"

#include "base/log.h"

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kProgram = "nocturo-bus-guard";

} // namespace

ShellGuard::ShellGuard(const Shell& shell, JournalFile file, std::string connection,
                       RunLoop& runLoop)
    : file_(std::move(file)), connection_(std::move(connection)),
      guards_(guardProgram(kProgram),
              {"--guard", file_.path().parent_path(), shell.names->displays, connection_}, runLoop,
              [this] { return isProtecting_; }) {}

void ShellGuard::keep(std::uint32_t crtc, const Ramp& system) {
    Crtc& known = crtcs_[crtc];
    if (known.system != system) {
        known.system = system;
        if (isProtecting_) {
            store();
        }
    }
}

void ShellGuard::willWrite(std::uint32_t crtc, const Ramp& ramp) {
    const auto known = crtcs_.find(crtc);
    if (known == crtcs_.end()) {
        return;
    }
    known->second.changed = ramp != known->second.system;
    if (known->second.changed && !isStored_) {
        guards_.start();
        store();
        isProtecting_ = true;
    }
}

void ShellGuard::allIsWritten() {
    const bool isAnyChanged = std::any_of(crtcs_.begin(), crtcs_.end(),
                                          [](const auto& crtc) { return crtc.second.changed; });
    if (isProtecting_ && !isAnyChanged) {
        isProtecting_ = isStored_ = false;
        file_.remove();
    }
}

void ShellGuard::store() {
    ShellJournal journal{connection_, {}};
    for (const auto& [crtc, known] : crtcs_) {
        journal.entries.push_back({crtc, known.system});
    }
    const Result<void> written = journal.write(file_);
    isStored_ = written.has_value();
    if (!written && !std::exchange(failureLogged_, true)) {
        logWarning(kLogDisplays, "The displays' own colors cannot be kept in " +
                                     file_.path().string() + " (" + written.error().text +
                                     "): if Nocturo is killed, the displays keep its effect.");
    }
}

} // namespace nocturo
