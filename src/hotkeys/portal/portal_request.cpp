#include "hotkeys/portal/portal_request.h"

#include "base/log.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kRequest = "org.freedesktop.portal.Request";

std::string newToken() {
    static unsigned last = 0;
    return "nocturo" + std::to_string(++last);
}

} // namespace

std::string portalSender(const Bus& bus) {
    const char* name = ":";
    sd_bus_get_unique_name(bus.handle(), &name);
    std::string sender(name + 1);
    std::ranges::replace(sender, '.', '_');
    return sender;
}

PortalRequest::PortalRequest(const Bus& bus, Answered answered)
    : bus_(bus), answered_(std::make_shared<Answered>(std::move(answered))), token_(newToken()) {}

PortalRequest::~PortalRequest() {
    if (open_) {
        const BusMessage close = bus_.newCall(kPortal, path_.c_str(), kRequest, "Close");
        sd_bus_message_set_expect_reply(close.get(), 0);
        sd_bus_send(bus_.handle(), close.get(), nullptr);
    }
}

// The answer may be on its way before the call returns, so it is listened for before.
void PortalRequest::begin(const BusMessage& call) {
    path_ = std::string(kPortalPath) + "/request/" + portalSender(bus_) + "/" + token_;
    response_ = bus_.onSignal(kPortal, path_.c_str(), kRequest, "Response",
                              [this](sd_bus_message* signal) { responded(signal); });
    open_ = true;
    call_ = bus_.call(call, [this](sd_bus_message* answer) { cameBack(answer); });
}

void PortalRequest::cameBack(sd_bus_message* answer) {
    const sd_bus_error* error = sd_bus_message_get_error(answer);
    if (!open_ || error == nullptr) {
        return;
    }
    open_ = false;
    logWarning(kLogHotKeys, "The desktop's portal refuses hot keys: " +
                                std::string(error->message != nullptr ? error->message : "") + ".");
    const auto answered = answered_;
    (*answered)(Outcome::failed, nullptr);
}

void PortalRequest::responded(sd_bus_message* signal) {
    std::uint32_t code = 0;
    if (!std::exchange(open_, false)) {
        return;
    }
    const bool isRead = sd_bus_message_read(signal, "u", &code) > 0;
    const auto answered = answered_;
    (*answered)(!isRead     ? Outcome::failed
                : code == 0 ? Outcome::done
                : code == 1 ? Outcome::cancelled
                            : Outcome::failed,
                signal);
}

} // namespace nocturo
