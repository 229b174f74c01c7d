#include "bus/launcher_menu.h"

namespace nocturo {

namespace {

constexpr const char* kLauncherMenuPath = "/org/nocturo/Nocturo/LauncherMenu";
constexpr const char* kEntryPath = "/org/nocturo/Nocturo";
constexpr const char* kEntryInterface = "com.canonical.Unity.LauncherEntry";
constexpr const char* kApplication = "application://org.nocturo.Nocturo.desktop";
constexpr const char* kDock = "com.canonical.Unity";

} // namespace

// Docks that do not own the name hear the announcement as well, so it is made in any case.
LauncherMenu::LauncherMenu(Menu& menu, const Bus& bus, RunLoop& runLoop)
    : bus_(bus), exporter_(menu, bus, runLoop, kLauncherMenuPath),
      docks_(bus.followOwner(kDock, [this](const std::string& /*owner*/) { announce(); })) {}

void LauncherMenu::announce() const {
    sd_bus_emit_signal(bus_.handle(), kEntryPath, kEntryInterface, "Update", "sa{sv}", kApplication,
                       1, "quicklist", "s", kLauncherMenuPath);
}

} // namespace nocturo
