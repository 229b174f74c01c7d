#include "automation/game_mode.h"

#include <cstdint>
#include <utility>

namespace nocturo {

namespace {

constexpr const char* kService = "com.feralinteractive.GameMode"; // and its interface
constexpr const char* kPath = "/com/feralinteractive/GameMode";
constexpr const char* kProperties = "org.freedesktop.DBus.Properties";

} // namespace

GameMode::GameMode(const Bus& bus, std::function<void()> changed)
    : bus_(bus), changed_(std::move(changed)) {
    changes_ = bus.onSignal(kService, kPath, kProperties, "PropertiesChanged",
                            [this](sd_bus_message*) { ask(); });
    owner_ = bus.followOwner(kService, [this](const std::string& owner) {
        question_.reset(); // what a former owner would answer counts no more
        if (owner.empty()) {
            take(false);
        } else {
            ask();
        }
    });
}

// Whoever may send a signal may send many, also while GameMode hangs: one question at a time.
void GameMode::ask() {
    askAgain_ = question_ != nullptr;
    if (askAgain_) {
        return;
    }
    const BusMessage call = bus_.newCall(kService, kPath, kProperties, "Get");
    sd_bus_message_append(call.get(), "ss", kService, "ClientCount");
    question_ = bus_.call(call, [this](sd_bus_message* answer) {
        question_.reset();
        if (askAgain_) {
            ask();
            return;
        }
        std::int32_t count = 0;
        const bool isCount = sd_bus_message_is_method_error(answer, nullptr) == 0 &&
                             sd_bus_message_read(answer, "v", "i", &count) > 0;
        take(isCount && count > 0);
    });
}

void GameMode::take(bool areRunning) {
    if (std::exchange(areRunning_, areRunning) != areRunning) {
        changed_();
    }
}

} // namespace nocturo
