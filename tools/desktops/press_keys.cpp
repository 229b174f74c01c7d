// Presses keys as a keyboard would, in a KWin that lets everybody: press_keys KEYS..., each one or
// several joined by "+" that are held together.

#include "wayland/wayland_connection.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <linux/input-event-codes.h>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#include <wayland-client-core.h>

namespace {

// The protocol org_kde_kwin_fake_input, as far as it is used.
constexpr std::uint32_t kAuthenticate = 0;
constexpr std::uint32_t kKeyboardKey = 10;
constexpr std::uint32_t kVersion = 4; // the first with keys
const wl_interface* kNoTypes[] = {nullptr, nullptr, nullptr};
const wl_message kRequests[] = {
    {"authenticate", "ss", kNoTypes}, {"pointer_motion", "ff", kNoTypes},
    {"button", "uu", kNoTypes},       {"axis", "uf", kNoTypes},
    {"touch_down", "uff", kNoTypes},  {"touch_motion", "uff", kNoTypes},
    {"touch_up", "u", kNoTypes},      {"touch_cancel", "", kNoTypes},
    {"touch_frame", "", kNoTypes},    {"pointer_motion_absolute", "ff", kNoTypes},
    {"keyboard_key", "uu", kNoTypes}};
const wl_interface kFakeInput = {"org_kde_kwin_fake_input", kVersion, 11, kRequests, 0, nullptr};

constexpr std::array<std::pair<std::string_view, std::uint32_t>, 5> kKeys = {
    {{"Control", KEY_LEFTCTRL},
     {"Super", KEY_LEFTMETA},
     {"Return", KEY_ENTER},
     {"F5", KEY_F5},
     {"F6", KEY_F6}}};

} // namespace

int main(int argc, char* argv[]) {
    using namespace std::chrono_literals;
    const char* display = std::getenv("WAYLAND_DISPLAY");
    const auto compositor = nocturo::WaylandConnection::open(display != nullptr ? display : "");
    wl_proxy* input = compositor != nullptr ? compositor->bind(kFakeInput, kVersion) : nullptr;
    if (input == nullptr) {
        std::cerr << "There is no KWin that takes keys.\n";
        return 1;
    }
    const auto send = [&](std::uint32_t request, auto... arguments) {
        wl_proxy_marshal_flags(input, request, nullptr, kVersion, 0, arguments...);
        return compositor->sync(5s);
    };
    send(kAuthenticate, "press_keys", "a test");
    for (int i = 1; i < argc; ++i) {
        std::vector<std::uint32_t> held;
        std::istringstream names(argv[i]);
        for (std::string name; std::getline(names, name, '+');) {
            const auto* key = std::ranges::find(kKeys, name, &decltype(kKeys)::value_type::first);
            if (key == kKeys.end()) {
                std::cerr << "There is no key " << name << " here.\n";
                return 2;
            }
            held.push_back(key->second);
        }
        for (const std::uint32_t key : held) {
            send(kKeyboardKey, key, 1U);
        }
        for (; !held.empty(); held.pop_back()) {
            send(kKeyboardKey, held.back(), 0U);
        }
    }
    return 0;
}
