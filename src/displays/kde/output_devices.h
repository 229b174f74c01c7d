#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct wl_proxy;

namespace nocturo {

class WaylandConnection;

/// Where KWin takes an output's colours from.
enum class ColorSource : std::uint32_t { sRgb, profile, edid };

/// The colour profile of an output as its settings have it.
struct ProfileSetting {
    std::string path; // empty where there is none
    ColorSource source = ColorSource::sRgb;
    bool operator==(const ProfileSetting&) const = default;
};

/// An output with its settings, as KWin tells them.
struct OutputDevice {
    wl_proxy* proxy = nullptr;
    std::string name; // of the connector, such as "DP-1"
    std::string uuid; // the same after a restart
    std::vector<std::uint8_t> edid;
    ProfileSetting setting;
    bool takesProfiles = false;
    bool highDynamicRange = false; // or a wide gamut: its profile does not count
    bool described = false;        // everything above has come

    /// What it is known by in a later run.
    const std::string& key() const { return uuid.empty() ? name : uuid; }
};

/// The output devices of a KWin, kept up to date by the events of its connection.
class OutputDevices {
  public:
    /// The connection must outlive this. Devices come with its next events.
    explicit OutputDevices(WaylandConnection& compositor);
    ~OutputDevices();
    OutputDevices(const OutputDevices&) = delete;
    OutputDevices& operator=(const OutputDevices&) = delete;

    /// Whether there are any that can be had.
    static bool areOfferedBy(const WaylandConnection& compositor);

    /// The described devices.
    std::vector<const OutputDevice*> all() const;

    /// The described device of that connector; null when there is none.
    const OutputDevice* named(std::string_view name) const;

    /// False while a device that was announced is still to be described.
    bool areDescribed() const;

    /// Another number whenever all(), or what one of them says, differs from before.
    std::uint64_t generation() const { return generation_; }

    /// Called from within events whenever that number is another.
    void setChangeHandler(std::function<void()> handler) { changed_ = std::move(handler); }

  private:
    struct Device;
    struct Events;

    void add(wl_proxy* proxy, std::uint32_t global);
    void remove(const std::function<bool(const Device&)>& condition);
    void noteChange();

    WaylandConnection& compositor_;
    wl_proxy* registry_ = nullptr; // kde_output_device_registry_v2; null where devices are globals
    std::list<std::unique_ptr<Device>> devices_;
    std::uint64_t generation_ = 1;
    std::function<void()> changed_;
};

} // namespace nocturo
