#pragma once

#include "base/result.h"
#include "displays/display_services.h"
#include "displays/simulated/draw_picture.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo {

class RunLoop;

/// Which display services the user wants.
struct DisplayChoice {
    enum class Kind { automatic, randr, wlr, simulated };

    Kind kind = Kind::automatic;
    unsigned simulatedCount = 2;
};

/// Reads "auto", "randr", "wlr", "simulated" or "simulated:N" with N from 1 to 16; nothing for all else.
std::optional<DisplayChoice> parseDisplayChoice(std::string_view text);

/// What the factory takes from the process's surroundings.
struct DisplaySurroundings {
    std::string xDisplay;       // $DISPLAY; empty when not set
    std::string waylandDisplay; // $WAYLAND_DISPLAY; empty when not set
    std::string desktop;        // $XDG_CURRENT_DESKTOP; empty when not set
    std::filesystem::path runtimeDirectory;
    std::string systemBusAddress;
    DrawPicture drawPicture; // of simulated displays
};

/// Display services with their place in an event loop.
struct OpenedDisplays {
    std::unique_ptr<DisplayServices> services;
    std::string notice; // one sentence for a user who may want it; may be empty

    std::vector<int> eventDescriptors;    // none when nothing ever comes from outside
    std::function<void()> processEvents;  // to be called when one of them is readable
    std::function<bool()> connectionLost; // true once the server has gone: nothing works any more

    int guardEndDescriptor = -1;           // -1 where the displays need no guard
    std::function<void()> processGuardEnd; // to be called when that descriptor is readable
};

/// Opens what was chosen, and logs it; the problem is a sentence for the user. The run loop must
/// outlive what is opened.
Result<OpenedDisplays> openDisplays(const DisplayChoice& choice,
                                    const DisplaySurroundings& surroundings, RunLoop& runLoop);

} // namespace nocturo
