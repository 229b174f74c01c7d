#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <initializer_list>

namespace nocturo {

/// Delivers POSIX signals through the event loop. Blocks them for the process, so make it before
/// any thread is started.
class PosixSignals : public QObject {
  public:
    /// Calls `handler` with the signal's number, from the event loop.
    PosixSignals(std::initializer_list<int> signalNumbers, std::function<void(int)> handler);
    ~PosixSignals() override;

  private:
    void read();

    int descriptor_;
    QSocketNotifier notifier_;
    std::function<void(int)> handler_;
};

} // namespace nocturo
