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

namespace nocturo {

class Bus;
class EventLoop;
class Fades;
class XConnection;

/// Which display services the user wants.
struct DisplayChoice {
    enum class Kind { automatic, randr, wlr, gnome, kde, simulated };

    Kind kind = Kind::automatic;
    unsigned simulatedCount = 2;
};

/// Reads "auto", "randr", "wlr", "gnome", "kde", "simulated" or "simulated:N" with N from 1 to 16;
/// nothing for all else.
std::optional<DisplayChoice> parseDisplayChoice(std::string_view text);

/// What the factory takes from the process's surroundings; all of it outlives what is opened.
struct DisplaySurroundings {
    std::string xDisplay;                   // $DISPLAY; empty when not set
    XConnection* xServer = nullptr;         // null when it cannot be reached
    std::string waylandDisplay;             // $WAYLAND_DISPLAY; empty when not set
    std::string desktop;                    // $XDG_CURRENT_DESKTOP; empty when not set
    std::filesystem::path runtimeDirectory; // empty where there is none that can be used
    std::filesystem::path stateDirectory;   // need not exist
    std::string sessionBus;                 // its address; empty when there is none
    Bus* systemBus = nullptr;               // null when there is none
    DrawPicture drawPicture;                // of simulated displays
    std::function<void()> lost; // called when the displays' server has gone: nothing works any more
    std::function<void()> letGo; // called when somebody asks for the displays over their server
    Fades* fades = nullptr;      // null where nothing fades
};

struct OpenedDisplays {
    std::unique_ptr<DisplayServices> services;
    std::string notice;                    // one sentence for a user who may want it; may be empty
    bool restoredByHand = false;           // somebody had them given back, and no start since
    std::shared_ptr<const void> listening; // keeps them in the event loop
};

/// Opens what was chosen, and logs it; the problem is a sentence for the user. The loop must
/// outlive what is opened.
Result<OpenedDisplays> openDisplays(const DisplayChoice& choice,
                                    const DisplaySurroundings& surroundings, EventLoop& loop);

} // namespace nocturo
