#include "bus/bus_values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <type_traits>

namespace nocturo {

namespace {

template <typename Value>
constexpr const char* kSignature = "";
template <>
constexpr const char* kSignature<bool> = "b";
template <>
constexpr const char* kSignature<std::int32_t> = "i";
template <>
constexpr const char* kSignature<std::uint32_t> = "u";
template <>
constexpr const char* kSignature<std::int64_t> = "x";
template <>
constexpr const char* kSignature<double> = "d";
template <>
constexpr const char* kSignature<std::string> = "s";
template <>
constexpr const char* kSignature<std::vector<std::string>> = "as";
template <>
constexpr const char* kSignature<std::vector<std::int64_t>> = "ax";
template <>
constexpr const char* kSignature<BusDictionary> = "a{sv}";
template <>
constexpr const char* kSignature<std::vector<BusDictionary>> = "aa{sv}";

void append(sd_bus_message* message, bool value) {
    sd_bus_message_append(message, "b", static_cast<int>(value));
}

template <typename Number>
void append(sd_bus_message* message, Number value) requires std::is_arithmetic_v<Number> {
    sd_bus_message_append_basic(message, *kSignature<Number>, &value);
}

void append(sd_bus_message* message, const std::string& value) {
    sd_bus_message_append(message, "s", value.c_str());
}

void append(sd_bus_message* message, const BusDictionary& value) {
    appendDictionary(message, value);
}

template <typename Element>
void append(sd_bus_message* message, const std::vector<Element>& values) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, kSignature<Element>);
    for (const Element& value : values) {
        append(message, value);
    }
    sd_bus_message_close_container(message);
}

template <typename Element>
bool readList(sd_bus_message* message, PropertyArray& array) {
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, kSignature<Element>) < 0) {
        return false;
    }
    std::conditional_t<std::is_same_v<Element, std::string>, const char*, Element> element{};
    while (sd_bus_message_read_basic(message, *kSignature<Element>, &element) > 0) {
        if (array.size() == kLongestList) {
            return false;
        }
        array.emplace_back(Element(element));
    }
    return sd_bus_message_exit_container(message) >= 0;
}

template <typename Value>
std::optional<PropertyValue> readBasic(sd_bus_message* message) {
    Value value{};
    if (sd_bus_message_read_basic(message, *kSignature<Value>, &value) <= 0) {
        return std::nullopt;
    }
    return value;
}

std::optional<PropertyValue> readSetting(sd_bus_message* message, std::string_view type) {
    PropertyArray array;
    if (bool boolean = false; type == "b") {
        return readArgument(message, boolean) ? std::optional<PropertyValue>(boolean)
                                              : std::nullopt;
    }
    if (std::string text; type == "s") {
        return readArgument(message, text) ? std::optional<PropertyValue>(std::move(text))
                                           : std::nullopt;
    }
    if (type == "x") {
        return readBasic<std::int64_t>(message);
    }
    if (type == "d") {
        return readBasic<double>(message);
    }
    if ((type == "as" && readList<std::string>(message, array)) ||
        (type == "ax" && readList<std::int64_t>(message, array))) {
        return array;
    }
    return std::nullopt;
}

BusValue arrayValue(const PropertyArray& array) {
    const bool areNumbers = std::all_of(array.begin(), array.end(), [](const PropertyValue& each) {
        return each.number().has_value();
    });
    if (areNumbers && !array.empty()) {
        std::vector<std::int64_t> numbers;
        for (const PropertyValue& element : array) {
            numbers.push_back(static_cast<std::int64_t>(element.number().value_or(0.0)));
        }
        return numbers;
    }
    std::vector<std::string> strings;
    for (const PropertyValue& element : array) { // one that is no text keeps its place
        const auto* text = element.as<std::string>();
        strings.push_back(text != nullptr ? *text : std::string());
    }
    return strings;
}

} // namespace

bool BusValue::operator==(const BusValue& other) const {
    return static_cast<const variant&>(*this) == static_cast<const variant&>(other);
}

BusValue busValue(const PropertyValue& value) {
    if (const auto* boolean = value.as<bool>()) {
        return *boolean;
    }
    if (const auto* integer = value.as<std::int64_t>()) {
        return *integer;
    }
    if (const auto* real = value.as<double>()) {
        return shortestReal(static_cast<float>(*real));
    }
    if (const auto* text = value.as<std::string>()) {
        return *text;
    }
    const auto* array = value.as<PropertyArray>();
    return array != nullptr ? arrayValue(*array) : std::vector<std::string>();
}

double shortestReal(float value) {
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    double real = 0.0;
    std::from_chars(text.data(), written.ptr, real);
    return real;
}

void appendValue(sd_bus_message* message, const BusValue& value) {
    std::visit([message](const auto& each) { append(message, each); }, value);
}

void appendVariant(sd_bus_message* message, const BusValue& value) {
    const char* signature = std::visit(
        [](const auto& each) { return kSignature<std::decay_t<decltype(each)>>; }, value);
    sd_bus_message_open_container(message, SD_BUS_TYPE_VARIANT, signature);
    appendValue(message, value);
    sd_bus_message_close_container(message);
}

void appendDictionary(sd_bus_message* message, const BusDictionary& dictionary) {
    sd_bus_message_open_container(message, SD_BUS_TYPE_ARRAY, "{sv}");
    for (const auto& [key, value] : dictionary) {
        sd_bus_message_open_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv");
        append(message, key);
        appendVariant(message, value);
        sd_bus_message_close_container(message);
    }
    sd_bus_message_close_container(message);
}

bool readArgument(sd_bus_message* call, bool& value) {
    int number = 0;
    const bool read = sd_bus_message_read(call, "b", &number) > 0;
    value = number != 0;
    return read;
}

bool readArgument(sd_bus_message* call, std::int32_t& value) {
    return sd_bus_message_read(call, "i", &value) > 0;
}

bool readArgument(sd_bus_message* call, std::uint32_t& value) {
    return sd_bus_message_read(call, "u", &value) > 0;
}

bool readArgument(sd_bus_message* call, double& value) {
    return sd_bus_message_read(call, "d", &value) > 0 && std::isfinite(value);
}

bool readArgument(sd_bus_message* call, std::string& value) {
    const char* text = "";
    const bool read = sd_bus_message_read(call, "s", &text) > 0;
    value = text;
    return read;
}

template <typename Element>
static bool readElements(sd_bus_message* call, std::vector<Element>& value) {
    PropertyArray array;
    const bool read = readList<Element>(call, array);
    for (const PropertyValue& element : array) {
        value.push_back(*element.as<Element>());
    }
    return read;
}

bool readArgument(sd_bus_message* call, std::vector<std::string>& value) {
    return readElements(call, value);
}

bool readArgument(sd_bus_message* call, std::vector<std::int64_t>& value) {
    return readElements(call, value);
}

bool readArgument(sd_bus_message* call, std::optional<PropertyValue>& value) {
    const char* type = nullptr;
    if (sd_bus_message_peek_type(call, nullptr, &type) <= 0 ||
        sd_bus_message_enter_container(call, SD_BUS_TYPE_VARIANT, type) <= 0) {
        return false;
    }
    value = readSetting(call, type);
    return !value || sd_bus_message_exit_container(call) >= 0;
}

} // namespace nocturo
