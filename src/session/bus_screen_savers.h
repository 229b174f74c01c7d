#pragma once

#include "base/bus.h"

#include <list>
#include <memory>
#include <vector>

namespace nocturo {

class ScreenSaverState;

/// The screen savers of the session bus, those of KDE, GNOME, MATE, Cinnamon and Xfce. Each counts
/// from when it has first told its state, and is forgotten when it leaves the bus. None is ever
/// started.
class BusScreenSavers {
  public:
    /// Both must outlive the object.
    BusScreenSavers(const Bus& bus, ScreenSaverState& state);

  private:
    struct Saver;
    struct Followed {
        std::unique_ptr<BusSlot> owner;
        std::unique_ptr<BusSlot> changes;
        std::vector<std::unique_ptr<BusSlot>> questions; // to the present owner
    };

    void follow(const Saver& saver, Followed& followed);
    void askForState(const Saver& saver, Followed& followed);

    const Bus& bus_;
    ScreenSaverState& state_;
    std::list<Followed> followed_; // which stay where they are
};

} // namespace nocturo
