#include "ctl/effect_verbs.h"

#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"
#include "ctl/setting_text.h"
#include "effects/color_filter_effect.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <vector>

namespace nocturo {

namespace {

std::vector<std::string> effectsFromTexts(Arguments texts) {
    std::vector<std::string> names;
    for (const std::string& text : texts) {
        const std::string name = effectFromText(text);
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(name);
        }
    }
    return names;
}

std::string temperatureText(const Json& properties) {
    const auto kelvin = properties.value("temperature", 0U);
    if (kelvin == 0) {
        return translated("The color filter has a hue and a vividness that are no temperature.");
    }
    const Json& effects = properties["effects"];
    const std::string text = std::to_string(kelvin) + " K";
    return std::find(effects.begin(), effects.end(), NDColorFilterEffect::kName) != effects.end()
               ? text
               : translated("%@  (the color filter is not chosen)", {text});
}

} // namespace

void runEffects(Arguments arguments) {
    if (arguments.empty()) {
        print(effectsReport(BusClient().properties()));
        return;
    }
    const std::string& how = arguments.front();
    expect(arguments.size() > 1 && (how == "add" || how == "remove" || how == "only"));
    const auto names = effectsFromTexts(arguments.subspan(1));
    BusClient().call(how == "only"  ? "SetEffects"
                     : how == "add" ? "AddEffects"
                                    : "RemoveEffects",
                     names);
}

void runTemperature(Arguments arguments) {
    if (arguments.empty()) {
        print(temperatureText(BusClient().properties()) + '\n');
        return;
    }
    expect(arguments.size() == 1);
    std::string_view text = arguments[0];
    const bool isStep = text.starts_with('+') || text.starts_with('-');
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    text.remove_suffix(text.ends_with('K') ? 1 : 0);
    std::int32_t kelvin = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, kelvin);
    if (error != std::errc() || rest != end) {
        throw Failure{kUsage, translated("A temperature is from 1000 to 25000 K.")};
    }
    if (isStep) {
        BusClient().call("StepTemperature", kelvin);
    } else {
        BusClient().call("SetTemperature", static_cast<std::uint32_t>(kelvin));
    }
}

} // namespace nocturo
