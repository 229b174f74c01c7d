#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <span>

namespace nocturo {

/// Delivers POSIX signals through the event loop.
class PosixSignals : public QObject {
  public:
    /// Blocks signals for the process, so that they wait to be delivered. To be called before any
    /// thread is started: a QApplication starts some.
    static void block(std::span<const int> signalNumbers);

    /// Calls `handler` with the signal's number, from the event loop. They must be blocked.
    PosixSignals(std::span<const int> signalNumbers, std::function<void(int)> handler);
    ~PosixSignals() override;

  private:
    void read();

    int descriptor_;
    QSocketNotifier notifier_;
    std::function<void(int)> handler_;
};

} // namespace nocturo
