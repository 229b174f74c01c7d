#pragma once

#include "base/result.h"
#include "displays/kde/output_devices.h"

#include <functional>
#include <span>

namespace nocturo {

/// Changes of outputs' colour profiles, one configuration at a time.
class ProfileConfigurations {
  public:
    /// The connection offers OutputDevices and must outlive this.
    explicit ProfileConfigurations(WaylandConnection& compositor);
    ~ProfileConfigurations();
    ProfileConfigurations(const ProfileConfigurations&) = delete;
    ProfileConfigurations& operator=(const ProfileConfigurations&) = delete;

    struct Change {
        const OutputDevice* device;
        ProfileSetting setting;
    };

    bool isUnderWay() const { return configuration_ != nullptr; }

    /// Asks for all of these changes, while none is under way. `done` is called from within events,
    /// with what KWin said against it, or nothing where it says that it has done so. By then all
    /// that it told because of it has come: only the devices' own settings say what they took.
    void apply(std::span<const Change> changes, std::function<void(Result<void>)> done);

  private:
    struct Events;

    void applied();
    void failed();
    void end(const Result<void>& result);

    WaylandConnection& compositor_;
    wl_proxy* management_;
    wl_proxy* configuration_ = nullptr;
    std::string reason_;
    std::function<void(Result<void>)> done_;
};

} // namespace nocturo
