#include "ctl/commands.h"

#include "ctl/bus_client.h"
#include "ctl/effect_verbs.h"
#include "ctl/failure.h"
#include "ctl/look_verb.h"
#include "ctl/output.h"
#include "ctl/report.h"
#include "ctl/restore.h"
#include "ctl/setting_text.h"
#include "hotkeys/hot_key_grant.h"
#include "hotkeys/hot_key_text.h"
#include "settings/settings_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <vector>

namespace nocturo {

namespace {

template <bool active>
void runSwitch(Arguments arguments) {
    expect(arguments.empty());
    BusClient().call("SetActive", active);
}

void runToggle(Arguments arguments) {
    expect(arguments.empty());
    BusClient().call("Toggle");
}

void runQuit(Arguments arguments) {
    expect(arguments.empty());
    BusClient().call("Quit");
}

void runRestore(Arguments arguments) {
    expect(arguments.empty());
    restoreDisplays();
}

void printLine(const Json& value) {
    print(value.dump() + '\n');
}

void runStatus(Arguments arguments) {
    const bool asJson = arguments.size() == 1 && arguments[0] == "--json";
    expect(arguments.empty() || asJson);
    try {
        const Json properties = BusClient().properties();
        if (asJson) {
            printLine(statusObject(properties));
        } else {
            print(statusReport(properties));
        }
    } catch (const Failure& failure) {
        if (asJson && failure.exitStatus == kNotRunning) {
            printLine(notRunningObject());
        }
        throw;
    }
}

const Setting& settingFromName(const std::string& key) {
    const Setting* setting = settingNamed(key);
    if (setting == nullptr) {
        throw Failure{
            kUsage,
            translated("There is no setting \"%@\"; nocturoctl status lists them all.", {key})};
    }
    return *setting;
}

void runGet(Arguments arguments) {
    expect(arguments.size() == 1);
    settingFromName(arguments[0]);
    printLine(BusClient().properties()["settings"][arguments[0]]);
}

void runSet(Arguments arguments) {
    expect(arguments.size() == 2);
    const PropertyValue value = settingFromText(settingFromName(arguments[0]), arguments[1]);
    BusClient().callSetSetting(arguments[0], value);
}

void runReset(Arguments arguments) {
    expect(arguments.size() == 1);
    settingFromName(arguments[0]);
    BusClient().call("ResetSetting", arguments[0]);
}

HotKeyGrant grantIn(const Json& hotKey) {
    return {grantStateNamed(hotKey.value("standing", "")), hotKey.value("trigger", ""),
            hotKey.value("configuration", "")};
}

// Tells what stands in the way of a chosen hot key.
void printHotKey(const Json& hotKey) {
    std::string line = translated("No hot key is chosen.");
    if (!hotKey.empty()) {
        line = hotKey["text"].get<std::string>();
        if (!hotKey["enabled"].get<bool>()) {
            line = translated("%@  (not enabled; nocturoctl hotkey enable)", {line});
        } else if (const std::string told = sentenceOn(grantIn(hotKey)); !told.empty()) {
            line += '\n' + told;
            if (hotKey.contains("configuration")) {
                line += '\n' + hotKey["configuration"].get<std::string>();
            }
        } else if (!hotKey["registered"].get<bool>()) {
            line = translated("%@  (not in force: another program holds it, or the desktop "
                              "offers no hot keys)",
                              {line});
        }
    }
    print(line + '\n');
}

void runHotKey(Arguments arguments) {
    BusClient client;
    const std::string how = arguments.empty() ? "" : arguments[0];
    if (how == "set" && arguments.size() == 2) {
        if (arguments[1].empty()) {
            throw Failure{kUsage, hotKeyTextSyntax()};
        }
        client.call("SetHotKey", arguments[1]);
    } else if (how == "none" && arguments.size() == 1) {
        client.call("SetHotKey", std::string());
    } else if ((how == "enable" || how == "disable") && arguments.size() == 1) {
        client.callSetSetting("UseHotKey", how == "enable");
    } else {
        expect(arguments.empty());
    }
    if (how.empty() || how == "set" || how == "enable") {
        printHotKey(client.properties()["hotKey"]);
    }
}

std::optional<std::uint32_t> wholeNumber(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

// A display by its number in the list, its name or its identifier. One that is not online can still
// be taken out of the set, by its identifier.
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

void runScreens(Arguments arguments) {
    BusClient client;
    if (arguments.empty()) {
        print(screensReport(client.properties()));
    } else if (arguments[0] == "all" && arguments.size() == 1) {
        client.call("AffectAllScreens");
    } else {
        expect(arguments[0] == "toggle" && arguments.size() == 2);
        client.call("ToggleScreen", displayFromText(client.properties(), arguments[1]));
    }
}

std::string absolutePath(const std::string& path) {
    std::error_code error;
    const auto absolute = std::filesystem::absolute(path, error);
    if (path.empty() || error) {
        throw Failure{kUsage, translated("Name a file.")};
    }
    return absolute;
}

void runOpen(Arguments arguments) {
    expect(arguments.size() == 1);
    BusClient().call("OpenFile", absolutePath(arguments[0]));
}

void runSave(Arguments arguments) {
    expect(arguments.size() == 1);
    BusClient().call("SaveFile", absolutePath(arguments[0]));
}

void runPreferences(Arguments arguments) {
    expect(arguments.empty());
    BusClient().call("ShowPreferences");
}

void runAbout(Arguments arguments) {
    expect(arguments.empty());
    BusClient().call("ShowAboutBox");
}

std::uint32_t mainDisplay(const Json& properties) {
    for (const Json& display : properties["displays"]) {
        if (display["main"].get<bool>()) {
            return display["id"].get<std::uint32_t>();
        }
    }
    throw Failure{kFailed, translated("No display is online.")};
}

void runPreview(Arguments arguments) {
    std::string file;
    std::string display;
    expect(arguments.size() == 2 || arguments.size() == 4);
    for (; !arguments.empty(); arguments = arguments.subspan(2)) {
        expect(arguments[0] == "--png" || arguments[0] == "--display");
        (arguments[0] == "--png" ? file : display) = arguments[1];
    }
    expect(!file.empty());
    BusClient client;
    const Json properties = client.properties();
    const std::string picture = client.renderPreview(
        display.empty() ? mainDisplay(properties) : displayFromText(properties, display));
    if (!(std::ofstream(file, std::ios::binary) << picture << std::flush)) {
        throw Failure{kFailed, translated("The file \"%@\" cannot be written.", {file})};
    }
}

// Settings arrive whole with every change; only those that differ are told.
void printChanges(Json& known, const Json& changed) {
    Json line = Json::object();
    for (const auto& [name, value] : changed.items()) {
        if (name != "settings") {
            line[name] = value;
            continue;
        }
        for (const auto& [key, setting] : value.items()) {
            if (known["settings"].value(key, Json()) != setting) {
                line["settings"][key] = setting;
            }
        }
        known["settings"] = value;
    }
    printLine(changeObject(line));
}

void runWatch(Arguments arguments) {
    expect(arguments.empty());
    Json known;
    BusClient().watch([&](const Json& properties) { known = properties; },
                      [&](const Json& properties) { printChanges(known, properties); });
    std::cerr << "nocturoctl: " << translated("Nocturo has ended.") << '\n';
}

constexpr std::array kCommands = std::to_array<Command>({
    {"on", "", ListedText("Switch the effect on"), ListedText(), runSwitch<true>, true},
    {"off", "", ListedText("Switch the effect off"),
     ListedText("Every display gets its own colors back."), runSwitch<false>},
    {"toggle", "", ListedText("Switch the effect on or off"), ListedText("Bind this to a key."),
     runToggle, true},
    {"status", "[--json]", ListedText("Show the state of everything"),
     ListedText("With --json, one object for programs."), runStatus},
    {"effects", "[add|remove|only NAME...]", ListedText("List or choose the effects"),
     ListedText("NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class\n"
                "name. add and remove change the selection, only replaces it."),
     runEffects, true},
    {"temperature", "[KELVIN | +N | -N]", ListedText("Show or choose a color temperature"),
     ListedText(
         "From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the\n"
         "color filter, which is chosen. +N and -N go so far from the one in force."),
     runTemperature, true},
    {"look", "[NAME | next | previous | back | list...]",
     ListedText("Show, choose or keep a combination of effects"),
     ListedText("list [--json]      all of them, those that come with Nocturo and your own\n"
                "next, previous     the one after or before the one in force\n"
                "back               what the last look replaced\n"
                "save NAME          keep the effects as a look of your own\n"
                "rename NAME NEW, delete NAME, move NAME PLACE"),
     runLook, true},
    {"get", "KEY", ListedText("Show a setting"), ListedText("nocturoctl status lists the keys."),
     runGet},
    {"set", "KEY VALUE", ListedText("Change a setting"),
     ListedText(
         "VALUE is true or false, a number, or a list with commas, as the setting takes it.\n"
         "For example: nocturoctl set NDDimEffectLevel -0.3"),
     runSet, true},
    {"reset", "KEY", ListedText("Give a setting its default value again"), ListedText(), runReset,
     true},
    {"screens", "[all | toggle NUMBER|NAME|ID]", ListedText("List or choose the affected displays"),
     ListedText(
         "toggle puts a display into the set of affected displays or takes it out. An empty\n"
         "set means all displays, which is also what all chooses."),
     runScreens, true},
    {"hotkey", "[set KEYS | none | enable | disable]",
     ListedText("Show or choose the global hot key"),
     ListedText("KEYS is one key and any modifiers, such as 'ctrl+super+F5' or 'alt+shift+k'. The\n"
                "hot key toggles the effect while it is enabled."),
     runHotKey},
    {"open", "FILE", ListedText("Take the effects from a document"), ListedText(), runOpen, true},
    {"save", "FILE", ListedText("Save the effects as a document"), ListedText(), runSave},
    {"preview", "--png FILE [--display N]", ListedText("Draw what the effects do"),
     ListedText("The curves of a display, of the main one unless told otherwise, and a scene seen\n"
                "through them, as a PNG picture. N is its number, name or identifier."),
     runPreview},
    {"preferences", "", ListedText("Show the preference window"), ListedText(), runPreferences},
    {"about", "", ListedText("Show the about box"), ListedText(), runAbout},
    {"watch", "", ListedText("Print every change as it happens"),
     ListedText("One JSON object a line, with what changed. Ends when Nocturo does."), runWatch},
    {"restore", "", ListedText("Give every display its own colors back"),
     ListedText(
         "Whether Nocturo runs, answers or was killed, and without a session bus as well. Where\n"
         "nothing is known of a display's own colors it gets plain ones."),
     runRestore},
    {"quit", "", ListedText("Give the displays back and end Nocturo"), ListedText(), runQuit},
});

} // namespace

void keepColors() {
    BusClient().call("KeepColors");
}

std::span<const Command> commands() {
    return kCommands;
}

} // namespace nocturo
