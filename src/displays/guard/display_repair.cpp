#include "displays/guard/display_repair.h"

#include "base/log.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

// The mark on the server says whether displays are changed and by whom, the journal how they were.
// The journal is kept before the mark is set and the mark is set before the first ramp is written,
// so a mark without a journal that fits means that the journal came to harm.
//
// A killed program's last requests may still wait in the server. They would undo a repair that came
// before them, so the server's destruction of that program's window is waited for. And while one
// repairs nobody else may repair or start to change the displays: the server is grabbed meanwhile.
// Nothing else is done then. What takes its time, as a source of calibrations may, comes before,
// and what is to be said, which somebody has to read, afterwards.

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;
constexpr auto kGivingBack = 500ms;
constexpr auto kWaitForCalibrations = 500ms;

using Ramps = std::vector<Journal::Entry>;

Ramps plainRamps(RandrHardware& hardware, CalibrationSource* calibrations) {
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
    Ramps ramps;
    for (const Head& head : heads) {
        std::optional<Ramp> known;
        if (calibrations != nullptr) {
            known = calibrations->calibration(head.connector, head.rampSize).ramp;
        }
        ramps.push_back({head.crtc, known ? std::move(*known) : identityRamp(head.rampSize)});
    }
    return ramps;
}

/// Repairs after one Nocturo.
class RepairAfter {
  public:
    RepairAfter(RandrHardware& hardware, const ServerMark& mark, const ServerMark::Owner& owner)
        : hardware_(hardware), mark_(mark), owner_(owner) {}

    /// One that goes on, although it does not answer, needs its mark.
    void leaveMark() { leavesMark_ = true; }

    Repair run(CalibrationSource* calibrations) {
        if (const auto repair = giveBack(nullptr)) {
            return *repair;
        }
        const Ramps plain = plainRamps(hardware_, calibrations);
        const Repair repair = giveBack(&plain).value_or(Repair::notNeeded);
        if (repair == Repair::plainRamps) {
            logWarning(kLogDisplays,
                       "What the X server was given to keep of the displays' own colors "
                       "is missing or damaged, so they get plain ones.");
        }
        return repair;
    }

  private:
    /// Nothing, with nothing done, where plain ramps are needed and none are given.
    std::optional<Repair> giveBack(const Ramps* plain) {
        const ServerMark::Grab grab(mark_);
        if (mark_.read() != owner_) {
            return Repair::notNeeded; // somebody else was quicker
        }
        const auto journal = mark_.readJournal(owner_.token);
        if (!journal && plain == nullptr) {
            return std::nullopt;
        }
        for (const auto& [crtc, ramp] : journal ? journal->entries : *plain) {
            hardware_.writeRamp(crtc, ramp);
        }
        if (!leavesMark_) {
            mark_.remove();
        }
        hardware_.connection().synchronize();
        return journal ? Repair::ownRamps : Repair::plainRamps;
    }

    RandrHardware& hardware_;
    const ServerMark& mark_;
    ServerMark::Owner owner_;
    bool leavesMark_ = false;
};

} // namespace

Repair repairDisplays(RandrHardware& hardware, CalibrationSource& calibrations) {
    const ServerMark mark(hardware.connection());
    const auto owner = mark.read();
    if (!owner) {
        return Repair::notNeeded;
    }
    return mark.waitUntilGone(*owner, kPatience)
               ? RepairAfter(hardware, mark, *owner).run(&calibrations)
               : Repair::inUse;
}

Repair repairDisplaysAfter(const ServerMark::Owner& ended, RandrHardware& hardware) {
    const ServerMark mark(hardware.connection());
    // First: even the mark may still be among what waits in the server.
    mark.waitUntilGone(ended, kPatience);
    return RepairAfter(hardware, mark, ended).run(nullptr);
}

RestoredByHand restoreDisplaysByHand(RandrHardware& hardware, CalibrationSource& calibrations) {
    const ServerMark mark(hardware.connection());
    const auto owner = mark.read();
    if (!owner) {
        return {};
    }
    RestoredByHand done;
    RepairAfter repair(hardware, mark, *owner);
    if (mark.isAlive(*owner)) {
        done.askedNocturo = true;
        if (mark.askToLetGo(*owner, kGivingBack)) {
            return done;
        }
        if (mark.isAlive(*owner)) {
            repair.leaveMark();
        } else {
            done.askedNocturo = false; // it was ending
        }
    }
    done.repair = repair.run(&calibrations);
    if (done.repair != Repair::notNeeded) {
        mark.noteRestored();
        hardware.waitForWrites();
    }
    return done;
}

} // namespace nocturo
