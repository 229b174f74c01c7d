#include "displays/calibration/root_profiles.h"

#include "displays/calibration/profile_file.h"

#include <algorithm>

#include <xcb/randr.h>

namespace nocturo {

namespace {

std::string propertyName(std::size_t monitor) {
    return monitor == 0 ? "_ICC_PROFILE" : "_ICC_PROFILE_" + std::to_string(monitor);
}

} // namespace

RootProfiles::RootProfiles(XConnection& connection) : connection_(connection) {
    xcb_prefetch_extension_data(connection.handle(), &xcb_randr_id);
    connection.selectEvents(connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    for (std::size_t monitor = 0; monitor < kMaxMonitors; ++monitor) {
        connection.expectAtom(propertyName(monitor));
    }
}

// Later than in the constructor, so that all who ask ahead are answered together.
void RootProfiles::prepare() {
    if (!listeners_.empty()) {
        return;
    }
    const auto* extension = xcb_get_extension_data(connection_.handle(), &xcb_randr_id);
    hasMonitors_ = extension != nullptr && extension->present != 0;
    for (std::size_t monitor = 0; monitor < kMaxMonitors; ++monitor) {
        atoms_[monitor] = connection_.atom(propertyName(monitor));
    }
    const auto concerns = [this](const xcb_generic_event_t& event) {
        return isProfile(reinterpret_cast<const xcb_property_notify_event_t&>(event).atom);
    };
    listeners_.push_back(
        connection_.noteEvent(XCB_PROPERTY_NOTIFY, [this, concerns](const auto& event) {
            generation_ += concerns(event) ? 1 : 0;
        }));
    listeners_.push_back(
        connection_.onEvent(XCB_PROPERTY_NOTIFY, [this, concerns](const auto& event) {
            if (look_ && concerns(event)) {
                look_();
            }
        }));
}

bool RootProfiles::isProfile(xcb_atom_t property) const {
    return std::find(atoms_.begin(), atoms_.end(), property) != atoms_.end();
}

std::optional<RootProfiles::Profile> RootProfiles::profileOf(const std::string& connector) {
    prepare();
    if (!hasMonitors_ || !anyThere()) {
        return std::nullopt;
    }
    const std::optional<std::size_t> monitor = monitorOf(connector);
    if (!monitor || *monitor >= kMaxMonitors) {
        return std::nullopt;
    }
    auto* raw = connection_.handle();
    const auto cookie = xcb_get_property(raw, false, connection_.root(), atoms_[*monitor],
                                         XCB_ATOM_ANY, 0, kMaxProfileSize / 4);
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(raw, cookie, nullptr));
    if (!reply || reply->type == XCB_NONE) {
        return std::nullopt;
    }
    // A property of another format is no profile, and its bytes will not look like one.
    const auto* bytes = static_cast<const std::uint8_t*>(xcb_get_property_value(reply.get()));
    return Profile{propertyName(*monitor),
                   {bytes, bytes + xcb_get_property_value_length(reply.get())}};
}

// One question instead of several for each display of the many desktops without profiles.
bool RootProfiles::anyThere() const {
    auto* raw = connection_.handle();
    const XcbReply<xcb_list_properties_reply_t> reply(
        xcb_list_properties_reply(raw, xcb_list_properties(raw, connection_.root()), nullptr));
    if (!reply) {
        return false;
    }
    const auto* properties = xcb_list_properties_atoms(reply.get());
    return std::find_first_of(properties, properties + reply->atoms_len, atoms_.begin(),
                              atoms_.end()) != properties + reply->atoms_len;
}

std::optional<std::size_t> RootProfiles::monitorOf(const std::string& connector) const {
    auto* raw = connection_.handle();
    const XcbReply<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        raw, xcb_randr_get_monitors(raw, connection_.root(), true), nullptr));
    if (!reply) {
        return std::nullopt;
    }
    struct Question {
        std::size_t monitor;
        xcb_randr_get_output_info_cookie_t cookie;
    };
    std::vector<Question> questions;
    auto monitors = xcb_randr_get_monitors_monitors_iterator(reply.get());
    for (std::size_t number = 0; monitors.rem > 0;
         ++number, xcb_randr_monitor_info_next(&monitors)) {
        const auto* outputs = xcb_randr_monitor_info_outputs(monitors.data);
        for (int i = 0; i < xcb_randr_monitor_info_outputs_length(monitors.data); ++i) {
            questions.push_back({number, xcb_randr_get_output_info(raw, outputs[i], 0)});
        }
    }
    std::optional<std::size_t> found;
    for (const Question& question : questions) {
        const XcbReply<xcb_randr_get_output_info_reply_t> info(
            xcb_randr_get_output_info_reply(raw, question.cookie, nullptr));
        if (info && !found) {
            const auto* name =
                reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get()));
            if (connector == std::string_view(name, info->name_len)) {
                found = question.monitor;
            }
        }
    }
    return found;
}

std::uint64_t RootProfiles::generation() {
    prepare();
    connection_.takeIn();
    return generation_;
}

} // namespace nocturo
