// How soon ten displays are back when Nocturo is killed, and what the guard that sees to it costs.

#include "figures.h"
#include "rig/session.h"

#include <algorithm>
#include <csignal>
#include <exception>
#include <iostream>
#include <stdexcept>

namespace nocturo::rig {

namespace {

constexpr int kDisplays = 10;
constexpr int kRounds = 200;

class Measurement {
  public:
    Measurement() : session_(kDisplays), observer_(session_.server().display()) {
        inheritOrphans();
        for (int i = 0; i < kDisplays; ++i) {
            crtcs_.push_back(observer_.crtcOf("DUMMY" + std::to_string(i)));
            own_.push_back(observer_.ramp(crtcs_.back()));
        }
        const auto nocturo = session_.startNocturo();
        session_.run("nocturoctl", {"effects", "only", "invert"});
        session_.run("nocturoctl", {"quit"});
        nocturo->wait();
    }

    void run() {
        std::vector<double> samples;
        for (int i = 0; i < kRounds; ++i) {
            samples.push_back(restoreOnce());
        }
        printFigure("SIGKILL to the last of ten ramps, median", percentile(samples, 0.5), 10, "ms");
        printFigure("SIGKILL to the last of ten ramps, p99", percentile(samples, 0.99), 100, "ms");
        printFigure("guard, resident", resident_, 2048, "kB");
        printFigure("guard, proportional share", proportional_, 2048, "kB");
    }

  private:
    /// In milliseconds; what this program's own looking takes is part of it.
    double restoreOnce() {
        const auto nocturo = session_.start("nocturo");
        if (!waitUntil(
                [&] { return ownFrom(0) == 0 && observer_.ramp(crtcs_.back()) != own_.back(); })) {
            throw std::runtime_error("nocturo did not change the displays");
        }
        std::vector<pid_t> guards;
        const bool isGuarded = waitUntil([&] { // it has its parent's name for a moment
            guards = childrenNamed(nocturo->id(), "nocturo-guard");
            return guards.size() == 1;
        });
        if (!isGuarded) {
            throw std::runtime_error("there is no guard");
        }
        resident_ = std::max(resident_, kilobytesOf(guards.front(), "Rss:"));
        proportional_ = std::max(proportional_, kilobytesOf(guards.front(), "Pss:"));
        const auto start = std::chrono::steady_clock::now();
        nocturo->signal(SIGKILL);
        // Looking without a pause would take the processor from those who are looked at.
        if (!waitUntil([&] { return ownFrom(0) == kDisplays; })) {
            throw std::runtime_error("the displays did not come back");
        }
        const std::chrono::duration<double, std::milli> taken =
            std::chrono::steady_clock::now() - start;
        nocturo->wait();
        waitForChild(guards.front());
        return taken.count();
    }

    int ownFrom(int first) {
        while (first < kDisplays && observer_.ramp(crtcs_[static_cast<std::size_t>(first)]) ==
                                        own_[static_cast<std::size_t>(first)]) {
            ++first;
        }
        return first;
    }

    Session session_;
    XClient observer_;
    std::vector<std::uint32_t> crtcs_;
    std::vector<Channels> own_;
    double resident_ = 0; // the most; a guard that has just begun has less
    double proportional_ = 0;
};

} // namespace

} // namespace nocturo::rig

int main() {
    try {
        nocturo::rig::Measurement().run();
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
