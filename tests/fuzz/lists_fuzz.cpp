#include "automation/automation.h"
#include "base/notification_center.h"
#include "displays/affected_screen_set.h"
#include "displays/display_names.h"
#include "documents/effect_document.h"
#include "documents/looks.h"
#include "documents/recent_documents.h"
#include "effects/gamma_curve.h"
#include "effects/group_effect.h"
#include "harness.h"
#include "hotkeys/hot_key.h"
#include "hotkeys/portal/granted_hot_keys.h"
#include "hotkeys/saved_hot_key.h"
#include "program/kept_display_names.h"
#include "settings/defaults_store.h"
#include "settings/property_lists/property_list.h"
#include "unit/fake_run_loop.h"
#include "unit/fake_wall_clock.h"

#include <cmath>
#include <fstream>

using namespace nocturo;
using fuzz::need;

namespace {

/// The same bytes wherever a property list of ours is read.
void readAsFiles(std::string_view bytes) {
    const auto& directory = fuzz::ownDirectory();
    std::ofstream(directory / "Look.nocturo", std::ios::binary) << bytes;
    Looks looks("/nowhere", directory, NotificationCenter::defaultCenter());
    for (const Look& look : looks.all()) {
        need(look.name == "Look" && std::isfinite(look.effects.dimLevel));
    }
    need(RecentDocuments(directory / "Look.nocturo").paths().size() <= RecentDocuments::kMost);
    const GrantedHotKeys granted(directory / "Look.nocturo", "KDE");
    for (const char* name : {"pause.plist", "displays.plist"}) {
        std::ofstream(directory / name, std::ios::binary) << bytes;
    }
    DisplayNames::shared() = {}; // so that nothing of the input before is left
    const KeptDisplayNames names(directory / "displays.plist", NotificationCenter::defaultCenter());
}

/// Whatever settings say is to happen by itself, the clock goes on and somebody rules.
void followSettings(DefaultsStore& store) {
    FakeRunLoop loop;
    FakeWallClock clock{Moment(std::chrono::days(20000))};
    NotificationCenter center;
    Looks looks("/nowhere", "/nowhere", center);
    Automation automation(store, center, clock, loop, looks, fuzz::ownDirectory());
    automation.start();
    for (int day = 0; day < 2; ++day) {
        const Ruling ruling = automation.ruling(true, 7);
        need(!ruling.until || *ruling.until > automation.now());
        clock.passTo(automation.now() + std::chrono::hours(25));
    }
    need(automation.listedPoints().size() <= 100 && automation.rules().listed().size() <= 100);
}

/// A document that is accepted is finite and survives being saved and opened.
void readAsDocument(const PropertyDictionary& list) {
    if (const auto document = effectDocument(list)) {
        need(std::isfinite(document->colorFilterHue) &&
             std::isfinite(document->colorFilterVividness) && std::isfinite(document->dimLevel));
        const auto saved = parsePropertyList(propertyListXml(propertyDictionary(*document)));
        need(saved && effectDocument(*saved) == document);
    }
}

/// Settings can be used, and what is written of them is read and written the same again.
void readAsSettings(const PropertyDictionary& list) {
    DefaultsStore& store = *DefaultsStore::standardUserDefaults();
    store.markKept(); // so that nothing of the input before is left
    store.mergeUserDomain(list);
    chooseAffectedScreen(store, 7);
    NDSavedHotKey(store);
    ZQGammaCurve curve;
    curve.sampleCount = kGammaCurveCapacity;
    NDGroupEffect().applyEffectOnGammaCurve(&curve, 0.0);

    followSettings(store);
    const std::string written = propertyListXml(store.userDomain());
    const auto again = parsePropertyList(written);
    need(again && propertyListXml(*again) == written);
}

} // namespace

/// Property lists, which anybody may have written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readAsFiles(bytes);
    if (const auto list = parsePropertyList(bytes)) {
        readAsDocument(*list);
        readAsSettings(*list);
    }
    return 0;
}
