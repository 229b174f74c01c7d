#include "base/notification_center.h"
#include "displays/affected_screen_set.h"
#include "documents/effect_document.h"
#include "documents/looks.h"
#include "documents/recent_documents.h"
#include "effects/gamma_curve.h"
#include "effects/group_effect.h"
#include "harness.h"
#include "hotkeys/hot_key.h"
#include "hotkeys/portal/granted_hot_keys.h"
#include "hotkeys/saved_hot_key.h"
#include "settings/defaults_store.h"
#include "settings/property_lists/property_list.h"

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
