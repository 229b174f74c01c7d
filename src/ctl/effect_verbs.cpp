#include "ctl/effect_verbs.h"

#include "app/state_sentence.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"
#include "ctl/setting_text.h"
#include "effects/color_filter_effect.h"
#include "effects/dim_effect.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
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

bool isChosen(const Json& properties, std::string_view effect) {
    const Json& effects = properties["effects"];
    return std::find(effects.begin(), effects.end(), effect) != effects.end();
}

std::string temperatureText(const Json& properties) {
    const auto kelvin = properties.value("temperature", 0U);
    if (kelvin == 0) {
        return translated("The color filter has a hue and a vividness that are no temperature.");
    }
    const std::string text = std::to_string(kelvin) + " K";
    return isChosen(properties, NDColorFilterEffect::kName)
               ? text
               : translated("%@  (the color filter is not chosen)", {text});
}

bool isStep(std::string_view text) {
    return text.starts_with('+') || text.starts_with('-') || text.starts_with("\u2212");
}

/// A number that must be there, in percent for `whole` 1.
double amount(std::string_view text, double whole) {
    const auto number = amountFromText(text, whole);
    expect(number.has_value());
    return *number;
}

/// The same for words that mean percent, with the sign or without.
double share(std::string_view text) {
    return amount(text, 100.0) / 100.0;
}

void checkRange(const char* verb, double value, double lowest, double highest, bool inPercent) {
    if (value < lowest || value > highest) {
        const auto text = [&](double end) {
            return inPercent ? signedPercentText(end) : std::to_string(static_cast<int>(end));
        };
        throw Failure{kUsage, translated("\"%1$@\" takes a number from %2$@ to %3$@.",
                                         {verb, text(lowest), text(highest)})};
    }
}

void changeEffects(BusClient& client, bool add, const std::vector<std::string>& names) {
    if (!names.empty()) {
        client.call(add ? "AddEffects" : "RemoveEffects", names);
    }
}

void toggleEffects(const std::vector<std::string>& names) {
    BusClient client;
    const Json properties = client.properties();
    std::vector<std::string> chosen;
    std::vector<std::string> others;
    for (const std::string& name : names) {
        (isChosen(properties, name) ? chosen : others).push_back(name);
    }
    changeEffects(client, false, chosen);
    changeEffects(client, true, others);
}

} // namespace

void runEffects(Arguments arguments) {
    if (arguments.empty()) {
        print(effectsReport(BusClient().properties()));
        return;
    }
    const std::string& how = arguments.front();
    const auto names = effectsFromTexts(arguments.subspan(how == "none" ? arguments.size() : 1));
    expect(names.empty() == (how == "none") && (how != "none" || arguments.size() == 1));
    if (how == "none" || how == "only") {
        BusClient().call("SetEffects", names);
    } else if (how == "toggle") {
        toggleEffects(names);
    } else {
        expect(how == "add" || how == "remove");
        BusClient().call(how == "add" ? "AddEffects" : "RemoveEffects", names);
    }
}

void runDim(Arguments arguments) {
    if (arguments.empty()) {
        const Json properties = BusClient().properties();
        const std::string text = signedPercentText(properties["dimLevel"].get<double>());
        print((isChosen(properties, NDDimEffect::kName)
                   ? text
                   : translated("%@  (dim is not chosen)", {text})) +
              '\n');
        return;
    }
    expect(arguments.size() == 1);
    std::string_view text = arguments[0];
    const bool isLevel = text.starts_with('=');
    text.remove_prefix(isLevel ? 1 : 0);
    const double number = share(text);
    if (!isLevel && isStep(text)) {
        BusClient().call("StepDim", number);
        return;
    }
    checkRange("dim", number, isLevel ? -1.0 : 0.0, 1.0, true);
    BusClient().call("SetDim", isLevel ? number : -number);
}

void runTint(Arguments arguments) {
    expect(!arguments.empty() && arguments.size() <= 2);
    double hue = amount(arguments[0], 0.0);
    std::optional<double> vividness;
    if (!isStep(arguments[0])) {
        checkRange("tint", hue, 0.0, 360.0, false);
    }
    if (arguments.size() == 2) {
        vividness = share(arguments[1]);
        if (!isStep(arguments[1])) {
            checkRange("tint", *vividness, 0.0, 1.0, true);
        }
    }
    BusClient client;
    const Json properties = client.properties();
    const double before = properties["colorFilterVividness"].get<double>();
    if (isStep(arguments[0])) {
        hue += properties["colorFilterHue"].get<double>(); // goes round
    }
    if (!vividness) {
        vividness = before;
    } else if (isStep(arguments[1])) {
        *vividness += before; // limited there
    }
    client.call("SetTint", hue, *vividness);
}

void runStep(Arguments arguments) {
    expect(arguments.size() == 2);
    const std::string& key = arguments[0];
    const double by = amount(arguments[1], isShare(key) ? 1.0 : 0.0);
    BusClient().call("StepSetting", key, by);
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
