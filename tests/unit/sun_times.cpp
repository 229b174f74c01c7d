// Prints what the sun does at the places on standard input, for sun_test.py: latitude, longitude,
// day, the kind of event, and its moment, 0 for none.

#include "automation/sun.h"

#include <cstdint>
#include <cstdio>

int main() {
    using nocturo::SchedulePoint;
    nocturo::Sun sun;
    double latitude = 0;
    double longitude = 0;
    int first = 0;
    int last = 0;
    while (std::scanf("%lf %lf %d %d", &latitude, &longitude, &first, &last) == 4) {
        for (int day = first; day < last; ++day) {
            for (const int kind : {1, 2, 3, 4}) {
                const auto moment = sun.moment({latitude, longitude}, day,
                                               static_cast<SchedulePoint::Anchor>(kind));
                const std::int64_t seconds = moment ? moment->time_since_epoch().count() : 0;
                std::printf("%g %g %d %d %lld\n", latitude, longitude, day, kind,
                            static_cast<long long>(seconds));
            }
        }
    }
    return 0;
}
