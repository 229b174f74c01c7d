#include "automation/wlr/wlr_foreground.h"

#include "automation/wlr/toplevel_protocol.h"
#include "base/run_loop.h"
#include "displays/display_functions.h"
#include "wayland/wayland_connection.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <tuple>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 500ms;

bool has(const wl_array& states, std::uint32_t state) {
    const auto* first = static_cast<const std::uint32_t*>(states.data);
    const auto* end = first + states.size / sizeof(std::uint32_t);
    return std::find(first, end, state) != end;
}

} // namespace

/// A window, as told up to now. The compositor tells nothing of what is only half told.
struct WlrForeground::Toplevel {
    WlrForeground* foreground = nullptr;
    wl_proxy* proxy = nullptr;
    std::string program;
    std::set<const wl_output*> outputs;
    bool isFullscreen = false;
    bool isActive = false;
    bool isMinimized = false;
    std::uint64_t activation = 0; // the higher, the later it was worked in
};

/// What libwayland calls. `data` is a toplevel, or the foreground for the manager.
struct WlrForeground::Listeners {
    static Toplevel& toplevelOf(void* data) { return *static_cast<Toplevel*>(data); }

    static void toplevel(void* data, wl_proxy* /*manager*/, wl_proxy* proxy) {
        auto* foreground = static_cast<WlrForeground*>(data);
        Toplevel& toplevel = foreground->toplevels_.emplace_back();
        toplevel.foreground = foreground;
        toplevel.proxy = proxy;
        listen(proxy, kToplevel, &toplevel);
    }
    static void finished(void* data, wl_proxy* /*manager*/) {
        static_cast<WlrForeground*>(data)->stopTelling();
    }

    static void title(void* /*data*/, wl_proxy* /*proxy*/, const char* /*title*/) {}
    static void appId(void* data, wl_proxy* /*proxy*/, const char* appId) {
        toplevelOf(data).program = appId;
    }
    static void outputEnter(void* data, wl_proxy* /*proxy*/, wl_output* output) {
        toplevelOf(data).outputs.insert(output);
    }
    static void outputLeave(void* data, wl_proxy* /*proxy*/, wl_output* output) {
        toplevelOf(data).outputs.erase(output);
    }
    static void state(void* data, wl_proxy* /*proxy*/, wl_array* states) {
        Toplevel& toplevel = toplevelOf(data);
        toplevel.isFullscreen = has(*states, kToplevelFullscreen);
        toplevel.isMinimized = has(*states, kToplevelMinimized);
        const bool isActive = has(*states, kToplevelActivated);
        if (!std::exchange(toplevel.isActive, isActive) && isActive) {
            toplevel.activation = ++toplevel.foreground->activations_;
        }
    }
    static void done(void* data, wl_proxy* /*proxy*/) {
        toplevelOf(data).foreground->isStale_ = true;
    }
    static void closed(void* data, wl_proxy* /*proxy*/) {
        Toplevel& toplevel = toplevelOf(data);
        toplevel.foreground->remove(toplevel);
    }

    template <typename Table>
    static void listen(wl_proxy* proxy, const Table& table, void* data) {
        wl_proxy_add_listener(proxy, reinterpret_cast<void (**)()>(const_cast<Table*>(&table)),
                              data);
    }

    static constexpr ToplevelManagerListener kManager = {toplevel, finished};
    static constexpr ToplevelListener kToplevel = {title, appId, outputEnter, outputLeave,
                                                   state, done,  closed};
};

std::unique_ptr<WlrForeground> WlrForeground::open(const std::string& display, RunLoop& runLoop,
                                                   std::function<void()> changed) {
    auto compositor = display.empty() ? nullptr : WaylandConnection::open(display);
    if (compositor == nullptr ||
        !compositor->offers(kToplevelManagerInterface.name, kToplevelVersion)) {
        return nullptr;
    }
    std::unique_ptr<WlrForeground> foreground(new WlrForeground(std::move(compositor), runLoop));
    foreground->changed_ = std::move(changed);
    return foreground;
}

WlrForeground::WlrForeground(std::unique_ptr<WaylandConnection> compositor, RunLoop& runLoop)
    : compositor_(std::move(compositor)), changed_([] {}),
      manager_(compositor_->bind(kToplevelManagerInterface, kToplevelVersion)) {
    Listeners::listen(manager_, Listeners::kManager, this);
    compositor_->setOutputGoneHandler([this](const WaylandOutput& output) {
        for (Toplevel& toplevel : toplevels_) {
            toplevel.outputs.erase(output.proxy);
        }
        isStale_ = true;
    });
    compositor_->sync(kPatience); // what windows there are
    look();
    watch_ = runLoop.watch(compositor_->descriptor(), [this] { takeEvents(); });
}

WlrForeground::~WlrForeground() {
    watch_.reset();
    while (!toplevels_.empty()) {
        remove(toplevels_.front());
    }
    wl_proxy_destroy(manager_);
}

void WlrForeground::remove(const Toplevel& toplevel) {
    wl_proxy_marshal_flags(toplevel.proxy, kDestroyToplevel, nullptr,
                           wl_proxy_get_version(toplevel.proxy), WL_MARSHAL_FLAG_DESTROY);
    toplevels_.remove_if([&](const Toplevel& each) { return &each == &toplevel; });
    isStale_ = true;
}

void WlrForeground::stopTelling() {
    isTold_ = false;
    isStale_ = true;
}

void WlrForeground::takeEvents() {
    compositor_->processEvents();
    if (compositor_->isLost()) {
        watch_.reset(); // a descriptor at its end stays readable for good
        stopTelling();
    }
    if (std::exchange(isStale_, false)) {
        displaysDidChange();
    }
}

void WlrForeground::displaysDidChange() {
    const InFront before = inFront_;
    look();
    if (inFront_ != before) {
        changed_();
    }
}

void WlrForeground::look() {
    inFront_ = {};
    if (!isTold_) {
        return;
    }
    for (const Toplevel& toplevel : toplevels_) {
        if (toplevel.isActive && !toplevel.program.empty()) {
            inFront_.programs = {toplevel.program};
        }
    }
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    for (std::size_t i = 0; online != nullptr && i < online->size(); ++i) {
        if (isFilled((*online)[i].name)) {
            inFront_.filled.insert((*online)[i].id);
        }
    }
}

bool WlrForeground::isFilled(const std::string& display) const {
    const auto outputs = compositor_->outputs();
    const auto output = std::find_if(outputs.begin(), outputs.end(),
                                     [&](const auto* each) { return each->name == display; });
    if (output == outputs.end()) {
        return false;
    }
    const Toplevel* last = nullptr;
    const auto rank = [](const Toplevel& each) {
        return std::tuple(each.isActive, each.activation, each.isFullscreen);
    };
    for (const Toplevel& each : toplevels_) {
        if (!each.isMinimized && each.outputs.contains((*output)->proxy) &&
            (last == nullptr || rank(each) > rank(*last))) {
            last = &each;
        }
    }
    return last != nullptr && last->isFullscreen;
}

} // namespace nocturo
