#include "app/flux_check.h"

#include "app/desktop_face.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <utility>

namespace nocturo {

namespace {

constexpr std::string_view kFluxIdentifier = "org.herf.Flux";
constexpr const char* kOwnName = "Nocturo";

Alert fluxWarning(const InstalledApplication& flux) {
    Alert alert;
    alert.table = "ZQFluxCheck";
    alert.title = "%@ is present on this computer.";
    alert.titleArguments = {flux.displayName};
    alert.message = "[%1$@ installed, might interfer %2$@.]";
    alert.messageArguments = {kOwnName, flux.displayName};
    alert.defaultButton = "Continue";
    alert.alternateButton = "Quit";
    alert.closed = AlertAnswer::defaultButton;
    alert.critical = true;
    alert.icon = flux.icon;
    return alert;
}

} // namespace

void NDCheckForFlux(DefaultsStore& defaults, const InstalledApplications& applications,
                    DesktopFace& desktop, std::function<void(bool goOn)> checked) {
    const auto flux = defaults.boolForKey(kFluxWarned)
                          ? std::nullopt
                          : applications.applicationWithBundleIdentifier(kFluxIdentifier);
    if (!flux) {
        checked(true);
        return;
    }
    NDShowFluxWarning(*flux, desktop,
                      [&defaults, checked = std::move(checked)](AlertAnswer answer) {
                          if (answer == AlertAnswer::defaultButton) {
                              defaults.setBool(true, kFluxWarned);
                              defaults.synchronize();
                          }
                          checked(answer != AlertAnswer::alternateButton);
                      });
}

void NDShowFluxWarning(const InstalledApplication& flux, DesktopFace& desktop,
                       std::function<void(AlertAnswer answer)> answered) {
    desktop.showAlert(fluxWarning(flux), std::move(answered));
}

} // namespace nocturo
