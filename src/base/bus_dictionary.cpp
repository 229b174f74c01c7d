#include "base/bus_dictionary.h"

#include <algorithm>

namespace nocturo {

namespace {

constexpr std::size_t kLongestText = 200;

} // namespace

bool forEachEntry(sd_bus_message* message, const std::function<void(std::string_view key)>& entry) {
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") <= 0) {
        return false;
    }
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* key = "";
        if (sd_bus_message_read(message, "s", &key) <= 0) {
            return false;
        }
        entry(key);
        if (sd_bus_message_exit_container(message) < 0) {
            return false;
        }
    }
    return sd_bus_message_exit_container(message) >= 0;
}

std::string readTextVariant(sd_bus_message* message) {
    char type = 0;
    const char* contents = "";
    const char* text = "";
    if (sd_bus_message_peek_type(message, &type, &contents) <= 0 || contents == nullptr ||
        std::string_view(contents) != "s" || sd_bus_message_read(message, "v", "s", &text) <= 0) {
        sd_bus_message_skip(message, "v");
        return {};
    }
    std::string line(std::string_view(text).substr(0, kLongestText));
    std::erase_if(line, [](char byte) { return static_cast<unsigned char>(byte) < 0x20; });
    return line;
}

} // namespace nocturo
