#pragma once

#include "session/installed_applications.h"

namespace nocturo {

class DefaultsStore;
class DesktopFace;

enum class FluxCheck { nothingShown, continued, quit };

/// Warns that f.lux, which writes ramps too, is installed, unless the user has gone on in spite of
/// the warning before; that is kept at once.
FluxCheck NDCheckForFlux(DefaultsStore& defaults, const InstalledApplications& applications,
                         DesktopFace& desktop);

/// Shows the warning; false when the user wants to quit.
bool NDShowFluxWarning(const InstalledApplication& flux, DesktopFace& desktop);

} // namespace nocturo
