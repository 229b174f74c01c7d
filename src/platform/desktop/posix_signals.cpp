#include "platform/desktop/posix_signals.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace nocturo {

namespace {

int openBlockedSignals(std::initializer_list<int> signalNumbers) {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : signalNumbers) {
        sigaddset(&signals, number);
    }
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

PosixSignals::PosixSignals(std::initializer_list<int> signalNumbers,
                           std::function<void(int)> handler)
    : descriptor_(openBlockedSignals(signalNumbers)), notifier_(descriptor_, QSocketNotifier::Read),
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
