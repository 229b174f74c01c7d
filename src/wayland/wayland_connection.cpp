#include "wayland/wayland_connection.h"

#include "wayland/output_place_protocol.h"

#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatienceAtStart = 1000ms;
constexpr std::uint32_t kPlaceManagerVersion = 3;
constexpr std::uint32_t kOutputVersion = 4;
constexpr std::uint32_t kPlaceNeedsNoDone = 3; // from that version on the output's counts for both

} // namespace

struct WaylandConnection::Output : WaylandOutput {
    WaylandConnection* connection = nullptr;
    wl_proxy* place = nullptr; // zxdg_output_v1
    bool changed = true;       // since it was described last
    std::int32_t modeWidth = 0;
    std::int32_t modeHeight = 0;
};

/// A question to which the compositor's answer comes after those to all earlier ones.
struct WaylandConnection::RoundTrip {
    RoundTrip(wl_display* display, std::function<void()> whenAnswered)
        : callback(wl_display_sync(display)), action(std::move(whenAnswered)) {}
    ~RoundTrip() { wl_callback_destroy(callback); }
    RoundTrip(const RoundTrip&) = delete;
    RoundTrip& operator=(const RoundTrip&) = delete;

    wl_callback* callback;
    std::function<void()> action;
};

/// What libwayland calls. `data` is an Output, or the connection for globals.
struct WaylandConnection::Listeners {
    static void global(void* data, wl_registry* /*registry*/, std::uint32_t number,
                       const char* interface, std::uint32_t version) {
        static_cast<WaylandConnection*>(data)->addGlobal({number, interface, version});
    }
    static void globalRemoved(void* data, wl_registry* /*registry*/, std::uint32_t number) {
        static_cast<WaylandConnection*>(data)->removeGlobal(number);
    }

    template <typename T>
    static void set(void* data, T WaylandOutput::*member, const T& value) {
        auto* output = static_cast<Output*>(data);
        if (output->*member != value) {
            output->*member = value;
            output->changed = true;
        }
    }

    static void geometry(void* data, wl_output* /*proxy*/, std::int32_t x, std::int32_t y,
                         std::int32_t /*widthMm*/, std::int32_t /*heightMm*/,
                         std::int32_t /*subpixel*/, const char* make, const char* model,
                         std::int32_t /*transform*/) {
        set<std::string>(data, &WaylandOutput::make, make);
        set<std::string>(data, &WaylandOutput::model, model);
        if (static_cast<Output*>(data)->place == nullptr) {
            set(data, &WaylandOutput::x, x);
            set(data, &WaylandOutput::y, y);
        }
    }
    static void mode(void* data, wl_output* /*proxy*/, std::uint32_t flags, std::int32_t width,
                     std::int32_t height, std::int32_t /*refresh*/) {
        auto* output = static_cast<Output*>(data);
        if ((flags & WL_OUTPUT_MODE_CURRENT) == 0) {
            return;
        }
        output->modeGeneration = ++output->connection->lastModeGeneration_;
        output->changed = true;
        if (output->place == nullptr) {
            output->width = width;
            output->height = height;
        }
    }
    static void done(void* data, wl_output* /*proxy*/) {
        auto* output = static_cast<Output*>(data);
        output->connection->outputDescribed(*output);
    }
    static void scale(void* /*data*/, wl_output* /*proxy*/, std::int32_t /*factor*/) {}
    static void outputName(void* data, wl_output* /*proxy*/, const char* name) {
        set<std::string>(data, &WaylandOutput::name, name);
    }
    static void outputDescription(void* /*data*/, wl_output* /*proxy*/, const char* /*text*/) {}

    static void position(void* data, wl_proxy* /*place*/, std::int32_t x, std::int32_t y) {
        set(data, &WaylandOutput::x, x);
        set(data, &WaylandOutput::y, y);
    }
    static void size(void* data, wl_proxy* /*place*/, std::int32_t width, std::int32_t height) {
        set(data, &WaylandOutput::width, width);
        set(data, &WaylandOutput::height, height);
    }
    static void placeDone(void* data, wl_proxy* place) {
        if (wl_proxy_get_version(place) < kPlaceNeedsNoDone) {
            done(data, nullptr);
        }
    }
    static void placeName(void* data, wl_proxy* /*place*/, const char* name) {
        set<std::string>(data, &WaylandOutput::name, name);
    }
    static void placeDescription(void* /*data*/, wl_proxy* /*place*/, const char* /*text*/) {}

    static void answered(void* data, wl_callback* callback, std::uint32_t /*serial*/) {
        auto& roundTrips = static_cast<WaylandConnection*>(data)->roundTrips_;
        const auto found =
            std::find_if(roundTrips.begin(), roundTrips.end(),
                         [&](const auto& roundTrip) { return roundTrip->callback == callback; });
        const auto ended = std::move(*found);
        roundTrips.erase(found);
        ended->action();
    }

    static constexpr wl_callback_listener kAnswer = {answered};
    static constexpr wl_registry_listener kRegistry = {global, globalRemoved};
    static constexpr wl_output_listener kOutput = {geometry, mode,       done,
                                                   scale,    outputName, outputDescription};
    static constexpr OutputPlaceListener kPlace = {position, size, placeDone, placeName,
                                                   placeDescription};
};

std::unique_ptr<WaylandConnection> WaylandConnection::open(const std::string& name) {
    wl_display* display = wl_display_connect(name.c_str());
    if (display == nullptr) {
        return nullptr;
    }
    std::unique_ptr<WaylandConnection> connection(new WaylandConnection(display));
    // The first answer brings the globals, the second what was bound because of them.
    for (int round = 0; round < 2; ++round) {
        if (!connection->sync(kPatienceAtStart)) {
            return nullptr;
        }
    }
    return connection;
}

WaylandConnection::WaylandConnection(wl_display* display)
    : display_(display), registry_(wl_display_get_registry(display)) {
    wl_registry_add_listener(registry_, &Listeners::kRegistry, this);
}

WaylandConnection::~WaylandConnection() {
    roundTrips_.clear();
    for (const auto& output : outputs_) {
        wl_proxy_destroy(output->place != nullptr ? output->place
                                                  : reinterpret_cast<wl_proxy*>(output->proxy));
        if (output->place != nullptr) {
            wl_proxy_destroy(reinterpret_cast<wl_proxy*>(output->proxy));
        }
    }
    if (placeManager_ != nullptr) {
        wl_proxy_destroy(placeManager_);
    }
    wl_registry_destroy(registry_);
    wl_display_disconnect(display_);
}

bool WaylandConnection::offers(std::string_view interface, std::uint32_t version) const {
    return std::any_of(globals_.begin(), globals_.end(), [&](const Global& global) {
        return global.interface == interface && global.version >= version;
    });
}

wl_proxy* WaylandConnection::bind(const wl_interface& interface, std::uint32_t version) const {
    const auto found = std::find_if(globals_.begin(), globals_.end(), [&](const Global& global) {
        return global.interface == interface.name;
    });
    return found != globals_.end() ? bind(*found, interface, version) : nullptr;
}

wl_proxy* WaylandConnection::bind(const Global& global, const wl_interface& interface,
                                  std::uint32_t version) const {
    return static_cast<wl_proxy*>(
        wl_registry_bind(registry_, global.number, &interface, std::min(version, global.version)));
}

void WaylandConnection::follow(const wl_interface& interface, std::uint32_t version,
                               std::function<void(wl_proxy*, std::uint32_t)> came,
                               std::function<void(std::uint32_t)> gone) {
    followed_ = {&interface, version, std::move(came), std::move(gone)};
    for (const Global& global : globals_) {
        if (global.interface == interface.name) {
            followed_.came(bind(global, interface, version), global.number);
        }
    }
}

std::vector<const WaylandOutput*> WaylandConnection::outputs() const {
    std::vector<const WaylandOutput*> described;
    for (const auto& output : outputs_) {
        if (output->described) {
            described.push_back(output.get());
        }
    }
    return described;
}

const WaylandOutput* WaylandConnection::output(std::uint32_t global) const {
    const auto found = std::find_if(outputs_.begin(), outputs_.end(), [&](const auto& output) {
        return output->global == global && output->described;
    });
    return found != outputs_.end() ? found->get() : nullptr;
}

void WaylandConnection::addGlobal(const Global& global) {
    globals_.push_back(global);
    if (global.interface == kOutputPlaceManagerInterface.name && placeManager_ == nullptr) {
        placeManager_ = bind(kOutputPlaceManagerInterface, kPlaceManagerVersion);
        for (const auto& output : outputs_) {
            describe(*output);
        }
    }
    if (followed_.interface != nullptr && global.interface == followed_.interface->name) {
        followed_.came(bind(global, *followed_.interface, followed_.version), global.number);
    }
    if (global.interface != wl_output_interface.name) {
        return;
    }
    auto output = std::make_unique<Output>();
    output->connection = this;
    output->global = global.number;
    output->proxy = static_cast<wl_output*>(wl_registry_bind(
        registry_, global.number, &wl_output_interface, std::min(kOutputVersion, global.version)));
    wl_output_add_listener(output->proxy, &Listeners::kOutput, output.get());
    describe(*output);
    outputs_.push_back(std::move(output));
}

/// Asks for the place in the compositor's space, and for the name, which older outputs do not tell.
void WaylandConnection::describe(Output& output) {
    if (placeManager_ == nullptr || output.place != nullptr) {
        return;
    }
    output.described = false; // until its place has come, too
    output.place =
        wl_proxy_marshal_flags(placeManager_, kGetPlace, &kOutputPlaceInterface,
                               wl_proxy_get_version(placeManager_), 0, nullptr, output.proxy);
    wl_proxy_add_listener(
        output.place,
        reinterpret_cast<void (**)()>(const_cast<OutputPlaceListener*>(&Listeners::kPlace)),
        &output);
}

void WaylandConnection::outputDescribed(Output& output) {
    if (output.name.empty() && output.place == nullptr) {
        output.name = "WL-" + std::to_string(output.global); // nobody tells another
    }
    const bool wasDescribed = std::exchange(output.described, !output.name.empty());
    if (std::exchange(output.changed, false) || output.described != wasDescribed) {
        ++outputsGeneration_;
    }
}

void WaylandConnection::removeGlobal(std::uint32_t number) {
    std::erase_if(globals_, [&](const Global& global) { return global.number == number; });
    if (followed_.gone) {
        followed_.gone(number);
    }
    const auto found = std::find_if(outputs_.begin(), outputs_.end(),
                                    [&](const auto& output) { return output->global == number; });
    if (found == outputs_.end()) {
        return;
    }
    if (outputGone_) {
        outputGone_(**found);
    }
    if ((*found)->place != nullptr) {
        wl_proxy_destroy((*found)->place);
    }
    wl_output_destroy((*found)->proxy);
    outputs_.erase(found);
    ++outputsGeneration_;
}

int WaylandConnection::descriptor() const {
    return wl_display_get_fd(display_);
}

void WaylandConnection::processEvents() {
    takeIn(0);
}

void WaylandConnection::flush() {
    full_ = wl_display_flush(display_) < 0 && errno == EAGAIN;
}

bool WaylandConnection::waitUntil(const std::function<bool()>& condition,
                                  std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || !takeIn(static_cast<int>(left.count()))) {
            return condition();
        }
    }
    return true;
}

/// False when the connection is lost. A compositor that takes nothing in any more is not waited
/// for: what could not be sent is sent the next time.
bool WaylandConnection::takeIn(int timeoutMs) {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) {
            return false;
        }
        timeoutMs = 0; // something has come; the caller looks at it before it waits
    }
    flush();
    pollfd waiting{wl_display_get_fd(display_),
                   static_cast<short>(full_ ? POLLIN | POLLOUT : POLLIN), 0};
    if (poll(&waiting, 1, timeoutMs) > 0 && (waiting.revents & (POLLIN | POLLERR | POLLHUP)) != 0) {
        wl_display_read_events(display_);
    } else {
        wl_display_cancel_read(display_);
    }
    const bool connected = wl_display_dispatch_pending(display_) >= 0;
    flush(); // what was asked for because of an event is not to wait for the next one
    return connected;
}

bool WaylandConnection::sync(std::chrono::milliseconds patience) {
    const auto answered = std::make_shared<bool>(false); // the answer may come later
    afterAnswers([answered] { *answered = true; });
    return waitUntil([&] { return *answered; }, patience);
}

void WaylandConnection::afterAnswers(std::function<void()> action) {
    auto& roundTrip =
        roundTrips_.emplace_back(std::make_unique<RoundTrip>(display_, std::move(action)));
    wl_callback_add_listener(roundTrip->callback, &Listeners::kAnswer, this);
}

bool WaylandConnection::isLost() const {
    return wl_display_get_error(display_) != 0;
}

} // namespace nocturo
