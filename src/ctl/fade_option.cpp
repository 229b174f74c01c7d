#include "ctl/fade_option.h"

#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "ctl/setting_text.h"
#include "settings/settings_keys.h"
#include "settings/settings_table.h"

#include <algorithm>

namespace nocturo {

FadeOption::FadeOption(Arguments arguments) : rest_(arguments.begin(), arguments.end()) {
    const auto option = std::ranges::find(rest_, "--fade");
    if (option == rest_.end()) {
        return;
    }
    expect(option + 1 != rest_.end());
    Setting seconds = *settingNamed(kFadeSeconds.key);
    seconds.key = *option; // as refusals are to call it
    seconds_ = settingFromText(seconds, *(option + 1)).number();
    rest_.erase(option, option + 2);
}

void FadeOption::tell(BusClient& client) const {
    if (seconds_) {
        client.call("FadeNext", *seconds_);
    }
}

} // namespace nocturo
