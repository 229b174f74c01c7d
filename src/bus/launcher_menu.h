#pragma once

#include "bus/menu_exporter.h"

namespace nocturo {

/// The menu of the application's icon in a dock, for docks that take one from a running application
/// (com.canonical.Unity.LauncherEntry). Main thread only.
class LauncherMenu {
  public:
    /// All must outlive the launcher's menu. Offers it, now and to every dock that starts later.
    LauncherMenu(Menu& menu, const Bus& bus, RunLoop& runLoop);

  private:
    void announce() const;

    const Bus& bus_;
    MenuExporter exporter_;
    std::unique_ptr<BusSlot> docks_;
};

} // namespace nocturo
