#include "ctl/commands.h"

#include "base/activation_token.h"
#include "ctl/bus_client.h"
#include "ctl/effect_verbs.h"
#include "ctl/fade_option.h"
#include "ctl/failure.h"
#include "ctl/followers.h"
#include "ctl/look_verb.h"
#include "ctl/output.h"
#include "ctl/pause_verb.h"
#include "ctl/report.h"
#include "ctl/restore.h"
#include "ctl/rules_verb.h"
#include "ctl/schedule_verb.h"
#include "ctl/screen_verbs.h"
#include "ctl/setting_text.h"
#include "documents/effect_document_file.h"
#include "hotkeys/hot_key_grant.h"
#include "hotkeys/hot_key_text.h"
#include "settings/settings_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <vector>

namespace nocturo {

namespace {

template <typename... Values>
void callFading(Arguments arguments, const char* method, Values... values) {
    const FadeOption fade(arguments);
    expect(fade.rest().empty());
    BusClient client;
    fade.tell(client);
    client.call(method, values...);
}

template <bool active>
void runSwitch(Arguments arguments) {
    callFading(arguments, "SetActive", active);
}

void runToggle(Arguments arguments) {
    callFading(arguments, "Toggle");
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
    if (!arguments.empty() && arguments[0].starts_with("--bar")) {
        runBar(arguments);
        return;
    }
    const bool asJson = arguments.size() == 1 && arguments[0] == "--json";
    const bool all = arguments.size() == 1 && arguments[0] == "--all";
    expect(arguments.empty() || asJson || all);
    try {
        const Json properties = BusClient().properties();
        if (asJson) {
            printLine(statusObject(properties));
        } else {
            print(statusReport(properties, all));
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
            translated("There is no setting \"%@\"; nocturoctl status --all lists them.", {key})};
    }
    return *setting;
}

void runGet(Arguments arguments) {
    expect(arguments.size() == 1);
    settingFromName(arguments[0]);
    printLine(BusClient().properties()["settings"][arguments[0]]);
}

void runSet(Arguments arguments) {
    std::vector<std::string> own(arguments.begin(), arguments.end());
    const bool force = std::erase(own, "--force") > 0;
    expect(own.size() == 2);
    const Setting& setting = settingFromName(own[0]);
    const PropertyValue value =
        settingFromText(setting, own[1], force ? Range::any : Range::ofUsers);
    BusClient client;
    if (setting.type == SettingType::displayNumbers && !force) {
        checkDisplays(client.properties(), value);
    }
    client.callSetSetting(own[0], value);
    client.saveSettings();
}

void runReset(Arguments arguments) {
    expect(arguments.size() == 1);
    settingFromName(arguments[0]);
    BusClient().callAndSave("ResetSetting", arguments[0]);
}

HotKeyGrant grantIn(const Json& hotKey) {
    return {grantStateNamed(hotKey.value("standing", "")), hotKey.value("trigger", ""),
            hotKey.value("configuration", "")};
}

// Tells what stands in the way of a chosen hot key.
void printHotKey(const Json& hotKey) {
    std::string line = translated("No hot key is chosen.");
    if (!hotKey.empty()) {
        line = wordsOfHotKey(hotKey);
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
        client.callAndSave("SetHotKey", arguments[1]);
    } else if (how == "none" && arguments.size() == 1) {
        client.callAndSave("SetHotKey", std::string());
    } else if ((how == "enable" || how == "disable") && arguments.size() == 1) {
        client.callSetSetting("UseHotKey", how == "enable");
        client.saveSettings();
    } else {
        expect(arguments.empty());
    }
    if (how.empty() || how == "set" || how == "enable") {
        printHotKey(client.properties()["hotKey"]);
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
    const std::string path = absolutePath(arguments[0]);
    std::error_code error;
    if (std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found) {
        throw Failure{kFailed, translated("There is no such file: %@", {path})};
    }
    if (!readEffectDocument(path)) {
        throw Failure{kFailed, translated("\"%@\" is not an effect document.", {path})};
    }
    BusClient().call("OpenFile", path);
}

void runSave(Arguments arguments) {
    expect(arguments.size() == 1);
    BusClient().call("SaveFile", absolutePath(arguments[0]));
}

template <const char* method>
void runWindow(Arguments arguments) {
    expect(arguments.empty());
    BusClient client;
    if (const std::string token = givenActivationToken(); !token.empty()) {
        client.call("ProvideActivationToken", token);
    }
    client.call(method);
}

constexpr char kShowPreferences[] = "ShowPreferences";
constexpr char kShowAboutBox[] = "ShowAboutBox";

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

constexpr std::array kCommands = std::to_array<Command>({
    {"on", "[--fade SECONDS]", ListedText("Switch the effect on"),
     ListedText("--fade has it come little by little, in up to 5 seconds."), runSwitch<true>, true},
    {"off", "[--fade SECONDS]", ListedText("Switch the effect off"),
     ListedText("Every display gets its own colors back."), runSwitch<false>},
    {"toggle", "[--fade SECONDS]", ListedText("Switch the effect on or off"),
     ListedText(
         "Bind this to a key. --fade has it come and go little by little, in up to 5 seconds."),
     runToggle, true},
    {"pause", "[30m | until TIME | cancel | while COMMAND...]",
     ListedText("Switch the effect off for a time"),
     ListedText("For so long, such as 30m, 2h or 1h30m; until 18:00, sunrise, tomorrow,\n"
                "which is six in the morning, or next, the schedule's next point; while a command\n"
                "runs; or until you switch the effect or say cancel."),
     runPause},
    {"schedule", "[list | add POINT | remove N | on | off | next]",
     ListedText("Show or change what happens by the clock and the sun"),
     ListedText(
         "A POINT is a time and a look or off: 07:00 off, sunset-00:30 Warm evening. Instead of a\n"
         "time of day it may have dawn, sunrise, sunset or dusk. list and next take --json."),
     runSchedule},
    {"rules", "[list | add RULE | move N M | remove N | on | off]",
     ListedText("Show or change what happens while programs are in front"),
     ListedText(
         "A RULE is fullscreen, program NAME or game, and a look or off: fullscreen off,\n"
         "program mpv Warm evening. The first one that holds for a display counts. list takes\n"
         "--json."),
     runRules},
    {"status", "[--all | --json | --bar[=BAR] [--follow]]",
     ListedText("Show the state of everything"),
     ListedText(
         "With --all, every setting as well; with --json, one object for programs; with --bar,\n"
         "a line for a bar: waybar, polybar or i3status-rust. --follow prints another line at\n"
         "each change, whether Nocturo runs or comes later."),
     runStatus},
    {"effects", "[add|remove|toggle|only NAME... | none]", ListedText("List or choose the effects"),
     ListedText("NAME is invert, overexposure, dim, color-filter or hdtv-luminance, or a class\n"
                "name. add, remove and toggle change the selection, only replaces it."),
     runEffects, true},
    {"dim", "[N% | +N% | -N% | =LEVEL%]", ListedText("Show the dim level, dim or lighten"),
     ListedText(
         "N% makes the picture darker by so much than it is by itself. +N% and -N% are steps: "
         "they\n"
         "make it lighter and darker than it is now, and print what it is then. =LEVEL% is what\n"
         "the window shows, from =-100% (black) over =0% to =100% (white)."),
     runDim, true},
    {"tint", "[HUE [VIVIDNESS%]]",
     ListedText("Show or choose hue and vividness of the color filter"),
     ListedText(
         "HUE is in degrees: 0 red, 25 orange, 120 green, 240 blue. +N and -N go so far from\n"
         "what is there."),
     runTint, true},
    {"temperature", "[KELVIN | +N | -N]", ListedText("Show or choose a color temperature"),
     ListedText(
         "From 1000 (candle) over 6500 (neutral) to 25000 (blue sky), as hue and vividness of the\n"
         "color filter, which is chosen. +N and -N go so far from the one in force."),
     runTemperature, true},
    {"look", "[NAME | next | previous | back | list...] [--fade SECONDS]",
     ListedText("Show, choose or keep a combination of effects"),
     ListedText("list [--json]      all of them, those that come with Nocturo and your own\n"
                "next, previous     the one after or before the one in force\n"
                "back               what the last look replaced\n"
                "save NAME          keep the effects as a look of your own\n"
                "rename NAME NEW, delete NAME, move NAME PLACE"),
     runLook, true},
    {"get", "KEY", ListedText("Show a setting"),
     ListedText("nocturoctl status --all lists the keys."), runGet},
    {"set", "KEY VALUE [--force]", ListedText("Change a setting"),
     ListedText(
         "VALUE is true or false, a number, or a list with commas, as the setting takes it.\n"
         "For example: nocturoctl set NDDimEffectLevel -30%. Numbers beyond the range and "
         "displays\n"
         "that are not there are refused without --force."),
     runSet, true},
    {"step", "KEY +N|-N", ListedText("Change a number by so much"),
     ListedText("As far as its range goes. For example: nocturoctl step NDDimEffectLevel -5%"),
     runStep, true},
    {"reset", "KEY", ListedText("Give a setting its default value again"), ListedText(), runReset,
     true},
    {"screens", "[all | only|add|remove|toggle DISPLAY... | look DISPLAY NAME|-]",
     ListedText("List or choose the affected displays"),
     ListedText(
         "DISPLAY is its number in the list, its name or its identifier. only chooses these\n"
         "alone; toggle puts each into the set of affected displays or takes it out. An\n"
         "empty set means all displays, which is also what all chooses. look gives a display a\n"
         "look of its own; - takes it away."),
     runScreens, true},
    {"hotkey", "[set KEYS | none | enable | disable]",
     ListedText("Show or choose the global hot key"),
     ListedText(
         "KEYS is one key and any of ctrl, alt (or option), shift and super (or command),\n"
         "such as 'ctrl+super+F5' or 'alt+shift+k'. The hot key toggles the effect while it\n"
         "is enabled. Keys are what they type, and f1 to f20, left, right, up, down, home,\n"
         "end, pageup, pagedown, insert, delete, backspace, tab, space, return, escape,\n"
         "menu, volumeup, volumedown, mute, eisu, kana, keypad0 to keypad9, keypadplus,\n"
         "keypadminus, keypadmultiply, keypaddivide, keypaddecimal, keypadcomma,\n"
         "keypadequals, keypadenter and keypadclear."),
     runHotKey},
    {"open", "FILE", ListedText("Take the effects from a document"), ListedText(), runOpen, true},
    {"save", "FILE", ListedText("Save the effects as a document"), ListedText(), runSave},
    {"preview", "--png FILE [--display N]", ListedText("Draw what the effects do"),
     ListedText("The curves of a display, of the main one unless told otherwise, and a scene seen\n"
                "through them, as a PNG picture. N is its number, name or identifier."),
     runPreview},
    {"preferences", "", ListedText("Show the preference window"), ListedText(),
     runWindow<kShowPreferences>},
    {"about", "", ListedText("Show the about box"), ListedText(), runWindow<kShowAboutBox>},
    {"watch", "", ListedText("Print every change as it happens"),
     ListedText(
         "One JSON object a line: first the whole state, then what changed. Ends when Nocturo\n"
         "does."),
     runWatch},
    {"restore", "", ListedText("Give every display its own colors back"),
     ListedText(
         "Whether Nocturo runs, answers or was killed, and without a session bus as well. Where\n"
         "nothing is known of a display's own colors it gets plain ones."),
     runRestore},
    {"quit", "", ListedText("Give the displays back and end Nocturo"), ListedText(), runQuit},
});

} // namespace

std::string joined(Arguments words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::uint32_t indexFrom(const std::string& text) {
    std::uint32_t number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    expect(error == std::errc() && rest == end && number > 0);
    return number - 1;
}

void keepColors() {
    BusClient().call("KeepColors");
}

std::span<const Command> commands() {
    return kCommands;
}

} // namespace nocturo
