#pragma once

#include "hotkeys/hot_key_service.h"
#include "hotkeys/portal/granted_hot_keys.h"
#include "hotkeys/portal/portal_request.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nocturo {

class KeyboardLayout;
class RunLoop;
class Timer;

/// The hot key service of a Wayland desktop: its portal of global shortcuts (versions 1 and 2).
/// Takes one hot key at a time.
///
/// A claim is at first a wish. The desktop may ask its user, who may choose another key, or none,
/// and change it later; what has become of it is told by grantOf(). The desktop is asked whenever
/// the user sets the hot key, and at the start only if it has granted one before, so that a login
/// opens no dialog. A portal that starts again is asked again.
class PortalHotKeyService final : public HotKeyService {
  public:
    struct Surroundings {
        const Bus* bus; // the session's; null where there is none
        RunLoop& runLoop;
        KeyboardLayout* layout; // may be null
        GrantedHotKeys granted;
        std::function<void()> grantDidChange; // called after every change of what grantOf() tells
    };

    /// What is pointed to must outlive the service.
    explicit PortalHotKeyService(Surroundings surroundings);
    ~PortalHotKeyService() override;

    std::optional<HotKeyHandle> registerHotKey(std::uint16_t keyCode, std::uint32_t modifiers,
                                               EventHotKeyID hotKeyID) override;
    void unregisterHotKey(HotKeyHandle handle) override;
    void setHandlers(Handler released, Handler pressed) override;
    HotKeyGrant grantOf(HotKeyHandle handle) const override;
    void askAgain(HotKeyHandle handle) override;

    /// From now on it is the user who sets hot keys.
    void launchDidFinish() { mayAsk_ = true; }

    /// The user has set the hot key, perhaps to what it was: asks again where it is not in force.
    void hotKeyWasSet();

  private:
    struct Claim {
        HotKeyHandle handle{};
        std::uint16_t keyCode = 0;
        std::uint32_t modifiers = 0;
        EventHotKeyID id;
        HotKeyGrant::State state = HotKeyGrant::State::asked;
        std::string trigger{};
        bool isDown = false;
    };
    using Outcome = PortalRequest::Outcome;

    void begin(bool mayAsk);
    void end();
    void ownerDidChange(const std::string& owner);
    void versionCame(sd_bus_message* answer, bool mayAsk);
    void createSession();
    void sessionCame(Outcome outcome, sd_bus_message* results);
    void listen();
    void bind();
    void bound(Outcome outcome, sd_bus_message* results);
    void sessionWasClosed();
    void configure();
    void shortcutsDidChange(sd_bus_message* signal);
    void pressed(sd_bus_message* signal, bool isDown);
    void setState(HotKeyGrant::State state, std::string trigger = {});
    bool isOurs(sd_bus_message* signal) const;
    void appendShortcut(sd_bus_message* call) const;
    void appendOption(sd_bus_message* call, const char* key, const std::string& text) const;
    std::optional<std::string> readTrigger(sd_bus_message* message) const;
    BusMessage newCall(const char* method) const;

    Surroundings around_;
    Handler released_;
    Handler pressed_;
    std::uint64_t lastHandle_ = 0;
    bool mayAsk_ = false;
    std::optional<Claim> claim_;

    // The conversation with the portal that is there.
    std::unique_ptr<BusSlot> owner_;
    std::string peer_; // who has answered; empty while nobody has
    std::uint32_t version_ = 0;
    bool wasClosed_ = false;
    std::string session_; // its path; empty while there is none
    std::unique_ptr<BusSlot> registration_;
    std::unique_ptr<BusSlot> question_;
    std::unique_ptr<PortalRequest> request_;
    std::unique_ptr<BusSlot> activated_;
    std::unique_ptr<BusSlot> deactivated_;
    std::unique_ptr<BusSlot> changed_;
    std::unique_ptr<BusSlot> closed_;
    std::unique_ptr<Timer> restart_; // of a portal that has gone
};

} // namespace nocturo
