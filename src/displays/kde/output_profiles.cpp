// KWin keeps an output's profile until somebody sets another one, beyond its own end. So an
// effect's profile must never be taken for the user's: those that were made here are known by their
// names, and what an output had before the first of them is in the journal for as long as it is to
// be put back.
//
// KWin answers a configuration late, and `applied` does not say that anything was taken. What a
// device itself tells as its profile decides. While a configuration is under way devices may tell
// half of it, so they are looked at when it has ended.

#include "displays/kde/output_profiles.h"

#include "base/files.h"
#include "base/log.h"
#include "displays/kde/curve_profile.h"
#include "wayland/wayland_connection.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <random>
#include <system_error>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr const char* kGuard = "nocturo-profile-guard";
constexpr auto kPatienceAtStart = 1000ms;
// What was refused is asked for again no more often than this.
constexpr auto kPause = 30s;

std::string randomRun() {
    std::random_device random;
    return std::to_string(getpid()) + '-' +
           std::to_string(std::uint64_t{random()} << 32U | random());
}

} // namespace

struct OutputProfiles::Output {
    ProfileSetting own; // the user's
    OwnProfile profile; // what it makes the output show
    bool isKnown = false;

    Ramp wanted;          // empty while the user's own is
    bool isDue = false;   // not asked for yet
    ProfileSetting asked; // for last
    Ramp sent;            // the calibration of the effect's profile that was asked for last
    unsigned turn = 0;    // which file is next

    bool isRefused = false;
    std::chrono::steady_clock::time_point refused{};
};

OutputProfiles::OutputProfiles(WaylandConnection& compositor, KdePlaces places, RunLoop& runLoop)
    : compositor_(compositor), places_(std::move(places)), runLoop_(runLoop),
      journal_(places_.state), run_(randomRun()),
      guards_(guardProgram(kGuard), {"--guard", places_.waylandDisplay, places_.state, run_},
              runLoop, [this] { return !journal_.isEmpty() && !compositor_.isLost(); }),
      devices_(compositor), configurations_(compositor) {
    // First the devices are announced, then described.
    compositor_.sync(kPatienceAtStart);
    compositor_.waitUntil([this] { return devices_.areDescribed(); }, kPatienceAtStart);
    devices_.setChangeHandler([this] { lookAtDevices(); });
    lookAtDevices();
}

OutputProfiles::~OutputProfiles() = default;

OutputProfiles::Output& OutputProfiles::outputOf(const OutputDevice& device) {
    return outputs_[device.key()];
}

OutputProfiles::Output* OutputProfiles::known(const std::string& connector) {
    const OutputDevice* device = devices_.named(connector);
    if (device == nullptr) {
        return nullptr;
    }
    Output& output = outputOf(*device);
    if (!output.isKnown) {
        lookAt(*device, output);
    }
    return &output;
}

void OutputProfiles::lookAtDevices() {
    if (configurations_.isUnderWay()) {
        return;
    }
    const std::vector<const OutputDevice*> devices = devices_.all();
    // What comes back has the effect's profile still, and is wanted to have it or not by then.
    std::erase_if(outputs_, [&](const auto& output) {
        return std::none_of(devices.begin(), devices.end(), [&](const OutputDevice* device) {
            return device->key() == output.first;
        });
    });
    for (const OutputDevice* device : devices) {
        lookAt(*device, outputOf(*device));
    }
}

void OutputProfiles::lookAt(const OutputDevice& device, Output& output) {
    if (!isEffectProfile(device.setting.path)) {
        if (!output.isKnown || output.own != device.setting) {
            takeOwn(device, output, device.setting);
        }
        return;
    }
    if (!output.isKnown) {
        // An earlier run left it so.
        const ProfileSetting* own = journal_.find(device.key());
        takeOwn(device, output, own != nullptr ? *own : ProfileSetting{});
    } else if (device.setting.source != ColorSource::profile) {
        if (output.own.source != device.setting.source) { // the user chose another
            takeOwn(device, output, {output.own.path, device.setting.source});
        }
    } else if (output.isRefused && shows(device, output)) {
        setRefused(output, false); // it was only late
    }
    if (output.wanted.size() == 0 && !output.isRefused) {
        output.isDue = true;
        soon();
    }
}

void OutputProfiles::takeOwn(const OutputDevice& device, Output& output,
                             const ProfileSetting& own) {
    output.own = own;
    output.profile = ownProfiles_.read(own, device);
    output.isKnown = true;
    ++calibrationGeneration_;
    if (output.wanted.size() != 0 && journal_.find(device.key()) != nullptr) {
        protect(device.key(), output);
    } else if (!isEffectProfile(device.setting.path)) {
        journal_.forget(device.key()); // of an earlier run, and put back by somebody else
    }
}

bool OutputProfiles::shows(const OutputDevice& device, const Output& output) const {
    return output.sent.size() != 0 && device.setting == output.asked;
}

const Ramp& OutputProfiles::ramp(const std::string& connector) {
    static const Ramp kNone = identityRamp(kCalibrationSize);
    Output* output = known(connector);
    if (output == nullptr) {
        return kNone;
    }
    const bool isOn = output->wanted.size() != 0 &&
                      (output->isDue || output->isRefused || configurations_.isUnderWay() ||
                       shows(*devices_.named(connector), *output));
    return isOn ? output->wanted : output->profile.calibration;
}

const Ramp& OutputProfiles::calibration(const std::string& connector) {
    static const Ramp kNone = identityRamp(kCalibrationSize);
    const Output* output = known(connector);
    return output != nullptr ? output->profile.calibration : kNone;
}

Obstacle OutputProfiles::obstacle(const std::string& connector) const {
    const OutputDevice* device = devices_.named(connector);
    if (device == nullptr || !device->takesProfiles) {
        return Obstacle::takesNoProfile;
    }
    if (device->highDynamicRange) {
        return Obstacle::highDynamicRange;
    }
    const auto output = outputs_.find(device->key());
    return output != outputs_.end() && output->second.isRefused ? Obstacle::refused
                                                                : Obstacle::none;
}

void OutputProfiles::show(const std::string& connector, const Ramp& ramp) {
    Output* output = known(connector);
    if (output == nullptr) {
        return;
    }
    output->wanted = ramp;
    if (output->isRefused && std::chrono::steady_clock::now() < output->refused + kPause) {
        return;
    }
    output->isDue = true;
    soon();
}

void OutputProfiles::giveBack(const std::string& connector) {
    Output* output = known(connector);
    if (output == nullptr) {
        return;
    }
    output->wanted = {};
    output->isDue = true;
    setRefused(*output, false);
    soon();
}

void OutputProfiles::setRefused(Output& output, bool refused) {
    if (std::exchange(output.isRefused, refused) != refused) {
        ++ownGeneration_;
    }
    output.refused = std::chrono::steady_clock::now();
}

void OutputProfiles::waitUntilDone(std::chrono::milliseconds patience) {
    step();
    compositor_.waitUntil([this] { return !configurations_.isUnderWay(); }, patience);
}

/// What is asked for at the same time goes into one configuration.
void OutputProfiles::soon() {
    if (soon_ == nullptr && !configurations_.isUnderWay()) {
        soon_ = runLoop_.scheduleTimer(0ms, [this] { step(); });
    }
}

void OutputProfiles::step() {
    soon_.reset();
    if (configurations_.isUnderWay() || compositor_.isLost() || compositor_.isFull()) {
        return;
    }
    std::vector<ProfileConfigurations::Change> changes;
    std::vector<std::string> keys;
    for (const OutputDevice* device : devices_.all()) {
        Output& output = outputOf(*device);
        if (output.isDue && device->takesProfiles && (changes.empty() || !oneByOne_)) {
            output.isDue = false;
            if (prepare(*device, output)) {
                changes.push_back({device, output.asked});
                keys.push_back(device->key());
            }
        }
    }
    if (!changes.empty()) {
        configurations_.apply(changes, [this, keys = std::move(keys)](const Result<void>& result) {
            ended(keys, result);
        });
    } else {
        oneByOne_ = false;
    }
}

/// Sets what is to be asked for; false when there is nothing to ask for.
bool OutputProfiles::prepare(const OutputDevice& device, Output& output) {
    if (output.wanted.size() == 0) {
        output.asked = output.own;
        if (isEffectProfile(device.setting.path)) {
            return true;
        }
        gaveBack(device, output);
        return false;
    }
    if (output.sent == output.wanted && shows(device, output)) {
        return false;
    }
    const auto bytes = profileWithCurve(output.profile.bytes, output.wanted);
    if (!bytes) {
        effectRefused(device, output, bytes.error().text);
        return false;
    }
    protect(device.key(), output);
    const auto file = places_.profiles / effectProfileName(device.name, output.turn++);
    const std::string_view content(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    if (const auto written =
            replaceFile(file, content, S_IRUSR | S_IWUSR, Durability::lastsWhileTheSystemRuns);
        !written) {
        effectRefused(device, output,
                      file.string() + " cannot be written: " + written.error().text);
        return false;
    }
    output.sent = output.wanted;
    output.asked = {file, ColorSource::profile};
    return true;
}

/// Sees to it that somebody puts the output's own profile back whatever happens here.
void OutputProfiles::protect(const std::string& key, const Output& output) {
    journal_.setRun(run_);
    const Result<void> kept = journal_.keep(key, output.own);
    if (!kept && !std::exchange(journalFailureLogged_, true)) {
        logWarning(kLogDisplays, "The color profiles of the displays cannot be kept in " +
                                     places_.state.string() + " (" + kept.error().text +
                                     "): if Nocturo is killed, the displays get none.");
    }
    guards_.start();
}

void OutputProfiles::ended(const std::vector<std::string>& keys, const Result<void>& result) {
    const auto isConcerned = [&](const OutputDevice& device) {
        return std::find(keys.begin(), keys.end(), device.key()) != keys.end();
    };
    const bool isUnclear = !result && keys.size() > 1; // who of them was refused
    oneByOne_ = oneByOne_ || isUnclear;
    for (const OutputDevice* device : devices_.all()) {
        Output& output = outputOf(*device);
        if (!isConcerned(*device)) {
            continue;
        }
        if (isUnclear) {
            output.isDue = true;
            output.sent = {};
        } else {
            judge(*device, output, result);
        }
    }
    lookAtDevices();
    step();
}

void OutputProfiles::judge(const OutputDevice& device, Output& output, const Result<void>& result) {
    if (result && device.setting.path == output.asked.path) {
        setRefused(output, false);
        if (!isEffectProfile(output.asked.path)) {
            gaveBack(device, output);
        }
        return;
    }
    const std::string reason = result ? "the profile is not taken" : result.error().text;
    if (!isEffectProfile(output.asked.path)) {
        ownRefused(device, output, reason);
    } else if (output.profile.isUsers) {
        output.profile.bytes = ownProfiles_.refuse(output.own, device, reason).bytes;
        output.profile.isUsers = false;
        output.sent = {};
        output.isDue = true;
    } else {
        effectRefused(device, output, reason);
    }
}

void OutputProfiles::gaveBack(const OutputDevice& device, Output& output) {
    output.sent = {};
    if (output.wanted.size() != 0) {
        return; // until the next profile, which is due
    }
    journal_.forget(device.key());
    for (const unsigned turn : {0U, 1U}) {
        std::error_code ignored;
        std::filesystem::remove(places_.profiles / effectProfileName(device.name, turn), ignored);
    }
}

void OutputProfiles::effectRefused(const OutputDevice& device, Output& output,
                                   const std::string& reason) {
    output.sent = {};
    setRefused(output, true);
    logWarning(kLogDisplays, "No effect can be shown on " + device.name + ": " + reason + ".");
}

void OutputProfiles::ownRefused(const OutputDevice& device, Output& output,
                                const std::string& reason) {
    const bool isFirst = !output.own.path.empty();
    logWarning(kLogDisplays, "The desktop does not take the color profile of " + device.name +
                                 (isFirst ? ", " + output.own.path + "," : std::string()) +
                                 " back: " + reason + ".");
    if (isFirst) {
        const ColorSource source = output.own.source;
        output.own = {"", source == ColorSource::profile ? ColorSource::sRgb : source};
        output.isDue = true;
    } else {
        setRefused(output, true);
    }
}

} // namespace nocturo
