#include "ctl/screen_verbs.h"

#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"
#include "settings/display_looks.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <set>
#include <vector>

namespace nocturo {

namespace {

using Displays = std::set<std::int64_t>;

std::optional<std::uint32_t> wholeNumber(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

/// The affected displays; all that are there where the set is empty.
Displays affectedDisplays(const Json& properties) {
    Displays displays;
    for (const Json& chosen : properties["affectedScreenSet"]) {
        displays.insert(chosen.get<std::int64_t>());
    }
    if (displays.empty()) {
        for (const Json& display : properties["displays"]) {
            displays.insert(display["id"].get<std::uint32_t>());
        }
    }
    return displays;
}

/// A display that is there, or one that has a look.
std::uint32_t displayWithLookFromText(const Json& properties, const std::string& text) {
    const auto number = wholeNumber(text);
    const auto isOnline = [&](const Json& display) { return display["name"] == text; };
    const Json& online = properties["displays"];
    for (const Json& display : properties.value("absentDisplays", Json::array())) {
        const bool isNamed = display["name"] == text && std::ranges::none_of(online, isOnline);
        if (isNamed || (number && display["id"] == *number)) {
            return display["id"].get<std::uint32_t>();
        }
    }
    for (const Json& words : properties["settings"].value("DisplayLooks", Json::array())) {
        const auto own = displayLookFromWords(words.is_string() ? words.get<std::string>() : "");
        if (number && own && own->display == *number) {
            return *number; // whose look is gone
        }
    }
    return displayFromText(properties, text);
}

} // namespace

std::uint32_t displayFromText(const Json& properties, const std::string& text) {
    const auto number = wholeNumber(text);
    for (const char* member : {"number", "name", "id"}) {
        for (const Json& display : properties["displays"]) {
            const Json& value = display[member];
            if (value.is_string() ? value == text : number && value == *number) {
                return display["id"].get<std::uint32_t>();
            }
        }
    }
    const Json& chosen = properties["affectedScreenSet"];
    if (number && *number != 0 &&
        std::find(chosen.begin(), chosen.end(), *number) != chosen.end()) {
        return *number;
    }
    throw Failure{kUsage, translated("There is no display \"%@\"; nocturoctl screens lists their "
                                     "numbers, names and identifiers.",
                                     {text})};
}

void checkDisplays(const Json& properties, const PropertyValue& identifiers) {
    const auto* list = identifiers.as<PropertyArray>();
    const Displays known = affectedDisplays(properties);
    for (const PropertyValue& each : list != nullptr ? *list : PropertyArray()) {
        const auto identifier = each.as<std::int64_t>() != nullptr ? *each.as<std::int64_t>() : 0;
        const Json& online = properties["displays"];
        if (!known.contains(identifier) &&
            std::none_of(online.begin(), online.end(),
                         [&](const Json& display) { return display["id"] == identifier; })) {
            displayFromText({{"displays", Json::array()}, {"affectedScreenSet", Json::array()}},
                            std::to_string(identifier)); // says so
        }
    }
}

void runScreens(Arguments arguments) {
    BusClient client;
    if (arguments.empty()) {
        print(screensReport(client.properties()));
        return;
    }
    const std::string& how = arguments[0];
    if (how == "all") {
        expect(arguments.size() == 1);
        client.callAndSave("AffectAllScreens");
        return;
    }
    if (how == "look") {
        expect(arguments.size() > 2);
        const std::string look = joined(arguments.subspan(2));
        client.callAndSave("SetDisplayLook",
                           displayWithLookFromText(client.properties(), arguments[1]),
                           look == "-" ? std::string() : look);
        return;
    }
    expect(arguments.size() > 1 &&
           (how == "toggle" || how == "only" || how == "add" || how == "remove"));
    const Json properties = client.properties();
    std::vector<std::int64_t> named;
    for (const std::string& text : arguments.subspan(1)) {
        named.push_back(displayFromText(properties, text));
    }
    if (how == "toggle") {
        for (const std::int64_t display : named) {
            client.callAndSave("ToggleScreen", static_cast<std::uint32_t>(display));
        }
    } else if (how == "only") {
        const Displays sorted(named.begin(), named.end());
        client.callSetSetting("AffectedScreenSet", PropertyArray(sorted.begin(), sorted.end()));
        client.saveSettings();
    } else {
        client.callAndSave(how == "add" ? "AddScreens" : "RemoveScreens", named);
    }
}

} // namespace nocturo
