#pragma once

#include "base/run_loop.h"
#include "displays/display_services.h"
#include "displays/guard/guards.h"
#include "displays/kde/own_profile.h"
#include "displays/kde/profile_configurations.h"
#include "displays/kde/profile_journal.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

/// Where what a KWin is driven with has its place.
struct KdePlaces {
    std::string waylandDisplay;     // as in $WAYLAND_DISPLAY, for the guard
    std::filesystem::path profiles; // directory of the effect's profiles, such as the runtime one
    std::filesystem::path state;    // directory of the journal
};

/// Ramps on a KWin's outputs, as calibrations in colour profiles made for them.
///
/// What is asked for is done from the event loop, several outputs together and one configuration at
/// a time; what is asked for meanwhile replaces what was asked for before. Before an output first
/// gets a profile of ours its own is in the journal, and guards run that put it back. Outputs that
/// an earlier run left with an effect get their own back at once.
class OutputProfiles {
  public:
    /// Both must outlive this. The compositor offers OutputDevices.
    OutputProfiles(WaylandConnection& compositor, KdePlaces places, RunLoop& runLoop);

    /// Ends the guards, which give back what was not given back until now.
    ~OutputProfiles();

    /// The device of a connector; null when there is none.
    const OutputDevice* device(const std::string& connector) const {
        return devices_.named(connector);
    }

    /// What the output shows, or is about to show. Of kCalibrationSize entries, as all ramps here.
    const Ramp& ramp(const std::string& connector);

    /// What it shows by its user's setting.
    const Ramp& calibration(const std::string& connector);

    /// Has it show a ramp. One that KWin refused lately is not asked for again.
    void show(const std::string& connector, const Ramp& ramp);

    /// Has it have its own profile again.
    void giveBack(const std::string& connector);

    Obstacle obstacle(const std::string& connector) const;

    /// Returns once all is as it was asked for; not for longer than `patience`.
    void waitUntilDone(std::chrono::milliseconds patience);

    /// Another number whenever devices, or what obstacle() says of one, may be others.
    std::uint64_t generation() const { return devices_.generation() + ownGeneration_; }

    /// Another number whenever a calibration may be another.
    std::uint64_t calibrationGeneration() const { return calibrationGeneration_; }

  private:
    struct Output;

    Output* known(const std::string& connector);
    Output& outputOf(const OutputDevice& device);
    void lookAtDevices();
    void lookAt(const OutputDevice& device, Output& output);
    void takeOwn(const OutputDevice& device, Output& output, const ProfileSetting& own);
    bool shows(const OutputDevice& device, const Output& output) const;
    void soon();
    void step();
    bool prepare(const OutputDevice& device, Output& output);
    void protect(const std::string& key, const Output& output);
    void ended(const std::vector<std::string>& keys, const Result<void>& result);
    void judge(const OutputDevice& device, Output& output, const Result<void>& result);
    void gaveBack(const OutputDevice& device, Output& output);
    void effectRefused(const OutputDevice& device, Output& output, const std::string& reason);
    void ownRefused(const OutputDevice& device, Output& output, const std::string& reason);
    void setRefused(Output& output, bool refused);

    WaylandConnection& compositor_;
    KdePlaces places_;
    RunLoop& runLoop_;
    ProfileJournal journal_;
    std::string run_;
    Guards guards_;
    OutputDevices devices_;
    ProfileConfigurations configurations_;
    OwnProfiles ownProfiles_;
    std::map<std::string, Output> outputs_; // by key, every one seen so far
    bool oneByOne_ = false;                 // after a configuration of several was refused
    std::unique_ptr<Timer> soon_;
    std::uint64_t ownGeneration_ = 1;
    std::uint64_t calibrationGeneration_ = 1;
    bool journalFailureLogged_ = false;
};

} // namespace nocturo
