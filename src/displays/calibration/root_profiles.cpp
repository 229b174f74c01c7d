#include "displays/calibration/root_profiles.h"

#include "displays/calibration/profile_file.h"

#include <algorithm>

#include <xcb/randr.h>

namespace nocturo {

namespace {

std::string propertyName(std::size_t monitor) {
    return monitor == 0 ? "_ICC_PROFILE" : "_ICC_PROFILE_" + std::to_string(monitor);
}

template <std::size_t Count>
void fetchAtoms(xcb_connection_t* connection, std::array<std::uint32_t, Count>& atoms) {
    std::array<xcb_intern_atom_cookie_t, Count> cookies{};
    for (std::size_t i = 0; i < Count; ++i) {
        const std::string name = propertyName(i);
        cookies[i] = xcb_intern_atom(connection, false, static_cast<std::uint16_t>(name.size()),
                                     name.data());
    }
    for (std::size_t i = 0; i < Count; ++i) {
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookies[i], nullptr));
        atoms[i] = reply ? reply->atom : 0;
    }
}

} // namespace

std::unique_ptr<RootProfiles> RootProfiles::open(const std::string& displayName) {
    int screenNumber = 0;
    XcbConnection connection(xcb_connect(displayName.c_str(), &screenNumber));
    auto* raw = connection.get();
    if (xcb_connection_has_error(raw)) {
        return nullptr;
    }
    xcb_prefetch_extension_data(raw, &xcb_randr_id);
    const auto* extension = xcb_get_extension_data(raw, &xcb_randr_id);
    if (!extension || !extension->present) {
        return nullptr;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(raw));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber) {
        xcb_screen_next(&screens);
    }
    const std::uint32_t root = screens.data->root;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(raw, root, XCB_CW_EVENT_MASK, &events);
    const auto versionCookie = xcb_randr_query_version(raw, 1, 5);
    std::unique_ptr<RootProfiles> profiles(new RootProfiles(std::move(connection), root));
    fetchAtoms(raw, profiles->atoms_);
    const XcbReply<xcb_randr_query_version_reply_t> version(
        xcb_randr_query_version_reply(raw, versionCookie, nullptr));
    const bool hasMonitors = version && (version->major_version > 1 || version->minor_version >= 5);
    return hasMonitors ? std::move(profiles) : nullptr;
}

RootProfiles::RootProfiles(XcbConnection connection, std::uint32_t root)
    : connection_(std::move(connection)), root_(root) {}

std::optional<RootProfiles::Profile> RootProfiles::profileOf(const std::string& connector) {
    if (!anyThere()) {
        return std::nullopt;
    }
    const std::optional<std::size_t> monitor = monitorOf(connector);
    if (!monitor || *monitor >= kMaxMonitors) {
        return std::nullopt;
    }
    auto* raw = connection_.get();
    const auto cookie =
        xcb_get_property(raw, false, root_, atoms_[*monitor], XCB_ATOM_ANY, 0, kMaxProfileSize / 4);
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
    auto* raw = connection_.get();
    const XcbReply<xcb_list_properties_reply_t> reply(
        xcb_list_properties_reply(raw, xcb_list_properties(raw, root_), nullptr));
    if (!reply) {
        return false;
    }
    const auto* properties = xcb_list_properties_atoms(reply.get());
    return std::find_first_of(properties, properties + reply->atoms_len, atoms_.begin(),
                              atoms_.end()) != properties + reply->atoms_len;
}

std::optional<std::size_t> RootProfiles::monitorOf(const std::string& connector) const {
    auto* raw = connection_.get();
    const XcbReply<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(raw, xcb_randr_get_monitors(raw, root_, true), nullptr));
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
    while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
        if ((event->response_type & 0x7fu) == XCB_PROPERTY_NOTIFY) {
            const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
            const bool isProfile =
                std::find(atoms_.begin(), atoms_.end(), notify.atom) != atoms_.end();
            generation_ += isProfile ? 1 : 0;
        }
    }
    return generation_;
}

int RootProfiles::descriptor() const {
    return xcb_get_file_descriptor(connection_.get());
}

} // namespace nocturo
