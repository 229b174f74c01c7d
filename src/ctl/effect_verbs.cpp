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
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <utility>
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

/// The methods that take names.
constexpr auto kWays =
    std::to_array<std::pair<std::string_view, const char*>>({{"add", "AddEffects"},
                                                             {"remove", "RemoveEffects"},
                                                             {"toggle", "ToggleEffects"},
                                                             {"only", "SetEffects"},
                                                             {"none", "SetEffects"}});

std::string dimText(const Json& properties) {
    const std::string text = signedPercentText(properties["dimLevel"].get<double>());
    return isChosen(properties, NDDimEffect::kName) ? text
                                                    : translated("%@  (dim is not chosen)", {text});
}

std::string tintText(const Json& properties) {
    const std::string text =
        hueText(properties) + "  " + percentText(properties["colorFilterVividness"].get<double>());
    return isChosen(properties, NDColorFilterEffect::kName)
               ? text
               : translated("%@  (the color filter is not chosen)", {text});
}

/// Prints what there is after the call, if there is one: after a step nobody knows.
template <class... Call>
void tellAfter(std::string (*text)(const Json& properties), const Call&... call) {
    BusClient client;
    if constexpr (sizeof...(call) > 0) {
        client.call(call...);
    }
    print(text(client.properties()) + '\n');
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
    const auto* way = std::ranges::find(kWays, how, [](const auto& each) { return each.first; });
    expect(way != kWays.end());
    BusClient().call(way->second, names);
}

void runDim(Arguments arguments) {
    if (arguments.empty()) {
        tellAfter(dimText);
        return;
    }
    expect(arguments.size() == 1);
    std::string_view text = arguments[0];
    const bool isLevel = text.starts_with('=');
    text.remove_prefix(isLevel ? 1 : 0);
    const double number = share(text);
    if (!isLevel && isStep(text)) {
        tellAfter(dimText, "StepDim", number);
        return;
    }
    checkRange("dim", number, isLevel ? -1.0 : 0.0, 1.0, true);
    BusClient().call("SetDim", isLevel ? number : -number);
}

void runTint(Arguments arguments) {
    if (arguments.empty()) {
        tellAfter(tintText);
        return;
    }
    expect(arguments.size() <= 2);
    const double hue = amount(arguments[0], 0.0);
    const bool byHue = isStep(arguments[0]);
    // A step of 0 leaves what is not named.
    const double vividness = arguments.size() == 2 ? share(arguments[1]) : 0.0;
    const bool byVividness = arguments.size() == 1 || isStep(arguments[1]);
    if (!byHue) {
        checkRange("tint", hue, 0.0, 360.0, false);
    }
    if (!byVividness) {
        checkRange("tint", vividness, 0.0, 1.0, true);
    }
    if (byHue || (byVividness && arguments.size() == 2)) {
        tellAfter(tintText, "ChangeTint", hue, byHue, vividness, byVividness);
    } else {
        BusClient().call("ChangeTint", hue, byHue, vividness, byVividness);
    }
}

void runStep(Arguments arguments) {
    expect(arguments.size() == 2 && isStep(arguments[1]));
    const std::string& key = arguments[0];
    const double by = amount(arguments[1], isShare(key) ? 1.0 : 0.0);
    BusClient client;
    client.call("StepSetting", key, by);
    const Json value = client.properties()["settings"][key];
    print((isShare(key) ? signedPercentText(value.get<double>()) : value.dump()) + '\n');
}

void runTemperature(Arguments arguments) {
    if (arguments.empty()) {
        tellAfter(temperatureText);
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
        tellAfter(temperatureText, "StepTemperature", kelvin);
    } else {
        BusClient().call("SetTemperature", static_cast<std::uint32_t>(kelvin));
    }
}

} // namespace nocturo
