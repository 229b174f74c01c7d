#include "session/disturber_finder.h"

#include "session/running_programs.h"

#include <array>
#include <string_view>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kNightLight = "org.gnome.SettingsDaemon.Color";

} // namespace

void DisturberFinder::find(std::function<void(const std::string& name)> answer) {
    constexpr std::array<std::string_view, 3> programs = {"redshift", "gammastep", "wlsunset"};
    const std::string program = runningProgram(programs);
    if (!program.empty() || bus_ == nullptr) {
        answer(program);
        return;
    }
    const BusMessage call = bus_->newCall(kNightLight, "/org/gnome/SettingsDaemon/Color",
                                          "org.freedesktop.DBus.Properties", "Get");
    sd_bus_message_append(call.get(), "ss", kNightLight, "NightLightActive");
    question_ = bus_->call(call, [answer = std::move(answer)](sd_bus_message* reply) {
        int active = 0;
        answer(sd_bus_message_read(reply, "v", "b", &active) > 0 && active != 0 ? "Night Light"
                                                                                : "");
    });
}

} // namespace nocturo
