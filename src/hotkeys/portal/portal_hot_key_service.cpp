#include "hotkeys/portal/portal_hot_key_service.h"

#include "base/activation_token.h"
#include "base/bus_dictionary.h"
#include "base/log.h"
#include "base/run_loop.h"
#include "base/texts/translated.h"
#include "hotkeys/keyboard/modifier_flags.h"
#include "hotkeys/portal/key_trigger.h"

#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono_literals;
using State = HotKeyGrant::State;

constexpr const char* kShortcuts = "org.freedesktop.portal.GlobalShortcuts";
constexpr const char* kRegistry = "org.freedesktop.host.portal.Registry";
constexpr const char* kSession = "org.freedesktop.portal.Session";
constexpr const char* kApplication = "org.nocturo.Nocturo"; // as the desktop entry is called
constexpr const char* kShortcut = "toggle";
// Always the same, because desktops keep a user's choice of key for it.
constexpr const char* kSessionToken = "nocturo";
constexpr std::uint32_t kFirstWithConfiguration = 2;
// Portals are started by whoever calls them. One that has gone is given some time to come back.
constexpr auto kPatienceWithRestart = 5s;

std::uint64_t flagsOf(std::uint32_t modifiers) {
    const auto flag = [modifiers](std::uint32_t bit, std::uint64_t mask) {
        return (modifiers & bit) != 0 ? mask : 0;
    };
    return flag(controlKey, NSControlKeyMask) | flag(optionKey, NSAlternateKeyMask) |
           flag(shiftKey, NSShiftKeyMask) | flag(cmdKey, NSCommandKeyMask);
}

} // namespace

PortalHotKeyService::PortalHotKeyService(Surroundings surroundings)
    : around_(std::move(surroundings)) {}

PortalHotKeyService::~PortalHotKeyService() {
    end();
}

std::optional<HotKeyHandle> PortalHotKeyService::registerHotKey(std::uint16_t keyCode,
                                                                std::uint32_t modifiers,
                                                                EventHotKeyID hotKeyID) {
    if (claim_) {
        return std::nullopt;
    }
    claim_ = Claim{HotKeyHandle{++lastHandle_}, keyCode, modifiers, hotKeyID};
    begin(mayAsk_);
    return claim_->handle;
}

void PortalHotKeyService::unregisterHotKey(HotKeyHandle handle) {
    if (claim_ && claim_->handle == handle) {
        end();
        owner_.reset();
        claim_.reset();
    }
}

void PortalHotKeyService::setHandlers(Handler released, Handler pressed) {
    released_ = std::move(released);
    pressed_ = std::move(pressed);
}

HotKeyGrant PortalHotKeyService::grantOf(HotKeyHandle handle) const {
    HotKeyGrant grant;
    if (!claim_ || claim_->handle != handle) {
        return grant;
    }
    grant.state = claim_->state;
    grant.trigger = claim_->trigger;
    grant.canBeChanged = grant.state == State::inForce && version_ >= kFirstWithConfiguration;
    // Some compositors pass a granted key on only where their configuration says which.
    if (grant.state == State::notOffered ||
        (grant.state == State::inForce && grant.trigger.empty() && !grant.canBeChanged)) {
        grant.configuration = desktopConfiguration(around_.granted.desktop(), claim_->keyCode,
                                                   claim_->modifiers, around_.layout);
    }
    return grant;
}

void PortalHotKeyService::askAgain(HotKeyHandle handle) {
    if (claim_ && claim_->handle == handle && grantOf(handle).canBeChanged) {
        configure();
    } else {
        hotKeyWasSet();
    }
}

void PortalHotKeyService::hotKeyWasSet() {
    if (mayAsk_ && claim_ && claim_->state != State::asked && claim_->state != State::inForce) {
        begin(true);
    }
}

void PortalHotKeyService::begin(bool mayAsk) {
    end();
    if (around_.bus == nullptr) {
        setState(State::notOffered);
        return;
    }
    setState(State::asked);
    // Newer portals talk only to applications that they know, and want to hear of it first.
    const BusMessage name = around_.bus->newCall(kPortal, kPortalPath, kRegistry, "Register");
    sd_bus_message_set_auto_start(name.get(), 1);
    sd_bus_message_append(name.get(), "sa{sv}", kApplication, 0);
    registration_ = around_.bus->call(name, [](sd_bus_message* /*answer*/) {});
    const BusMessage question =
        around_.bus->newCall(kPortal, kPortalPath, "org.freedesktop.DBus.Properties", "Get");
    sd_bus_message_set_auto_start(question.get(), 1);
    sd_bus_message_append(question.get(), "ss", kShortcuts, "version");
    question_ = around_.bus->call(
        question, [this, mayAsk](sd_bus_message* answer) { versionCame(answer, mayAsk); });
}

/// Lets go of all that was agreed with a portal, or is being asked of it.
void PortalHotKeyService::end() {
    const bool wasCreating = request_ != nullptr && session_.empty();
    request_.reset();
    if (wasCreating) {
        session_ = std::string(kPortalPath) + "/session/" + portalSender(*around_.bus) + "/" +
                   kSessionToken;
    }
    if (!session_.empty()) {
        const BusMessage close = around_.bus->newCall(kPortal, session_.c_str(), kSession, "Close");
        sd_bus_message_set_expect_reply(close.get(), 0);
        sd_bus_send(around_.bus->handle(), close.get(), nullptr);
    }
    session_.clear();
    peer_.clear();
    version_ = 0;
    for (auto* slot :
         {&registration_, &question_, &activated_, &deactivated_, &changed_, &closed_}) {
        slot->reset();
    }
    restart_.reset();
    if (claim_) {
        claim_->isDown = false;
    }
}

void PortalHotKeyService::ownerDidChange(const std::string& owner) {
    const bool isAnsweringFirst = peer_.empty() && restart_ == nullptr;
    if (owner == peer_ || (isAnsweringFirst && claim_->state == State::asked)) {
        return;
    }
    const bool wasInForce = claim_->state == State::inForce || restart_ != nullptr;
    if (!owner.empty()) {
        begin(wasInForce);
        return;
    }
    end();
    if (wasInForce) {
        setState(State::asked);
        restart_ = around_.runLoop.scheduleTimer(kPatienceWithRestart, [this] { begin(true); });
    } else if (claim_->state == State::asked) {
        setState(State::notAsked);
    }
}

void PortalHotKeyService::versionCame(sd_bus_message* answer, bool mayAsk) {
    const bool isOffered = sd_bus_message_read(answer, "v", "u", &version_) > 0 && version_ > 0;
    const char* sender = sd_bus_message_get_sender(answer);
    peer_ = sender != nullptr && *sender == ':' ? sender : ""; // or the bus itself says no
    if (!isOffered) {
        version_ = 0;
        setState(State::notOffered);
    } else if (!mayAsk && !around_.granted.isGranted()) {
        setState(State::notAsked);
    } else {
        createSession();
    }
    if (owner_ == nullptr) {
        owner_ = around_.bus->followOwner(
            kPortal, [this](const std::string& owner) { ownerDidChange(owner); });
    }
}

void PortalHotKeyService::createSession() {
    request_ = std::make_unique<PortalRequest>(
        *around_.bus,
        [this](Outcome outcome, sd_bus_message* results) { sessionCame(outcome, results); });
    const BusMessage call = newCall("CreateSession");
    sd_bus_message_open_container(call.get(), SD_BUS_TYPE_ARRAY, "{sv}");
    appendOption(call.get(), "handle_token", request_->token());
    appendOption(call.get(), "session_handle_token", kSessionToken);
    // That of Plasma 5 looks nowhere else for them.
    sd_bus_message_open_container(call.get(), SD_BUS_TYPE_DICT_ENTRY, "sv");
    sd_bus_message_append(call.get(), "s", "shortcuts");
    sd_bus_message_open_container(call.get(), SD_BUS_TYPE_VARIANT, "a(sa{sv})");
    appendShortcut(call.get());
    sd_bus_message_close_container(call.get());
    sd_bus_message_close_container(call.get());
    sd_bus_message_close_container(call.get());
    request_->begin(call);
}

void PortalHotKeyService::sessionCame(Outcome outcome, sd_bus_message* results) {
    std::string session;
    if (outcome == Outcome::done) {
        forEachEntry(results, [&](std::string_view key) {
            std::string text = readTextVariant(results);
            if (key == "session_handle") {
                session = std::move(text);
            }
        });
    }
    request_.reset();
    if (sd_bus_object_path_is_valid(session.c_str()) <= 0) {
        setState(State::refused);
        return;
    }
    session_ = std::move(session);
    listen();
    bind();
}

void PortalHotKeyService::listen() {
    const auto onShortcuts = [this](const char* signal,
                                    std::function<void(sd_bus_message*)> heard) {
        return around_.bus->onSignal(kPortal, kPortalPath, kShortcuts, signal, std::move(heard));
    };
    activated_ = onShortcuts("Activated", [this](auto* signal) { pressed(signal, true); });
    deactivated_ = onShortcuts("Deactivated", [this](auto* signal) { pressed(signal, false); });
    changed_ =
        onShortcuts("ShortcutsChanged", [this](auto* signal) { shortcutsDidChange(signal); });
    closed_ = around_.bus->onSignal(kPortal, session_.c_str(), kSession, "Closed",
                                    [this](sd_bus_message* /*signal*/) { sessionWasClosed(); });
}

void PortalHotKeyService::bind() {
    request_ = std::make_unique<PortalRequest>(
        *around_.bus,
        [this](Outcome outcome, sd_bus_message* results) { bound(outcome, results); });
    const BusMessage call = newCall("BindShortcuts");
    sd_bus_message_append(call.get(), "o", session_.c_str());
    appendShortcut(call.get());
    sd_bus_message_append(call.get(), "s", "");
    sd_bus_message_open_container(call.get(), SD_BUS_TYPE_ARRAY, "{sv}");
    appendOption(call.get(), "handle_token", request_->token());
    sd_bus_message_close_container(call.get());
    request_->begin(call);
}

void PortalHotKeyService::bound(Outcome outcome, sd_bus_message* results) {
    std::optional<std::string> trigger;
    if (outcome == Outcome::done) {
        bool isListed = false;
        const bool isWhole = forEachEntry(results, [&](std::string_view key) {
            if (key != "shortcuts" ||
                sd_bus_message_enter_container(results, SD_BUS_TYPE_VARIANT, "a(sa{sv})") <= 0) {
                sd_bus_message_skip(results, "v");
                return;
            }
            isListed = true;
            trigger = readTrigger(results);
            sd_bus_message_exit_container(results);
        });
        if (isWhole && !isListed) {
            trigger.emplace();
        }
    }
    request_.reset();
    around_.granted.setGranted(trigger.has_value());
    if (trigger) {
        setState(State::inForce, *std::move(trigger));
    } else {
        end();
        setState(State::refused);
    }
}

// The desktop may have lost what it shows its session by. Twice is a wish.
void PortalHotKeyService::sessionWasClosed() {
    session_.clear();
    end();
    if (std::exchange(wasClosed_, true) || claim_->state != State::inForce) {
        setState(State::refused);
    } else {
        begin(true);
    }
}

void PortalHotKeyService::configure() {
    const BusMessage call = newCall("ConfigureShortcuts");
    sd_bus_message_append(call.get(), "osa{sv}", session_.c_str(), "", 0);
    question_ = around_.bus->call(call, [](sd_bus_message* /*answer*/) {});
}

void PortalHotKeyService::shortcutsDidChange(sd_bus_message* signal) {
    if (isOurs(signal)) {
        if (auto trigger = readTrigger(signal); trigger && claim_->state == State::inForce) {
            setState(State::inForce, *std::move(trigger));
        }
    }
}

/// Desktops may tell of a key that is held down again and again.
void PortalHotKeyService::pressed(sd_bus_message* signal, bool isDown) {
    const char* shortcut = "";
    std::uint64_t milliseconds = 0;
    if (!isOurs(signal) || sd_bus_message_read(signal, "st", &shortcut, &milliseconds) <= 0 ||
        std::string_view(shortcut) != kShortcut ||
        std::exchange(claim_->isDown, isDown) == isDown) {
        return;
    }
    forEachEntry(signal, [&](std::string_view key) {
        const std::string text = readTextVariant(signal);
        if (key == "activation_token") {
            keepActivationToken(text);
        }
    });
    wasClosed_ = false;
    const HotKeyServiceEvent event{claim_->id, flagsOf(claim_->modifiers),
                                   static_cast<double>(milliseconds) / 1000};
    const Handler handler = isDown ? pressed_ : released_; // it may end the claim
    if (handler) {
        handler(event);
    }
}

void PortalHotKeyService::setState(State state, std::string trigger) {
    claim_->state = state;
    claim_->trigger = std::move(trigger);
    around_.runLoop.callSoon(around_.grantDidChange);
}

bool PortalHotKeyService::isOurs(sd_bus_message* signal) const {
    const char* session = "";
    return claim_ && sd_bus_message_read(signal, "o", &session) > 0 && session_ == session;
}

void PortalHotKeyService::appendShortcut(sd_bus_message* call) const {
    sd_bus_message_open_container(call, SD_BUS_TYPE_ARRAY, "(sa{sv})");
    sd_bus_message_open_container(call, SD_BUS_TYPE_STRUCT, "sa{sv}");
    sd_bus_message_append(call, "s", kShortcut);
    sd_bus_message_open_container(call, SD_BUS_TYPE_ARRAY, "{sv}");
    appendOption(call, "description", translated("Activate or Deactivate Effect"));
    const std::string trigger = portalTrigger(claim_->keyCode, claim_->modifiers, around_.layout);
    if (!trigger.empty()) {
        appendOption(call, "preferred_trigger", trigger);
    }
    for (int container = 0; container < 3; ++container) {
        sd_bus_message_close_container(call);
    }
}

void PortalHotKeyService::appendOption(sd_bus_message* call, const char* key,
                                       const std::string& text) const {
    sd_bus_message_append(call, "{sv}", key, "s", text.c_str());
}

/// How the desktop describes the key, of an a(sa{sv}); nothing where it does not list it.
std::optional<std::string> PortalHotKeyService::readTrigger(sd_bus_message* message) const {
    std::optional<std::string> trigger;
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "(sa{sv})") <= 0) {
        return trigger;
    }
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_STRUCT, "sa{sv}") > 0) {
        const char* id = "";
        sd_bus_message_read(message, "s", &id);
        const bool isOurShortcut = std::string_view(id) == kShortcut;
        if (isOurShortcut) {
            trigger.emplace();
        }
        const bool isRead = forEachEntry(message, [&](std::string_view key) {
            std::string text = readTextVariant(message);
            if (isOurShortcut && key == "trigger_description") {
                trigger = std::move(text);
            }
        });
        if (!isRead || sd_bus_message_exit_container(message) < 0) {
            break;
        }
    }
    sd_bus_message_exit_container(message);
    return trigger;
}

BusMessage PortalHotKeyService::newCall(const char* method) const {
    return around_.bus->newCall(kPortal, kPortalPath, kShortcuts, method);
}

} // namespace nocturo
