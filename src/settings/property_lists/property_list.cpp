// libplist has some habits that the code below answers. It reads and prints reals under the
// locale in force, and Qt puts the user's in force, so both run under the C locale. It hands out a
// negative integer as its unsigned twin in 2.2 and has signed functions of their own from 2.3 on.
// It frees its tree by recursion, so a text of nothing but opening tags would overrun the stack:
// such a text is refused before it is parsed, and so is one of very many entities, for each of
// which the rest of its string is moved. binary_list_bounds says what is wrong with some binary
// lists.

#include "settings/property_lists/property_list.h"

#include "settings/property_lists/binary_list_bounds.h"

#include <plist/plist.h>

#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <locale.h>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

namespace nocturo {

namespace {

constexpr std::size_t kMostContainers = 10000;
constexpr std::size_t kMostEntities = 10000;
constexpr int kDeepestNesting = 256;
constexpr std::string_view kUidKey = "CF$UID";

struct FreePlist {
    void operator()(void* node) const { plist_free(node); }
};
struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using OwnedPlist = std::unique_ptr<std::remove_pointer_t<plist_t>, FreePlist>;
template <typename T>
using OwnedMemory = std::unique_ptr<T, FreeMemory>;

/// Puts the C locale in force for the calling thread.
class CLocaleScope {
  public:
    CLocaleScope()
        : locale_(::newlocale(LC_ALL_MASK, "C", nullptr)), previous_(::uselocale(locale_)) {}
    ~CLocaleScope() {
        ::uselocale(previous_);
        ::freelocale(locale_);
    }
    CLocaleScope(const CLocaleScope&) = delete;
    CLocaleScope& operator=(const CLocaleScope&) = delete;

  private:
    locale_t locale_;
    locale_t previous_;
};

#ifdef NOCTURO_LIBPLIST_HAS_UNIX_DATES
constexpr std::int64_t kYear2001 = 978307200; // in seconds after 1970
plist_t newDate(const PropertyDate& value) {
    return plist_new_unix_date(value.seconds + kYear2001);
}
PropertyDate dateOf(plist_t node) {
    std::int64_t seconds = 0;
    plist_get_unix_date_val(node, &seconds);
    return {static_cast<std::int32_t>(seconds - kYear2001), 0};
}
#else
plist_t newDate(const PropertyDate& value) {
    return plist_new_date(value.seconds, 0);
}
PropertyDate dateOf(plist_t node) {
    PropertyDate value;
    plist_get_date_val(node, &value.seconds, &value.microseconds);
    return value;
}
#endif

#ifdef NOCTURO_LIBPLIST_HAS_SIGNED_INTEGERS
plist_t newInteger(std::int64_t value) {
    return plist_new_int(value);
}
std::int64_t integerOf(plist_t node) {
    std::int64_t value = 0;
    plist_get_int_val(node, &value);
    return value;
}
#else
plist_t newInteger(std::int64_t value) {
    return plist_new_uint(static_cast<std::uint64_t>(value));
}
std::int64_t integerOf(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return static_cast<std::int64_t>(value);
}
#endif

plist_t newNode(const PropertyValue& value);

struct NewNode {
    plist_t operator()(bool value) const { return plist_new_bool(value ? 1 : 0); }
    plist_t operator()(std::int64_t value) const { return newInteger(value); }
    plist_t operator()(double value) const { return plist_new_real(value); }
    plist_t operator()(const std::string& value) const { return plist_new_string(value.c_str()); }
    plist_t operator()(const PropertyDate& value) const { return newDate(value); }
    plist_t operator()(const PropertyUid& value) const { return plist_new_uid(value.value); }
    plist_t operator()(const PropertyData& value) const {
        // Null stands for no data at all, even where the length is 0.
        const void* bytes = value.bytes.empty() ? "" : static_cast<const void*>(value.bytes.data());
        return plist_new_data(static_cast<const char*>(bytes), value.bytes.size());
    }
    plist_t operator()(const PropertyArray& values) const {
        plist_t array = plist_new_array();
        for (const PropertyValue& value : values) {
            plist_array_append_item(array, newNode(value));
        }
        return array;
    }
    plist_t operator()(const PropertyDictionary& values) const {
        plist_t dictionary = plist_new_dict();
        for (const auto& [key, value] : values) {
            plist_dict_set_item(dictionary, key.c_str(), newNode(value));
        }
        return dictionary;
    }
};

plist_t newNode(const PropertyValue& value) {
    using Alternatives = std::variant<bool, std::int64_t, double, std::string, PropertyData,
                                      PropertyDate, PropertyUid, PropertyArray, PropertyDictionary>;
    return std::visit(NewNode{}, static_cast<const Alternatives&>(value));
}

std::optional<PropertyValue> valueOf(plist_t node, int nesting);

std::optional<PropertyValue> arrayOf(plist_t node, int nesting) {
    plist_array_iter rawIterator = nullptr;
    plist_array_new_iter(node, &rawIterator);
    const OwnedMemory<void> iterator(rawIterator);
    PropertyArray values;
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, iterator.get(), &item);
        if (item == nullptr) {
            return values;
        }
        std::optional<PropertyValue> value = valueOf(item, nesting);
        if (!value) {
            return std::nullopt;
        }
        values.push_back(*std::move(value));
    }
}

std::optional<PropertyDictionary> membersOf(plist_t node, int nesting) {
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const OwnedMemory<void> iterator(rawIterator);
    PropertyDictionary values;
    for (;;) {
        char* rawKey = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator.get(), &rawKey, &item);
        const OwnedMemory<char> key(rawKey);
        if (item == nullptr) {
            return values;
        }
        std::optional<PropertyValue> value = valueOf(item, nesting);
        if (!value) {
            return std::nullopt;
        }
        values.insert_or_assign(key.get(), *std::move(value));
    }
}

std::optional<PropertyValue> dictionaryOf(plist_t node, int nesting) {
    std::optional<PropertyDictionary> members = membersOf(node, nesting);
    if (!members) {
        return std::nullopt;
    }
    if (members->size() == 1 && members->begin()->first == kUidKey) {
        if (const auto* uid = members->begin()->second.as<std::int64_t>()) {
            return PropertyUid{static_cast<std::uint64_t>(*uid)};
        }
    }
    return *std::move(members);
}

PropertyValue dataOf(plist_t node) {
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    return bytes != nullptr ? PropertyData{{bytes, bytes + length}} : PropertyData{};
}

std::optional<PropertyValue> valueOf(plist_t node, int nesting) {
    if (nesting == kDeepestNesting) {
        return std::nullopt;
    }
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT:
        return integerOf(node);
    case PLIST_REAL: {
        double value = 0.0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return std::string(text, length);
    }
    case PLIST_DATE:
        return dateOf(node);
    case PLIST_UID: {
        PropertyUid value;
        plist_get_uid_val(node, &value.value);
        return value;
    }
    case PLIST_DATA:
        return dataOf(node);
    case PLIST_ARRAY:
        return arrayOf(node, nesting + 1);
    case PLIST_DICT:
        return dictionaryOf(node, nesting + 1);
    default:
        return std::nullopt;
    }
}

std::size_t occurrences(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (auto at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

plist_t parsedXml(std::string_view xml) {
    plist_t parsed = nullptr;
    if (xml.find('\0') == xml.npos && isWithinLimits(xml)) {
        plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &parsed);
    }
    return parsed;
}

plist_t parsedBinary(std::string_view bytes) {
    plist_t parsed = nullptr;
    if (isBoundedBinaryList(bytes)) {
        plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    }
    return parsed;
}

} // namespace

std::string propertyListXml(const PropertyDictionary& dictionary) {
    const CLocaleScope cLocale;
    const OwnedPlist root(NewNode{}(dictionary));
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    const OwnedMemory<char> owned(text);
    if (text == nullptr) {
        throw std::bad_alloc();
    }
    return {text, length};
}

bool isWithinLimits(std::string_view xml) {
    const auto filled = [xml](std::string_view start, std::string_view empty) {
        return occurrences(xml, start) - occurrences(xml, empty);
    };
    return xml.size() <= kLongestPropertyList && occurrences(xml, "&") <= kMostEntities &&
           filled("<dict", "<dict/>") + filled("<array", "<array/>") <= kMostContainers;
}

std::optional<PropertyDictionary> parsePropertyList(std::string_view bytes) {
    if (bytes.size() > kLongestPropertyList) {
        return std::nullopt;
    }
    const CLocaleScope cLocale;
    const OwnedPlist root(bytes.starts_with("bplist") ? parsedBinary(bytes) : parsedXml(bytes));
    auto members = PLIST_IS_DICT(root.get()) ? membersOf(root.get(), 0) : std::nullopt;
    if (members && !isWithinLimits(propertyListXml(*members))) {
        return std::nullopt; // it would be longer than this once it is written
    }
    return members;
}

} // namespace nocturo
