#include "hotkeys/portal/key_trigger.h"

#include "hotkeys/hot_key_grant.h"
#include "hotkeys/keyboard/keyboard_layout.h"
#include "hotkeys/keyboard/modifier_flags.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace nocturo {

namespace {

/// The modifiers' names in one way of writing, in the order control, option, shift, command.
using ModifierNames = std::array<std::string_view, 4>;

constexpr std::array kModifiers = {controlKey, optionKey, shiftKey, cmdKey};
constexpr ModifierNames kPortalNames = {"CTRL", "ALT", "SHIFT", "LOGO"};

std::string joined(std::uint32_t modifiers, const ModifierNames& names, std::string_view between) {
    std::string text;
    for (std::size_t i = 0; i < kModifiers.size(); ++i) {
        if ((modifiers & kModifiers[i]) != 0) {
            text += names[i];
            text += between;
        }
    }
    return text;
}

std::string symbolOf(std::uint16_t keyCode, KeyboardLayout* layout) {
    return layout != nullptr ? layout->keySymName(keyCode) : std::string();
}

struct Key {
    std::uint32_t modifiers;
    std::string symbol;
};

std::string swayLine(const Key& key) {
    return "bindsym " + joined(key.modifiers, {"Ctrl", "Mod1", "Shift", "Mod4"}, "+") + key.symbol +
           " exec " + kToggleCommand;
}

std::string hyprlandLine(const Key& key) {
    std::string modifiers = joined(key.modifiers, {"CTRL", "ALT", "SHIFT", "SUPER"}, " ");
    if (!modifiers.empty()) {
        modifiers.pop_back();
    }
    return "bind = " + modifiers + ", " + key.symbol + ", exec, " + kToggleCommand;
}

std::string niriLine(const Key& key) {
    return joined(key.modifiers, {"Ctrl", "Alt", "Shift", "Super"}, "+") + key.symbol +
           " { spawn \"nocturoctl\" \"toggle\"; }";
}

std::string labwcLine(const Key& key) {
    return "<keybind key=\"" + joined(key.modifiers, {"C", "A", "S", "W"}, "-") + key.symbol +
           "\"><action name=\"Execute\" command=\"" + kToggleCommand + "\"/></keybind>";
}

struct Writing {
    std::string_view desktop; // in lower case
    std::string (*line)(const Key& key);
};
constexpr std::array kWritings = {Writing{"sway", swayLine}, Writing{"hyprland", hyprlandLine},
                                  Writing{"niri", niriLine}, Writing{"labwc", labwcLine}};

/// Whether it is one of the names, which colons keep apart.
bool names(std::string_view desktop, std::string_view name) {
    while (true) {
        const auto colon = desktop.find(':');
        const bool same =
            std::ranges::equal(desktop.substr(0, colon), name, [](char given, char lower) {
                return std::tolower(static_cast<unsigned char>(given)) == lower;
            });
        if (same || colon == std::string_view::npos) {
            return same;
        }
        desktop.remove_prefix(colon + 1);
    }
}

} // namespace

std::string portalTrigger(std::uint16_t keyCode, std::uint32_t modifiers, KeyboardLayout* layout) {
    const std::string symbol = symbolOf(keyCode, layout);
    return symbol.empty() ? symbol : joined(modifiers, kPortalNames, "+") + symbol;
}

std::string desktopConfiguration(std::string_view desktop, std::uint16_t keyCode,
                                 std::uint32_t modifiers, KeyboardLayout* layout) {
    const Key key{modifiers, symbolOf(keyCode, layout)};
    const auto* writing = std::ranges::find_if(
        kWritings, [&](const Writing& each) { return names(desktop, each.desktop); });
    return writing != kWritings.end() && !key.symbol.empty() ? writing->line(key) : kToggleCommand;
}

} // namespace nocturo
