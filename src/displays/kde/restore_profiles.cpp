#include "displays/kde/restore_profiles.h"

#include "base/file_descriptor.h"
#include "displays/kde/profile_configurations.h"
#include "displays/kde/profile_journal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <csignal>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kRestorePatience = 3000ms;
constexpr auto kGivingBack = 1000ms;
constexpr int kSwitchOff = SIGUSR2; // as every Nocturo understands it

bool waitForDevices(WaylandConnection& compositor, const OutputDevices& devices) {
    return compositor.sync(kRestorePatience) &&
           compositor.waitUntil([&] { return devices.areDescribed(); }, kRestorePatience);
}

const OutputDevice* withKey(const OutputDevices& devices, const std::string& key) {
    const auto all = devices.all();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const auto* device) { return device->key() == key; });
    return found != all.end() ? *found : nullptr;
}

class Restoration {
  public:
    Restoration(WaylandConnection& compositor, const std::filesystem::path& directory,
                const std::optional<std::string>& run)
        : compositor_(compositor), directory_(directory), run_(run), journal_(directory),
          devices_(compositor), configurations_(compositor) {}

    ProfileRepair restore() {
        if (!waitForDevices(compositor_, devices_)) {
            return ProfileRepair::failed;
        }
        std::vector<std::string> keys;
        for (const OutputDevice* device : devices_.all()) {
            keys.push_back(device->key());
        }
        ProfileRepair repair = ProfileRepair::notNeeded;
        for (const std::string& key : keys) {
            if (!isLeft(key)) {
                continue;
            }
            if (!giveBack(key)) {
                return isOutdated() ? ProfileRepair::notNeeded : ProfileRepair::failed;
            }
            repair = ProfileRepair::restored;
        }
        return repair;
    }

  private:
    bool isLeft(const std::string& key) const {
        const OutputDevice* device = withKey(devices_, key);
        return device != nullptr &&
               (run_ ? journal_.find(key) != nullptr : isEffectProfile(device->setting.path));
    }

    /// A newer run has begun, and the journal is its own.
    bool isOutdated() const { return run_ && ProfileJournal(directory_).run() != *run_; }

    bool giveBack(const std::string& key) {
        const ProfileSetting* kept = journal_.find(key);
        const ProfileSetting own = kept != nullptr ? *kept : ProfileSetting{};
        // A profile that has gone meanwhile is not taken; none always is.
        const ColorSource source =
            own.source == ColorSource::profile ? ColorSource::sRgb : own.source;
        for (const ProfileSetting& setting : {own, ProfileSetting{"", source}}) {
            if (!isOutdated() && takes(key, setting)) {
                journal_.forget(key);
                return true;
            }
        }
        return false;
    }

    bool takes(const std::string& key, const ProfileSetting& setting) {
        const OutputDevice* device = withKey(devices_, key);
        if (device == nullptr) {
            return false;
        }
        const std::array<ProfileConfigurations::Change, 1> change = {{{device, setting}}};
        configurations_.apply(change, [](const Result<void>& /*result*/) {});
        compositor_.waitUntil([this] { return !configurations_.isUnderWay(); }, kRestorePatience);
        device = withKey(devices_, key);
        return !configurations_.isUnderWay() && device != nullptr &&
               device->setting.path == setting.path;
    }

    WaylandConnection& compositor_;
    const std::filesystem::path& directory_;
    const std::optional<std::string>& run_;
    ProfileJournal journal_;
    OutputDevices devices_;
    ProfileConfigurations configurations_;
};

} // namespace

ProfileRepair restoreProfiles(WaylandConnection& compositor,
                              const std::filesystem::path& stateDirectory,
                              const std::optional<std::string>& run) {
    return Restoration(compositor, stateDirectory, run).restore();
}

bool askProfileChanger(const std::filesystem::path& stateDirectory) {
    const ProfileJournal journal(stateDirectory);
    pid_t process = 0;
    const std::string& run = journal.run();
    std::from_chars(run.data(), run.data() + run.size(), process);
    // The number of one that has ended may be another program's by now, or be one a moment later.
    const FileDescriptor held(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    std::error_code error;
    const auto program =
        std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
    return held.get() >= 0 && program.filename() == "nocturo" &&
           syscall(SYS_pidfd_send_signal, held.get(), kSwitchOff, nullptr, 0) == 0;
}

bool waitUntilProfilesAreBack(WaylandConnection& compositor) {
    const OutputDevices devices(compositor);
    return waitForDevices(compositor, devices) &&
           compositor.waitUntil(
               [&] {
                   const auto all = devices.all();
                   return std::none_of(all.begin(), all.end(), [](const OutputDevice* device) {
                       return isEffectProfile(device->setting.path);
                   });
               },
               kGivingBack);
}

} // namespace nocturo
