#include "desktop/qt/session_bus.h"

#include "base/file_descriptor.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace nocturo {

namespace {

constexpr int kPatienceWithBusMs = 200;
constexpr auto kDefaultSystemBus = "unix:path=/run/dbus/system_bus_socket";

// Connecting waits for the bus to say hello, half a minute if need be, and nothing else would
// happen meanwhile. So a bus is first asked how one may log in: a living one answers at once.
// Addresses of other kinds are not asked.
bool isAlive(const std::string& address) {
    const std::string prefix = "unix:path=";
    sockaddr_un socketAddress{};
    if (!address.starts_with(prefix) || address.find(';') != std::string::npos) {
        return true;
    }
    const std::string path = address.substr(0, address.find(',')).substr(prefix.size());
    if (path.size() >= sizeof socketAddress.sun_path) {
        return true;
    }
    socketAddress.sun_family = AF_UNIX;
    std::copy(path.begin(), path.end(), std::begin(socketAddress.sun_path));
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    constexpr std::array<char, 8> question = {'\0', 'A', 'U', 'T', 'H', '\r', '\n', '\0'};
    if (::connect(socket.get(), reinterpret_cast<const sockaddr*>(&socketAddress),
                  sizeof socketAddress) != 0 ||
        ::send(socket.get(), question.data(), question.size() - 1, MSG_NOSIGNAL) < 0) {
        return false;
    }
    pollfd answer{socket.get(), POLLIN, 0};
    return ::poll(&answer, 1, kPatienceWithBusMs) == 1;
}

} // namespace

std::optional<QDBusConnection> connectToSessionBus() {
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (address.isEmpty()) {
        const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
        if (!QFileInfo::exists(socket)) {
            return std::nullopt;
        }
        address = QStringLiteral("unix:path=") + socket;
    }
    QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("nocturo"));
    if (!bus.isConnected()) {
        return std::nullopt;
    }
    return bus;
}

std::optional<QDBusConnection> connectToSystemBus() {
    const QString address = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS", kDefaultSystemBus);
    if (!isAlive(address.toStdString())) {
        return std::nullopt;
    }
    QDBusConnection bus = QDBusConnection::connectToBus(address, QStringLiteral("nocturo-system"));
    if (!bus.isConnected()) {
        return std::nullopt;
    }
    return bus;
}

} // namespace nocturo
