#include "displays/x11/lit_outputs.h"

#include "x11/xcb_handles.h"

#include <algorithm>
#include <utility>

#include <xcb/randr.h>

// Every question is asked of all screens, outputs or CRTCs before the first answer is waited for. A
// question that was asked is always collected, because xcb keeps an uncollected answer for good.

namespace nocturo {

namespace {

std::string outputName(const xcb_randr_get_output_info_reply_t& info) {
    const auto* bytes = reinterpret_cast<const char*>(xcb_randr_get_output_info_name(&info));
    return {bytes, static_cast<std::size_t>(xcb_randr_get_output_info_name_length(&info))};
}

struct ScreenQuery {
    xcb_randr_get_screen_resources_current_cookie_t resourcesCookie{};
    xcb_randr_get_output_primary_cookie_t primaryCookie{};
    XcbReply<xcb_randr_get_screen_resources_current_reply_t> resources;
    XcbReply<xcb_randr_get_output_primary_reply_t> primary;
    std::vector<xcb_randr_get_output_info_cookie_t> outputCookies;
    std::vector<xcb_randr_get_crtc_info_cookie_t> crtcCookies;
    std::vector<XcbReply<xcb_randr_get_crtc_info_reply_t>> crtcInfos;

    const xcb_randr_output_t* outputs() const {
        return xcb_randr_get_screen_resources_current_outputs(resources.get());
    }

    void askForDetails(xcb_connection_t* connection) {
        const auto time = resources->config_timestamp;
        const auto* crtcs = xcb_randr_get_screen_resources_current_crtcs(resources.get());
        for (int i = 0; i < resources->num_outputs; ++i) {
            outputCookies.push_back(xcb_randr_get_output_info(connection, outputs()[i], time));
        }
        for (int i = 0; i < resources->num_crtcs; ++i) {
            crtcCookies.push_back(xcb_randr_get_crtc_info(connection, crtcs[i], time));
        }
    }

    /// Takes in the answers.
    void collect(xcb_connection_t* connection, bool isFirst, FoundOutputs& found) {
        std::vector<XcbReply<xcb_randr_get_output_info_reply_t>> outputInfos;
        for (const auto cookie : outputCookies) {
            outputInfos.emplace_back(xcb_randr_get_output_info_reply(connection, cookie, nullptr));
        }
        for (const auto cookie : crtcCookies) {
            crtcInfos.emplace_back(xcb_randr_get_crtc_info_reply(connection, cookie, nullptr));
        }
        for (std::size_t i = 0; i < outputInfos.size(); ++i) {
            // An output may have vanished between the questions.
            if (const auto* info = outputInfos[i].get()) {
                take(*info, outputs()[i], isFirst, found);
            }
        }
    }

    void take(const xcb_randr_get_output_info_reply_t& info, xcb_randr_output_t output,
              bool isFirst, FoundOutputs& found) const {
        std::string name = outputName(info);
        // Servers before 23.1 have no extension that tells, but name their outputs so.
        found.ofWaylandGuest = found.ofWaylandGuest || name.starts_with("XWAYLAND");
        const auto* crtc = litCrtc(info.crtc);
        if (crtc == nullptr) {
            return;
        }
        if (info.connection == XCB_RANDR_CONNECTION_DISCONNECTED) {
            found.unplugged.push_back(output);
            return;
        }
        const bool isPrimary = isFirst && primary && primary->output == output;
        const DisplayRect bounds{double(crtc->x), double(crtc->y), double(crtc->width),
                                 double(crtc->height)};
        found.lit.push_back({output,
                             {std::move(name), {}, info.crtc, 0, bounds, isPrimary},
                             crtc->mode,
                             crtc->rotation});
    }

    /// The CRTC when it shows something, else null.
    const xcb_randr_get_crtc_info_reply_t* litCrtc(xcb_randr_crtc_t crtc) const {
        const auto* crtcs = xcb_randr_get_screen_resources_current_crtcs(resources.get());
        const auto* end = crtcs + resources->num_crtcs;
        const auto* found = std::find(crtcs, end, crtc);
        if (found == end) {
            return nullptr;
        }
        const auto* info = crtcInfos[static_cast<std::size_t>(found - crtcs)].get();
        return info && info->mode != XCB_NONE ? info : nullptr;
    }
};

} // namespace

FoundOutputs findOutputs(xcb_connection_t* connection, std::span<const xcb_window_t> roots) {
    FoundOutputs found;
    std::vector<ScreenQuery> screens(roots.size());
    for (std::size_t i = 0; i < roots.size(); ++i) {
        screens[i].resourcesCookie = xcb_randr_get_screen_resources_current(connection, roots[i]);
        screens[i].primaryCookie = xcb_randr_get_output_primary(connection, roots[i]);
    }
    bool complete = true;
    for (auto& screen : screens) {
        screen.resources.reset(xcb_randr_get_screen_resources_current_reply(
            connection, screen.resourcesCookie, nullptr));
        screen.primary.reset(
            xcb_randr_get_output_primary_reply(connection, screen.primaryCookie, nullptr));
        complete = complete && screen.resources;
    }
    if (!complete) {
        return found;
    }
    found.complete = true;
    for (auto& screen : screens) {
        screen.askForDetails(connection);
    }
    for (auto& screen : screens) {
        screen.collect(connection, &screen == &screens.front(), found);
    }
    return found;
}

} // namespace nocturo
