#include "displays/gnome/monitor_calibration.h"

#include "base/log.h"

#include <string_view>
#include <utility>

namespace nocturo {

namespace {

struct Error {
    sd_bus_error value{};
    Error() = default;
    ~Error() { sd_bus_error_free(&value); }
    Error(const Error&) = delete;
    Error& operator=(const Error&) = delete;

    bool hasName(const char* name) const { return sd_bus_error_has_name(&value, name) > 0; }
    std::string_view message() const { return value.message != nullptr ? value.message : ""; }
};

} // namespace

MonitorCalibration::Outcome MonitorCalibration::take(const Bus& bus, const ShellNames& shell,
                                                     const std::string& connector, int patienceMs,
                                                     const std::function<void()>& ended) {
    const BusMessage call =
        bus.newCall(shell.colors, shell.colorsPath, shell.colors, "CalibrateMonitor");
    sd_bus_message_append(call.get(), "s", connector.c_str());
    Error error;
    const BusMessage answer = bus.callAndWait(call, patienceMs, &error.value);
    Outcome outcome;
    const char* path = nullptr;
    if (answer != nullptr && sd_bus_message_read(answer.get(), "o", &path) > 0) {
        outcome.calibration.reset(new MonitorCalibration(bus, shell, path, ended));
        if (!outcome.calibration->fetchRampSize(patienceMs)) {
            outcome.calibration.reset();
        }
        return outcome;
    }
    // No other sign of it than the words, which are always English.
    outcome.takenByAnother =
        error.message().find("already being calibrated") != std::string_view::npos;
    outcome.silent =
        answer == nullptr && (error.value.name == nullptr || error.hasName(SD_BUS_ERROR_NO_REPLY) ||
                              error.hasName(SD_BUS_ERROR_TIMEOUT));
    return outcome;
}

MonitorCalibration::MonitorCalibration(const Bus& bus, const ShellNames& shell, std::string path,
                                       const std::function<void()>& ended)
    : bus_(bus), shell_(shell), path_(std::move(path)),
      interface_(std::string(shell.colors) + ".Calibration"),
      sender_(
          bus,
          [this](const Ramp& ramp) {
              BusMessage call = newCall("SetCrtcGammaLut");
              append(call, ramp);
              return call;
          },
          [ended](sd_bus_message* /*answer*/) {
              ended();
              return RampSender::Refusal::final;
          }),
      stopped_(bus.onSignal(shell.colors, path_.c_str(), interface_.c_str(), "Stopped",
                            [ended](sd_bus_message* /*signal*/) { ended(); })) {}

MonitorCalibration::~MonitorCalibration() {
    const BusMessage call = newCall("Stop");
    sd_bus_message_set_expect_reply(call.get(), 0);
    sd_bus_send(bus_.handle(), call.get(), nullptr);
}

BusMessage MonitorCalibration::newCall(const char* method) const {
    return bus_.newCall(shell_.colors, path_.c_str(), interface_.c_str(), method);
}

bool MonitorCalibration::fetchRampSize(int patienceMs) {
    const BusMessage call =
        bus_.newCall(shell_.colors, path_.c_str(), "org.freedesktop.DBus.Properties", "Get");
    sd_bus_message_append(call.get(), "ss", interface_.c_str(), "GammaLutSize");
    const BusMessage answer = bus_.callAndWait(call, patienceMs, nullptr);
    if (answer == nullptr || sd_bus_message_read(answer.get(), "v", "u", &rampSize_) <= 0 ||
        !isUsableRampSize(rampSize_)) {
        logInfo(kLogDisplays, "The shell lends a monitor's ramp and tells no usable size of it.");
        return false;
    }
    return true;
}

} // namespace nocturo
