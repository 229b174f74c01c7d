#pragma once

#include "app/menu.h"
#include "base/bus.h"
#include "base/run_loop.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace nocturo {

/// Shows a menu on the bus (com.canonical.dbusmenu), for a panel or a dock to show as its own.
/// Items have the numbers that they have in the menu. Main thread only.
class MenuExporter {
  public:
    /// All must outlive the exporter.
    MenuExporter(Menu& menu, const Bus& bus, RunLoop& runLoop, std::string path);
    ~MenuExporter();
    MenuExporter(const MenuExporter&) = delete;
    MenuExporter& operator=(const MenuExporter&) = delete;

  private:
    struct Table;

    void menuDidChange();
    void tellLayout();

    int getLayout(sd_bus_message* call, sd_bus_error* error);
    int getGroupProperties(sd_bus_message* call, sd_bus_error* error);
    int getProperty(sd_bus_message* call, sd_bus_error* error);
    int event(sd_bus_message* call, sd_bus_error* error);
    int eventGroup(sd_bus_message* call, sd_bus_error* error);
    int aboutToShow(sd_bus_message* call, sd_bus_error* error);
    int aboutToShowGroup(sd_bus_message* call, sd_bus_error* error);

    Menu& menu_;
    const Bus& bus_;
    RunLoop& runLoop_;
    std::string path_;
    std::uint32_t revision_ = 1;
    std::unique_ptr<Timer> change_; // that is not told yet
    std::unique_ptr<BusSlot> object_;
};

} // namespace nocturo
