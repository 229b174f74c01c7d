#pragma once

#include "rig/x_client.h"
#include "unit/temporary_directory.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nocturo::rig {

/// A Wayland compositor of the tests' own, for what real ones show on hardware alone: KWin's colour
/// profiles, in its old and its new form of telling its outputs, and wlr-gamma-control with
/// whatever size. It runs in a thread of its own.
class Compositor {
  public:
    /// What it has to offer.
    enum class Kind { kwin, kwinWithRegistry, plasma5, wlr };

    /// What becomes of a configuration, or of a ramp.
    enum class Answer {
        takes,        // a KWin refuses files that are no profiles
        refuses,      // whatever it is
        takesNothing, // and says that it did
        waits,        // until it is to answer otherwise
        hangsUp,      // on whoever asked
    };

    /// An output as its settings are kept, beyond the compositor's own end.
    struct Output {
        std::string name = "DP-1";
        std::string path{}; // of the profile
        std::uint32_t source = 0;
        bool takesProfiles = true;
        bool highDynamicRange = false;
    };

    /// `gammaSize` is that of each output of Kind::wlr.
    explicit Compositor(Kind kind, std::vector<Output> outputs, std::uint32_t gammaSize = 256);
    ~Compositor();
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    /// The path of its socket, as $WAYLAND_DISPLAY may be.
    std::string display() const { return directory_ / "socket"; }

    /// From now on; what waits gets it as well.
    void setAnswer(Answer answer);

    std::vector<Output> outputs() const;

    /// As its user does in its settings; or else a monitor does.
    void change(const std::function<void(Output&)>& change, std::size_t output = 0);

    /// Takes the last output away, or brings one.
    void unplug();
    void plug(Output output);

    /// Configurations so far, and the most that were under way at a time.
    int configurations() const;
    int mostAtATime() const;

  private:
    struct State;

    void run(const std::function<void()>& action) const;

    TemporaryDirectory directory_;
    std::unique_ptr<State> state_;
};

} // namespace nocturo::rig
