#include "displays/display_factory.h"

#include "base/log.h"
#include "base/texts/translated.h"
#include "displays/calibration/profile_calibrations.h"
#include "displays/guard/display_repair.h"
#include "displays/guard/guarded_hardware.h"
#include "displays/guard/journal.h"
#include "displays/ramp_display_services.h"
#include "displays/simulated/simulated_hardware.h"
#include "displays/x11/opening_problem.h"
#include "displays/x11/randr_hardware.h"

#include <charconv>
#include <utility>

namespace nocturo {

namespace {

tl::unexpected<Problem> failedForNow(const std::string& problem) {
    return failed(problem + ' ' +
                  translated("To see what the effects do, start it with "
                             "--display-services=simulated."));
}

Result<OpenedDisplays> openRandr(const DisplaySurroundings& surroundings, RunLoop& runLoop) {
    const std::string& xDisplay = surroundings.xDisplay;
    if (xDisplay.empty()) {
        return failedForNow(
            translated("There is no X server to work with, because DISPLAY is not set."));
    }
    auto randr = RandrHardware::open(xDisplay);
    if (!randr) {
        return failedForNow(openingProblem(randr.error(), xDisplay));
    }
    // Before anything is captured, so that no effect is ever taken for a display's own colours.
    const auto journal = journalFile(surroundings.runtimeDirectory, xDisplay);
    auto profiles = std::make_unique<ProfileCalibrations>(xDisplay, surroundings.systemBusAddress);
    if (repairDisplays(**randr, journal, *profiles) == Repair::inUse) {
        return failed(
            translated("Another Nocturo drives the displays of the X server %@.", {xDisplay}));
    }
    auto guarded = std::make_unique<GuardedHardware>(std::move(*randr), xDisplay, journal);
    OpenedDisplays opened;
    GuardedHardware* hardware = guarded.get(); // lives as long as the services
    opened.eventDescriptors = profiles->descriptors();
    opened.eventDescriptors.push_back(hardware->displays().descriptor());
    auto services =
        std::make_unique<RampDisplayServices>(std::move(guarded), std::move(profiles), &runLoop);
    opened.processEvents = [displays = services.get()] { displays->lookForChanges(); };
    opened.connectionLost = [hardware] { return hardware->displays().connectionLost(); };
    opened.guardEndDescriptor = hardware->guardEndDescriptor();
    opened.processGuardEnd = [hardware] { hardware->processGuardEnd(); };
    opened.services = std::move(services);
    logInfo(kLogDisplays, "Displays are those of the X server " + xDisplay + ".");
    return opened;
}

OpenedDisplays openSimulated(unsigned count, const DisplaySurroundings& surroundings) {
    const std::filesystem::path& pictureDirectory = surroundings.runtimeDirectory;
    OpenedDisplays opened;
    opened.services = std::make_unique<RampDisplayServices>(
        std::make_unique<SimulatedHardware>(count, pictureDirectory, surroundings.drawPicture));
    opened.notice = translated("Displays are simulated; their pictures are in %@.",
                               {pictureDirectory.string()});
    return opened;
}

} // namespace

std::optional<DisplayChoice> parseDisplayChoice(std::string_view text) {
    using Kind = DisplayChoice::Kind;
    constexpr std::string_view kSimulated = "simulated";
    if (text == "auto") {
        return DisplayChoice{Kind::automatic};
    }
    if (text == "randr") {
        return DisplayChoice{Kind::randr};
    }
    if (!text.starts_with(kSimulated)) {
        return std::nullopt;
    }
    DisplayChoice choice{Kind::simulated};
    text.remove_prefix(kSimulated.size());
    if (text.empty()) {
        return choice;
    }
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data() + 1, end, choice.simulatedCount);
    const bool isNumber = text.front() == ':' && error == std::errc() && rest == end;
    if (!isNumber || choice.simulatedCount < 1 || choice.simulatedCount > kMaxSimulatedHeads) {
        return std::nullopt;
    }
    return choice;
}

Result<OpenedDisplays> openDisplays(const DisplayChoice& choice,
                                    const DisplaySurroundings& surroundings, RunLoop& runLoop) {
    if (choice.kind == DisplayChoice::Kind::simulated) {
        return openSimulated(choice.simulatedCount, surroundings);
    }
    // X servers are all there is to find so far, so "auto" looks where "randr" does.
    return openRandr(surroundings, runLoop);
}

} // namespace nocturo
