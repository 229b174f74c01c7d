#include "documents/effect_document.h"

#include <cmath>
#include <cstdint>
#include <string_view>

namespace nocturo {

namespace {

constexpr std::string_view kSaveFormat = "NDSaveFormat";
constexpr std::int64_t kFormat = 2;

/// Goes through the entries of a document in one place for both directions.
template <typename Document, typename Visit>
void forEachEntry(Document& document, Visit visit) {
    visit("InvertScreen", document.invertScreen);
    visit("Overexposure", document.overexposure);
    visit("HDTVLuminance", document.hdtvLuminance);
    visit("ColorFilter", document.colorFilter);
    visit("ColorFilterHue", document.colorFilterHue);
    visit("ColorFilterVividness", document.colorFilterVividness);
    visit("Dim", document.dim);
    visit("DimLevel", document.dimLevel);
}

struct Writer {
    PropertyDictionary& root;

    void operator()(const char* key, bool value) const { root.emplace(key, value); }
    void operator()(const char* key, float value) const {
        root.emplace(key, static_cast<double>(value));
    }
};

struct Reader {
    const PropertyDictionary& root;

    const PropertyValue* valueOf(std::string_view key) const {
        const auto found = root.find(key);
        return found != root.end() ? &found->second : nullptr;
    }

    double numberOf(std::string_view key) const {
        const PropertyValue* value = valueOf(key);
        return value != nullptr ? value->number().value_or(0.0) : 0.0;
    }

    void operator()(const char* key, bool& on) const {
        const PropertyValue* value = valueOf(key);
        const bool* boolean = value != nullptr ? value->as<bool>() : nullptr;
        on = boolean != nullptr ? *boolean : numberOf(key) == 1.0;
    }

    void operator()(const char* key, float& number) const {
        const auto single = static_cast<float>(numberOf(key));
        number = std::isfinite(single) ? single : 0.0F;
    }
};

} // namespace

bool looksTheSame(const EffectDocument& left, const EffectDocument& right) {
    const auto withoutIdleNumbers = [](EffectDocument document) {
        document.colorFilterHue = document.colorFilter ? document.colorFilterHue : 0.0F;
        document.colorFilterVividness = document.colorFilter ? document.colorFilterVividness : 0.0F;
        document.dimLevel = document.dim ? document.dimLevel : 0.0F;
        return document;
    };
    return withoutIdleNumbers(left) == withoutIdleNumbers(right);
}

PropertyDictionary propertyDictionary(const EffectDocument& document) {
    PropertyDictionary root{{std::string(kSaveFormat), kFormat}};
    forEachEntry(document, Writer{root});
    return root;
}

std::optional<EffectDocument> effectDocument(const PropertyDictionary& root) {
    const Reader reader{root};
    if (reader.numberOf(kSaveFormat) != static_cast<double>(kFormat)) {
        return std::nullopt;
    }
    EffectDocument document;
    forEachEntry(document, reader);
    return document;
}

} // namespace nocturo
