#include "ctl/look_verb.h"

#include "ctl/bus_client.h"
#include "ctl/fade_option.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>

namespace nocturo {

namespace {

struct Way {
    std::string_view word;
    const char* method;
};

constexpr auto kSteps = std::to_array<Way>(
    {{"next", "ApplyNextLook"}, {"previous", "ApplyPreviousLook"}, {"back", "GoBackFromLook"}});
constexpr auto kNamed = std::to_array<Way>({{"save", "SaveLook"}, {"delete", "DeleteLook"}});

template <typename Ways>
const char* methodOf(const Ways& ways, std::string_view word) {
    for (const Way& way : ways) {
        if (way.word == word) {
            return way.method;
        }
    }
    return nullptr;
}

void move(const std::string& name, const std::string& place) {
    std::uint32_t number = 0;
    const char* end = place.data() + place.size();
    const auto [rest, error] = std::from_chars(place.data(), end, number);
    expect(error == std::errc() && rest == end && number > 0);
    BusClient().call("MoveLook", name, number - 1);
}

template <typename... Names>
void apply(const FadeOption& fade, const char* method, const Names&... names) {
    BusClient client;
    fade.tell(client);
    client.call(method, names...);
}

} // namespace

void runLook(Arguments words) {
    const FadeOption fade(words);
    const Arguments arguments = fade.rest();
    const std::string how = arguments.empty() ? "" : arguments[0];
    const bool isShownOrKept = how.empty() || how == "list" || how == "rename" || how == "move" ||
                               methodOf(kNamed, how) != nullptr;
    expect(!(fade.isGiven() && isShownOrKept));
    if (how.empty()) {
        print(lookInForce(BusClient().properties()));
    } else if (how == "list") {
        const bool asJson = arguments.size() == 2 && arguments[1] == "--json";
        expect(arguments.size() == 1 || asJson);
        const Json properties = BusClient().properties();
        print(asJson ? looksArray(properties).dump() + '\n' : looksReport(properties));
    } else if (const char* step = methodOf(kSteps, how)) {
        expect(arguments.size() == 1);
        apply(fade, step);
    } else if (const char* method = methodOf(kNamed, how)) {
        expect(arguments.size() > 1);
        BusClient().call(method, joined(arguments.subspan(1)));
    } else if (how == "rename") {
        expect(arguments.size() == 3);
        BusClient().call("RenameLook", arguments[1], arguments[2]);
    } else if (how == "move") {
        expect(arguments.size() == 3);
        move(arguments[1], arguments[2]);
    } else {
        apply(fade, "ApplyLook", joined(arguments));
    }
}

} // namespace nocturo
