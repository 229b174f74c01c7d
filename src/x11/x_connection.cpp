#include "x11/x_connection.h"

#include "base/run_loop.h"

#include <algorithm>
#include <poll.h>
#include <utility>

// While xcb waits for an answer it reads the events before it as well, and keeps them. So the
// descriptor shows nothing although events are there, and they are looked for each time before the
// loop waits. Whoever has to know at once what came in asks for it with takeIn(). That calls no
// handler: a handler may do anything, and the asker is in the middle of something.

namespace nocturo {

namespace {

constexpr std::uint32_t kMostNumbers = 1U << 18U; // of a property; any client may write any
constexpr unsigned kLoss = 256;                   // beyond the types of events

xcb_intern_atom_cookie_t askForAtom(xcb_connection_t* connection, std::string_view name) {
    return xcb_intern_atom(connection, false, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t answeredAtom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie) {
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

unsigned typeOf(const xcb_generic_event_t& event) {
    return event.response_type & 0x7fu;
}

} // namespace

struct XConnection::Listener {
    unsigned type;
    bool onlyNotes = false;
    xcb_window_t window = XCB_WINDOW_NONE; // of a property
    xcb_atom_t property = XCB_ATOM_NONE;   // none for all
    Handler call;

    bool hears(const xcb_generic_event_t& event) const {
        if (type != typeOf(event)) {
            return false;
        }
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return property == XCB_ATOM_NONE || (change.atom == property && change.window == window);
    }
};

std::unique_ptr<XConnection> XConnection::open(const std::string& displayName) {
    if (displayName.empty()) {
        return nullptr; // to xcb it would mean the environment's
    }
    int screenNumber = 0;
    XcbConnection connection(xcb_connect(displayName.c_str(), &screenNumber));
    if (xcb_connection_has_error(connection.get()) != 0) {
        return nullptr;
    }
    return std::unique_ptr<XConnection>(new XConnection(std::move(connection), screenNumber));
}

XConnection::XConnection(XcbConnection connection, int screenNumber)
    : connection_(std::move(connection)), screenNumber_(screenNumber) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(handle()));
    for (int i = 0; screens.rem > 0; ++i, xcb_screen_next(&screens)) {
        roots_.insert(i == screenNumber ? roots_.begin() : roots_.end(), screens.data->root);
    }
}

XConnection::~XConnection() = default;

xcb_atom_t XConnection::atom(std::string_view name) {
    if (const auto known = atoms_.find(name); known != atoms_.end()) {
        return known->second;
    }
    expectAtom(name);
    for (const auto& [expected, cookie] : std::exchange(expectedAtoms_, {})) {
        atoms_.emplace(expected, answeredAtom(handle(), cookie));
    }
    return atoms_.find(name)->second;
}

void XConnection::expectAtom(std::string_view name) {
    if (!atoms_.contains(name) && !expectedAtoms_.contains(name)) {
        expectedAtoms_.emplace(name, askForAtom(handle(), name));
    }
}

std::optional<std::vector<std::uint32_t>> XConnection::property(xcb_window_t window,
                                                                xcb_atom_t name) const {
    const auto cookie =
        xcb_get_property(handle(), false, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kMostNumbers);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(handle(), cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE || reply->format != 32) {
        return std::nullopt;
    }
    const auto* numbers = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return std::vector(numbers, numbers + reply->value_len);
}

void XConnection::selectEvents(xcb_window_t window, std::uint32_t mask) {
    std::uint32_t& selected = selected_[window];
    if ((selected & mask) != mask) {
        selected |= mask;
        const std::uint32_t all = maskOf(window);
        xcb_change_window_attributes(handle(), window, XCB_CW_EVENT_MASK, &all);
    }
}

std::uint32_t XConnection::maskOf(xcb_window_t window) const {
    const auto lasting = selected_.find(window);
    std::uint32_t mask = lasting != selected_.end() ? lasting->second : 0;
    const auto [first, end] = selectedMeanwhile_.equal_range(window);
    std::for_each(first, end, [&](const auto& each) { mask |= each.second; });
    return mask;
}

xcb_void_cookie_t XConnection::sendMask(xcb_window_t window) {
    const std::uint32_t mask = maskOf(window);
    return xcb_change_window_attributes_checked(handle(), window, XCB_CW_EVENT_MASK, &mask);
}

std::shared_ptr<const void> XConnection::selectEventsMeanwhile(xcb_window_t window,
                                                               std::uint32_t mask) {
    const auto selected = selectedMeanwhile_.emplace(window, mask);
    const auto send = [this, window] { // an error is of a window that has gone
        xcb_discard_reply(handle(), sendMask(window).sequence);
    };
    send();
    return {this, [this, selected, send](const void*) {
                selectedMeanwhile_.erase(selected);
                send();
            }};
}

bool XConnection::selectEventsIfThere(xcb_window_t window, std::uint32_t mask) {
    std::uint32_t& selected = selected_[window];
    selected |= mask;
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(handle(), sendMask(window)));
    if (error || isLost()) {
        selected_.erase(window);
        return false;
    }
    return true;
}

XListener XConnection::onEvent(unsigned type, Handler handler) {
    return add({.type = type, .call = std::move(handler)});
}

XListener XConnection::onProperty(xcb_window_t window, xcb_atom_t name,
                                  std::function<void()> changed) {
    selectEvents(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    return add({.type = XCB_PROPERTY_NOTIFY,
                .window = window,
                .property = name,
                .call = [changed = std::move(changed)](const auto&) { changed(); }});
}

XListener XConnection::noteEvent(unsigned type, Handler note) {
    return add({.type = type, .onlyNotes = true, .call = std::move(note)});
}

XListener XConnection::onLoss(std::function<void()> lost) {
    return add({.type = kLoss, .call = [lost = std::move(lost)](const auto&) { lost(); }});
}

XListener XConnection::add(Listener listener) {
    std::erase_if(listeners_, [](const auto& each) { return each.expired(); });
    auto added = std::make_shared<Listener>(std::move(listener));
    listeners_.push_back(added);
    return added;
}

void XConnection::join(RunLoop& loop) {
    watch_ = loop.watch(
        descriptor(), [this] { processEvents(); }, [this] { return hasRead(); });
}

bool XConnection::hasRead() {
    xcb_flush(handle());
    while (Event event{xcb_poll_for_queued_event(handle())}) {
        take(std::move(event));
    }
    return !events_.empty() || (isLost() && !lossIsTold_);
}

void XConnection::takeIn() {
    while (Event event{xcb_poll_for_event(handle())}) {
        take(std::move(event));
    }
}

void XConnection::take(Event event) {
    if (event->response_type == XCB_DESTROY_NOTIFY) { // by the server, not another client
        selected_.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(*event).window);
    }
    bool isAwaited = false;
    for (const auto& each : listeners_) {
        const auto listener = each.lock();
        if (listener == nullptr || !listener->hears(*event)) {
            continue;
        }
        if (listener->onlyNotes) {
            listener->call(*event);
        } else {
            isAwaited = true;
        }
    }
    if (isAwaited) {
        events_.push_back(std::move(event));
    }
}

void XConnection::processEvents() {
    takeIn();
    while (!events_.empty()) {
        const Event event = std::move(events_.front());
        events_.pop_front();
        handOut(*event);
    }
    if (isLost() && !std::exchange(lossIsTold_, true)) {
        // A descriptor at its end stays readable for good.
        watch_.reset();
        tellLoss();
    }
}

void XConnection::handOut(const xcb_generic_event_t& event) {
    // Handlers may come and go meanwhile.
    const auto listeners = listeners_;
    for (const auto& each : listeners) {
        const auto listener = each.lock();
        if (listener != nullptr && !listener->onlyNotes && listener->hears(event)) {
            listener->call(event);
        }
    }
}

void XConnection::tellLoss() {
    const auto listeners = listeners_;
    for (const auto& each : listeners) {
        const auto listener = each.lock();
        if (listener != nullptr && listener->type == kLoss) {
            listener->call({});
        }
    }
}

bool XConnection::waitForEvent(unsigned type,
                               const std::function<bool(const xcb_generic_event_t&)>& isIt,
                               std::chrono::milliseconds patience) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + patience;
    bool came = false;
    const XListener listener =
        noteEvent(type, [&](const xcb_generic_event_t& event) { came = came || isIt(event); });
    xcb_flush(handle());
    while (!isLost()) {
        takeIn();
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now()).count();
        if (came || left <= 0) {
            return came;
        }
        pollfd source{descriptor(), POLLIN, 0};
        poll(&source, 1, static_cast<int>(left));
    }
    return came;
}

void XConnection::synchronize() {
    const XcbReply<xcb_get_input_focus_reply_t> anyReply(
        xcb_get_input_focus_reply(handle(), xcb_get_input_focus(handle()), nullptr));
}

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
    return answeredAtom(connection, askForAtom(connection, name));
}

} // namespace nocturo
