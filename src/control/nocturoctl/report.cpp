#include "control/nocturoctl/report.h"

#include "app/settings_table.h"
#include "control/nocturoctl/setting_text.h"
#include "effects/effect_registry.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace nocturo {

namespace {

constexpr std::array<const char*, 11> kStatusOrder = {
    "active",         "displayServices",      "displays",          "effects", "dimLevel",
    "colorFilterHue", "colorFilterVividness", "affectedScreenSet", "hotKey",  "disturbances",
    "disturber"};
constexpr std::array<const char*, 7> kDisplayOrder = {"number",   "id",       "name",   "main",
                                                      "rampSize", "affected", "applied"};

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

using Row = std::vector<std::string>;

// Left-aligned columns, two spaces apart.
std::string table(const std::vector<Row>& rows) {
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    std::string text;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += "  " + row[i] + std::string(widths[i] - row[i].size(), ' ');
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + '\n';
    }
    return text;
}

std::string yesOrNo(const Json& value) {
    return value.get<bool>() ? "yes" : "no";
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
    return list.empty() ? "(none)" : list;
}

std::string selectedEffects(const Json& properties) {
    std::string list;
    for (const Json& name : properties["effects"]) {
        list += (list.empty() ? "" : ", ") +
                std::string(shortEffectName(name.get_ref<const std::string&>()));
    }
    return list.empty() ? "(none)" : list;
}

std::string hotKeyText(const Json& hotKey) {
    if (hotKey.empty()) {
        return "(none)";
    }
    const char* state = !hotKey["enabled"].get<bool>()     ? " (not enabled)"
                        : hotKey["registered"].get<bool>() ? ""
                                                           : " (not in force)";
    return hotKey["text"].get<std::string>() + state;
}

// The row of a parameter that matters only while its effect is selected.
Row parameterRow(const Json& properties, const char* title, const char* name) {
    return {title, plain(properties[name])};
}

// Nothing as long as nobody disturbs.
std::string disturbanceReport(const Json& properties) {
    const auto count = properties["disturbances"].get<unsigned>();
    if (count == 0) {
        return {};
    }
    const std::string name = plain(properties["disturber"]);
    return (name.empty() ? "Another program" : name) + " changes the colors too: found " +
           std::to_string(count) + (count == 1 ? " time" : " times") +
           " since Nocturo was started.\n";
}

} // namespace

std::string statusReport(const Json& properties) {
    std::string text = "Nocturo\n";
    text += table({{"effect", properties["active"].get<bool>() ? "on" : "off"},
                   {"selected", selectedEffects(properties)},
                   parameterRow(properties, "dim level", "dimLevel"),
                   parameterRow(properties, "color filter hue", "colorFilterHue"),
                   parameterRow(properties, "color filter vividness", "colorFilterVividness"),
                   {"hot key", hotKeyText(properties["hotKey"])},
                   {"display services", plain(properties["displayServices"])}});
    text +=
        "\nDisplays\n" + screensReport(properties) + disturbanceReport(properties) + "\nSettings\n";
    std::vector<Row> rows;
    for (const Setting& setting : settingsTable()) {
        const std::string key(setting.key);
        if (properties["settings"].contains(key)) {
            rows.push_back({key, plain(properties["settings"][key]), std::string(setting.meaning)});
        }
    }
    return text + table(rows);
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
    std::vector<Row> rows = {{"", "no.", "name", "identifier", "ramp", "applied", ""}};
    for (const Json& display : properties["displays"]) {
        const bool hasRamp = display["rampSize"].get<unsigned>() != 0;
        rows.push_back({display["affected"].get<bool>() ? "[x]" : "[ ]", plain(display["number"]),
                        plain(display["name"]), plain(display["id"]),
                        hasRamp ? plain(display["rampSize"]) : "none", yesOrNo(display["applied"]),
                        display["main"].get<bool>() ? "main" : ""});
    }
    return rows.size() > 1 ? table(rows) : "  (none)\n";
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
