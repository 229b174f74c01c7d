#include "displays/display_names.h"

#include "displays/edid.h"

namespace nocturo {

namespace {

constexpr const char* kMakers = "/usr/share/hwdata/pnp.ids";

} // namespace

DisplayNames& DisplayNames::shared() {
    static DisplayNames names;
    return names;
}

// Reading what makers are called would hold up the first effect.
void DisplayNames::note(CGDirectDisplayID display, const std::string& connector,
                        const std::vector<std::uint8_t>& edid) {
    Monitor& monitor = monitors_[display];
    if (monitor.edid != edid) {
        monitor = {{}, edid, {}, false};
    }
    monitor.connector = connector;
}

void DisplayNames::learn(CGDirectDisplayID display, const std::string& name) {
    monitors_.try_emplace(display, Monitor{name, {}, {}, true});
}

std::string DisplayNames::monitorOf(CGDirectDisplayID display) {
    const auto found = monitors_.find(display);
    if (found == monitors_.end()) {
        return {};
    }
    Monitor& monitor = found->second;
    if (!monitor.isNamed) {
        monitor.name = monitorName(monitor.edid, kMakers);
        monitor.isNamed = true;
    }
    return monitor.name;
}

std::string DisplayNames::nameOf(CGDirectDisplayID display) {
    std::string monitor = monitorOf(display);
    const auto found = monitors_.find(display);
    return monitor.empty() && found != monitors_.end() ? found->second.connector : monitor;
}

std::vector<CGDirectDisplayID> DisplayNames::known() const {
    std::vector<CGDirectDisplayID> displays;
    for (const auto& [display, monitor] : monitors_) {
        displays.push_back(display);
    }
    return displays;
}

} // namespace nocturo
