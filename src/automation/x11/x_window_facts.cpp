#include "automation/x11/x_window_facts.h"

#include <algorithm>
#include <string_view>

namespace nocturo {

namespace {

constexpr const char* kState = "_NET_WM_STATE";
constexpr const char* kFullscreen = "_NET_WM_STATE_FULLSCREEN";
constexpr const char* kHidden = "_NET_WM_STATE_HIDDEN";
constexpr const char* kMaximizedUp = "_NET_WM_STATE_MAXIMIZED_VERT";
constexpr const char* kMaximizedAcross = "_NET_WM_STATE_MAXIMIZED_HORZ";
constexpr const char* kType = "_NET_WM_WINDOW_TYPE";
constexpr const char* kNormal = "_NET_WM_WINDOW_TYPE_NORMAL";
constexpr const char* kDialog = "_NET_WM_WINDOW_TYPE_DIALOG";
constexpr const char* kDesktop = "_NET_WM_DESKTOP";

constexpr std::uint32_t kMostNumbers = 64;   // of a property; no window has so many states
constexpr std::uint32_t kLongestClass = 256; // in units of four bytes

struct Questions {
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t place;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_property_cookie_t state;
    xcb_get_property_cookie_t type;
    xcb_get_property_cookie_t owner;
    xcb_get_property_cookie_t desktop;
};

/// The numbers of a property; none where it holds anything else.
std::vector<std::uint32_t> numbers(XConnection& server, xcb_get_property_cookie_t cookie) {
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(server.handle(), cookie, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

Questions ask(XConnection& server, xcb_window_t window) {
    xcb_connection_t* handle = server.handle();
    const auto property = [&](xcb_atom_t name) {
        return xcb_get_property(handle, false, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                kMostNumbers);
    };
    return {xcb_get_geometry(handle, window),
            xcb_translate_coordinates(handle, window, server.root(), 0, 0),
            xcb_get_window_attributes(handle, window),
            property(server.atom(kState)),
            property(server.atom(kType)),
            property(XCB_ATOM_WM_TRANSIENT_FOR),
            property(server.atom(kDesktop))};
}

XWindowFacts answer(XConnection& server, const Questions& questions) {
    xcb_connection_t* handle = server.handle();
    const XcbReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(handle, questions.geometry, nullptr));
    const XcbReply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(handle, questions.place, nullptr));
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(handle, questions.attributes, nullptr));
    const auto states = numbers(server, questions.state);
    const auto types = numbers(server, questions.type);
    const auto owner = numbers(server, questions.owner);
    const auto desktop = numbers(server, questions.desktop);
    const auto has = [&](const std::vector<std::uint32_t>& list, const char* name) {
        return std::find(list.begin(), list.end(), server.atom(name)) != list.end();
    };
    XWindowFacts facts;
    facts.desktop = desktop.empty() ? kEveryDesktop : desktop.front();
    if (geometry && place && place->same_screen != 0) {
        facts.window.bounds = {static_cast<double>(place->dst_x), static_cast<double>(place->dst_y),
                               static_cast<double>(geometry->width),
                               static_cast<double>(geometry->height)};
    }
    facts.window.isVisible =
        attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE && !has(states, kHidden);
    facts.window.isOrdinary =
        types.empty() ? owner.empty() || owner.front() == XCB_WINDOW_NONE
                      : has(types, kNormal) && !has(types, kDialog); // Qt's dialogs say both
    facts.window.isFullscreen = has(states, kFullscreen);
    facts.window.isMaximized = has(states, kMaximizedUp) && has(states, kMaximizedAcross);
    return facts;
}

} // namespace

std::vector<XWindowFacts> factsOf(XConnection& server, const std::vector<xcb_window_t>& windows) {
    std::vector<Questions> questions;
    questions.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        questions.push_back(ask(server, window));
    }
    std::vector<XWindowFacts> facts;
    facts.reserve(windows.size());
    for (const Questions& each : questions) {
        facts.push_back(answer(server, each));
    }
    return facts;
}

void expectAtomsOfFacts(XConnection& server) {
    for (const char* name : {kState, kFullscreen, kHidden, kMaximizedUp, kMaximizedAcross, kType,
                             kNormal, kDialog, kDesktop}) {
        server.expectAtom(name);
    }
}

bool isOfFacts(XConnection& server, xcb_atom_t property) {
    return property == XCB_ATOM_WM_TRANSIENT_FOR || property == server.atom(kState) ||
           property == server.atom(kType) || property == server.atom(kDesktop);
}

std::vector<std::string> programNames(std::string_view windowClass) {
    std::vector<std::string> names;
    while (!windowClass.empty() && names.size() < 2) {
        const auto end = std::min(windowClass.find('\0'), windowClass.size());
        names.emplace_back(windowClass.substr(0, end));
        windowClass.remove_prefix(std::min(end + 1, windowClass.size()));
    }
    return names;
}

std::vector<std::string> programOf(XConnection& server, xcb_window_t window) {
    const auto cookie = xcb_get_property(server.handle(), false, window, XCB_ATOM_WM_CLASS,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, kLongestClass);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(server.handle(), cookie, nullptr));
    if (!reply || reply->format != 8) {
        return {};
    }
    return programNames({static_cast<const char*>(xcb_get_property_value(reply.get())),
                         static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))});
}

} // namespace nocturo
