// What a fade shows, and what it costs: on a real X server with four displays, and under a real
// sway with ramps of 4096 entries, which that server has not.

#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "displays/ramp_fade.h"
#include "figures.h"
#include "rig/session.h"
#include "rig/sway.h"
#include "running_costs.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <fstream>
#include <iostream>

namespace nocturo {

namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr const char* kLength = "FadeSeconds";

double processorMilliseconds(const rig::Process& process) {
    std::ifstream figures("/proc/" + std::to_string(process.id()) + "/schedstat");
    double nanoseconds = 0;
    figures >> nanoseconds;
    return nanoseconds / 1e6;
}

class Measurement {
  public:
    Measurement() : session_(4), observer_(session_.server().display()) {
        session_.writeSettings("<key>NDGroupEffect</key><array><string>NDInvertEffect</string>"
                               "</array>");
        nocturo_ = session_.startNocturo();
        setenv("DBUS_SESSION_BUS_ADDRESS", session_.bus().address().c_str(), 1);
        client_.emplace();
    }

    void run() {
        client_->callSetSetting(kLength, 2.0);
        std::vector<double> gaps;
        std::vector<double> shares;
        for (int i = 0; i < 10; ++i) {
            fade(gaps, shares);
        }
        std::printf("frames of a fade of 2 s over four displays: %zu\n", gaps.size() / 10);
        printFigure("between two frames of a fade, worst", percentile(gaps, 1), 50, "ms");
        printFigure("a fade over four displays, processor, worst", percentile(shares, 1), 3, "%");
        measureFirstStep();
    }

  private:
    /// In milliseconds.
    double waitForChange() {
        const auto start = SteadyClock::now();
        for (const auto before = observer_.ramp(last_); observer_.ramp(last_) == before;) {
            if (millisecondsSince(start) > 1000) {
                throw std::runtime_error("the last display's ramp did not change");
            }
        }
        return millisecondsSince(start);
    }

    void fade(std::vector<double>& gaps, std::vector<double>& shares) {
        const auto start = SteadyClock::now();
        const double before = processorMilliseconds(*nocturo_);
        client_->call("Toggle");
        do {
            gaps.push_back(waitForChange());
        } while (millisecondsSince(start) < 1900);
        while (millisecondsSince(start) < 2100) {
            observer_.ramp(last_);
        }
        shares.push_back(100 * (processorMilliseconds(*nocturo_) - before) / 2000);
    }

    /// How long toggles take until the last display changes.
    std::vector<double> toggles(double length) {
        client_->callSetSetting(kLength, length);
        std::vector<double> samples;
        auto before = observer_.ramp(last_);
        auto end = rig::Channels(before);
        for (auto& channel : end) {
            std::reverse(channel.begin(), channel.end());
        }
        for (int i = 0; i < 1000; ++i) {
            const auto start = SteadyClock::now();
            client_->call("Toggle");
            while (observer_.ramp(last_) == before) {
            }
            samples.push_back(millisecondsSince(start));
            while (observer_.ramp(last_) != end) {
            }
            std::swap(before, end);
        }
        return samples;
    }
    void measureFirstStep() {
        auto atOnce = toggles(0);
        auto fading = toggles(0.02);
        const double usual = percentile(atOnce, 0.5);
        std::printf("toggle to the last of four: median %.2f ms\n", usual);
        printFigure("toggle to the first step of a fade there, median",
                    percentile(fading, 0.5) / usual, 1.5, "x");
    }

    rig::Session session_;
    rig::XClient observer_;
    std::uint32_t last_ = observer_.crtcOf("DUMMY3");
    std::unique_ptr<rig::Process> nocturo_;
    std::optional<BusClient> client_;
};

/// Of four outputs with ramps of 4096 entries, in a sway without hardware.
void measureUnderSway() {
    if (const std::string why = rig::Sway::whyMissing(); !why.empty()) {
        std::printf("no figure under sway: %s\n", why.c_str());
        return;
    }
    const rig::Sway sway(4, 4096);
    rig::Session session(0);
    session.environment()["WAYLAND_DISPLAY"] = sway.display();
    session.environment()["XDG_CURRENT_DESKTOP"] = "sway";
    session.writeSettings("<key>NDGroupEffect</key><array><string>NDInvertEffect</string></array>"
                          "<key>FadeSeconds</key><real>2</real>");
    const auto nocturo = session.startNocturo();
    std::vector<double> shares;
    for (int i = 0; i < 5; ++i) {
        const double before = processorMilliseconds(*nocturo);
        session.run("nocturoctl", {"toggle"});
        pass(2);
        shares.push_back((processorMilliseconds(*nocturo) - before) / 20);
    }
    printFigure("a fade over four ramps of 4096, processor, worst", percentile(shares, 1), 3, "%");
}

/// What Nocturo calculates in a frame.
void measureLargeRamps() {
    constexpr int kFrames = 1000;
    Ramp black(4096);
    std::vector<RampFade> fades(4, RampFade(identityRamp(4096), black));
    const std::clock_t start = std::clock();
    for (int frame = 0; frame < kFrames; ++frame) {
        for (RampFade& fade : fades) {
            fade.at(static_cast<float>(frame) / kFrames);
        }
    }
    constexpr double kFrameSeconds = 0.016;
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    printFigure("steps of four ramps of 4096 entries, processor",
                100 * seconds / kFrames / kFrameSeconds, 3, "%");
}

} // namespace

} // namespace nocturo

int main() {
    try {
        nocturo::measureLargeRamps();
        nocturo::measureUnderSway();
        nocturo::Measurement().run();
    } catch (const nocturo::Failure& failure) {
        std::cerr << failure.sentence << '\n';
        return 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
