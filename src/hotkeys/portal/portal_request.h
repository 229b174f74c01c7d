#pragma once

#include "base/bus.h"

#include <functional>
#include <memory>
#include <string>

namespace nocturo {

inline constexpr const char* kPortal = "org.freedesktop.portal.Desktop";
inline constexpr const char* kPortalPath = "/org/freedesktop/portal/desktop";

/// A call of the desktop's portal that a signal answers, at once or when its user has closed a
/// dialog. Destroying it takes the question back; its own handler may do so.
class PortalRequest {
  public:
    enum class Outcome { done, cancelled, failed };

    /// `results` (a{sv}) are null where the call itself was refused.
    using Answered = std::function<void(Outcome outcome, sd_bus_message* results)>;

    /// The bus must have said hello. Call begin() when it is there to be found by its handler.
    PortalRequest(const Bus& bus, Answered answered);
    ~PortalRequest();
    PortalRequest(const PortalRequest&) = delete;
    PortalRequest& operator=(const PortalRequest&) = delete;

    /// For the call's option "handle_token".
    const std::string& token() const { return token_; }

    void begin(const BusMessage& call);

  private:
    void cameBack(sd_bus_message* answer);
    void responded(sd_bus_message* signal);

    const Bus& bus_;
    const std::shared_ptr<Answered> answered_; // may destroy this
    const std::string token_;
    std::string path_;
    bool open_ = false;
    std::unique_ptr<BusSlot> response_;
    std::unique_ptr<BusSlot> call_;
};

/// The part of the portal's paths that stands for a connection.
std::string portalSender(const Bus& bus);

} // namespace nocturo
