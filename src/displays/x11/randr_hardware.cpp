#include "displays/x11/randr_hardware.h"

#include "base/log.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>

#include <sys/uio.h>
#include <xcb/bigreq.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

// A list of the heads costs three round trips however many there are: as in finding the outputs,
// all that is to be asked is asked before the first answer is waited for.

namespace nocturo {

namespace {

// 256 blocks of 128 bytes is the longest EDID there can be; counted in units of four bytes.
constexpr std::uint32_t kLongestEdid = 256 * 128 / 4;

std::vector<std::uint8_t> edidBytes(const xcb_randr_get_output_property_reply_t* reply) {
    if (!reply || reply->format != 8) {
        return {};
    }
    const auto* bytes = xcb_randr_get_output_property_data(reply);
    return {bytes, bytes + xcb_randr_get_output_property_data_length(reply)};
}

// Several screens of one server may each have an output of the same name.
void makeConnectorUnique(const std::vector<Head>& others, std::string& connector) {
    const std::string original = connector;
    const auto taken = [&](const Head& head) { return head.connector == connector; };
    for (int n = 1; std::any_of(others.begin(), others.end(), taken); ++n) {
        connector = original + "." + std::to_string(n);
    }
}

} // namespace

Result<std::unique_ptr<RandrHardware>, RandrRefusal> RandrHardware::open(XConnection* connection) {
    if (connection == nullptr || connection->isLost()) {
        return tl::unexpected(RandrRefusal::unreachable);
    }
    auto* raw = connection->handle();
    xcb_prefetch_extension_data(raw, &xcb_big_requests_id); // or asking for the length waits for it
    xcb_prefetch_extension_data(raw, &xcb_randr_id);
    const auto guestCookie = xcb_query_extension(raw, 8, "XWAYLAND");
    std::unique_ptr<RandrHardware> hardware(new RandrHardware(*connection));
    const XcbReply<xcb_query_extension_reply_t> guest(
        xcb_query_extension_reply(raw, guestCookie, nullptr));
    const auto* extension = xcb_get_extension_data(raw, &xcb_randr_id);
    if (!extension || !extension->present) {
        return tl::unexpected(RandrRefusal::noRandr);
    }

    // The outputs are asked for along with the version, so that opening costs no more than listing.
    xcb_prefetch_maximum_request_length(raw);
    const auto versionCookie = xcb_randr_query_version(raw, 1, 5);
    hardware->listen(extension->first_event, extension->major_opcode);
    hardware->subscribe(0);
    FoundOutputs found = findOutputs(raw, connection->roots());
    const XcbReply<xcb_randr_query_version_reply_t> version(
        xcb_randr_query_version_reply(raw, versionCookie, nullptr));
    const auto revision = [](auto major, auto minor) { return std::pair(major, minor); };
    if (!version || revision(version->major_version, version->minor_version) < revision(1u, 3u)) {
        return tl::unexpected(RandrRefusal::noRandr);
    }
    if ((guest && guest->present) || found.ofWaylandGuest) {
        return tl::unexpected(RandrRefusal::waylandGuest);
    }
    if (revision(version->major_version, version->minor_version) >= revision(1u, 4u)) {
        hardware->subscribe(XCB_RANDR_NOTIFY_MASK_RESOURCE_CHANGE);
        xcb_flush(raw);
    }
    hardware->found_ = std::move(found);
    hardware->maximumRequestLength_ = xcb_get_maximum_request_length(raw);
    return hardware;
}

RandrHardware::RandrHardware(XConnection& connection)
    : connection_(connection), edidAtom_(connection.atom("EDID")) {}

void RandrHardware::subscribe(unsigned more) {
    const unsigned mask = XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                          XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE |
                          XCB_RANDR_NOTIFY_MASK_OUTPUT_PROPERTY | more;
    for (const auto root : connection_.roots()) {
        xcb_randr_select_input(connection_.handle(), root, static_cast<std::uint16_t>(mask));
    }
}

void RandrHardware::listen(std::uint8_t firstEvent, std::uint8_t majorOpcode) {
    const unsigned screenChange = firstEvent + unsigned{XCB_RANDR_SCREEN_CHANGE_NOTIFY};
    const unsigned notify = firstEvent + unsigned{XCB_RANDR_NOTIFY};
    listeners_ = {
        connection_.noteEvent(
            0, [this, majorOpcode](const auto& event) { noteError(event, majorOpcode); }),
        connection_.noteEvent(screenChange, [this](const auto&) { ++generation_; }),
        connection_.noteEvent(notify, [this](const auto& event) { noteChange(event); }),
    };
    for (const unsigned type : {screenChange, notify}) {
        listeners_.push_back(connection_.onEvent(type, [this](const auto&) {
            if (look_) {
                look_();
            }
        }));
    }
}

std::uint64_t RandrHardware::topologyGeneration() {
    connection_.takeIn();
    if (connection_.isLost() && !lossCounted_) {
        lossCounted_ = true;
        ++generation_;
    }
    return generation_;
}

void RandrHardware::whenChanged(std::function<void()> look) {
    look_ = std::move(look);
}

void RandrHardware::noteError(const xcb_generic_event_t& event, std::uint8_t majorOpcode) {
    const auto& error = reinterpret_cast<const xcb_generic_error_t&>(event);
    if (error.major_code != majorOpcode || error.minor_code != XCB_RANDR_SET_CRTC_GAMMA ||
        std::exchange(refusalLogged_, true)) {
        return;
    }
    logWarning(kLogDisplays, "The X server refused to change the colours of a display (X error " +
                                 std::to_string(error.error_code) + ").");
}

void RandrHardware::noteChange(const xcb_generic_event_t& event) {
    const auto& change = reinterpret_cast<const xcb_randr_notify_event_t&>(event);
    // Brightness keys and the like change properties too, and say nothing about the heads.
    if (change.subCode == XCB_RANDR_NOTIFY_CRTC_CHANGE) {
        modes_.note(change.u.cc.crtc, change.u.cc.mode, change.u.cc.rotation);
    }
    if (change.subCode != XCB_RANDR_NOTIFY_OUTPUT_PROPERTY || change.u.op.atom == edidAtom_) {
        ++generation_;
    }
}

bool RandrHardware::listHeads(std::vector<Head>& heads) {
    heads.clear();
    FoundOutputs found = takeFoundOutputs();
    // What the server knows about connections is as old as its last look, and an output that is lit
    // is more likely connected by now than not. Looking is slow: once for each that stays
    // unplugged.
    const auto confirmed = [this](std::uint32_t output) {
        return std::find(unplugged_.begin(), unplugged_.end(), output) != unplugged_.end();
    };
    if (!std::all_of(found.unplugged.begin(), found.unplugged.end(), confirmed)) {
        makeServerLook();
        found = findOutputs(connection_.handle(), connection_.roots());
    }
    if (!found.complete) {
        return false;
    }
    unplugged_ = std::move(found.unplugged);
    describe(found.lit, heads);
    return !connection_.isLost();
}

// What was found while opening holds until something changes.
FoundOutputs RandrHardware::takeFoundOutputs() {
    const bool isNews = topologyGeneration() == kFirstGeneration && found_;
    FoundOutputs found =
        isNews ? std::move(*found_) : findOutputs(connection_.handle(), connection_.roots());
    found_.reset();
    return found;
}

void RandrHardware::makeServerLook() {
    auto* raw = connection_.handle();
    for (const auto root : connection_.roots()) {
        const auto cookie = xcb_randr_get_screen_resources(raw, root);
        const XcbReply<xcb_randr_get_screen_resources_reply_t> ignored(
            xcb_randr_get_screen_resources_reply(raw, cookie, nullptr));
    }
}

void RandrHardware::describe(std::vector<LitOutput>& lit, std::vector<Head>& heads) {
    auto* raw = connection_.handle();
    std::vector<xcb_randr_get_output_property_cookie_t> edidCookies;
    edidCookies.reserve(lit.size());
    for (const auto& each : lit) {
        edidCookies.push_back(xcb_randr_get_output_property(
            raw, each.output, edidAtom_, XCB_ATOM_ANY, 0, kLongestEdid, false, false));
    }
    fetchGammaSizes(lit);
    for (std::size_t i = 0; i < lit.size(); ++i) {
        const XcbReply<xcb_randr_get_output_property_reply_t> edid(
            xcb_randr_get_output_property_reply(raw, edidCookies[i], nullptr));
        Head& head = lit[i].head;
        head.edid = edidBytes(edid.get());
        head.rampSize = knownGammaSize(head.crtc).value_or(0);
        head.modeGeneration = modes_.note(head.crtc, lit[i].mode, lit[i].rotation);
        makeConnectorUnique(heads, head.connector);
        heads.push_back(std::move(head));
    }
}

void RandrHardware::fetchGammaSizes(const std::vector<LitOutput>& lit) {
    auto* raw = connection_.handle();
    std::vector<std::pair<std::uint32_t, xcb_randr_get_crtc_gamma_size_cookie_t>> cookies;
    for (const auto& each : lit) {
        const auto crtc = each.head.crtc;
        if (!knownGammaSize(crtc)) {
            cookies.emplace_back(crtc, xcb_randr_get_crtc_gamma_size(raw, crtc));
        }
    }
    for (const auto& [crtc, cookie] : cookies) {
        const XcbReply<xcb_randr_get_crtc_gamma_size_reply_t> reply(
            xcb_randr_get_crtc_gamma_size_reply(raw, cookie, nullptr));
        if (reply && !knownGammaSize(crtc)) {
            gammaSizes_.emplace_back(crtc, reply->size);
        }
    }
}

std::optional<std::uint32_t> RandrHardware::knownGammaSize(std::uint32_t crtc) const {
    for (const auto& [known, size] : gammaSizes_) {
        if (known == crtc) {
            return size;
        }
    }
    return std::nullopt;
}

void RandrHardware::expectReads(std::span<const std::uint32_t> crtcs) {
    for (const auto& [crtc, sequence] : rampsAsked_) {
        xcb_discard_reply(connection_.handle(), sequence);
    }
    rampsAsked_.clear();
    for (const auto crtc : crtcs) {
        rampsAsked_.emplace_back(crtc,
                                 xcb_randr_get_crtc_gamma(connection_.handle(), crtc).sequence);
    }
    xcb_flush(connection_.handle());
    // The answers arrive one by one, and waiting for them would wake the process up for each; a
    // moment later all are there.
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

bool RandrHardware::readRamp(std::uint32_t crtc, Ramp& ramp) {
    auto* raw = connection_.handle();
    const auto asked = std::find_if(rampsAsked_.begin(), rampsAsked_.end(),
                                    [&](const auto& each) { return each.first == crtc; });
    xcb_randr_get_crtc_gamma_cookie_t cookie{};
    if (asked != rampsAsked_.end()) {
        cookie.sequence = asked->second;
        rampsAsked_.erase(asked);
    } else {
        cookie = xcb_randr_get_crtc_gamma(raw, crtc);
    }
    const XcbReply<xcb_randr_get_crtc_gamma_reply_t> reply(
        xcb_randr_get_crtc_gamma_reply(raw, cookie, nullptr));
    if (!reply || reply->size != ramp.size()) {
        return false;
    }
    const std::uint16_t* entries = xcb_randr_get_crtc_gamma_red(reply.get());
    for (auto* channel : {&ramp.red, &ramp.green, &ramp.blue}) {
        std::copy_n(entries, channel->size(), channel->begin());
        entries += channel->size();
    }
    return true;
}

// The request is put together here because xcb's own function rounds each channel up to four bytes,
// while the server expects the three without a gap: with an odd number of entries green and blue
// would be shifted.
bool RandrHardware::writeRamp(std::uint32_t crtc, const Ramp& ramp) {
    const std::uint32_t size = ramp.size();
    if (size == 0 || size > UINT16_MAX || knownGammaSize(crtc).value_or(size) != size) {
        return false;
    }
    xcb_randr_set_crtc_gamma_request_t header{};
    header.crtc = crtc;
    header.size = static_cast<std::uint16_t>(size);

    const std::size_t channelBytes = size * sizeof(std::uint16_t);
    const std::size_t bytes = sizeof header + 3 * channelBytes;
    // xcb ends a connection that is asked to send more than the server takes.
    if ((bytes + 3) / 4 > maximumRequestLength_) {
        return false;
    }
    const auto part = [](const void* data, std::size_t length) {
        return iovec{const_cast<void*>(data), length};
    };
    // xcb puts its own parts into the first two, and zeroes for a part without data.
    iovec parts[] = {{},
                     {},
                     part(&header, sizeof header),
                     part(ramp.red.data(), channelBytes),
                     part(ramp.green.data(), channelBytes),
                     part(ramp.blue.data(), channelBytes),
                     part(nullptr, (4 - bytes % 4) % 4)};
    const xcb_protocol_request_t request{5, &xcb_randr_id, XCB_RANDR_SET_CRTC_GAMMA, true};
    auto* raw = connection_.handle();
    return xcb_send_request(raw, 0, parts + 2, &request) != 0 && xcb_flush(raw) > 0;
}

void RandrHardware::waitForWrites() {
    connection_.synchronize();
}

} // namespace nocturo
