#pragma once

#include "rig/process.h"
#include "unit/temporary_directory.h"

#include <memory>
#include <optional>
#include <string>

#include <systemd/sd-bus.h>

namespace nocturo::rig {

/// A session bus of the test's own, or what stands for the system bus: they are told apart only by
/// the variable that names them. It starts no services but those that are offered.
class SessionBus {
  public:
    struct Close {
        void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    };
    using Bus = std::unique_ptr<sd_bus, Close>;

    /// A connection to a bus, this one or any. Throws std::runtime_error where there is none.
    static Bus connect(const std::string& address);
    Bus connect() const { return connect(address_); }

    /// Throws std::runtime_error when the bus does not start.
    SessionBus();

    void signal(int number) { process_->signal(number); }

    /// Kills the bus; start() brings another one up in its place.
    void end();
    void start();

    /// For DBUS_SESSION_BUS_ADDRESS.
    const std::string& address() const { return address_; }

    /// From then on the bus starts the program when somebody calls the name.
    void offerService(const std::string& name, const std::string& program,
                      const Environment& environment);

    /// Waits until somebody owns the name; false when `owner` ended before, or nobody did in time.
    bool waitForName(const std::string& name, Process& owner);

    /// Calls a method and waits for the answer; `types` and what follows as sd_bus_message_append
    /// takes them. The object path that is the answer, or nothing. Throws std::runtime_error when
    /// it fails.
    template <class... Arguments>
    std::string call(const char* service, const char* path, const char* interface,
                     const char* method, const char* types, Arguments... arguments) {
        const Bus bus = connect();
        sd_bus_error error{};
        sd_bus_message* reply = nullptr;
        sd_bus_call_method(bus.get(), service, path, interface, method, &error, &reply, types,
                           arguments...);
        return objectIn(reply, error, method);
    }

  private:
    static std::string objectIn(sd_bus_message* reply, sd_bus_error& error,
                                const std::string& method);

    TemporaryDirectory directory_;
    std::optional<Process> process_;
    std::string address_;
};

} // namespace nocturo::rig
