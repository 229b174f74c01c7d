#pragma once

#include "x11/xcb_handles.h"

#include <array>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace nocturo::rig {

/// A window of a program of its own on an X server, that speaks to the window manager as programs
/// do. It ends with this.
class XWindow {
  public:
    /// `program` is what its class property holds, such as "film\0Film".
    XWindow(const std::string& display, std::string_view program, std::int16_t x, std::int16_t y,
            std::uint16_t width = 100, std::uint16_t height = 80)
        : connection_(xcb_connect(display.c_str(), nullptr)), raw_(connection_.get()) {
        if (xcb_connection_has_error(raw_) != 0) {
            throw std::runtime_error("no X server at " + display);
        }
        root_ = xcb_setup_roots_iterator(xcb_get_setup(raw_)).data->root;
        xcb_create_window(raw_, XCB_COPY_FROM_PARENT, window_, root_, x, y, width, height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        const std::array<std::uint32_t, 18> wantsItsPlace = {1};
        setProperty("WM_NORMAL_HINTS", "WM_SIZE_HINTS", 32, 18, wantsItsPlace.data());
        setProperty("WM_CLASS", "STRING", 8, program.size(), program.data());
        xcb_map_window(raw_, window_);
        xcb_flush(raw_);
    }

    xcb_window_t id() const { return window_; }

    void setFullscreen(bool isFullscreen) {
        ask("_NET_WM_STATE", {isFullscreen ? 1U : 0U, atom("_NET_WM_STATE_FULLSCREEN"), 0, 1, 0});
    }
    void activate() { ask("_NET_ACTIVE_WINDOW", {2, XCB_CURRENT_TIME, 0, 0, 0}); }

    void place(std::int32_t x, std::int32_t y, std::uint32_t width, std::uint32_t height) {
        const std::array values = {static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y),
                                   width, height};
        xcb_configure_window(raw_, window_,
                             XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                 XCB_CONFIG_WINDOW_HEIGHT,
                             values.data());
        xcb_flush(raw_);
    }

    /// Of any type, as programs may.
    void setProperty(const std::string& name, const std::string& type, std::uint8_t format,
                     std::size_t count, const void* data) {
        xcb_change_property(raw_, XCB_PROP_MODE_REPLACE, window_, atom(name), atom(type), format,
                            static_cast<std::uint32_t>(count), data);
        xcb_flush(raw_);
    }

  private:
    xcb_atom_t atom(const std::string& name) {
        const auto length = static_cast<std::uint16_t>(name.size());
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(raw_, xcb_intern_atom(raw_, 0, length, name.c_str()), nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    /// Has the window manager do it.
    void ask(const std::string& what, const std::array<std::uint32_t, 5>& data) {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window_;
        message.type = atom(what);
        std::memcpy(message.data.data32, data.data(), sizeof message.data.data32);
        xcb_send_event(raw_, 0, root_,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&message));
        xcb_flush(raw_);
    }

    XcbConnection connection_;
    xcb_connection_t* raw_;
    xcb_window_t root_ = 0;
    xcb_window_t window_ = xcb_generate_id(raw_);
};

} // namespace nocturo::rig
