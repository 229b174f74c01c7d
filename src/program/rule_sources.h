#pragma once

#include "automation/foreground.h"

#include <string>

namespace nocturo {

class Bus;
class RunLoop;
class XConnection;

/// Where the rules of this session hear of windows and games. In a Wayland session, which the
/// display's name tells, the X server knows only some of the windows. `server` and `bus` may be
/// null; all must outlive what is made.
RuleSources ruleSources(XConnection* server, const std::string& waylandDisplay, const Bus* bus,
                        RunLoop& runLoop);

} // namespace nocturo
