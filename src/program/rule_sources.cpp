#include "program/rule_sources.h"

#include "automation/game_mode.h"
#include "automation/wlr/wlr_foreground.h"
#include "automation/x11/x_foreground.h"

#include <utility>

namespace nocturo {

RuleSources ruleSources(XConnection* server, const std::string& waylandDisplay, const Bus* bus,
                        RunLoop& runLoop) {
    RuleSources sources;
    sources.foreground = [server, waylandDisplay,
                          &runLoop](bool filling,
                                    std::function<void()> changed) -> std::unique_ptr<Foreground> {
        if (!waylandDisplay.empty()) {
            return WlrForeground::open(waylandDisplay, runLoop, std::move(changed));
        }
        if (server == nullptr) {
            return nullptr;
        }
        return std::make_unique<XForeground>(*server, runLoop, filling, std::move(changed));
    };
    sources.games = [bus](std::function<void()> changed) -> std::unique_ptr<Games> {
        return bus != nullptr ? std::make_unique<GameMode>(*bus, std::move(changed)) : nullptr;
    };
    return sources;
}

} // namespace nocturo
