#include "session/login_session.h"

#include <cstdint>
#include <string_view>
#include <unistd.h>
#include <utility>

// A process finds its session by the number in its environment; without one by asking whose it is;
// and when it belongs to none, because the user's service manager started it, the user's graphical
// session is meant.

namespace nocturo {

namespace {

constexpr const char* kService = "org.freedesktop.login1";
constexpr const char* kManagerPath = "/org/freedesktop/login1";
constexpr const char* kManager = "org.freedesktop.login1.Manager";
constexpr const char* kSession = "org.freedesktop.login1.Session";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";

/// The object path that is all of an answer; empty when it is none.
std::string pathIn(sd_bus_message* answer) {
    const char* path = nullptr;
    return sd_bus_message_read(answer, "o", &path) > 0 ? path : "";
}

} // namespace

LoginSession::LoginSession(const Bus& systemBus, std::string sessionId, Handlers handlers)
    : bus_(systemBus), sessionId_(std::move(sessionId)), handlers_(std::move(handlers)) {
    sleep_ = bus_.onSignal(kService, kManagerPath, kManager, "PrepareForSleep",
                           [this](sd_bus_message* signal) {
                               int starts = 1;
                               sd_bus_message_read(signal, "b", &starts);
                               if (starts == 0) {
                                   handlers_.wokeUp();
                               }
                           });
    owner_ = bus_.followOwner(kService, [this](const std::string& owner) {
        if (!owner.empty()) {
            findSession();
        }
    });
}

void LoginSession::findSession() {
    if (sessionId_.empty()) {
        findSessionOfProcess();
        return;
    }
    const BusMessage call = bus_.newCall(kService, kManagerPath, kManager, "GetSession");
    sd_bus_message_append(call.get(), "s", sessionId_.c_str());
    question_ = bus_.call(call, [this](sd_bus_message* answer) {
        const std::string path = pathIn(answer);
        if (!path.empty()) {
            follow(path);
        } else {
            findSessionOfProcess();
        }
    });
}

void LoginSession::findSessionOfProcess() {
    const BusMessage call = bus_.newCall(kService, kManagerPath, kManager, "GetSessionByPID");
    sd_bus_message_append(call.get(), "u", static_cast<std::uint32_t>(getpid()));
    question_ = bus_.call(call, [this](sd_bus_message* answer) {
        const std::string path = pathIn(answer);
        if (!path.empty()) {
            follow(path);
        } else {
            findSessionOfUser();
        }
    });
}

void LoginSession::findSessionOfUser() {
    const BusMessage call =
        bus_.newCall(kService, "/org/freedesktop/login1/user/self", kProperties, "Get");
    sd_bus_message_append(call.get(), "ss", "org.freedesktop.login1.User", "Display");
    question_ = bus_.call(call, [this](sd_bus_message* answer) {
        const char* id = nullptr;
        const char* path = nullptr;
        if (sd_bus_message_read(answer, "v", "(so)", &id, &path) > 0) {
            follow(path);
        }
    });
}

void LoginSession::follow(const std::string& sessionPath) {
    changes_ = bus_.onSignal(kService, sessionPath.c_str(), kProperties, "PropertiesChanged",
                             [this](sd_bus_message* signal) {
                                 const char* interface = nullptr;
                                 if (sd_bus_message_read(signal, "s", &interface) > 0 &&
                                     std::string_view(interface) == kSession) {
                                     take(signal);
                                 }
                             });
    const BusMessage call = bus_.newCall(kService, sessionPath.c_str(), kProperties, "GetAll");
    sd_bus_message_append(call.get(), "s", kSession);
    question_ = bus_.call(call, [this](sd_bus_message* answer) { take(answer); });
}

void LoginSession::take(sd_bus_message* properties) {
    const bool wasActive = active_;
    const bool wasLocked = locked_;
    if (sd_bus_message_enter_container(properties, 'a', "{sv}") <= 0) {
        return;
    }
    while (sd_bus_message_enter_container(properties, 'e', "sv") > 0) {
        const char* name = nullptr;
        sd_bus_message_read(properties, "s", &name);
        const std::string_view property = name != nullptr ? name : "";
        bool* known = property == "Active"       ? &active_
                      : property == "LockedHint" ? &locked_
                                                 : nullptr;
        int value = 0;
        if (known != nullptr && sd_bus_message_read(properties, "v", "b", &value) > 0) {
            *known = value != 0;
        } else if (known != nullptr || sd_bus_message_skip(properties, "v") < 0) {
            break; // of another type
        }
        sd_bus_message_exit_container(properties);
    }
    if (active_ && !wasActive) {
        handlers_.becameActive();
    }
    if (locked_ != wasLocked) {
        handlers_.lockChanged(locked_);
    }
}

} // namespace nocturo
