#include "program/posix_signals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

sigset_t signalSet(std::span<const int> signalNumbers) {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : signalNumbers) {
        sigaddset(&signals, number);
    }
    return signals;
}

int openSignals(std::span<const int> signalNumbers) {
    const sigset_t signals = signalSet(signalNumbers);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

void PosixSignals::block(std::span<const int> signalNumbers) {
    const sigset_t signals = signalSet(signalNumbers);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

PosixSignals::PosixSignals(std::span<const int> signalNumbers, std::function<void(int)> handler)
    : descriptor_(openSignals(signalNumbers)), notifier_(descriptor_, QSocketNotifier::Read),
      handler_(std::move(handler)) {
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { read(); });
}

PosixSignals::~PosixSignals() {
    notifier_.setEnabled(false);
    close(descriptor_);
}

void PosixSignals::read() {
    signalfd_siginfo info;
    while (::read(descriptor_, &info, sizeof info) == sizeof info) {
        handler_(static_cast<int>(info.ssi_signo));
    }
}

} // namespace nocturo
