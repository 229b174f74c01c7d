#include "ctl/report.h"

#include "base/texts/translated.h"
#include "ctl/setting_text.h"
#include "ctl/text_columns.h"
#include "documents/looks.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/hot_key_words.h"
#include "settings/rule_words.h"
#include "settings/selectable_effects.h"
#include "settings/settings_table.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string_view>
#include <vector>

namespace nocturo {

namespace {

constexpr std::array kStatusOrder = std::to_array<const char*>(
    {"active",         "paused",   "ruler",    "rulesUntil",        "ruledLook",
     "rule",           "schedule", "rules",    "displayServices",   "displays",
     "absentDisplays", "effects",  "dimLevel", "colorFilterHue",    "colorFilterVividness",
     "temperature",    "look",     "looks",    "affectedScreenSet", "hotKey",
     "disturbances",   "disturber"});
constexpr std::array kDisplayOrder = std::to_array<const char*>(
    {"number", "id", "name", "monitor", "main", "rampSize", "affected", "applied", "heldByOther",
     "obstacle", "on", "ruler", "rulesUntil", "ruledLook", "rule", "look"});

// The named members in that order, then whatever else there is.
Json ordered(const Json& object, std::span<const char* const> order) {
    Json result = Json::object();
    for (const char* name : order) {
        if (object.contains(name)) {
            result[name] = object[name];
        }
    }
    result.update(object);
    return result;
}

/// What keeps a display from showing anything, as the bus has it.
std::string obstacleText(const std::string& obstacle) {
    static const std::map<std::string_view, ListedText> texts = {
        {"held-by-other", ListedText("no ramp, or another program has it")},
        {"takes-no-profile", ListedText("cannot be given a color profile")},
        {"high-dynamic-range", ListedText("in HDR mode")},
        {"refused", ListedText("refused by the desktop")}};
    const auto text = texts.find(obstacle);
    return text != texts.end() ? text->second.translated() : std::string();
}

using Row = std::vector<std::string>;

// Left-aligned columns, two spaces apart.
std::string table(const std::vector<Row>& rows) {
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], columnsOf(row[i]));
        }
    }
    std::string text;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += "  " + row[i] + std::string(widths[i] - columnsOf(row[i]), ' ');
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    return text;
}

std::string yesOrNo(const Json& value) {
    return value.get<bool>() ? translated("yes") : translated("no");
}

std::string plain(const Json& value) {
    if (value.is_string()) {
        return value.get<std::string>();
    }
    if (!value.is_array()) {
        return value.dump();
    }
    std::string list;
    for (const Json& element : value) {
        list += (list.empty() ? "" : ", ") + plain(element);
    }
    return list.empty() ? translated("(none)") : list;
}

std::string lookNamed(const Json& properties) {
    const std::string title = titleOfLookInForce(properties);
    return title.empty() ? translated("(none)") : title;
}

std::string hotKeyText(const Json& hotKey) {
    if (hotKey.empty()) {
        return translated("(none)");
    }
    const std::string text = wordsOfHotKey(hotKey);
    if (!hotKey["enabled"].get<bool>()) {
        return translated("%@ (not enabled)", {text});
    }
    return hotKey["registered"].get<bool>() ? text : translated("%@ (not in force)", {text});
}

// Nothing as long as nobody disturbs.
std::string disturbanceReport(const Json& properties) {
    const auto count = properties["disturbances"].get<unsigned>();
    if (count == 0) {
        return {};
    }
    std::string name = plain(properties["disturber"]);
    if (name.empty()) {
        name = translated("Another program");
    }
    return (count == 1
                ? translated("%@ changes the colors too: found once since Nocturo was started.",
                             {name})
                : translated("%@ changes the colors too: found %d times since Nocturo was started.",
                             {name, std::to_string(count)})) +
           '\n';
}

/// Who says what is shown; `told` is all properties or those of a display.
Ruling toldRuling(const Json& told, bool isOn) {
    Ruling ruling;
    ruling.by = rulerNamed(told.value("ruler", "")).value_or(Ruler::settings);
    ruling.isOn = isOn;
    ruling.look = told.value("ruledLook", "");
    ruling.rule = told.value("rule", "");
    if (const auto until = told.value("rulesUntil", std::int64_t{0}); until != 0) {
        ruling.until = Moment(std::chrono::seconds(until));
    }
    return ruling;
}

bool mayRulesSwitchOn(const Json& properties) {
    const Json rules = properties.value("rules", Json::array());
    return properties["settings"].value("UseRules", true) &&
           std::any_of(rules.begin(), rules.end(), [](const Json& told) {
               return switchesOn(told["rule"].get<std::string>()) && !told["holds"].get<bool>() &&
                      told["problem"].get<std::string>().empty();
           });
}

bool isApart(const Ruling& its, const Ruling& usual) {
    return its.by != usual.by || its.look != usual.look || its.rule != usual.rule ||
           its.until != usual.until;
}

} // namespace

std::string titleOfLookNamed(const Json& properties, const std::string& name) {
    for (const Json& look : looksArray(properties)) {
        if (look["name"] == name) {
            return plain(look["title"]);
        }
    }
    return name;
}

std::string hueText(const Json& properties) {
    const double hue = properties["colorFilterHue"].get<double>();
    return Json(std::round(hue * 100.0) / 100.0).dump() + "\u00B0";
}

EffectState toldState(const Json& properties) {
    const Ruling usual = toldRuling(properties, properties["active"].get<bool>());
    EffectState state;
    state.isOn = usual.isOn;
    state.isPausedForScreenSaver =
        properties.value("paused", false) && !rulerNamed(properties.value("ruler", ""));
    state.ruler = usual.by;
    state.until = usual.until;
    state.rule = usual.rule;
    state.now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    state.effects = properties["effects"].get<std::vector<std::string>>();
    state.dimLevel = properties["dimLevel"].get<double>();
    state.hue = properties["colorFilterHue"].get<double>();
    state.vividness = properties["colorFilterVividness"].get<double>();
    state.look = titleOfLookNamed(properties, properties.value("ruledLook", ""));
    state.mayRulesFollow = mayRulesSwitchOn(properties);
    state.isOnAllScreens = properties["affectedScreenSet"].empty();
    for (const Json& display : properties["displays"]) {
        if (display["affected"].get<bool>()) {
            if (!display.value("obstacle", "").empty()) {
                state.without.push_back(plain(display["name"]));
            }
            const bool isOn = display.value("on", usual.isOn);
            Ruling its = toldRuling(display, isOn);
            if (!display.contains("ruler") || !isApart(its, usual)) {
                state.isOn = state.isOn && isOn; // others may show an effect all the same
                its = usual;
            }
            addScreen(state, usual,
                      {plain(display["name"]), its, titleOfLookNamed(properties, its.look)});
        }
    }
    return state;
}

std::string titleOfLookInForce(const Json& properties) {
    if (const std::string ruled = properties.value("ruledLook", ""); !ruled.empty()) {
        return titleOfLookNamed(properties, ruled);
    }
    for (const Json& look : looksArray(properties)) {
        if (look["inForce"].get<bool>()) {
            return plain(look["title"]);
        }
    }
    return {};
}

std::string wordsOfHotKey(const Json& hotKey) {
    auto text = hotKey["text"].get<std::string>();
    const auto keyCode = hotKey.find("keyCode");
    const auto flags = hotKey.find("modifierFlags");
    if (keyCode == hotKey.end() || !keyCode->is_number_integer() || flags == hotKey.end() ||
        !flags->is_number_integer()) {
        return text;
    }
    return hotKeyWords(keyCode->get<std::uint16_t>(), flags->get<std::uint64_t>(),
                       withoutModifierGlyphs(text));
}

std::string statusReport(const Json& properties, bool all) {
    std::string text = stateSentence(toldState(properties)) + "\n\n";
    text +=
        table({{translated("look"), lookNamed(properties)},
               {translated("dim level"), signedPercentText(properties["dimLevel"].get<double>())},
               {translated("color filter hue"), hueText(properties)},
               {translated("color filter vividness"),
                percentText(properties["colorFilterVividness"].get<double>())},
               {translated("hot key"), hotKeyText(properties["hotKey"])},
               {translated("display services"), plain(properties["displayServices"])}});
    text += '\n' + translated("Displays") + '\n' + screensReport(properties) +
            disturbanceReport(properties);
    if (!all) {
        return text;
    }
    std::vector<Row> rows;
    for (const Setting& setting : settingsTable()) {
        const std::string key(setting.key);
        if (properties["settings"].contains(key)) {
            rows.push_back({key, plain(properties["settings"][key]), setting.meaning.translated()});
        }
    }
    return text + '\n' + translated("Settings") + '\n' + table(rows);
}

std::string effectsReport(const Json& properties) {
    std::vector<std::string> names;
    for (const SelectableEffect& effect : selectableEffects()) {
        names.emplace_back(effect.className);
    }
    const auto selected = properties["effects"].get<std::vector<std::string>>();
    std::vector<Row> rows;
    for (const std::string& name : names) {
        const bool isSelected = std::find(selected.begin(), selected.end(), name) != selected.end();
        rows.push_back({isSelected ? "[x]" : "[ ]", std::string(shortEffectName(name)), name});
    }
    return table(rows);
}

std::string screensReport(const Json& properties) {
    const Json& displays = properties["displays"];
    const Json absent = properties.value("absentDisplays", Json::array());
    const auto hasLook = [](const Json& each) { return !each.value("look", "").empty(); };
    const bool haveLooks = std::any_of(displays.begin(), displays.end(), hasLook) ||
                           std::any_of(absent.begin(), absent.end(), hasLook);
    std::vector<Row> rows = {{"", translated("no."), translated("name"), translated("identifier"),
                              translated("ramp"), translated("applied"), translated("monitor"), "",
                              haveLooks ? translated("look") : "", ""}};
    for (const Json& display : displays) {
        const bool hasRamp = display["rampSize"].get<unsigned>() != 0;
        rows.push_back({display["affected"].get<bool>() ? "[x]" : "[ ]", plain(display["number"]),
                        plain(display["name"]), plain(display["id"]),
                        hasRamp ? plain(display["rampSize"]) : translated("none"),
                        yesOrNo(display["applied"]), display.value("monitor", ""),
                        display["main"].get<bool>() ? translated("main") : "",
                        titleOfLookNamed(properties, display.value("look", "")),
                        obstacleText(display.value("obstacle", ""))});
    }
    for (const Json& display : absent) {
        rows.push_back({display.value("affected", true) ? "[x]" : "[ ]", "-", "-",
                        plain(display["id"]), "-", yesOrNo(false), plain(display["name"]),
                        translated("not connected"),
                        titleOfLookNamed(properties, display.value("look", ""))});
    }
    return rows.size() > 1 ? table(rows) : "  " + translated("(none)") + '\n';
}

std::string looksReport(const Json& properties) {
    std::vector<Row> rows;
    for (const Json& look : looksArray(properties)) {
        const std::string name = plain(look["name"]);
        rows.push_back({look["inForce"].get<bool>() ? "[x]" : "[ ]", plain(look["title"]),
                        look["title"] != look["name"] ? name : "",
                        look["own"].get<bool>() ? translated("own") : ""});
    }
    return rows.empty() ? "  " + translated("(none)") + '\n' : table(rows);
}

std::string lookInForce(const Json& properties) {
    return lookNamed(properties) + '\n';
}

Json looksArray(const Json& properties) {
    Json looks = properties.value("looks", Json::array());
    for (Json& look : looks) {
        look = {{"name", look["name"]},
                {"title", lookTitle(plain(look["name"]), look["own"].get<bool>())},
                {"own", look["own"]},
                {"inForce", look["name"] == properties.value("look", "")}};
    }
    return looks;
}

Json statusObject(const Json& properties) {
    Json status = {{"running", true}};
    status.update(changeObject(properties));
    Json settings = Json::object();
    for (const Setting& setting : settingsTable()) {
        const std::string key(setting.key);
        if (status["settings"].contains(key)) {
            settings[key] = status["settings"][key];
        }
    }
    status["settings"] = settings;
    return status;
}

Json changeObject(const Json& properties) {
    Json change = ordered(properties, kStatusOrder);
    if (change.contains("displays")) {
        for (Json& display : change["displays"]) {
            display = ordered(display, kDisplayOrder);
        }
    }
    if (change.contains("hotKey") && change["hotKey"].empty()) {
        change["hotKey"] = nullptr;
    }
    return change;
}

Json notRunningObject() {
    return {{"running", false}};
}

} // namespace nocturo
