#include "displays/calibration/calibration_profile.h"
#include "displays/display_identifiers.h"
#include "displays/guard/journal.h"
#include "harness.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"

using namespace nocturo;
using fuzz::need;

namespace {

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

/// What monitors, colour programs, users and earlier runs may hand over.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span bytes(data, size);
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    readProfile(bytes);
    readEdid(bytes);
    readJournal(text);
    readHotKey(text);
    return 0;
}
