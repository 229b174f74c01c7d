#include "rig/compositor.h"

#include "displays/kde/output_protocol.h"
#include "displays/wlr/gamma_control_protocol.h"
#include "rig/color_profile.h"

#include <wayland-server.h>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <thread>

namespace nocturo::rig {

constexpr int kMostMsToEnd = 10;

struct Compositor::State {
    struct Shown : Output {
        wl_global* global = nullptr;
        wl_global* device = nullptr;
        std::vector<wl_resource*> devices{};
    };
    struct Configuration {
        State* state;
        wl_resource* resource;
        std::vector<std::pair<Shown*, Output>> changes{};
        bool waits = false;
    };

    Kind kind{};
    std::uint32_t gammaSize = 0;
    Answer answer = Answer::takes;
    wl_display* display = nullptr;
    std::vector<std::unique_ptr<Shown>> outputs;
    std::vector<Configuration*> configurations; // that live
    std::vector<wl_resource*> registries;
    std::vector<std::unique_ptr<Shown>> unplugged;
    int asked = 0;
    int mostAtATime = 0;
    std::mutex mutex; // of everything but `ends`
    std::atomic<bool> ends = false;
    std::thread thread;

    void serve() {
        wl_event_loop* loop = wl_display_get_event_loop(display);
        for (pollfd source{wl_event_loop_get_fd(loop), POLLIN, 0}; !ends;
             poll(&source, 1, kMostMsToEnd)) {
            const std::lock_guard lock(mutex);
            wl_event_loop_dispatch(loop, 0);
            wl_display_flush_clients(display);
        }
    }

    static wl_resource* resource(wl_client* client, const wl_interface& interface, int version,
                                 std::uint32_t id, wl_dispatcher_func_t dispatch, void* data,
                                 wl_resource_destroy_func_t destroyed = nullptr) {
        wl_resource* made = wl_resource_create(client, &interface, version, id);
        wl_resource_set_dispatcher(made, dispatch, nullptr, data, destroyed);
        return made;
    }
    static int ignore(const void* /*implementation*/, void* target, std::uint32_t /*request*/,
                      const wl_message* message, wl_argument* /*arguments*/) {
        const std::string name = message->name;
        if (name == "destroy" || name == "release") {
            wl_resource_destroy(static_cast<wl_resource*>(target));
        }
        return 0;
    }
    static Shown& shown(wl_resource* device) {
        return *static_cast<Shown*>(wl_resource_get_user_data(device));
    }

    static void bindOutput(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        wl_resource* made =
            resource(client, wl_output_interface, static_cast<int>(version), id, ignore, data);
        wl_output_send_geometry(made, 0, 0, 0, 0, 0, "Maker", "Model", 0);
        wl_output_send_mode(made, WL_OUTPUT_MODE_CURRENT, 1920, 1080, 60000);
        wl_output_send_name(made, static_cast<Shown*>(data)->name.c_str());
        wl_output_send_done(made);
    }

    static void bindDevice(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
        auto* output = static_cast<Shown*>(data);
        describeAll(*output, device(client, *output, static_cast<int>(version), id));
    }
    static wl_resource* device(wl_client* client, Shown& output, int version, std::uint32_t id) {
        wl_resource* made =
            resource(client, kOutputDeviceInterface, version, id, ignore, &output,
                     [](wl_resource* gone) { std::erase(shown(gone).devices, gone); });
        output.devices.push_back(made);
        return made;
    }
    static void describeAll(const Output& output, wl_resource* device) {
        wl_resource_post_event(device, kDeviceMode,
                               resource(wl_resource_get_client(device), kOutputModeInterface,
                                        wl_resource_get_version(device), 0, ignore, nullptr));
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
        auto* state = static_cast<State*>(data);
        wl_resource* made = resource(
            client, kOutputRegistryInterface, static_cast<int>(version), id, ignore, data,
            [](wl_resource* gone) {
                std::erase(static_cast<State*>(wl_resource_get_user_data(gone))->registries, gone);
            });
        state->registries.push_back(made);
        for (const auto& output : state->outputs) {
            announce(*output, made);
        }
    }
    static void announce(Shown& output, wl_resource* registry) {
        wl_resource* announced =
            device(wl_resource_get_client(registry), output, wl_resource_get_version(registry), 0);
        wl_resource_post_event(registry, kRegistryOutput, announced);
        describeAll(output, announced);
    }

    static void bindManagement(wl_client* client, void* data, std::uint32_t version,
                               std::uint32_t id) {
        resource(client, kOutputManagementInterface, static_cast<int>(version), id, manage, data);
    }
    static int manage(const void* /*implementation*/, void* target, std::uint32_t /*request*/,
                      const wl_message* /*message*/, wl_argument* arguments) {
        auto* management = static_cast<wl_resource*>(target);
        auto* state = static_cast<State*>(wl_resource_get_user_data(management));
        auto* made = new Configuration{state, nullptr};
        made->resource =
            resource(wl_resource_get_client(management), kOutputConfigurationInterface,
                     wl_resource_get_version(management), arguments[0].n, configure, made,
                     [](wl_resource* gone) {
                         auto* configuration =
                             static_cast<Configuration*>(wl_resource_get_user_data(gone));
                         std::erase(configuration->state->configurations, configuration);
                         delete configuration;
                     });
        state->configurations.push_back(made);
        return 0;
    }
    static int configure(const void* /*implementation*/, void* target, std::uint32_t request,
                         const wl_message* /*message*/, wl_argument* arguments) {
        auto* configuration = static_cast<Configuration*>(
            wl_resource_get_user_data(static_cast<wl_resource*>(target)));
        if (request == kApply) {
            ++configuration->state->asked;
            configuration->waits = true;
            configuration->state->settle();
        } else if (request == kDestroyConfiguration) {
            wl_resource_destroy(static_cast<wl_resource*>(target));
        } else if (request == kSetProfilePath) {
            Shown& output = shown(reinterpret_cast<wl_resource*>(arguments[0].o));
            configuration->changes.push_back({&output, output});
            configuration->changes.back().second.path = arguments[1].s;
        } else if (request == kSetProfileSource) {
            configuration->changes.back().second.source = arguments[1].u;
        }
        return 0;
    }
    /// A client must not be destroyed while a request of its is dispatched.
    static void hangUp(wl_resource* resource) {
        shutdown(wl_client_get_fd(wl_resource_get_client(resource)), SHUT_RDWR);
    }
    void settle() {
        mostAtATime =
            std::max(mostAtATime,
                     static_cast<int>(std::count_if(configurations.begin(), configurations.end(),
                                                    [](const auto* each) { return each->waits; })));
        for (Configuration* configuration : std::vector(configurations)) {
            if (configuration->waits && answer != Answer::waits) {
                configuration->waits = false;
                settle(*configuration);
            }
        }
    }
    void settle(Configuration& configuration) {
        if (answer == Answer::hangsUp) {
            hangUp(configuration.resource);
            return;
        }
        const bool isRefused = std::any_of(
            configuration.changes.begin(), configuration.changes.end(), [&](const auto& change) {
                return answer == Answer::refuses ||
                       (!change.second.path.empty() && !calibrationIn(change.second.path));
            });
        if (isRefused) {
            wl_resource_post_event(configuration.resource, kFailureReason, "It is no good");
            wl_resource_post_event(configuration.resource, kFailed);
            return;
        }
        for (const auto& [output, wanted] : configuration.changes) {
            if (answer == Answer::takes && output->takesProfiles) {
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

    static void bindControls(wl_client* client, void* data, std::uint32_t version,
                             std::uint32_t id) {
        resource(client, kGammaControlManagerInterface, static_cast<int>(version), id, makeControl,
                 data);
    }
    static int makeControl(const void* /*implementation*/, void* target, std::uint32_t request,
                           const wl_message* /*message*/, wl_argument* arguments) {
        auto* manager = static_cast<wl_resource*>(target);
        auto* state = static_cast<State*>(wl_resource_get_user_data(manager));
        if (request == kGetGammaControl) {
            wl_resource* control = resource(wl_resource_get_client(manager), kGammaControlInterface,
                                            1, arguments[0].n, controlled, state);
            if (state->answer != Answer::waits) {
                wl_resource_post_event(control, 0, state->gammaSize);
            }
        }
        return 0;
    }
    static int controlled(const void* /*implementation*/, void* target, std::uint32_t request,
                          const wl_message* message, wl_argument* arguments) {
        auto* control = static_cast<wl_resource*>(target);
        auto* state = static_cast<State*>(wl_resource_get_user_data(control));
        if (request != kSetGamma) {
            return ignore(nullptr, target, request, message, arguments);
        }
        close(arguments[0].h);
        ++state->asked;
        if (state->answer == Answer::hangsUp) {
            hangUp(control);
        } else if (state->answer == Answer::refuses) {
            wl_resource_post_event(control, 1);
        }
        return 0;
    }

    void plug(Output output) {
        auto& shown = outputs.emplace_back(std::make_unique<Shown>());
        static_cast<Output&>(*shown) = std::move(output);
        shown->global = wl_global_create(display, &wl_output_interface, 4, shown.get(), bindOutput);
        if (kind == Kind::kwin) {
            shown->device =
                wl_global_create(display, &kOutputDeviceInterface, 18, shown.get(), bindDevice);
        }
        for (wl_resource* registry : registries) {
            announce(*shown, registry);
        }
    }
    void unplug() {
        Shown& gone = *outputs.back();
        wl_global_remove(gone.global);
        if (gone.device != nullptr) {
            wl_global_remove(gone.device);
        }
        for (wl_resource* device : gone.devices) {
            if (kind == Kind::kwinWithRegistry) {
                wl_resource_post_event(device, kDeviceRemoved);
            }
        }
        unplugged.push_back(std::move(outputs.back())); // clients may ask it something still
        outputs.pop_back();
    }

    void offer() {
        if (kind == Kind::kwinWithRegistry) {
            wl_global_create(display, &kOutputRegistryInterface, 21, this, bindRegistry);
        }
        if (kind == Kind::wlr) {
            wl_global_create(display, &kGammaControlManagerInterface, 1, this, bindControls);
        } else {
            wl_global_create(display, &kOutputManagementInterface, kind == Kind::plasma5 ? 5 : 12,
                             this, bindManagement);
        }
    }
};

Compositor::Compositor(Kind kind, std::vector<Output> outputs, std::uint32_t gammaSize)
    : state_(std::make_unique<State>()) {
    state_->kind = kind;
    state_->gammaSize = gammaSize;

    state_->display = wl_display_create();
    const int listening = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, display().c_str(), sizeof address.sun_path - 1);
    if (bind(listening, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        listen(listening, 16) != 0 || wl_display_add_socket_fd(state_->display, listening) != 0) {
        throw std::runtime_error("The compositor has no socket.");
    }
    for (Output& output : outputs) {
        state_->plug(std::move(output));
    }
    state_->offer();
    state_->thread = std::thread(&State::serve, state_.get());
}

Compositor::~Compositor() {
    state_->ends = true;
    state_->thread.join();
    wl_display_destroy_clients(state_->display);
    wl_display_destroy(state_->display);
}

void Compositor::run(const std::function<void()>& action) const {
    const std::lock_guard lock(state_->mutex);
    action();
    wl_display_flush_clients(state_->display);
}

void Compositor::setAnswer(Answer answer) {
    run([&] {
        state_->answer = answer;
        state_->settle();
    });
}

std::vector<Compositor::Output> Compositor::outputs() const {
    std::vector<Output> outputs;
    run([&] {
        for (const auto& output : state_->outputs) {
            outputs.push_back(*output);
        }
    });
    return outputs;
}

void Compositor::change(const std::function<void(Output&)>& change, std::size_t output) {
    run([&] {
        Output changed = static_cast<const Output&>(*state_->outputs.at(output));
        change(changed);
        State::set(*state_->outputs.at(output), changed);
    });
}

void Compositor::unplug() {
    run([&] { state_->unplug(); });
}

void Compositor::plug(Output output) {
    run([&] { state_->plug(std::move(output)); });
}

int Compositor::configurations() const {
    int asked = 0;
    run([&] { asked = state_->asked; });
    return asked;
}

int Compositor::mostAtATime() const {
    int most = 0;
    run([&] { most = state_->mostAtATime; });
    return most;
}

} // namespace nocturo::rig
