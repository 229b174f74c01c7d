#include "session/bus_screen_savers.h"

#include "session/screen_saver_state.h"

#include <array>

namespace nocturo {

// Each service's interface has the service's name; the paths are where it takes calls. KDE signals
// from both of its paths.
struct BusScreenSavers::Saver {
    const char* service;
    std::array<const char*, 2> paths;
};

BusScreenSavers::BusScreenSavers(const Bus& bus, ScreenSaverState& state)
    : bus_(bus), state_(state) {
    static constexpr std::array kSavers = {
        Saver{"org.freedesktop.ScreenSaver", {"/org/freedesktop/ScreenSaver", "/ScreenSaver"}},
        Saver{"org.gnome.ScreenSaver", {"/org/gnome/ScreenSaver", nullptr}},
        Saver{"org.mate.ScreenSaver", {"/org/mate/ScreenSaver", nullptr}},
        Saver{"org.cinnamon.ScreenSaver", {"/org/cinnamon/ScreenSaver", nullptr}},
        Saver{"org.xfce.ScreenSaver", {"/org/xfce/ScreenSaver", nullptr}},
    };
    for (const Saver& saver : kSavers) {
        follow(saver, followed_.emplace_back());
    }
}

void BusScreenSavers::follow(const Saver& saver, Followed& followed) {
    followed.changes = bus_.onSignal(saver.service, nullptr, saver.service, "ActiveChanged",
                                     [this, service = saver.service](sd_bus_message* signal) {
                                         int active = 0;
                                         if (sd_bus_message_read(signal, "b", &active) > 0) {
                                             state_.setActive(service, active != 0);
                                         }
                                     });
    followed.owner =
        bus_.followOwner(saver.service, [this, &saver, &followed](const std::string& owner) {
            followed.questions.clear(); // what a former owner would answer counts no more
            state_.forget(saver.service);
            if (!owner.empty()) {
                askForState(saver, followed);
            }
        });
}

void BusScreenSavers::askForState(const Saver& saver, Followed& followed) {
    for (const char* path : saver.paths) {
        if (path == nullptr) {
            continue;
        }
        followed.questions.push_back(
            bus_.call(bus_.newCall(saver.service, path, saver.service, "GetActive"),
                      [this, service = saver.service](sd_bus_message* answer) {
                          int active = 0;
                          if (sd_bus_message_read(answer, "b", &active) > 0) {
                              state_.setActive(service, active != 0);
                          }
                      }));
    }
}

} // namespace nocturo
