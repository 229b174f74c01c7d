#include "displays/kde/output_devices.h"

#include "displays/kde/output_protocol.h"
#include "wayland/wayland_connection.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

constexpr std::size_t kLongestEdidText = 65536;

std::vector<std::uint8_t> decodedBase64(std::string_view text) {
    constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::vector<std::uint8_t> bytes;
    std::uint32_t bits = 0;
    int count = 0;
    for (const char character : text.substr(0, kLongestEdidText)) {
        const auto digit = kDigits.find(character);
        if (digit == std::string_view::npos) {
            break; // the padding at the end
        }
        bits = bits << 6U | static_cast<std::uint32_t>(digit);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<std::uint8_t>(bits >> static_cast<unsigned>(count)));
        }
    }
    return bytes;
}

template <typename T, typename Value>
bool assign(T& member, Value&& value) {
    if (member == value) {
        return false;
    }
    member = std::forward<Value>(value);
    return true;
}

} // namespace

struct OutputDevices::Device : OutputDevice {
    ~Device() {
        for (wl_proxy* mode : modes) {
            wl_proxy_destroy(mode);
        }
        if (wl_proxy_get_version(proxy) >= kRegistryVersion) {
            wl_proxy_marshal_flags(proxy, kReleaseDevice, nullptr, wl_proxy_get_version(proxy),
                                   WL_MARSHAL_FLAG_DESTROY);
        } else {
            wl_proxy_destroy(proxy);
        }
    }

    OutputDevices* devices = nullptr; // null once it has gone
    std::uint32_t global = 0;         // 0 for one that the registry of devices announced
    std::vector<wl_proxy*> modes;     // announced, and of no use here
    bool hdr = false;
    bool wideGamut = false;
    bool changed = false; // since the change was told
};

/// What libwayland calls for each event of an object.
struct OutputDevices::Events {
    static int ofMode(const void* /*implementation*/, void* proxy, std::uint32_t event,
                      const wl_message* /*message*/, wl_argument* /*arguments*/) {
        auto* mode = static_cast<wl_proxy*>(proxy);
        auto* device = static_cast<Device*>(wl_proxy_get_user_data(mode));
        if (event == kModeRemoved) {
            std::erase(device->modes, mode);
            wl_proxy_destroy(mode);
        }
        return 0;
    }

    static int ofRegistry(const void* /*implementation*/, void* proxy, std::uint32_t event,
                          const wl_message* /*message*/, wl_argument* arguments) {
        if (event == kRegistryOutput) {
            auto* devices =
                static_cast<OutputDevices*>(wl_proxy_get_user_data(static_cast<wl_proxy*>(proxy)));
            devices->add(reinterpret_cast<wl_proxy*>(arguments[0].o), 0);
        }
        return 0;
    }

    static int ofDevice(const void* /*implementation*/, void* proxy, std::uint32_t event,
                        const wl_message* /*message*/, wl_argument* arguments) {
        auto* device = static_cast<Device*>(wl_proxy_get_user_data(static_cast<wl_proxy*>(proxy)));
        if (event == kDeviceMode) {
            auto* mode = reinterpret_cast<wl_proxy*>(arguments[0].o);
            wl_proxy_add_dispatcher(mode, ofMode, nullptr, device);
            device->modes.push_back(mode);
        } else if (device->devices == nullptr) {
            return 0; // it has gone
        } else if (event == kDeviceRemoved) {
            device->devices->remove([&](const Device& each) { return &each == device; });
        } else if (event == kDeviceDone) {
            const bool isNew = !std::exchange(device->described, true);
            if (std::exchange(device->changed, false) || isNew) {
                device->devices->noteChange();
            }
        } else if (take(*device, event, arguments[0])) {
            device->changed = true;
        }
        return 0;
    }

    /// True when it is news.
    static bool take(Device& device, std::uint32_t event, const wl_argument& argument) {
        const auto text = [&] { return std::string(argument.s != nullptr ? argument.s : ""); };
        switch (event) {
        case kDeviceEdid:
            return assign(device.edid, decodedBase64(text()));
        case kDeviceUuid:
            return assign(device.uuid, text());
        case kDeviceName:
            return assign(device.name, text());
        case kDeviceCapabilities:
            return assign(device.takesProfiles, (argument.u & kTakesProfiles) != 0);
        case kDeviceHighDynamicRange:
        case kDeviceWideColorGamut:
            (event == kDeviceHighDynamicRange ? device.hdr : device.wideGamut) = argument.u != 0;
            return assign(device.highDynamicRange, device.hdr || device.wideGamut);
        case kDeviceProfilePath:
            return takePath(device, text());
        case kDeviceProfileSource:
            return assign(device.setting.source, static_cast<ColorSource>(argument.u));
        default:
            return false;
        }
    }

    static bool takePath(Device& device, std::string path) {
        // A KWin that does not tell the source takes whatever profile there is.
        if (wl_proxy_get_version(device.proxy) < kAnnouncedDeviceVersion) {
            device.setting.source = path.empty() ? ColorSource::sRgb : ColorSource::profile;
        }
        return assign(device.setting.path, std::move(path));
    }
};

bool OutputDevices::areOfferedBy(const WaylandConnection& compositor) {
    return compositor.offers(kOutputManagementInterface.name, kManagementWithProfiles);
}

OutputDevices::OutputDevices(WaylandConnection& compositor) : compositor_(compositor) {
    if (compositor.offers(kOutputRegistryInterface.name, kRegistryVersion)) {
        registry_ = compositor.bind(kOutputRegistryInterface, kRegistryVersion);
        wl_proxy_add_dispatcher(registry_, Events::ofRegistry, nullptr, this);
    } else {
        compositor.follow(
            kOutputDeviceInterface, kAnnouncedDeviceVersion,
            [this](wl_proxy* proxy, std::uint32_t global) { add(proxy, global); },
            [this](std::uint32_t global) {
                remove([&](const Device& each) { return each.global == global; });
            });
    }
}

OutputDevices::~OutputDevices() {
    devices_.clear();
    if (registry_ != nullptr) {
        wl_proxy_destroy(registry_);
    } else {
        compositor_.stopFollowing();
    }
}

void OutputDevices::add(wl_proxy* proxy, std::uint32_t global) {
    auto& device = devices_.emplace_back(std::make_unique<Device>());
    device->proxy = proxy;
    device->devices = this;
    device->global = global;
    wl_proxy_add_dispatcher(proxy, Events::ofDevice, nullptr, device.get());
}

void OutputDevices::remove(const std::function<bool(const Device&)>& condition) {
    const auto found = std::find_if(devices_.begin(), devices_.end(),
                                    [&](const auto& device) { return condition(*device); });
    if (found == devices_.end()) {
        return;
    }
    // Modes of it may still be on their way, and each has to be taken in, or the connection breaks.
    std::shared_ptr<Device> departed = std::move(*found);
    departed->devices = nullptr;
    devices_.erase(found);
    compositor_.afterAnswers([departed] {});
    noteChange();
}

void OutputDevices::noteChange() {
    ++generation_;
    if (changed_) {
        changed_();
    }
}

std::vector<const OutputDevice*> OutputDevices::all() const {
    std::vector<const OutputDevice*> described;
    for (const auto& device : devices_) {
        if (device->described) {
            described.push_back(device.get());
        }
    }
    return described;
}

const OutputDevice* OutputDevices::named(std::string_view name) const {
    const auto found = std::find_if(devices_.begin(), devices_.end(), [&](const auto& device) {
        return device->described && device->name == name;
    });
    return found != devices_.end() ? found->get() : nullptr;
}

bool OutputDevices::areDescribed() const {
    return std::all_of(devices_.begin(), devices_.end(),
                       [](const auto& device) { return device->described; });
}

} // namespace nocturo
