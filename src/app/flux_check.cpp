#include "app/flux_check.h"

#include "app/desktop_face.h"
#include "settings/defaults_store.h"

namespace nocturo {

namespace {

constexpr std::string_view kFluxWarned = "ZQFluxWarned";
constexpr std::string_view kFluxIdentifier = "org.herf.Flux";
constexpr const char* kOwnName = "Nocturo";

} // namespace

FluxCheck NDCheckForFlux(DefaultsStore& defaults, const InstalledApplications& applications,
                         DesktopFace& desktop) {
    if (defaults.boolForKey(kFluxWarned)) {
        return FluxCheck::nothingShown;
    }
    const auto flux = applications.applicationWithBundleIdentifier(kFluxIdentifier);
    if (!flux) {
        return FluxCheck::nothingShown;
    }
    if (!NDShowFluxWarning(*flux, desktop)) {
        return FluxCheck::quit;
    }
    defaults.setBool(true, kFluxWarned);
    defaults.synchronize();
    return FluxCheck::continued;
}

bool NDShowFluxWarning(const InstalledApplication& flux, DesktopFace& desktop) {
    Alert alert;
    alert.table = "ZQFluxCheck";
    alert.title = "%@ is present on this computer.";
    alert.titleArguments = {flux.displayName};
    alert.message = "[%1$@ installed, might interfer %2$@.]";
    alert.messageArguments = {kOwnName, flux.displayName};
    alert.defaultButton = "Continue";
    alert.alternateButton = "Quit";
    alert.harmless = AlertAnswer::defaultButton;
    alert.critical = true;
    alert.icon = flux.icon;
    return desktop.runAlert(alert) == AlertAnswer::defaultButton;
}

} // namespace nocturo
