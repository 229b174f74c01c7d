#include "ctl/answer_check.h"

#include "base/texts/translated.h"
#include "ctl/failure.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>

namespace nocturo {

namespace {

using Check = bool (*)(const Json& value);

struct Member {
    const char* name;
    Check fits;
    bool isOptional = false;
};

bool fit(const Json& object, std::span<const Member> members, Answer answer) {
    return object.is_object() &&
           std::all_of(members.begin(), members.end(), [&](const Member& member) {
               const auto found = object.find(member.name);
               return found != object.end() ? member.fits(*found)
                                            : member.isOptional || answer == Answer::inPart;
           });
}

template <Check fits>
bool isListOf(const Json& value) {
    return value.is_array() && std::all_of(value.begin(), value.end(), fits);
}

bool isBoolean(const Json& value) {
    return value.is_boolean();
}

bool isNumber(const Json& value) {
    return value.is_number();
}

bool isText(const Json& value) {
    return value.is_string();
}

bool isInteger(const Json& value) {
    return value.is_number_integer();
}

bool isCount(const Json& value) {
    return value.is_number_integer() && value >= 0 &&
           value <= std::numeric_limits<std::uint32_t>::max();
}

bool isObject(const Json& value) {
    return value.is_object();
}

bool isDisplay(const Json& value) {
    static constexpr auto kMembers = std::to_array<Member>({{"number", isInteger},
                                                            {"id", isCount},
                                                            {"name", isText},
                                                            {"monitor", isText, true},
                                                            {"main", isBoolean},
                                                            {"rampSize", isCount},
                                                            {"affected", isBoolean},
                                                            {"applied", isBoolean},
                                                            {"heldByOther", isBoolean, true},
                                                            {"obstacle", isText, true},
                                                            {"on", isBoolean, true},
                                                            {"ruler", isText, true},
                                                            {"rulesUntil", isInteger, true},
                                                            {"ruledLook", isText, true},
                                                            {"rule", isText, true},
                                                            {"look", isText, true}});
    return fit(value, kMembers, Answer::whole);
}

bool isAbsentDisplay(const Json& value) {
    static constexpr auto kMembers = std::to_array<Member>(
        {{"id", isCount}, {"name", isText}, {"affected", isBoolean, true}, {"look", isText, true}});
    return fit(value, kMembers, Answer::whole);
}

bool isHotKey(const Json& value) {
    static constexpr auto kMembers = std::to_array<Member>({{"text", isText},
                                                            {"enabled", isBoolean},
                                                            {"registered", isBoolean},
                                                            {"standing", isText, true},
                                                            {"trigger", isText, true},
                                                            {"configuration", isText, true}});
    return value.is_object() && (value.empty() || fit(value, kMembers, Answer::whole));
}

bool isLook(const Json& value) {
    static constexpr auto kMembers =
        std::to_array<Member>({{"name", isText}, {"title", isText}, {"own", isBoolean}});
    return fit(value, kMembers, Answer::whole);
}

bool isPoint(const Json& value) {
    static constexpr auto kMembers =
        std::to_array<Member>({{"point", isText}, {"next", isInteger}, {"problem", isText}});
    return fit(value, kMembers, Answer::whole);
}

bool isRule(const Json& value) {
    static constexpr auto kMembers = std::to_array<Member>({{"rule", isText},
                                                            {"holds", isBoolean},
                                                            {"screens", isListOf<isText>},
                                                            {"problem", isText}});
    return fit(value, kMembers, Answer::whole);
}

} // namespace

void checkAnswer(const Json& properties, Answer answer) {
    static constexpr auto kMembers =
        std::to_array<Member>({{"active", isBoolean},
                               {"paused", isBoolean, true},
                               {"ruler", isText, true},
                               {"rulesUntil", isInteger, true},
                               {"ruledLook", isText, true},
                               {"rule", isText, true},
                               {"schedule", isListOf<isPoint>, true},
                               {"rules", isListOf<isRule>, true},
                               {"displayServices", isText},
                               {"displays", isListOf<isDisplay>},
                               {"absentDisplays", isListOf<isAbsentDisplay>, true},
                               {"effects", isListOf<isText>},
                               {"dimLevel", isNumber},
                               {"colorFilterHue", isNumber},
                               {"colorFilterVividness", isNumber},
                               {"temperature", isCount, true},
                               {"look", isText, true},
                               {"looks", isListOf<isLook>, true},
                               {"affectedScreenSet", isListOf<isInteger>},
                               {"hotKey", isHotKey},
                               {"settings", isObject},
                               {"disturbances", isCount},
                               {"disturber", isText}});
    if (!fit(properties, kMembers, answer)) {
        failBecauseNotUnderstood();
    }
}

void failBecauseNotUnderstood() {
    throw Failure{kFailed,
                  translated("Nocturo answered something that this version does not understand.")};
}

} // namespace nocturo
