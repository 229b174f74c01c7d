#pragma once

#include "automation/foreground.h"

#include <cstdint>
#include <list>
#include <memory>
#include <string>

struct wl_proxy;

namespace nocturo {

class RunLoop;
class Watch;
class WaylandConnection;

/// The windows of a compositor that offers wlr-foreign-toplevel-management. It does not tell which
/// lies above which, so of those on a display the one that was worked in last counts.
class WlrForeground : public Foreground {
  public:
    /// Null where the compositor of that name does not offer it. The loop must outlive this.
    static std::unique_ptr<WlrForeground> open(const std::string& display, RunLoop& runLoop,
                                               std::function<void()> changed);
    ~WlrForeground() override;
    WlrForeground(const WlrForeground&) = delete;
    WlrForeground& operator=(const WlrForeground&) = delete;

    bool isTold() const override { return isTold_; }
    const InFront& inFront() const override { return inFront_; }
    void displaysDidChange() override;

  private:
    struct Toplevel;
    struct Listeners;

    WlrForeground(std::unique_ptr<WaylandConnection> compositor, RunLoop& runLoop);
    void takeEvents();
    void remove(const Toplevel& toplevel);
    void stopTelling();
    void look();
    bool isFilled(const std::string& display) const;

    std::unique_ptr<WaylandConnection> compositor_;
    std::function<void()> changed_;
    wl_proxy* manager_;
    std::list<Toplevel> toplevels_;
    std::uint64_t activations_ = 0;
    bool isTold_ = true;
    bool isStale_ = true; // something came that was not looked at
    InFront inFront_;
    std::unique_ptr<Watch> watch_;
};

} // namespace nocturo
