#include "displays/gnome/shell_journal.h"

#include "base/file_descriptor.h"
#include "base/log.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <utility>

// A killed program's last calls may still wait in the bus. They would undo a repair that came
// before them, so the bus's word that the program's connection has gone is waited for: the bus
// gives it after all that the connection sent. And of those who repair, the guards and the next
// start, one at a time does: it holds a lock on the journal's directory from reading the journal to
// its end.

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr int kRepairPatienceMs = 5000; // the shell may be starting
constexpr auto kPatienceForTheBus = 2s;
constexpr const char* kJournal = "ramps@";
constexpr char kEndOfWriter = '\n';

std::string busIdentity(const Bus& bus) {
    sd_id128_t id{};
    std::array<char, SD_ID128_STRING_MAX> text{};
    return sd_bus_get_bus_id(bus.handle(), &id) < 0 ? "" : sd_id128_to_string(id, text.data());
}

/// FNV-1a: names of files must not depend on a library's version.
std::uint64_t hashed(const std::string& text) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char character : text) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001b3U;
    }
    return hash;
}

class DirectoryLock {
  public:
    explicit DirectoryLock(const std::filesystem::path& directory)
        : directory_(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        while (::flock(directory_.get(), LOCK_EX) != 0 && errno == EINTR) {
        }
    }

  private:
    FileDescriptor directory_;
};

/// Whether that connection has gone, now or within the patience.
bool waitUntilGone(const Bus& bus, const std::string& connection) {
    bool gone = false;
    const auto followed =
        bus.followOwner(connection, [&](const std::string& owner) { gone = owner.empty(); });
    return bus.serveUntil([&] { return gone; }, kPatienceForTheBus);
}

/// Nothing where the shell does not answer.
std::optional<ShellResources> fetchResources(const Bus& bus, const Shell& shell) {
    const BusMessage answer =
        bus.callAndWait(resourcesCall(bus, *shell.names), kRepairPatienceMs, nullptr);
    return answer != nullptr ? resourcesIn(answer.get()) : std::nullopt;
}

std::optional<Ramp> fetchRamp(const Bus& bus, const Shell& shell, std::uint32_t serial,
                              std::uint32_t crtc) {
    const BusMessage answer =
        bus.callAndWait(readRampCall(bus, *shell.names, serial, crtc), kRepairPatienceMs, nullptr);
    return answer != nullptr ? rampIn(answer.get()) : std::nullopt;
}

/// False when the shell does not answer. One that refuses has no such CRTC any more.
bool giveBack(const Bus& bus, const Shell& shell, const Journal::Entry& entry) {
    for (int attempt = 0; attempt < 2; ++attempt) { // the displays may change between both calls
        const auto resources = fetchResources(bus, shell);
        if (!resources) {
            return false;
        }
        sd_bus_error error{};
        const BusMessage call =
            writeRampCall(bus, *shell.names, resources->serial, entry.crtc, entry.ramp);
        const BusMessage written = bus.callAndWait(call, kRepairPatienceMs, &error);
        const bool again = isStale(error);
        const bool isRefused =
            again || sd_bus_error_has_name(&error, SD_BUS_ERROR_INVALID_ARGS) > 0;
        sd_bus_error_free(&error);
        if (!again) {
            return written != nullptr || isRefused;
        }
    }
    return true;
}

std::vector<Journal::Entry> plainRamps(const Bus& bus, const Shell& shell) {
    std::vector<Journal::Entry> ramps;
    if (const auto resources = fetchResources(bus, shell)) {
        for (const ShellOutput& output : resources->outputs) {
            const auto held = output.nested ? std::nullopt
                                            : fetchRamp(bus, shell, resources->serial, output.crtc);
            if (held && isUsableRampSize(held->size())) {
                ramps.push_back({output.crtc, identityRamp(held->size())});
            }
        }
    }
    return ramps;
}

} // namespace

Result<void> ShellJournal::write(const JournalFile& file) const {
    return file.write(writer + kEndOfWriter + journalBytes({0, entries}),
                      Durability::lastsWhileTheSystemRuns);
}

Result<ShellJournal> ShellJournal::read(const JournalFile& file) {
    return file.read().and_then([](const std::string& bytes) -> Result<ShellJournal> {
        const auto end = bytes.find(kEndOfWriter);
        auto kept = end == std::string::npos
                        ? std::nullopt
                        : journalFromBytes(std::string_view(bytes).substr(end + 1));
        if (!kept) {
            return failed("it is damaged");
        }
        return ShellJournal{bytes.substr(0, end), std::move(kept->entries)};
    });
}

JournalFile shellJournalFile(const std::filesystem::path& directory, const Bus& bus,
                             const Shell& shell) {
    std::array<char, 17> name{};
    std::snprintf(name.data(), name.size(), "%016llx",
                  static_cast<unsigned long long>(hashed(busIdentity(bus) + shell.owner)));
    return {directory, std::string(kJournal) + name.data()};
}

bool hasShellJournals(const std::filesystem::path& directory) {
    std::error_code error;
    const std::filesystem::directory_iterator files(directory, error);
    return std::any_of(begin(files), end(files), [](const auto& file) {
        return file.path().filename().native().starts_with(kJournal);
    });
}

ShellRepair repairShell(const Bus& bus, const Shell& shell, const JournalFile& file,
                        const std::string& after, bool overwriteUnended) {
    const auto found = ShellJournal::read(file);
    if (!found && found.error().errorNumber == ENOENT) {
        return ShellRepair::notNeeded;
    }
    const bool ended = !found || waitUntilGone(bus, found->writer);
    const DirectoryLock lock(file.path().parent_path());
    Result<ShellJournal> journal = ShellJournal::read(file);
    if (!journal && journal.error().errorNumber == ENOENT) {
        return ShellRepair::notNeeded; // somebody else was quicker
    }
    const bool isDamaged = !journal;
    if (isDamaged) {
        logWarning(kLogDisplays, "What was kept of the displays' own colors in " +
                                     file.path().string() + " cannot be used (" +
                                     journal.error().text + "), so they get plain ones.");
        file.setAside();
        journal = ShellJournal{after, plainRamps(bus, shell)};
    }
    if (!after.empty() && journal->writer != after) {
        return ShellRepair::notNeeded;
    }
    if (!ended && !overwriteUnended) {
        return ShellRepair::inUse;
    }
    for (const Journal::Entry& entry : journal->entries) {
        if (!giveBack(bus, shell, entry)) {
            return ShellRepair::failed;
        }
    }
    if (!ended) {
        return ShellRepair::inUse;
    }
    file.remove();
    return isDamaged ? ShellRepair::plainRamps : ShellRepair::ownRamps;
}

} // namespace nocturo
