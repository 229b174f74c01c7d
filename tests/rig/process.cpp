#include "rig/process.h"

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace nocturo::rig {

namespace {

constexpr int kCannotRun = 127;
constexpr int kEndedBySignal = 128; // plus the signal

} // namespace

Environment cleanEnvironment() {
    Environment environment;
    for (char** entry = environ; *entry; ++entry) {
        const std::string_view text = *entry;
        const auto equals = text.find('=');
        const std::string name(text.substr(0, equals));
        const bool leadsToTheUser = name == "DISPLAY" || name == "XAUTHORITY" || name == "HOME" ||
                                    name.starts_with("WAYLAND_") || name.starts_with("DBUS_") ||
                                    name.starts_with("XDG_") || name.starts_with("QT_") ||
                                    name.starts_with("NOTIFY_");
        if (equals != std::string_view::npos && !leadsToTheUser) {
            environment[name] = text.substr(equals + 1);
        }
    }
    return environment;
}

Process::Process(const std::string& program, const std::vector<std::string>& arguments,
                 const Environment& environment) {
    QProcessEnvironment settings;
    for (const auto& [name, value] : environment) {
        settings.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    process_.setProcessEnvironment(settings);
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setChildProcessModifier([parent = getpid()] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) {
            _exit(kCannotRun);
        }
    });
    QStringList words;
    for (const auto& argument : arguments) {
        words << QString::fromStdString(argument);
    }
    process_.start(QString::fromStdString(program), words);
    if (!process_.waitForStarted()) {
        errors_ = program + ": " + process_.errorString().toStdString() + "\n";
    }
    id_ = static_cast<pid_t>(process_.processId());
}

Process::~Process() {
    signal(SIGKILL);
    process_.waitForFinished();
}

void Process::signal(int number) {
    // Once reaped, the number may be another process's.
    if (process_.state() == QProcess::Running) {
        kill(id_, number);
    }
}

bool Process::isRunning() {
    return !wait(Milliseconds(0));
}

void Process::takeIn() {
    output_ += process_.readAllStandardOutput().toStdString();
    errors_ += process_.readAllStandardError().toStdString();
}

// Tells false only after a last look at everything that arrived.
template <class Condition>
bool Process::takeInUntil(Condition condition, QProcess::ProcessChannel source,
                          Milliseconds timeout) {
    const auto deadline = timeAfter(timeout);
    process_.setReadChannel(source);
    for (bool more = true;; more = process_.waitForReadyRead(millisecondsUntil(deadline))) {
        takeIn();
        if (condition()) {
            return true;
        }
        if (!more) {
            return false;
        }
    }
}

std::optional<int> Process::wait(Milliseconds timeout) {
    process_.waitForFinished(static_cast<int>(timeout.count()));
    if (process_.state() != QProcess::NotRunning) {
        return std::nullopt;
    }
    if (process_.error() == QProcess::FailedToStart) {
        return kCannotRun;
    }
    return process_.exitCode() +
           (process_.exitStatus() == QProcess::CrashExit ? kEndedBySignal : 0);
}

std::optional<std::string> Process::readLine(Milliseconds timeout) {
    std::size_t end = std::string::npos;
    const auto arrived = [&] { return (end = output_.find('\n', linesRead_)) != output_.npos; };
    if (!takeInUntil(arrived, QProcess::StandardOutput, timeout)) {
        return std::nullopt;
    }
    std::string line = output_.substr(linesRead_, end - linesRead_);
    linesRead_ = end + 1;
    return line;
}

bool Process::waitForError(std::string_view part, Milliseconds timeout) {
    const auto arrived = [&] { return errors_.find(part) != std::string::npos; };
    return takeInUntil(arrived, QProcess::StandardError, timeout);
}

const std::string& Process::output() {
    process_.waitForFinished(0);
    takeIn();
    return output_;
}

const std::string& Process::errors() {
    process_.waitForFinished(0);
    takeIn();
    return errors_;
}

} // namespace nocturo::rig
