#include "rig/process.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include <QDeadlineTimer>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nocturo::rig {

Environment cleanEnvironment() {
    static const QRegularExpression leadsToTheUser(
        QStringLiteral("^(DISPLAY|XAUTHORITY|HOME|(WAYLAND|DBUS|XDG|QT|NOTIFY)_.*)$"));
    Environment environment;
    const auto ours = QProcessEnvironment::systemEnvironment();
    for (const QString& name : ours.keys()) {
        if (!leadsToTheUser.match(name).hasMatch()) {
            environment[name.toStdString()] = ours.value(name).toStdString();
        }
    }
    environment["LANGUAGE"] = "en"; // tests look for windows and texts by name
    return environment;
}

Process::Process(const std::string& program, const std::vector<std::string>& arguments,
                 const Environment& environment) {
    QProcessEnvironment variables;
    for (const auto& [name, value] : environment) {
        variables.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    QStringList words;
    for (const auto& argument : arguments) {
        words.append(QString::fromStdString(argument));
    }
    process_.setProcessEnvironment(variables);
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setChildProcessModifier([parent = getpid()] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) { // it died before
            _exit(127);
        }
    });
    process_.start(QString::fromStdString(program), words);
    if (!process_.waitForStarted()) {
        throw std::runtime_error(program + ": " + process_.errorString().toStdString());
    }
    id_ = static_cast<pid_t>(process_.processId());
}

Process::~Process() {
    signal(SIGKILL);
    process_.waitForFinished(-1);
}

void Process::signal(int number) {
    // Once reaped, the number may be another process's.
    if (process_.state() != QProcess::NotRunning) {
        kill(id_, number);
    }
}

bool Process::isRunning() {
    return process_.state() != QProcess::NotRunning && !process_.waitForFinished(0);
}

// Tells false only after a last look at everything that arrived.
template <class Condition>
bool Process::takeInUntil(QProcess::ProcessChannel channel, Condition condition,
                          Milliseconds timeout) {
    const QDeadlineTimer deadline(timeout);
    process_.setReadChannel(channel);
    while (true) {
        const bool mayGoOn = isRunning() && !deadline.hasExpired();
        output_ += process_.readAllStandardOutput().toStdString();
        errors_ += process_.readAllStandardError().toStdString();
        if (condition()) {
            return true;
        }
        if (!mayGoOn) {
            return false;
        }
        process_.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
}

std::optional<int> Process::wait(Milliseconds timeout) {
    if (isRunning() && !process_.waitForFinished(static_cast<int>(timeout.count()))) {
        return std::nullopt;
    }
    return process_.exitCode() + (process_.exitStatus() == QProcess::CrashExit ? 128 : 0);
}

std::optional<std::string> Process::readLine(Milliseconds timeout) {
    std::size_t end = std::string::npos;
    const auto hasLine = [&] { return (end = output_.find('\n', linesRead_)) != output_.npos; };
    if (!takeInUntil(QProcess::StandardOutput, hasLine, timeout)) {
        return std::nullopt;
    }
    std::string line = output_.substr(linesRead_, end - linesRead_);
    linesRead_ = end + 1;
    return line;
}

bool Process::waitForError(std::string_view part, Milliseconds timeout) {
    const auto hasPart = [&] { return errors_.find(part) != std::string::npos; };
    return takeInUntil(QProcess::StandardError, hasPart, timeout);
}

const std::string& Process::output() {
    takeInUntil(
        QProcess::StandardOutput, [] { return true; }, Milliseconds(0));
    return output_;
}

const std::string& Process::errors() {
    takeInUntil(
        QProcess::StandardError, [] { return true; }, Milliseconds(0));
    return errors_;
}

bool isInstalled(const std::string& program) {
    return std::system(("command -v " + program + " >/dev/null").c_str()) == 0;
}

std::vector<pid_t> childrenNamed(pid_t parent, const std::string& name) {
    const std::string task = std::to_string(parent);
    std::ifstream list("/proc/" + task + "/task/" + task + "/children");
    std::vector<pid_t> children;
    for (pid_t child = 0; list >> child;) {
        std::string itsName;
        std::getline(std::ifstream("/proc/" + std::to_string(child) + "/comm"), itsName);
        if (itsName == name.substr(0, 15)) {
            children.push_back(child);
        }
    }
    return children;
}

void inheritOrphans() {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

std::optional<int> waitForChild(pid_t child, Milliseconds timeout) {
    int status = 0;
    if (!waitUntil([&] { return waitpid(child, &status, WNOHANG) == child; }, timeout)) {
        return std::nullopt;
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace nocturo::rig
