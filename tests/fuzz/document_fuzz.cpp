#include "base/notification_center.h"
#include "documents/effect_document.h"
#include "documents/looks.h"
#include "documents/recent_documents.h"
#include "hotkeys/portal/granted_hot_keys.h"
#include "own_directory.h"
#include "settings/property_lists/property_list.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string_view>

using namespace nocturo;

namespace {

/// The same bytes wherever a property list of ours is read.
void readAsFiles(std::string_view bytes) {
    const auto& directory = fuzz::ownDirectory();
    std::ofstream(directory / "Look.nocturo", std::ios::binary) << bytes;
    Looks looks("/nowhere", directory, NotificationCenter::defaultCenter());
    for (const Look& look : looks.all()) {
        if (look.name != "Look" || !std::isfinite(look.effects.dimLevel)) {
            std::abort();
        }
    }
    if (RecentDocuments(directory / "Look.nocturo").paths().size() > RecentDocuments::kMost) {
        std::abort();
    }
    const GrantedHotKeys granted(directory / "Look.nocturo", "KDE");
}

} // namespace

/// What is accepted is finite and survives being saved and opened.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    readAsFiles(bytes);
    const auto root = parsePropertyList(bytes);
    const auto document = root ? effectDocument(*root) : std::nullopt;
    if (!document) {
        return 0;
    }
    const auto saved = parsePropertyList(propertyListXml(propertyDictionary(*document)));
    const bool isFinite = std::isfinite(document->colorFilterHue) &&
                          std::isfinite(document->colorFilterVividness) &&
                          std::isfinite(document->dimLevel);
    if (!isFinite || !saved || effectDocument(*saved) != document) {
        std::abort();
    }
    return 0;
}
