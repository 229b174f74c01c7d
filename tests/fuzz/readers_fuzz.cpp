#include "automation/pauses.h"
#include "automation/x11/x_window_facts.h"
#include "displays/calibration/calibration_profile.h"
#include "displays/display_identifiers.h"
#include "displays/guard/journal.h"
#include "harness.h"
#include "hotkeys/hot_key_text.h"
#include "hotkeys/key_naming.h"
#include "settings/display_looks.h"
#include "settings/rule_words.h"
#include "settings/schedule_points.h"

#include <cmath>

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

/// What is read of words is the same again when it is written in words.
template <typename Read>
void readWords(std::string_view words, Read read) {
    const auto found = read(words);
    need(!found || read(textOf(*found)) == found);
}

void readWhatHappensByItself(std::string_view words) {
    readWords(words, schedulePoint);
    readWords(words, ruleFromWords);
    readWords(words, displayLookFromWords);
    for (const std::string& name : programNames(words)) {
        need(name.size() <= words.size() && name.find('\0') == std::string::npos);
        readWords(textOf(Rule{Rule::When::program, name, {}}), ruleFromWords);
    }
    const auto place = placeFromText(words);
    need(!place || (std::abs(place->latitude) <= 90 && std::abs(place->longitude) <= 180));
    const Moment now{std::chrono::days(20000)};
    const auto end = endOfPause(words, now);
    need(!end || !*end || (**end > now && **end <= now + std::chrono::days(366)));
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
    readWhatHappensByItself(text);
    return 0;
}
