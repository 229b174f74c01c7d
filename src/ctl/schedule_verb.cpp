#include "ctl/schedule_verb.h"

#include "base/local_time.h"
#include "ctl/bus_client.h"
#include "ctl/failure.h"
#include "ctl/output.h"
#include "ctl/report.h"
#include "settings/schedule_points.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace nocturo {

namespace {

bool isInUse(const Json& properties) {
    return properties["settings"].value("UseSchedule", false);
}

/// A line that says so where the schedule is not in use.
std::string whetherInUse(const Json& properties) {
    return isInUse(properties)
               ? std::string()
               : translated("The schedule is not in use; nocturoctl schedule on changes that.") +
                     '\n';
}

/// "sunset-00:30 Warm evening", with the look's title.
std::string shown(const Json& properties, const Json& point) {
    const auto words = point["point"].get<std::string>();
    const auto read = schedulePoint(words);
    return !read || read->look.empty()
               ? words
               : timeText(*read) + ' ' + titleOfLookNamed(properties, read->look);
}

std::string when(const Json& point) {
    const Moment now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
    return clockText(Moment(std::chrono::seconds(point["next"].get<std::int64_t>())), now);
}

void printSchedule(const Json& properties, const Json& points) {
    std::string text;
    int number = 0;
    for (const Json& point : points) {
        text += "  " + std::to_string(++number) + "  " + shown(properties, point);
        if (point["next"] != 0) {
            text += "  (" + when(point) + ")";
        }
        const auto problem = point["problem"].get<std::string>();
        text += problem.empty() ? "\n" : "\n     " + problem + '\n';
    }
    if (text.empty()) {
        text = "  " + translated("(none)") + '\n';
    }
    print(text + whetherInUse(properties));
}

void printNext(const Json& properties, const Json& points, bool asJson) {
    Json next;
    for (const Json& point : points) {
        if (point["next"] != 0 && (next.is_null() || point["next"] <= next["next"])) {
            next = point;
        }
    }
    if (asJson) {
        print(next.dump() + '\n');
    } else if (next.is_null()) {
        print(isInUse(properties) ? translated("Nothing is scheduled.") + '\n'
                                  : whetherInUse(properties));
    } else {
        print(when(next) + "  " + shown(properties, next) + '\n');
    }
}

} // namespace

void runSchedule(Arguments arguments) {
    std::string how = arguments.empty() ? "list" : arguments[0];
    bool asJson = arguments.size() == 2 && arguments[1] == "--json";
    if (arguments.size() == 1 && how == "--json") {
        how = "list";
        asJson = true;
    }
    if (how == "list" || how == "next") {
        expect(arguments.size() <= 1 || asJson);
        const Json properties = BusClient().properties();
        const Json points = properties.value("schedule", Json::array());
        if (how == "next") {
            printNext(properties, points, asJson);
        } else if (asJson) {
            print(points.dump() + '\n');
        } else {
            printSchedule(properties, points);
        }
    } else if (how == "on" || how == "off") {
        expect(arguments.size() == 1);
        BusClient client;
        client.callSetSetting("UseSchedule", how == "on");
        client.saveSettings();
    } else if (how == "add") {
        expect(arguments.size() > 1);
        BusClient client;
        client.callAndSave("AddSchedulePoint", joined(arguments.subspan(1)));
        print(whetherInUse(client.properties()));
    } else {
        expect(how == "remove" && arguments.size() == 2);
        BusClient().callAndSave("RemoveSchedulePoint", indexFrom(arguments[1]));
    }
}

} // namespace nocturo
