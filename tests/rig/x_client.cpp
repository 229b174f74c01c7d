#include "rig/x_client.h"

#include "hotkeys/keyboard/virtual_key_codes.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include <xcb/randr.h>
#include <xcb/xtest.h>

namespace nocturo::rig {

namespace {

/// What the server said to a request that has an answer.
template <class Reply, class Cookie>
XcbReply<Reply> answer(xcb_connection_t* connection, Cookie cookie,
                       Reply* (*take)(xcb_connection_t*, Cookie, xcb_generic_error_t**)) {
    XcbReply<Reply> reply(take(connection, cookie, nullptr));
    if (!reply) {
        throw std::runtime_error("the X server did not answer");
    }
    return reply;
}

bool isRefused(xcb_connection_t* connection, xcb_void_cookie_t cookie) {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
    return error || xcb_connection_has_error(connection);
}

void check(xcb_connection_t* connection, xcb_void_cookie_t cookie, const char* what) {
    if (isRefused(connection, cookie)) {
        throw std::runtime_error(std::string("the X server refused: ") + what);
    }
}

std::uint8_t serverKey(int key) {
    return static_cast<std::uint8_t>(key + kEvdevToX11Offset);
}

} // namespace

XClient::XClient(const std::string& display) : connection_(xcb_connect(display.c_str(), nullptr)) {
    if (xcb_connection_has_error(raw_)) {
        throw std::runtime_error("no X server at " + display);
    }
    root_ = xcb_setup_roots_iterator(xcb_get_setup(raw_)).data->root;
    // Newer requests than the version asked for are refused.
    answer(raw_, xcb_randr_query_version(raw_, 1, 5), xcb_randr_query_version_reply);
}

XClient::Output XClient::outputCalled(const std::string& name) {
    const auto resources = answer(raw_, xcb_randr_get_screen_resources_current(raw_, root_),
                                  xcb_randr_get_screen_resources_current_reply);
    const auto* outputs = xcb_randr_get_screen_resources_current_outputs(resources.get());
    for (int i = 0; i < resources->num_outputs; ++i) {
        const auto info =
            answer(raw_, xcb_randr_get_output_info(raw_, outputs[i], XCB_CURRENT_TIME),
                   xcb_randr_get_output_info_reply);
        const auto* itsName = xcb_randr_get_output_info_name(info.get());
        if (std::string(itsName, itsName + info->name_len) == name) {
            return {outputs[i], *xcb_randr_get_output_info_crtcs(info.get())};
        }
    }
    throw std::runtime_error("no output " + name);
}

Channels XClient::ramp(std::uint32_t crtc) {
    const auto reply =
        answer(raw_, xcb_randr_get_crtc_gamma(raw_, crtc), xcb_randr_get_crtc_gamma_reply);
    const auto* red = xcb_randr_get_crtc_gamma_red(reply.get());
    const auto* green = xcb_randr_get_crtc_gamma_green(reply.get());
    const auto* blue = xcb_randr_get_crtc_gamma_blue(reply.get());
    return {std::vector(red, red + reply->size), std::vector(green, green + reply->size),
            std::vector(blue, blue + reply->size)};
}

void XClient::setRamp(std::uint32_t crtc, const Channels& ramp) {
    check(raw_,
          xcb_randr_set_crtc_gamma_checked(raw_, crtc, static_cast<std::uint16_t>(ramp[0].size()),
                                           ramp[0].data(), ramp[1].data(), ramp[2].data()),
          "ramp");
}

std::uint32_t XClient::atom(const std::string& name) {
    const auto length = static_cast<std::uint16_t>(name.size());
    return answer(raw_, xcb_intern_atom(raw_, false, length, name.data()), xcb_intern_atom_reply)
        ->atom;
}

void XClient::setRootProperty(const std::string& name, std::uint8_t format, std::size_t count,
                              const void* data) {
    check(raw_,
          xcb_change_property_checked(raw_, XCB_PROP_MODE_REPLACE, root_, atom(name),
                                      XCB_ATOM_CARDINAL, format, static_cast<std::uint32_t>(count),
                                      data),
          "property");
}

std::vector<std::uint8_t> XClient::rootBytes(const std::string& name) {
    const auto cookie = xcb_get_property(raw_, false, root_, atom(name), XCB_GET_PROPERTY_TYPE_ANY,
                                         0, UINT32_MAX / 4);
    const auto reply = answer(raw_, cookie, xcb_get_property_reply);
    const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
    return {bytes, bytes + xcb_get_property_value_length(reply.get())};
}

void XClient::setEdid(const std::string& output, const std::vector<std::uint8_t>& edid) {
    check(raw_,
          xcb_randr_change_output_property_checked(
              raw_, outputCalled(output).id, atom("EDID"), XCB_ATOM_INTEGER, 8,
              XCB_PROP_MODE_REPLACE, static_cast<std::uint32_t>(edid.size()), edid.data()),
          "EDID");
}

void XClient::fake(std::uint8_t event, int key) {
    check(raw_,
          xcb_test_fake_input_checked(raw_, event, serverKey(key), XCB_CURRENT_TIME, XCB_NONE, 0, 0,
                                      0),
          "key");
}

void XClient::type(const std::vector<int>& keys) {
    std::for_each(keys.begin(), keys.end(), [this](auto key) { press(key); });
    std::for_each(keys.rbegin(), keys.rend(), [this](auto key) { release(key); });
}

std::string XClient::startupMessages() {
    constexpr std::uint32_t kBroadcasts = XCB_EVENT_MASK_PROPERTY_CHANGE;
    check(raw_, xcb_change_window_attributes_checked(raw_, root_, XCB_CW_EVENT_MASK, &kBroadcasts),
          "listening to the root window");
    const auto begin = atom("_NET_STARTUP_INFO_BEGIN");
    const auto more = atom("_NET_STARTUP_INFO");
    std::string text;
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(raw_)}) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE &&
            (message.type == begin || message.type == more)) {
            const auto* part = reinterpret_cast<const char*>(message.data.data8);
            text.append(part, strnlen(part, sizeof message.data.data8));
        }
    }
    return text;
}

int XClient::modifiers() {
    const auto state = answer(raw_, xcb_query_pointer(raw_, root_), xcb_query_pointer_reply)->mask;
    return state & 0xff; // the others are buttons
}

bool XClient::grab(int key, int modifiers) {
    return !isRefused(
        raw_, xcb_grab_key_checked(raw_, false, root_, static_cast<std::uint16_t>(modifiers),
                                   serverKey(key), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
}

void XClient::ungrab(int key, int modifiers) {
    check(
        raw_,
        xcb_ungrab_key_checked(raw_, serverKey(key), root_, static_cast<std::uint16_t>(modifiers)),
        "giving a key back");
}

} // namespace nocturo::rig
