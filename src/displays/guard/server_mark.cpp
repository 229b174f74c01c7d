#include "displays/guard/server_mark.h"

#include <array>
#include <cstring>
#include <random>
#include <string>
#include <utility>

namespace nocturo {

namespace {

constexpr std::string_view kMark = "_NOCTURO_CHANGED_DISPLAYS";
constexpr std::string_view kJournal = "_NOCTURO_OWN_RAMPS";
constexpr std::string_view kRun = "_NOCTURO_RUN";
constexpr std::string_view kLetGo = "_NOCTURO_LET_GO";
constexpr std::string_view kRestored = "_NOCTURO_RESTORED";

// More than sixteen of the longest ramps that RandR can name.
constexpr std::uint32_t kLongestJournal = 8U << 20U;
// A mark has three numbers; one that is longer is of another shape.
constexpr std::uint32_t kMostNumbers = 4;
constexpr std::uint8_t kNumbers = 32; // bits, as X counts the formats of properties
constexpr std::uint8_t kBytes = 8;

// A property holds a token as its upper and lower half.
std::uint32_t upperHalf(std::uint64_t token) {
    return static_cast<std::uint32_t>(token >> 32);
}
std::uint32_t lowerHalf(std::uint64_t token) {
    return static_cast<std::uint32_t>(token);
}
std::uint64_t tokenOf(const std::vector<std::uint32_t>& numbers) {
    return std::uint64_t{numbers[0]} << 32 | numbers[1];
}

template <std::size_t count>
void setNumbers(xcb_connection_t* connection, std::uint32_t window, std::uint32_t property,
                const std::array<std::uint32_t, count>& numbers) {
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_CARDINAL,
                        kNumbers, static_cast<std::uint32_t>(count), numbers.data());
}

} // namespace

ServerMark::ServerMark(XConnection& connection) : connection_(connection) {
    if (connection.isLost()) {
        return;
    }
    // Always the first screen's, whichever one a program prefers: it stands for the whole server.
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection.handle())).data->root;
    expect(connection);
    mark_ = connection.atom(kMark);
    journal_ = connection.atom(kJournal);
    run_ = connection.atom(kRun);
    letGo_ = connection.atom(kLetGo);
    restored_ = connection.atom(kRestored);
}

void ServerMark::expect(XConnection& connection) {
    for (const std::string_view name : {kMark, kJournal, kRun, kLetGo, kRestored}) {
        connection.expectAtom(name);
    }
}

std::vector<std::uint32_t> ServerMark::readNumbers(std::uint32_t window,
                                                   std::uint32_t property) const {
    const auto cookie = xcb_get_property(connection_.handle(), false, window, property,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, kMostNumbers);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.handle(), cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE) {
        return {};
    }
    if (reply->type != XCB_ATOM_CARDINAL || reply->format != kNumbers) {
        return {0}; // something is there, and nobody's
    }
    const auto* numbers = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {numbers, numbers + reply->value_len};
}

std::optional<ServerMark::Owner> ServerMark::read() const {
    const auto numbers = readNumbers(root_, mark_);
    if (numbers.empty()) {
        return std::nullopt;
    }
    // Of another shape it is still a mark, of no run that anybody knows.
    return numbers.size() == 3 ? Owner{tokenOf(numbers), numbers[2]} : Owner{};
}

std::optional<Journal> ServerMark::readJournal(std::uint64_t token) const {
    const auto cookie = xcb_get_property(connection_.handle(), false, root_, journal_,
                                         XCB_ATOM_CARDINAL, 0, kLongestJournal / 4);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.handle(), cookie, nullptr));
    if (!reply || reply->type != XCB_ATOM_CARDINAL || reply->format != kBytes ||
        reply->bytes_after != 0) {
        return std::nullopt;
    }
    auto journal = journalFromBytes({static_cast<const char*>(xcb_get_property_value(reply.get())),
                                     std::size_t{reply->value_len}});
    return journal && journal->token == token ? std::move(journal) : std::nullopt;
}

bool ServerMark::keep(const Journal& journal) const {
    const std::string bytes = journalBytes(journal);
    // xcb ends a connection that is asked to send more than the server takes.
    const std::size_t longest =
        std::size_t{4} * xcb_get_maximum_request_length(connection_.handle());
    constexpr std::size_t kAround = 64;
    if (bytes.size() > kLongestJournal || bytes.size() + kAround > longest) {
        xcb_delete_property(connection_.handle(), root_, journal_); // what it was is not true now
        return false;
    }
    xcb_change_property(connection_.handle(), XCB_PROP_MODE_REPLACE, root_, journal_,
                        XCB_ATOM_CARDINAL, kBytes, static_cast<std::uint32_t>(bytes.size()),
                        bytes.data());
    return true;
}

void ServerMark::set(const Owner& owner) const {
    setNumbers(connection_.handle(), root_, mark_,
               std::array{upperHalf(owner.token), lowerHalf(owner.token), owner.window});
    xcb_delete_property(connection_.handle(), root_, restored_); // it has been started since
}

void ServerMark::remove() const {
    xcb_delete_property(connection_.handle(), root_, mark_);
    xcb_delete_property(connection_.handle(), root_, journal_);
}

ServerMark::Owner ServerMark::createOwner() const {
    std::random_device random;
    Owner owner{std::uint64_t{random()} << 32 | random(), 0};
    if (!connection_.isLost()) {
        auto* raw = connection_.handle();
        owner.window = xcb_generate_id(raw);
        xcb_create_window(raw, 0, owner.window, root_, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        setNumbers(raw, owner.window, run_,
                   std::array{upperHalf(owner.token), lowerHalf(owner.token)});
        xcb_flush(raw);
    }
    return owner;
}

XListener ServerMark::onLetGo(const Owner& owner, std::function<void()> letGo) const {
    return connection_.onEvent(XCB_CLIENT_MESSAGE, [asked = letGo_, window = owner.window,
                                                    letGo = std::move(letGo)](const auto& event) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.window == window && message.type == asked) {
            letGo();
        }
    });
}

bool ServerMark::isAlive(const Owner& owner) const {
    if (owner.window == 0 ||
        !connection_.selectEventsIfThere(owner.window, XCB_EVENT_MASK_STRUCTURE_NOTIFY)) {
        return false;
    }
    // The number may be somebody else's by now.
    const auto run = readNumbers(owner.window, run_);
    return run.size() == 2 && tokenOf(run) == owner.token;
}

bool ServerMark::waitUntilGone(const Owner& owner, std::chrono::milliseconds patience) const {
    const auto isItsEnd = [&owner](const xcb_generic_event_t& event) {
        return reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == owner.window;
    };
    return !isAlive(owner) || connection_.waitForEvent(XCB_DESTROY_NOTIFY, isItsEnd, patience);
}

bool ServerMark::askToLetGo(const Owner& owner, std::chrono::milliseconds patience) const {
    connection_.selectEvents(root_, XCB_EVENT_MASK_PROPERTY_CHANGE);
    // Without a mask it goes to whoever made the window, whatever else has its number.
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = kNumbers;
    message.window = owner.window;
    message.type = letGo_;
    xcb_send_event(connection_.handle(), false, owner.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    const auto isRemoval = [this](const xcb_generic_event_t& event) {
        const auto& notify = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return notify.atom == mark_ && notify.state == XCB_PROPERTY_DELETE;
    };
    return read() != owner || connection_.waitForEvent(XCB_PROPERTY_NOTIFY, isRemoval, patience);
}

void ServerMark::noteRestored() const {
    setNumbers(connection_.handle(), root_, restored_, std::array{1U});
}

bool ServerMark::takeRestored() const {
    const bool noted = !readNumbers(root_, restored_).empty();
    if (noted) {
        xcb_delete_property(connection_.handle(), root_, restored_);
    }
    return noted;
}

ServerMark::Grab::Grab(const ServerMark& mark) : connection_(mark.connection_.handle()) {
    xcb_grab_server(connection_);
}

ServerMark::Grab::~Grab() {
    xcb_ungrab_server(connection_);
    xcb_flush(connection_);
}

} // namespace nocturo
