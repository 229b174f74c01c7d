#include "displays/affected_screen_set.h"
#include "effects/gamma_curve.h"
#include "effects/group_effect.h"
#include "hotkeys/hot_key.h"
#include "hotkeys/saved_hot_key.h"
#include "settings/defaults_store.h"
#include "settings/property_lists/property_list.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

/// What is accepted can be used, and what is written of it is read and written the same again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace nocturo;
    const auto settings = parsePropertyList({reinterpret_cast<const char*>(data), size});
    if (!settings) {
        return 0;
    }
    DefaultsStore& store = *DefaultsStore::standardUserDefaults();
    store.markKept(); // so that nothing of the input before is left
    store.mergeUserDomain(*settings);
    chooseAffectedScreen(store, 7);
    NDSavedHotKey(store);
    ZQGammaCurve curve;
    curve.sampleCount = kGammaCurveCapacity;
    NDGroupEffect().applyEffectOnGammaCurve(&curve, 0.0);

    const std::string written = propertyListXml(store.userDomain());
    const auto again = parsePropertyList(written);
    if (!again || propertyListXml(*again) != written) {
        std::abort();
    }
    return 0;
}
