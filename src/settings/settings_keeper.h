#pragma once

#include "base/result.h"
#include "settings/defaults_store.h"
#include "settings/file_watch.h"
#include "settings/settings_file.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

class RunLoop;
class Timer;
class Watch;

/// Keeps a store's user domain in a property list file, and follows what others write there.
///
/// Changes reach the disk within a second, however many there are, and at synchronize. A file that
/// somebody else wrote meanwhile is taken in first, so that neither side's keys are lost. A damaged
/// file is set aside; one that cannot be read is left alone until it can. When saving fails, the
/// old file stays, the settings hold in memory, and it is tried again with the next change and at
/// synchronize. Each of these is told in one sentence, and again only after it was over.
class SettingsKeeper final : public DefaultsPersistence {
  public:
    using Clock = std::function<std::chrono::system_clock::time_point()>;

    /// Loads the file at the absolute `path`, which need not exist, into `store` and becomes its
    /// persistence. The store and the run loop must outlive this object. `now` dates files that are
    /// set aside.
    SettingsKeeper(DefaultsStore& store, std::filesystem::path path, RunLoop& runLoop,
                   Clock now = std::chrono::system_clock::now);

    /// Leaves the store without a persistence. Writes nothing: call synchronize at quit.
    ~SettingsKeeper() override;
    SettingsKeeper(const SettingsKeeper&) = delete;
    SettingsKeeper& operator=(const SettingsKeeper&) = delete;

    void userDomainDidChange() override;
    bool synchronize() override { return save().has_value(); }

    /// Writes at once whatever is not yet on the disk; where that fails a sentence for the user.
    Result<void> save();

  private:
    enum class Reason { start, event, secondLook, timedWrite, writeNow };

    Result<void> write(Reason reason);
    bool takeInFile(Reason reason);
    bool isStillBeingWritten(const std::optional<FileStamp>& stamp, Reason reason);
    void processFileEvents();
    void lookAgain();
    bool setAside(Reason reason);
    void tellUnreadable(const std::string& what);
    tl::unexpected<Problem> unsaved(const std::string& why) const;

    DefaultsStore& store_;
    std::filesystem::path path_;
    RunLoop& runLoop_;
    Clock now_;
    FileWatch watch_;
    std::unique_ptr<Watch> edits_;   // null where they cannot be noticed
    std::optional<FileStamp> known_; // of the file as last read or written
    bool lostFile_ = false;          // set aside while running: the whole is to be written again
    bool toldUnreadable_ = false;
    bool toldUnwritable_ = false;
    std::optional<FileStamp> suspect_; // of a file that was found damaged
    std::unique_ptr<Timer> suspectTimer_;
    std::unique_ptr<Timer> timer_;
};

} // namespace nocturo
