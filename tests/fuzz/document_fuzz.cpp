#include "documents/effect_document.h"
#include "settings/property_lists/property_list.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// What is accepted is finite and survives being saved and opened.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace nocturo;
    const auto root = parsePropertyList({reinterpret_cast<const char*>(data), size});
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
