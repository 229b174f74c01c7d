#pragma once

#include "displays/kde/output_protocol.h"
#include "displays/wlr/gamma_control_protocol.h"
#include "rig/color_profile.h"
#include "unit/temporary_directory.h"

#include <wayland-server.h>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

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
    explicit Compositor(Kind kind, std::vector<Output> outputs, std::uint32_t gammaSize = 256)
        : kind_(kind), gammaSize_(gammaSize) {
        if (wl_display_add_socket(display_, display().c_str()) != 0) {
            throw std::runtime_error("The compositor has no socket.");
        }
        for (Output& output : outputs) {
            plug(std::move(output));
        }
        offer();
        thread_ = std::thread(&Compositor::serve, this);
    }
    ~Compositor() {
        ends_ = true;
        thread_.join();
        wl_display_destroy_clients(display_);
        wl_display_destroy(display_);
    }
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    /// The path of its socket, as $WAYLAND_DISPLAY may be.
    std::string display() const { return directory_ / "socket"; }

    /// From now on; what waits gets it as well.
    void setAnswer(Answer answer) {
        const std::lock_guard lock(mutex_);
        answer_ = answer;
        settle();
    }

    std::vector<Output> outputs() const {
        const std::lock_guard lock(mutex_);
        std::vector<Output> outputs;
        for (const auto& output : outputs_) {
            outputs.push_back(*output);
        }
        return outputs;
    }

    /// The first output, as its user does in its settings, or a monitor does.
    void change(const std::function<void(Output&)>& change) {
        const std::lock_guard lock(mutex_);
        Output changed = static_cast<const Output&>(*outputs_.front());
        change(changed);
        set(*outputs_.front(), changed);
    }

    /// Takes the last output away, or brings one.
    void unplug() {
        const std::lock_guard lock(mutex_);
        Shown& gone = *outputs_.back();
        wl_global_remove(gone.global);
        if (gone.device != nullptr) {
            wl_global_remove(gone.device);
        }
        for (wl_resource* device : gone.devices) {
            if (kind_ == Kind::kwinWithRegistry) {
                wl_resource_post_event(device, kDeviceRemoved);
            }
        }
        unplugged_.push_back(std::move(outputs_.back())); // clients may ask it something still
        outputs_.pop_back();
    }
    void plug(Output output) {
        const std::lock_guard lock(mutex_);
        auto& shown = outputs_.emplace_back(std::make_unique<Shown>());
        static_cast<Output&>(*shown) = std::move(output);
        shown->global =
            wl_global_create(display_, &wl_output_interface, 4, shown.get(), bindOutput);
        if (kind_ == Kind::kwin) {
            shown->device =
                wl_global_create(display_, &kOutputDeviceInterface, 18, shown.get(), bindDevice);
        }
        for (wl_resource* registry : registries_) {
            announce(*shown, registry);
        }
    }

    /// Configurations so far, and the most that were under way at a time.
    int configurations() const {
        const std::lock_guard lock(mutex_);
        return asked_;
    }
    int mostAtATime() const {
        const std::lock_guard lock(mutex_);
        return mostAtATime_;
    }

  private:
    static constexpr int kMostMsToNotice = 10;

    struct Shown : Output {
        wl_global* global = nullptr;
        wl_global* device = nullptr;
        std::vector<wl_resource*> devices{};
    };
    struct Configuration {
        Compositor* compositor;
        wl_resource* resource;
        std::vector<std::pair<Shown*, Output>> changes{};
        bool waits = false;
    };

    void serve() {
        wl_event_loop* loop = wl_display_get_event_loop(display_);
        for (pollfd source{wl_event_loop_get_fd(loop), POLLIN, 0}; !ends_;
             poll(&source, 1, kMostMsToNotice)) {
            const std::lock_guard lock(mutex_);
            wl_event_loop_dispatch(loop, 0);
            wl_display_flush_clients(display_);
        }
    }

    static wl_resource* resource(wl_client* client, const wl_interface& interface,
                                 std::uint32_t version, std::uint32_t id,
                                 wl_dispatcher_func_t dispatch, void* data,
                                 wl_resource_destroy_func_t destroyed = nullptr) {
        wl_resource* made = wl_resource_create(client, &interface, static_cast<int>(version), id);
        wl_resource_set_dispatcher(made, dispatch, nullptr, data, destroyed);
        return made;
    }
    /// The same beside another one of its client's.
    static wl_resource* resource(wl_resource* other, const wl_interface& interface,
                                 std::uint32_t id, wl_dispatcher_func_t dispatch, void* data,
                                 wl_resource_destroy_func_t destroyed = nullptr) {
        const int version = wl_resource_get_version(other);
        return resource(wl_resource_get_client(other), interface,
                        static_cast<std::uint32_t>(version), id, dispatch, data, destroyed);
    }
    template <class Data>
    static Data& of(void* resource) {
        return *static_cast<Data*>(wl_resource_get_user_data(static_cast<wl_resource*>(resource)));
    }
    /// For a global whose objects do nothing but answer_ requests.
    template <const wl_interface& interface, wl_dispatcher_func_t dispatch>
    static void bind(wl_client* client, void* state, std::uint32_t version, std::uint32_t id) {
        resource(client, interface, version, id, dispatch, state);
    }
    static int ignore(const void* /*implementation*/, void* target, std::uint32_t /*request*/,
                      const wl_message* message, wl_argument* /*arguments*/) {
        const std::string name = message->name;
        if (name == "destroy" || name == "release") {
            wl_resource_destroy(static_cast<wl_resource*>(target));
        }
        return 0;
    }

    static void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        wl_resource* made = resource(client, wl_output_interface, version, id, ignore, data);
        wl_output_send_name(made, static_cast<Shown*>(data)->name.c_str());
        wl_output_send_done(made);
    }

    static void bindDevice(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        auto& output = *static_cast<Shown*>(data);
        describeAll(output, resource(client, kOutputDeviceInterface, version, id, ignore, data,
                                     forgetDevice));
    }
    static void forgetDevice(wl_resource* device) { std::erase(of<Shown>(device).devices, device); }
    static void describeAll(Shown& output, wl_resource* device) {
        output.devices.push_back(device);
        wl_resource_post_event(device, kDeviceMode,
                               resource(device, kOutputModeInterface, 0, ignore, nullptr));
        wl_resource_post_event(device, kDeviceEdid, "TWFu"); // "Man"
        wl_resource_post_event(device, kDeviceUuid, ("uuid of " + output.name).c_str());
        wl_resource_post_event(device, kDeviceName, output.name.c_str());
        describe(output, device);
    }
    static void describe(const Output& output, wl_resource* device) {
        wl_resource_post_event(device, kDeviceCapabilities, output.takesProfiles ? 0x41U : 1U);
        wl_resource_post_event(device, kDeviceHighDynamicRange, output.highDynamicRange ? 1U : 0U);
        wl_resource_post_event(device, kDeviceProfilePath, output.path.c_str());
        wl_resource_post_event(device, kDeviceProfileSource, output.source);
        wl_resource_post_event(device, kDeviceDone);
    }
    static void bindRegistry(wl_client* client, void* data, std::uint32_t version,
                             std::uint32_t id) {
        auto& state = *static_cast<Compositor*>(data);
        state.registries_.push_back(resource(
            client, kOutputRegistryInterface, version, id, ignore, data,
            [](wl_resource* gone) { std::erase(of<Compositor>(gone).registries_, gone); }));
        for (const auto& output : state.outputs_) {
            announce(*output, state.registries_.back());
        }
    }
    static void announce(Shown& output, wl_resource* registry) {
        wl_resource* announced =
            resource(registry, kOutputDeviceInterface, 0, ignore, &output, forgetDevice);
        wl_resource_post_event(registry, kRegistryOutput, announced);
        describeAll(output, announced);
    }

    static int manage(const void* /*implementation*/, void* target, std::uint32_t /*request*/,
                      const wl_message* /*message*/, wl_argument* arguments) {
        auto& state = of<Compositor>(target);
        auto* made = state.configurations_.emplace_back(new Configuration{&state, nullptr});
        made->resource =
            resource(static_cast<wl_resource*>(target), kOutputConfigurationInterface,
                     arguments[0].n, configure, made, [](wl_resource* gone) {
                         auto* configuration = &of<Configuration>(gone);
                         std::erase(configuration->compositor->configurations_, configuration);
                         delete configuration;
                     });
        return 0;
    }
    static int configure(const void* /*implementation*/, void* target, std::uint32_t request,
                         const wl_message* /*message*/, wl_argument* arguments) {
        auto& configuration = of<Configuration>(target);
        if (request == kApply) {
            ++configuration.compositor->asked_;
            configuration.waits = true;
            configuration.compositor->settle();
        } else if (request == kDestroyConfiguration) {
            wl_resource_destroy(configuration.resource);
        } else if (request == kSetProfilePath) {
            auto& output = of<Shown>(arguments[0].o);
            configuration.changes.push_back({&output, output});
            configuration.changes.back().second.path = arguments[1].s;
        } else if (request == kSetProfileSource) {
            configuration.changes.back().second.source = arguments[1].u;
        }
        return 0;
    }
    /// A client must not be destroyed while a request of its is dispatched.
    static void hangUp(wl_resource* resource) {
        shutdown(wl_client_get_fd(wl_resource_get_client(resource)), SHUT_RDWR);
    }
    void settle() {
        const auto waiting = std::ranges::count_if(configurations_, &Configuration::waits);
        mostAtATime_ = std::max(mostAtATime_, static_cast<int>(waiting));
        for (Configuration* configuration : std::vector(configurations_)) {
            if (configuration->waits && answer_ != Answer::waits) {
                configuration->waits = false;
                settle(*configuration);
            }
        }
    }
    void settle(Configuration& configuration) {
        if (answer_ == Answer::hangsUp) {
            hangUp(configuration.resource);
            return;
        }
        const bool isRefused = std::ranges::any_of(configuration.changes, [&](const auto& change) {
            const std::string& path = change.second.path;
            return answer_ == Answer::refuses || (!path.empty() && !calibrationIn(path));
        });
        if (isRefused) {
            wl_resource_post_event(configuration.resource, kFailureReason, "It is no good");
            wl_resource_post_event(configuration.resource, kFailed);
            return;
        }
        for (const auto& [output, wanted] : configuration.changes) {
            if (answer_ == Answer::takes && output->takesProfiles) {
                set(*output, wanted);
            }
        }
        wl_resource_post_event(configuration.resource, kApplied);
    }
    static void set(Shown& output, const Output& wanted) {
        static_cast<Output&>(output) = wanted;
        for (wl_resource* device : output.devices) {
            describe(output, device);
        }
    }

    static int makeControl(const void* /*implementation*/, void* target, std::uint32_t request,
                           const wl_message* /*message*/, wl_argument* arguments) {
        auto& state = of<Compositor>(target);
        if (request == kGetGammaControl) {
            wl_resource* control =
                resource(static_cast<wl_resource*>(target), kGammaControlInterface, arguments[0].n,
                         controlled, &state);
            if (state.answer_ != Answer::waits) {
                wl_resource_post_event(control, 0, state.gammaSize_);
            }
        }
        return 0;
    }
    static int controlled(const void* /*implementation*/, void* target, std::uint32_t request,
                          const wl_message* message, wl_argument* arguments) {
        if (request != kSetGamma) {
            return ignore(nullptr, target, request, message, arguments);
        }
        auto* control = static_cast<wl_resource*>(target);
        auto& state = of<Compositor>(control);
        close(arguments[0].h);
        ++state.asked_;
        if (state.answer_ == Answer::hangsUp) {
            hangUp(control);
        } else if (state.answer_ == Answer::refuses) {
            wl_resource_post_event(control, 1);
        }
        return 0;
    }

    void offer() {
        if (kind_ == Kind::kwinWithRegistry) {
            wl_global_create(display_, &kOutputRegistryInterface, 21, this, bindRegistry);
        }
        if (kind_ == Kind::wlr) {
            wl_global_create(display_, &kGammaControlManagerInterface, 1, this,
                             bind<kGammaControlManagerInterface, makeControl>);
        } else {
            wl_global_create(display_, &kOutputManagementInterface, kind_ == Kind::plasma5 ? 5 : 12,
                             this, bind<kOutputManagementInterface, manage>);
        }
    }

    TemporaryDirectory directory_;
    Kind kind_;
    std::uint32_t gammaSize_;
    Answer answer_ = Answer::takes;
    wl_display* display_ = wl_display_create();
    std::vector<std::unique_ptr<Shown>> outputs_;
    std::vector<Configuration*> configurations_; // that live
    std::vector<wl_resource*> registries_;
    std::vector<std::unique_ptr<Shown>> unplugged_;
    int asked_ = 0;
    int mostAtATime_ = 0;
    mutable std::mutex mutex_; // of everything but `ends_`
    std::atomic<bool> ends_ = false;
    std::thread thread_;
};

} // namespace nocturo::rig
