#pragma once

#include "base/bus.h"

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

/// What the login manager (logind) tells about the computer and the session this process belongs
/// to. Follows a login manager that starts later; silent where there is none.
class LoginSession {
  public:
    struct Handlers {
        std::function<void()> wokeUp;
        std::function<void()> becameActive; // came to the front again
        std::function<void(bool locked)> lockChanged;
    };

    /// `systemBus` must outlive this. `sessionId` as the environment names it ($XDG_SESSION_ID), or
    /// empty. Handlers are called from the event loop.
    LoginSession(const Bus& systemBus, std::string sessionId, Handlers handlers);
    LoginSession(const LoginSession&) = delete;
    LoginSession& operator=(const LoginSession&) = delete;

  private:
    void findSession();
    void findSessionOfProcess();
    void findSessionOfUser();
    void follow(const std::string& sessionPath);
    void take(sd_bus_message* properties);

    const Bus& bus_;
    std::string sessionId_;
    Handlers handlers_;
    std::unique_ptr<BusSlot> sleep_;
    std::unique_ptr<BusSlot> owner_;
    std::unique_ptr<BusSlot> question_; // the last one
    std::unique_ptr<BusSlot> changes_;  // of the session's properties
    bool active_ = true; // until told otherwise, so that the first answer is no change
    bool locked_ = false;
};

} // namespace nocturo
