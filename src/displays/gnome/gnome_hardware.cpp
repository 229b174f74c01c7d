#include "displays/gnome/gnome_hardware.h"

#include "base/log.h"
#include "displays/kernel_edid.h"

#include <algorithm>
#include <utility>

// All that is heard comes over a bus of its own, which is served wherever an answer is waited for.
// So nothing that is heard may do more than note it: whoever looks is called from the event loop.
//
// After a change of its displays or of the night light's temperature a shell may write ramps, and
// does not tell so. It has done it when it answers a question that was asked after the change was
// heard of, and only then are the displays told as changed.

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr int kCalibrationPatienceMs = 500;
constexpr auto kPatienceAtStart = 5s; // it has its name on the bus before it answers
// While another program calibrates a monitor it is asked for again no more often than this.
constexpr auto kPauseWhenTaken = 30s;
// A shell that ends a calibration sooner is not asked for another at once.
constexpr auto kShortCalibration = 1s;
// A CRTC without a ramp of its own takes one of any size; this is the largest that they have.
constexpr std::uint32_t kSizeWithoutRamp = 4096;

} // namespace

GnomeHardware::GnomeHardware(std::unique_ptr<Bus> bus, Shell shell,
                             std::unique_ptr<ShellGuard> guard, std::filesystem::path connectors,
                             RunLoop& runLoop)
    : bus_(std::move(bus)), shell_(std::move(shell)), guard_(std::move(guard)),
      connectors_(std::move(connectors)), runLoop_(runLoop),
      questions_(*bus_, shell_, [this](auto news) { hear(news); }) {
    const ShellNames& names = *shell_.names;
    const auto ask = [this](auto*) { questions_.askForResources(); };
    listening_.push_back(
        bus_->onSignal(names.displays, names.displaysPath, names.displays, "MonitorsChanged", ask));
    listening_.push_back(bus_->onSignal(names.nightLight, names.nightLightPath,
                                        "org.freedesktop.DBus.Properties", "PropertiesChanged",
                                        ask));
    listening_.push_back(bus_->followOwner(names.displays, [this](const std::string& owner) {
        if (owner.empty()) {
            questions_.forgetResources();
            noteChange();
        } else if (owner != shell_.owner) {
            questions_.askForResources();
        }
    }));
}

GnomeHardware::~GnomeHardware() = default;

void GnomeHardware::noteChange() {
    ++generation_;
    if (look_ && lookSoon_ == nullptr) {
        lookSoon_ = runLoop_.scheduleTimer(0ms, [this] {
            lookSoon_.reset();
            look_();
        });
    }
}

void GnomeHardware::hear(ShellQuestions::News news) {
    if (news == ShellQuestions::News::others) {
        placeOutputs();
    }
    if (news != ShellQuestions::News::none) {
        ++modes_;
        noteChange();
    }
    // What was refused because of a serial number that is another now.
    for (auto& [id, crtc] : crtcs_) {
        if (crtc.sender != nullptr) {
            crtc.sender->sendAgain();
        }
    }
}

/// A CRTC may be another one now, and what was lent is not any more.
void GnomeHardware::placeOutputs() {
    for (auto& [id, crtc] : crtcs_) {
        crtc.connector.clear();
        crtc.size.reset();
        crtc.calibration.reset();
        crtc.isLost = crtc.isNotLent = crtc.isTaken = false;
        crtc.askAgain = {};
    }
    if (!questions_.resources()) {
        return;
    }
    for (const ShellOutput& output : questions_.resources()->outputs) {
        Crtc& crtc = crtcs_[output.crtc];
        if (crtc.connector.empty()) {
            crtc.connector = output.connector;
            crtc.nested = output.nested;
        }
    }
}

bool GnomeHardware::waitForShell() {
    return questions_.fetchResources(kPatienceAtStart);
}

/// Also those of displays that are there already may have to be asked for anew.
bool GnomeHardware::fetchSizes() {
    std::vector<std::uint32_t> unknown;
    for (const auto& [id, crtc] : crtcs_) {
        if (!crtc.connector.empty() && !crtc.nested && !crtc.size) {
            unknown.push_back(id);
        }
    }
    expectReads(unknown);
    for (const std::uint32_t id : unknown) {
        const auto answer = questions_.takeRamp(id);
        if (!answer) {
            return false;
        }
        take(crtcs_[id], *answer);
    }
    return true;
}

/// Notes what a CRTC holds; false where that is of no use.
bool GnomeHardware::take(Crtc& crtc, const ShellQuestions::RampAnswer& answer) {
    if (!answer.ramp || (answer.ramp->size() != 0 && !isUsableRampSize(answer.ramp->size()))) {
        setSize(crtc, 0);
        return false;
    }
    if (answer.ramp->size() == 0) {
        setSize(crtc, crtc.size.value_or(0) != 0 ? *crtc.size : kSizeWithoutRamp);
        crtc.last = identityRamp(*crtc.size);
    } else {
        setSize(crtc, answer.ramp->size());
        crtc.last = *answer.ramp;
    }
    return true;
}

void GnomeHardware::setSize(Crtc& crtc, std::uint32_t size) {
    const auto before = std::exchange(crtc.size, size);
    if (before && *before != size) {
        noteChange();
    }
}

bool GnomeHardware::isNested() const {
    const auto& known = questions_.resources();
    return known && !known->outputs.empty() &&
           std::all_of(known->outputs.begin(), known->outputs.end(),
                       [](const ShellOutput& output) { return output.nested; });
}

bool GnomeHardware::listHeads(std::vector<Head>& heads) {
    heads.clear();
    if ((!questions_.resources() && !questions_.fetchResources()) || !fetchSizes() ||
        !questions_.resources()) {
        return false;
    }
    for (const ShellOutput& output : questions_.resources()->outputs) {
        const Crtc& crtc = crtcs_[output.crtc];
        Head& head = heads.emplace_back();
        head.connector = output.connector;
        head.edid = output.edid.empty() ? kernelEdid(connectors_, output.connector) : output.edid;
        head.crtc = output.crtc;
        head.rampSize = crtc.size.value_or(0);
        head.bounds = output.bounds;
        head.primary = output.primary;
        head.modeGeneration = modes_;
        head.obstacle = crtc.isTaken ? Obstacle::heldByOther : Obstacle::none;
    }
    return true;
}

void GnomeHardware::expectReads(std::span<const std::uint32_t> crtcs) {
    for (const std::uint32_t id : crtcs) {
        const auto known = crtcs_.find(id);
        if (known == crtcs_.end() || known->second.nested || known->second.calibration != nullptr) {
            continue;
        }
        // What is kept to be sent would be overtaken.
        if (known->second.sender == nullptr || known->second.sender->isDone()) {
            questions_.askForRamp(id);
        }
    }
}

bool GnomeHardware::readRamp(std::uint32_t crtc, Ramp& ramp) {
    const auto found = crtcs_.find(crtc);
    if (found == crtcs_.end() || found->second.nested) {
        return false;
    }
    Crtc& known = found->second;
    if (const MonitorCalibration* calibration = held(known)) {
        const Ramp& written = calibration->written();
        const auto size = ramp.size();
        ramp = written.size() != 0 ? resampledRamp(written, size) : identityRamp(size);
        return true;
    }
    const bool isSent =
        known.sender == nullptr || questions_.waitUntil([&] { return known.sender->isDone(); });
    const auto answer = isSent ? questions_.takeRamp(crtc) : std::nullopt;
    if (!answer) {
        // What was there last is there still, as far as anybody knows.
        const bool isKnown = known.last.size() != 0;
        if (isKnown) {
            ramp = resampledRamp(known.last, ramp.size());
        }
        return isKnown;
    }
    if (!take(known, *answer)) {
        return false;
    }
    ramp = resampledRamp(known.last, ramp.size());
    return true;
}

/// The calibration, if the shell has not ended it.
MonitorCalibration* GnomeHardware::held(Crtc& crtc) {
    if (std::exchange(crtc.isLost, false)) {
        crtc.calibration.reset();
    }
    return crtc.calibration.get();
}

void GnomeHardware::expectWrite(std::uint32_t crtc) {
    if (const auto known = crtcs_.find(crtc); known != crtcs_.end()) {
        borrow(known->second);
    }
}

/// Sees to it that the monitor is lent; false where it is not to be had.
bool GnomeHardware::borrow(Crtc& crtc) {
    if (held(crtc) != nullptr) {
        return true;
    }
    const auto now = Clock::now();
    if (!shell_.lendsMonitors || crtc.isNotLent || crtc.nested || crtc.connector.empty() ||
        questions_.isSilent() || now < crtc.askAgain) {
        return false;
    }
    crtc.askAgain = now + kPauseWhenTaken;
    auto outcome = MonitorCalibration::take(*bus_, *shell_.names, crtc.connector,
                                            kCalibrationPatienceMs, [this, &crtc] { lose(crtc); });
    if (outcome.silent) {
        questions_.noteSilence();
        return false;
    }
    crtc.calibration = std::move(outcome.calibration);
    crtc.isNotLent = crtc.calibration == nullptr && !outcome.takenByAnother;
    setTaken(crtc, outcome.takenByAnother);
    if (crtc.calibration != nullptr) {
        setSize(crtc, crtc.calibration->rampSize());
    }
    return crtc.calibration != nullptr;
}

/// From the calibration itself, which therefore lives on for now.
void GnomeHardware::lose(Crtc& crtc) {
    if (crtc.calibration == nullptr || std::exchange(crtc.isLost, true)) {
        return;
    }
    const auto now = Clock::now();
    const bool wasShort = now - crtc.calibration->begin() < kShortCalibration;
    crtc.askAgain = wasShort ? now + kPauseWhenTaken : Clock::time_point();
    ++modes_;
    noteChange();
}

void GnomeHardware::setTaken(Crtc& crtc, bool taken) {
    if (std::exchange(crtc.isTaken, taken) != taken) {
        noteChange();
        if (taken) {
            logInfo(kLogDisplays, "Another program calibrates the display " + crtc.connector + '.');
        }
    }
}

bool GnomeHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    const auto found = crtcs_.find(crtc);
    if (found == crtcs_.end() || found->second.nested) {
        return false;
    }
    Crtc& known = found->second;
    if (shell_.lendsMonitors && ramp == known.system) {
        known.calibration.reset();
        known.askAgain = {};
        setTaken(known, false);
        if (!known.isNotLent) {
            return true;
        }
    }
    if (known.size && *known.size != ramp.size()) {
        return false;
    }
    if (borrow(known)) {
        const bool fits = known.calibration->rampSize() == ramp.size();
        if (fits) {
            known.calibration->write(ramp);
        }
        return fits;
    }
    if (shell_.lendsMonitors && !known.isNotLent) {
        return false;
    }
    writeDirectly(crtc, known, ramp);
    return true;
}

void GnomeHardware::writeDirectly(std::uint32_t id, Crtc& crtc, const Ramp& ramp) {
    if (guard_ != nullptr) {
        guard_->keep(id, crtc.system);
        guard_->willWrite(id, ramp);
    }
    if (crtc.sender == nullptr) {
        crtc.sender = std::make_unique<RampSender>(
            *bus_,
            [this, id](const Ramp& newest) {
                return writeRampCall(*bus_, *shell_.names, questions_.serial(), id, newest);
            },
            [this](sd_bus_message* answer) { return refused(answer); });
    }
    crtc.sender->send(ramp);
    crtc.last = ramp;
}

RampSender::Refusal GnomeHardware::refused(sd_bus_message* answer) {
    if (isStale(answer)) {
        questions_.askForResources();
        return RampSender::Refusal::tryAgainLater;
    }
    if (!std::exchange(refusalLogged_, true)) {
        const char* reason = sd_bus_message_get_error(answer)->message;
        logInfo(kLogDisplays, std::string(shell_.names->desktop) + " refuses a gamma ramp: " +
                                  (reason != nullptr ? reason : "it does not say why"));
    }
    return RampSender::Refusal::final;
}

void GnomeHardware::keepSystemRamp(std::uint32_t crtc, const Ramp& ramp) {
    Crtc& known = crtcs_[crtc];
    known.system = ramp;
    if (guard_ != nullptr && (!shell_.lendsMonitors || known.isNotLent)) {
        guard_->keep(crtc, ramp);
    }
}

void GnomeHardware::waitForWrites() {
    const bool done = questions_.waitUntil([this] {
        return std::all_of(crtcs_.begin(), crtcs_.end(), [](const auto& entry) {
            const Crtc& crtc = entry.second;
            return (crtc.sender == nullptr || crtc.sender->isDone()) &&
                   (crtc.calibration == nullptr || crtc.calibration->isDone());
        });
    });
    if (done && guard_ != nullptr) {
        guard_->allIsWritten();
    }
}

} // namespace nocturo
