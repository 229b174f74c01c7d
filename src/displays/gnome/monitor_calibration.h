#pragma once

#include "displays/gnome/desktop_shell.h"
#include "displays/gnome/ramp_sender.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace nocturo {

/// A monitor's ramp to ourselves, as newer shells lend it to programs that calibrate monitors. Its
/// end, and that of this process however it comes, makes the shell put its own ramp back.
class MonitorCalibration {
  public:
    struct Outcome {
        std::unique_ptr<MonitorCalibration> calibration; // null where it is not to be had
        bool takenByAnother = false;
        bool silent = false; // the shell did not answer in time
    };

    /// Asks the shell, and waits for its answer so long at most. `ended` is called from the bus,
    /// and may destroy the calibration later, when the shell ends it. The bus must outlive it.
    static Outcome take(const Bus& bus, const ShellNames& shell, const std::string& connector,
                        int patienceMs, const std::function<void()>& ended);
    ~MonitorCalibration();
    MonitorCalibration(const MonitorCalibration&) = delete;
    MonitorCalibration& operator=(const MonitorCalibration&) = delete;

    /// Entries per channel, which is usable.
    std::uint32_t rampSize() const { return rampSize_; }

    void write(const Ramp& ramp) { sender_.send(ramp); }
    const Ramp& written() const { return sender_.newest(); }
    bool isDone() const { return sender_.isDone(); }

    std::chrono::steady_clock::time_point begin() const { return begin_; }

  private:
    MonitorCalibration(const Bus& bus, const ShellNames& shell, std::string path,
                       const std::function<void()>& ended);

    BusMessage newCall(const char* method) const;
    bool fetchRampSize(int patienceMs);

    const Bus& bus_;
    const ShellNames& shell_;
    std::string path_;
    std::string interface_;
    std::uint32_t rampSize_ = 0;
    RampSender sender_;
    std::unique_ptr<BusSlot> stopped_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

} // namespace nocturo
