#include "session/disturber_finder.h"

#include "desktop/qt/bus_call.h"
#include "desktop/qt/session_bus.h"
#include "session/running_programs.h"

#include <QDBusVariant>

#include <array>
#include <string_view>
#include <utility>

namespace nocturo {

void DisturberFinder::find(std::function<void(const std::string& name)> answer) {
    constexpr std::array<std::string_view, 3> programs = {"redshift", "gammastep", "wlsunset"};
    const std::string program = runningProgram(programs);
    const auto bus = connectToSessionBus();
    if (!program.empty() || !bus) {
        answer(program);
        return;
    }
    const QString name = QStringLiteral("org.gnome.SettingsDaemon.Color");
    callLater(*bus,
              propertyCall(name, QStringLiteral("/org/gnome/SettingsDaemon/Color"), name,
                           QStringLiteral("NightLightActive")),
              this, [answer = std::move(answer)](const QDBusMessage& reply) {
                  // An error's argument is its text, which is no variant.
                  const auto active = reply.arguments().value(0).value<QDBusVariant>().variant();
                  answer(active.toBool() ? "Night Light" : "");
              });
}

} // namespace nocturo
