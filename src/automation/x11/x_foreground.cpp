#include "automation/x11/x_foreground.h"

#include "automation/x11/x_window_facts.h"
#include "displays/display_functions.h"

#include <algorithm>
#include <utility>

// Which window fills a display is not told by one property: it takes the place of windows, their
// states and what lies above what. So all windows tell when they are moved or mapped; only those as
// large as a display tell of their properties as well, since others change theirs all the time, as
// a player its title.

namespace nocturo {

namespace {

using namespace std::chrono_literals;

constexpr const char* kActive = "_NET_ACTIVE_WINDOW";
constexpr const char* kStacking = "_NET_CLIENT_LIST_STACKING";
constexpr const char* kCurrentDesktop = "_NET_CURRENT_DESKTOP";
constexpr const char* kManager = "_NET_SUPPORTING_WM_CHECK";

/// Those below have nothing that could be seen.
constexpr std::size_t kMostClients = 200;

/// What a window manager does in several steps is read as one, and windows that never rest are not
/// read more often.
constexpr auto kSoon = 5ms;

const std::vector<DisplayInfo>& onlineDisplays() {
    static const std::vector<DisplayInfo> kNone;
    DisplayServices* services = displayServices();
    const auto* online = services != nullptr ? services->onlineDisplays() : nullptr;
    return online != nullptr ? *online : kNone;
}

} // namespace

XForeground::XForeground(XConnection& server, RunLoop& runLoop, bool filling,
                         std::function<void()> changed)
    : server_(server), runLoop_(runLoop), filling_(filling), changed_([] {}) {
    for (const char* name : {kActive, kStacking, kCurrentDesktop, kManager}) {
        server_.expectAtom(name);
    }
    expectAtomsOfFacts(server_);
    listen();
    refresh();
    changed_ = std::move(changed);
}

void XForeground::listen() {
    const xcb_window_t root = server_.root();
    std::vector<const char*> properties = {kActive, kManager};
    if (filling_) {
        properties.insert(properties.end(), {kStacking, kCurrentDesktop});
    }
    for (const char* name : properties) {
        listeners_.push_back(
            server_.onProperty(root, server_.atom(name), [this] { rootDidChange(); }));
    }
    if (!filling_) {
        return;
    }
    listeners_.push_back(server_.onEvent(XCB_CONFIGURE_NOTIFY, [this](const auto& event) {
        clientWasPlaced(reinterpret_cast<const xcb_configure_notify_event_t&>(event));
    }));
    listeners_.push_back(server_.onEvent(XCB_MAP_NOTIFY, [this](const auto& event) {
        clientDidChange(reinterpret_cast<const xcb_map_notify_event_t&>(event).window);
    }));
    listeners_.push_back(server_.onEvent(XCB_UNMAP_NOTIFY, [this](const auto& event) {
        clientDidChange(reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window);
    }));
    listeners_.push_back(server_.onEvent(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (isOfFacts(server_, change.atom)) {
            clientDidChange(change.window);
        }
    }));
}

void XForeground::rootDidChange() {
    isRootStale_ = true;
    refreshSoon();
}

void XForeground::clientDidChange(xcb_window_t window) {
    if (const auto client = clients_.find(window); client != clients_.end()) {
        client->second.isStale = true;
        refreshSoon();
    }
}

void XForeground::clientWasPlaced(const xcb_configure_notify_event_t& event) {
    // The size alone is certain: the place is that in the frame.
    const auto isLarge = [&](const DisplayInfo& display) {
        return event.width >= display.bounds.width && event.height >= display.bounds.height;
    };
    const auto& displays = onlineDisplays();
    if (anyCovers_ || std::any_of(displays.begin(), displays.end(), isLarge)) {
        clientDidChange(event.window);
    }
}

void XForeground::refreshSoon() {
    if (soon_ == nullptr) {
        soon_ = runLoop_.scheduleTimer(kSoon, [this] {
            soon_.reset();
            refresh();
        });
    }
}

void XForeground::refresh() {
    if (std::exchange(isRootStale_, false)) {
        readRoot();
    }
    readClients();
    tell();
}

void XForeground::readRoot() {
    const auto numbers = [this](const char* name) {
        return server_.property(server_.root(), server_.atom(name))
            .value_or(std::vector<std::uint32_t>());
    };
    const auto number = [&](const char* name) {
        const auto all = numbers(name);
        return all.empty() ? 0 : all.front();
    };
    isManaged_ = number(kManager) != XCB_WINDOW_NONE;
    active_ = number(kActive);
    if (filling_) {
        desktop_ = number(kCurrentDesktop);
        takeStack(numbers(kStacking));
    }
}

void XForeground::takeStack(std::vector<std::uint32_t> windows) {
    std::reverse(windows.begin(), windows.end());
    windows.resize(std::min(windows.size(), kMostClients));
    stack_ = std::move(windows);
    std::map<xcb_window_t, Client> left = std::exchange(clients_, {});
    for (const xcb_window_t window : stack_) {
        auto known = left.extract(window);
        if (!known.empty()) {
            clients_.insert(std::move(known));
        } else if (clients_.try_emplace(window).second) {
            clients_[window].hearsPlace =
                server_.selectEventsMeanwhile(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        }
    }
}

void XForeground::readClients() {
    std::vector<xcb_window_t> stale;
    for (const auto& [window, client] : clients_) {
        if (client.isStale) {
            stale.push_back(window);
        }
    }
    const auto facts = factsOf(server_, stale);
    for (std::size_t i = 0; i < stale.size(); ++i) {
        Client& client = clients_[stale[i]];
        client.window = facts[i].window;
        client.desktop = facts[i].desktop;
        client.isStale = false;
        if (!coversAny(client.window.bounds)) {
            client.hearsProperties.reset();
        } else if (client.hearsProperties == nullptr) {
            client.hearsProperties =
                server_.selectEventsMeanwhile(stale[i], XCB_EVENT_MASK_PROPERTY_CHANGE);
            client.isStale = true; // what changed after it answered was not heard of
            refreshSoon();
        }
    }
}

bool XForeground::coversAny(const DisplayRect& bounds) const {
    const auto& displays = onlineDisplays();
    return std::any_of(displays.begin(), displays.end(),
                       [&](const DisplayInfo& display) { return covers(bounds, display.bounds); });
}

void XForeground::tell() {
    InFront now;
    if (active_ != XCB_WINDOW_NONE) {
        now.programs = programOf(server_, active_);
    }
    std::vector<StackedWindow> windows;
    anyCovers_ = false;
    for (const xcb_window_t each : stack_) {
        const Client& client = clients_[each];
        StackedWindow& window = windows.emplace_back(client.window);
        window.isActive = each == active_;
        window.isVisible =
            window.isVisible && (client.desktop == desktop_ || client.desktop == kEveryDesktop);
        anyCovers_ = anyCovers_ || (window.isVisible && coversAny(window.bounds));
    }
    now.filled = filledDisplays(windows, onlineDisplays());
    if (now != inFront_) {
        inFront_ = std::move(now);
        changed_();
    }
}

} // namespace nocturo
