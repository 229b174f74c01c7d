#include "ctl/bus_json.h"

#include "ctl/answer_check.h"

#include <cctype>
#include <string>
#include <utility>

namespace nocturo {

namespace {

// Whatever cannot be read; going on might never end.
void need(bool isRead) {
    if (!isRead) {
        failBecauseNotUnderstood();
    }
}

template <typename Value>
Json readBasic(sd_bus_message* message, char type) {
    Value value{};
    need(sd_bus_message_read_basic(message, type, &value) > 0);
    return Json(value);
}

Json readBoolean(sd_bus_message* message) {
    return readBasic<int>(message, 'b').get<int>() != 0;
}

Json readObject(sd_bus_message* message) {
    Json object = Json::object();
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, nullptr) > 0) {
        const Json key = readJson(message);
        object[key.is_string() ? key.get<std::string>() : key.dump()] = readJson(message);
        need(sd_bus_message_exit_container(message) >= 0);
    }
    return object;
}

Json readArray(sd_bus_message* message) {
    Json array = Json::array();
    while (sd_bus_message_at_end(message, 0) == 0) {
        array.push_back(readJson(message));
    }
    return array;
}

Json readContainer(sd_bus_message* message, char type, const char* contents) {
    need(sd_bus_message_enter_container(message, type, contents) > 0);
    Json value;
    if (type == SD_BUS_TYPE_VARIANT) {
        value = readJson(message);
    } else if (contents[0] == SD_BUS_TYPE_DICT_ENTRY_BEGIN) {
        value = readObject(message);
    } else {
        value = readArray(message);
    }
    need(sd_bus_message_exit_container(message) >= 0);
    return value;
}

} // namespace

Json readJson(sd_bus_message* message) {
    char type = 0;
    const char* contents = nullptr;
    need(sd_bus_message_peek_type(message, &type, &contents) > 0);
    switch (type) {
    case SD_BUS_TYPE_BOOLEAN:
        return readBoolean(message);
    case SD_BUS_TYPE_INT32:
        return readBasic<std::int32_t>(message, type);
    case SD_BUS_TYPE_UINT32:
        return readBasic<std::uint32_t>(message, type);
    case SD_BUS_TYPE_INT64:
        return readBasic<std::int64_t>(message, type);
    case SD_BUS_TYPE_DOUBLE:
        return readBasic<double>(message, type);
    case SD_BUS_TYPE_STRING:
        return readBasic<const char*>(message, type);
    case SD_BUS_TYPE_VARIANT:
    case SD_BUS_TYPE_ARRAY:
        return readContainer(message, type, contents);
    default:
        need(sd_bus_message_skip(message, nullptr) >= 0);
        return nullptr;
    }
}

Json withSmallFirstLetters(const Json& object) {
    if (!object.is_object()) {
        return object;
    }
    Json result = Json::object();
    for (const auto& [key, value] : object.items()) {
        std::string name = key;
        if (!name.empty()) {
            name.front() =
                static_cast<char>(std::tolower(static_cast<unsigned char>(name.front())));
        }
        result[name] = value;
    }
    return result;
}

} // namespace nocturo
