#include "app/state_teller.h"

#include "app/app_controller.h"
#include "app/effect_state.h"
#include "automation/automation.h"
#include "base/notification_names.h"
#include "base/run_loop.h"
#include "settings/defaults_store.h"

#include <chrono>
#include <utility>

namespace nocturo {

namespace {

constexpr std::chrono::milliseconds kSoon(50);

} // namespace

StateTeller::StateTeller(const NDAppController& controller, const DefaultsStore& defaults,
                         NotificationCenter& localCenter, RunLoop& runLoop,
                         std::function<void(const std::string& sentence)> told)
    : controller_(controller), defaults_(defaults), localCenter_(localCenter), runLoop_(runLoop),
      told_(std::move(told)) {
    for (const auto name :
         {NSUserDefaultsDidChangeNotification, kEffectActivationNotification, kRulingNotification,
          NSApplicationDidChangeScreenParametersNotification}) {
        localCenter_.addObserver(this, name, [this] { tellSoon(); });
    }
    tellSoon();
}

StateTeller::~StateTeller() {
    localCenter_.removeObserver(this);
}

void StateTeller::tellSoon() {
    if (soon_ == nullptr) {
        soon_ = runLoop_.scheduleTimer(kSoon, [this] { tell(); });
    }
}

void StateTeller::tell() {
    soon_.reset();
    std::string sentence = stateSentence(controller_, defaults_);
    if (sentence != sentence_) {
        sentence_ = std::move(sentence);
        told_(sentence_);
    }
}

} // namespace nocturo
