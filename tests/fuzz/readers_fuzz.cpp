#include "displays/calibration/calibration_profile.h"
#include "displays/display_identifiers.h"
#include "displays/guard/journal.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace nocturo;

namespace {

void need(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// A profile is refused or gives ramps that a screen can be read through.
void readProfile(std::span<const std::uint8_t> bytes) {
    for (const std::uint32_t size : {256U, 17U}) {
        const auto ramp = readCalibration(bytes, size);
        need(!ramp || !*ramp || (*ramp)->red.size() == size);
    }
}

/// Whatever a monitor says of itself, it gets a number of its own.
void readEdid(std::span<const std::uint8_t> bytes) {
    Head one;
    one.connector = "DP-1";
    one.edid.assign(bytes.begin(), bytes.end());
    Head other = one;
    other.connector = "DP-2";
    const auto ids = DisplayIdentifiers().identifiersFor({one, other});
    need(ids.size() == 2 && ids[0] != ids[1] && ids[0] != 0 && ids[1] != 0 && ids[0] >> 31U == 0);
}

void readJournal(std::string_view bytes) {
    const auto journal = journalFromBytes(bytes);
    need(!journal || journalBytes(*journal) == bytes);
}

/// What is accepted can be named.
void readHotKey(std::string_view text) {
    const auto hotKey = parseHotKeyText(text, nullptr);
    need(!hotKey || !HXStringFromKeyCode(hotKey->keyCode, hotKey->modifierFlags, nullptr).empty());
}

} // namespace

/// The first byte chooses who reads the rest.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::span bytes(data + 1, size - 1);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    switch (data[0] % 4) {
    case 0:
        readProfile(bytes);
        break;
    case 1:
        readEdid(bytes);
        break;
    case 2:
        readJournal(text);
        break;
    default:
        readHotKey(text);
    }
    return 0;
}
