#include "rig/x_client.h"

#include <stdexcept>

#include <xcb/randr.h>

namespace nocturo::rig {

namespace {

template <class T>
XcbReply<T> needed(T* reply, const char* what) {
    if (!reply) {
        throw std::runtime_error(std::string("the X server did not answer: ") + what);
    }
    return XcbReply<T>(reply);
}

} // namespace

XClient::XClient(const std::string& display) : connection_(xcb_connect(display.c_str(), nullptr)) {
    if (xcb_connection_has_error(connection_.get())) {
        throw std::runtime_error("no X server at " + display);
    }
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    // Newer requests than the version asked for are refused.
    auto* raw = connection_.get();
    needed(xcb_randr_query_version_reply(raw, xcb_randr_query_version(raw, 1, 5), nullptr),
           "RandR version");
}

void XClient::check(xcb_void_cookie_t cookie, const char* what) {
    const XcbReply<xcb_generic_error_t> error(xcb_request_check(connection_.get(), cookie));
    if (error || xcb_connection_has_error(connection_.get())) {
        throw std::runtime_error(std::string("the X server refused: ") + what);
    }
}

std::vector<Output> XClient::outputs() {
    auto* raw = connection_.get();
    const auto resources =
        needed(xcb_randr_get_screen_resources_current_reply(
                   raw, xcb_randr_get_screen_resources_current(raw, root_), nullptr),
               "resources");
    const auto* ids = xcb_randr_get_screen_resources_current_outputs(resources.get());
    std::vector<Output> outputs;
    for (int i = 0; i < resources->num_outputs; ++i) {
        const auto cookie = xcb_randr_get_output_info(raw, ids[i], resources->config_timestamp);
        const auto info = needed(xcb_randr_get_output_info_reply(raw, cookie, nullptr), "output");
        const auto* name =
            reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get()));
        outputs.push_back({ids[i], std::string(name, info->name_len), info->crtc,
                           info->num_crtcs ? *xcb_randr_get_output_info_crtcs(info.get()) : 0});
    }
    return outputs;
}

std::uint32_t XClient::crtcOf(const std::string& name) {
    for (const auto& output : outputs()) {
        if (output.name == name) {
            return output.crtc != 0 ? output.crtc : output.possibleCrtc;
        }
    }
    throw std::runtime_error("no output " + name);
}

std::size_t XClient::rampSize(std::uint32_t crtc) {
    auto* raw = connection_.get();
    return needed(xcb_randr_get_crtc_gamma_size_reply(raw, xcb_randr_get_crtc_gamma_size(raw, crtc),
                                                      nullptr),
                  "ramp size")
        ->size;
}

Channels XClient::ramp(std::uint32_t crtc) {
    auto* raw = connection_.get();
    const auto reply = needed(
        xcb_randr_get_crtc_gamma_reply(raw, xcb_randr_get_crtc_gamma(raw, crtc), nullptr), "ramp");
    const auto* red = xcb_randr_get_crtc_gamma_red(reply.get());
    const auto* green = xcb_randr_get_crtc_gamma_green(reply.get());
    const auto* blue = xcb_randr_get_crtc_gamma_blue(reply.get());
    return {std::vector(red, red + reply->size), std::vector(green, green + reply->size),
            std::vector(blue, blue + reply->size)};
}

void XClient::setRamp(std::uint32_t crtc, const Channels& ramp) {
    check(xcb_randr_set_crtc_gamma_checked(connection_.get(), crtc,
                                           static_cast<std::uint16_t>(ramp[0].size()),
                                           ramp[0].data(), ramp[1].data(), ramp[2].data()),
          "ramp");
}

void XClient::setScreenSize(int width, int height) {
    check(xcb_randr_set_screen_size_checked(connection_.get(), root_,
                                            static_cast<std::uint16_t>(width),
                                            static_cast<std::uint16_t>(height), 1000, 300),
          "screen size");
}

std::uint32_t XClient::createMode(int width, int height) {
    auto* raw = connection_.get();
    const std::string name = std::to_string(width) + "x" + std::to_string(height) + "-rig";
    // Wide blanking brings a small picture above the slowest clock that drivers accept.
    xcb_randr_mode_info_t mode{};
    mode.width = static_cast<std::uint16_t>(width);
    mode.height = static_cast<std::uint16_t>(height);
    mode.hsync_start = static_cast<std::uint16_t>(width + 100);
    mode.hsync_end = static_cast<std::uint16_t>(width + 200);
    mode.htotal = static_cast<std::uint16_t>(width + 500);
    mode.vsync_start = static_cast<std::uint16_t>(height + 10);
    mode.vsync_end = static_cast<std::uint16_t>(height + 20);
    mode.vtotal = static_cast<std::uint16_t>(height + 100);
    mode.dot_clock = 60u * mode.htotal * mode.vtotal;
    mode.name_len = static_cast<std::uint16_t>(name.size());
    const auto cookie = xcb_randr_create_mode(raw, root_, mode,
                                              static_cast<std::uint32_t>(name.size()), name.data());
    return needed(xcb_randr_create_mode_reply(raw, cookie, nullptr), "new mode")->mode;
}

void XClient::switchOn(const Output& output, std::uint32_t mode, int x, int y) {
    auto* raw = connection_.get();
    check(xcb_randr_add_output_mode_checked(raw, output.id, mode), "mode of an output");
    const auto crtc = output.crtc != 0 ? output.crtc : output.possibleCrtc;
    const auto cookie = xcb_randr_set_crtc_config(
        raw, crtc, XCB_CURRENT_TIME, XCB_CURRENT_TIME, static_cast<std::int16_t>(x),
        static_cast<std::int16_t>(y), mode, XCB_RANDR_ROTATION_ROTATE_0, 1, &output.id);
    if (needed(xcb_randr_set_crtc_config_reply(raw, cookie, nullptr), "output on")->status != 0) {
        throw std::runtime_error("the X server refused: output on");
    }
}

void XClient::switchOff(const Output& output) {
    auto* raw = connection_.get();
    const auto cookie =
        xcb_randr_set_crtc_config(raw, output.crtc, XCB_CURRENT_TIME, XCB_CURRENT_TIME, 0, 0,
                                  XCB_NONE, XCB_RANDR_ROTATION_ROTATE_0, 0, nullptr);
    if (needed(xcb_randr_set_crtc_config_reply(raw, cookie, nullptr), "output off")->status != 0) {
        throw std::runtime_error("the X server refused: output off");
    }
}

std::uint32_t XClient::atom(const std::string& name) {
    auto* raw = connection_.get();
    const auto cookie =
        xcb_intern_atom(raw, false, static_cast<std::uint16_t>(name.size()), name.data());
    return needed(xcb_intern_atom_reply(raw, cookie, nullptr), "atom")->atom;
}

void XClient::setRootProperty(const std::string& name, std::uint8_t format, std::size_t count,
                              const void* data) {
    check(xcb_change_property_checked(connection_.get(), XCB_PROP_MODE_REPLACE, root_, atom(name),
                                      XCB_ATOM_CARDINAL, format, static_cast<std::uint32_t>(count),
                                      data),
          "property");
}

void XClient::setEdid(const Output& output, const std::vector<std::uint8_t>& edid) {
    check(xcb_randr_change_output_property_checked(
              connection_.get(), output.id, atom("EDID"), XCB_ATOM_INTEGER, 8,
              XCB_PROP_MODE_REPLACE, static_cast<std::uint32_t>(edid.size()), edid.data()),
          "EDID");
}

} // namespace nocturo::rig
