#include "displays/guard/display_repair.h"

#include "base/log.h"
#include "displays/guard/journal.h"

#include <algorithm>
#include <cerrno>
#include <string>

// The mark on the server says whether displays are changed and by whom, the journal how they were.
// The journal is written before the mark is set and the mark is set before the first ramp is
// written, so a mark without a journal that fits means that the journal came to harm.
//
// A killed program's last requests may still wait in the server. They would undo a repair that came
// before them, so the server's destruction of that program's window is waited for. And while one
// repairs nobody else may start to change the displays: the server is grabbed meanwhile. What is to
// be written is found out before that, because a source of calibrations may take its time.

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;
constexpr auto kGivingBack = 500ms;
constexpr auto kWaitForCalibrations = 500ms;

// What the journal says of that run; nothing when the file is missing, damaged or another run's.
std::optional<Journal> journalOf(std::uint64_t token, const std::filesystem::path& file) {
    Result<Journal> journal = readJournal(file);
    return journal && journal->token == token ? std::optional(std::move(*journal)) : std::nullopt;
}

void setDamagedAside(const std::filesystem::path& file) {
    const Result<Journal> journal = readJournal(file);
    if (!journal && journal.error().errorNumber != ENOENT) {
        std::error_code ignored;
        std::filesystem::rename(file, file.native() + ".damaged", ignored);
    }
}

std::vector<Journal::Entry> plainRamps(RandrHardware& hardware, CalibrationSource* calibrations) {
    std::vector<Head> heads;
    hardware.listHeads(heads);
    heads.resize(std::min<std::size_t>(heads.size(), kZQMaxDisplays));
    std::erase_if(heads, [](const Head& head) { return !isUsableRampSize(head.rampSize); });
    if (calibrations != nullptr) {
        for (const Head& head : heads) {
            calibrations->calibration(head.connector, head.rampSize);
        }
        calibrations->waitForAnswers(kWaitForCalibrations);
    }
    std::vector<Journal::Entry> ramps;
    for (const Head& head : heads) {
        std::optional<Ramp> known;
        if (calibrations != nullptr) {
            known = calibrations->calibration(head.connector, head.rampSize).ramp;
        }
        ramps.push_back({head.crtc, known ? std::move(*known) : identityRamp(head.rampSize)});
    }
    return ramps;
}

struct Known {
    Repair repair;
    std::vector<Journal::Entry> ramps;
};

Known whatToWrite(RandrHardware& hardware, const std::filesystem::path& file, std::uint64_t token,
                  CalibrationSource* calibrations) {
    if (auto journal = journalOf(token, file)) {
        return {Repair::ownRamps, std::move(journal->entries)};
    }
    return {Repair::plainRamps, plainRamps(hardware, calibrations)};
}

void write(RandrHardware& hardware, const std::vector<Journal::Entry>& ramps) {
    for (const auto& [crtc, ramp] : ramps) {
        hardware.writeRamp(crtc, ramp);
    }
}

Repair writeBack(RandrHardware& hardware, const std::filesystem::path& file, const Known& known) {
    if (known.repair == Repair::plainRamps) {
        logWarning(kLogDisplays, "What was kept of the displays' own colors in " + file.string() +
                                     " is missing or damaged, so they get plain ones.");
        setDamagedAside(file);
    }
    write(hardware, known.ramps);
    return known.repair;
}

Repair repairMarked(RandrHardware& hardware, const std::filesystem::path& file, ServerMark& mark,
                    const ServerMark::Content& marked, CalibrationSource* calibrations) {
    const Known known = whatToWrite(hardware, file, marked.token, calibrations);
    const ServerMark::Grab grab(mark);
    if (mark.read() != marked) {
        return Repair::notNeeded; // somebody else was quicker
    }
    const Repair repair = writeBack(hardware, file, known);
    mark.remove();
    hardware.connection().synchronize();
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    return repair;
}

} // namespace

Repair repairDisplays(RandrHardware& hardware, const std::filesystem::path& journalFile,
                      CalibrationSource& calibrations) {
    ServerMark mark(hardware.connection());
    const auto marked = mark.read();
    if (!marked) {
        // Of another run of the server, or of a Nocturo that was killed with everything given back.
        std::error_code ignored;
        std::filesystem::remove(journalFile, ignored);
        return Repair::notNeeded;
    }
    return mark.waitUntilGone(marked->window, kPatience)
               ? repairMarked(hardware, journalFile, mark, *marked, &calibrations)
               : Repair::inUse;
}

Repair repairDisplaysAfter(const ServerMark::Content& ended, RandrHardware& hardware,
                           const std::filesystem::path& journalFile) {
    ServerMark mark(hardware.connection());
    // First: even the mark may still be among what waits in the server.
    mark.waitUntilGone(ended.window, kPatience);
    return repairMarked(hardware, journalFile, mark, ended, nullptr);
}

std::optional<pid_t> changingProcess(RandrHardware& hardware,
                                     const std::filesystem::path& journalFile) {
    ServerMark mark(hardware.connection());
    const auto marked = mark.read();
    if (!marked || !mark.isAlive(marked->window)) {
        return std::nullopt;
    }
    const auto journal = journalOf(marked->token, journalFile);
    return journal ? journal->process : 0;
}

bool waitUntilGivenBack(RandrHardware& hardware) {
    return ServerMark(hardware.connection()).waitUntilRemoved(kGivingBack);
}

Repair overwriteDisplays(RandrHardware& hardware, const std::filesystem::path& journalFile,
                         CalibrationSource& calibrations) {
    const auto marked = ServerMark(hardware.connection()).read();
    const Known known =
        whatToWrite(hardware, journalFile, marked ? marked->token : 0, &calibrations);
    const Repair repair = writeBack(hardware, journalFile, known);
    hardware.waitForWrites();
    return repair;
}

void writePlainRamps(RandrHardware& hardware, CalibrationSource& calibrations) {
    write(hardware, plainRamps(hardware, &calibrations));
    hardware.waitForWrites();
}

} // namespace nocturo
