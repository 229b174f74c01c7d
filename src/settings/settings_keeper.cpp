#include "settings/settings_keeper.h"

#include "base/log.h"
#include "base/run_loop.h"
#include "base/texts/translated.h"

#include <string>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

// Not restarted by further changes, so that a slider dragged for minutes is saved meanwhile.
constexpr std::chrono::milliseconds kWriteDelay{800};

constexpr std::chrono::milliseconds kPatienceWithWriters{500};

std::string errorText(int errorNumber) {
    return std::generic_category().message(errorNumber);
}

} // namespace

SettingsKeeper::SettingsKeeper(DefaultsStore& store, std::filesystem::path path, RunLoop& runLoop,
                               Clock now)
    : store_(store), path_(std::move(path)), runLoop_(runLoop), now_(std::move(now)), watch_(path_),
      edits_(runLoop_.watch(watch_.descriptor(), [this] { processFileEvents(); })) {
    store_.setPersistence(this);
    takeInFile(Reason::start);
}

SettingsKeeper::~SettingsKeeper() {
    store_.setPersistence(nullptr);
}

void SettingsKeeper::userDomainDidChange() {
    if (timer_ != nullptr) {
        return;
    }
    timer_ = runLoop_.scheduleTimer(kWriteDelay, [this] {
        timer_.reset();
        static_cast<void>(write(Reason::timedWrite)); // says what went wrong
    });
}

Result<void> SettingsKeeper::save() {
    return write(Reason::writeNow);
}

tl::unexpected<Problem> SettingsKeeper::unsaved(const std::string& why) const {
    return failed(translated("It holds until Nocturo quits; the settings cannot be saved to %1$@ "
                             "(%2$@).",
                             {path_.string(), why}));
}

Result<void> SettingsKeeper::write(Reason reason) {
    if (!lostFile_ && store_.changedKeys().empty()) {
        return {};
    }
    if (!takeInFile(reason)) {
        return unsaved(translated("the file that is there cannot be read"));
    }
    const Result<FileStamp> written = writeSettingsFile(path_, store_.userDomain());
    if (!written) {
        if (!std::exchange(toldUnwritable_, true)) {
            logWarning(kLogSettings, "The settings cannot be saved to " + path_.string() + " (" +
                                         written.error().text +
                                         "); they hold until Nocturo quits, and saving is tried "
                                         "again with the next change.");
        }
        return unsaved(written.error().text);
    }
    known_ = *written;
    lostFile_ = false;
    toldUnwritable_ = false;
    store_.markKept();
    timer_.reset();
    watch_.renew();
    return {};
}

void SettingsKeeper::processFileEvents() {
    if (watch_.processEvents()) {
        watch_.renew();
        takeInFile(Reason::event);
    }
}

/// Brings the store up to what is on the disk; false when the file there must not be replaced.
bool SettingsKeeper::takeInFile(Reason reason) {
    using State = PropertyListFileContents::State;
    if (known_ && fileStamp(path_) == known_) {
        return true;
    }
    PropertyListFileContents contents = readPropertyListFile(path_);
    switch (contents.state) {
    case State::absent:
        // Editors delete before they write; that is no wish to lose the settings.
        known_.reset();
        toldUnreadable_ = false;
        return true;
    case State::loaded:
        // Before the merge, whose observers may come back here.
        known_ = contents.stamp;
        toldUnreadable_ = false;
        store_.mergeUserDomain(std::move(contents.dictionary));
        return true;
    case State::damaged:
        if (isStillBeingWritten(contents.stamp, reason)) {
            return false;
        }
        return setAside(reason);
    case State::unreadable:
        break;
    }
    known_.reset();
    tellUnreadable("cannot be read (" + errorText(contents.errorNumber) +
                   "); nothing is saved until it can be.");
    return false;
}

/// Whoever writes a file in its place empties it first, and an event of our own may have us look
/// just then: a file counts as damaged once it has been so for a while.
bool SettingsKeeper::isStillBeingWritten(const std::optional<FileStamp>& stamp, Reason reason) {
    if (reason == Reason::start || reason == Reason::writeNow) {
        return false;
    }
    if (suspect_ == stamp) {
        return reason != Reason::secondLook;
    }
    suspect_ = stamp;
    suspectTimer_ = runLoop_.scheduleTimer(kPatienceWithWriters, [this] {
        suspectTimer_.reset();
        lookAgain();
    });
    return true;
}

void SettingsKeeper::lookAgain() {
    takeInFile(Reason::secondLook);
    if (!store_.changedKeys().empty()) {
        userDomainDidChange();
    }
}

bool SettingsKeeper::setAside(Reason reason) {
    known_.reset();
    suspect_.reset();
    const auto aside = setAsideDamagedFile(path_, now_());
    if (!aside) {
        tellUnreadable("is damaged and cannot be set aside (" + aside.error().text +
                       "); nothing is saved until it can be.");
        return false;
    }
    toldUnreadable_ = false;
    const bool atStart = reason == Reason::start;
    logWarning(kLogSettings, "The settings file " + path_.string() + " is damaged; it is kept as " +
                                 aside->filename().string() +
                                 (atStart ? ", and the default settings hold."
                                          : ", and the settings in use are saved anew."));
    if (!atStart) {
        lostFile_ = true;
        if (reason == Reason::secondLook) {
            userDomainDidChange();
        }
    }
    return true;
}

void SettingsKeeper::tellUnreadable(const std::string& what) {
    if (!std::exchange(toldUnreadable_, true)) {
        logWarning(kLogSettings, "The settings file " + path_.string() + " " + what);
    }
}

} // namespace nocturo
