#pragma once

#include "app/desktop_face.h"
#include "session/installed_applications.h"

#include <functional>

namespace nocturo {

class DefaultsStore;

/// Warns that f.lux, which writes ramps too, is installed, unless the user has gone on in spite of
/// the warning before; that is kept at once. A warning that nobody could see does not count.
/// `checked` is called once, at once where nothing is shown; false means that the user would rather
/// quit. The store must outlive the question.
void NDCheckForFlux(DefaultsStore& defaults, const InstalledApplications& applications,
                    DesktopFace& desktop, std::function<void(bool goOn)> checked);

/// Shows the warning.
void NDShowFluxWarning(const InstalledApplication& flux, DesktopFace& desktop,
                       std::function<void(AlertAnswer answer)> answered);

} // namespace nocturo
