#pragma once

#include "displays/guard/journal_file.h"
#include "displays/kde/output_devices.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace nocturo {

/// The name of one of the two files that an output's effect is put in by turns.
std::string effectProfileName(const std::string& connector, unsigned turn);

/// Whether a profile is one of those, of whichever run, rather than a user's own.
bool isEffectProfile(const std::filesystem::path& path);

/// The profiles that outputs with an effect had by their users' settings, in a file that outlives
/// the machine's running: KWin keeps the effect's for its next run. It has an entry for exactly
/// those outputs that are still to be given their own back.
class ProfileJournal {
  public:
    /// Reads what there is; what is damaged is set aside. `directory` is made when it is needed.
    explicit ProfileJournal(const std::filesystem::path& directory);

    /// Null where there is no entry. By an OutputDevice's key.
    const ProfileSetting* find(const std::string& key) const;
    bool isEmpty() const { return entries_.empty(); }

    /// Of the run that wrote the file: its process, '-' and something random. Empty where there is
    /// no file.
    const std::string& run() const { return run_; }
    /// Has the next keep() write the file as this run's.
    void setRun(const std::string& run);

    /// It is on the disk when this returns. What is there already is not written again.
    Result<void> keep(const std::string& key, const ProfileSetting& own);

    /// With its last entry the file goes.
    void forget(const std::string& key);

  private:
    void parse(std::string_view bytes);
    Result<void> store();

    std::filesystem::path directory_;
    JournalFile file_;
    std::string run_;
    bool isStored_ = true;
    std::map<std::string, ProfileSetting> entries_;
};

} // namespace nocturo
