"""Holds what the sun does against calculations of its own: sun_test.py SUN_TIMES. For 60 places from pole
to pole over a year: a minute before and after each event the sun stands on the two sides of its horizon,
and a day without one has none."""

import datetime
import math
import subprocess
import sys

HORIZONS = {1: -6.0, 2: -0.8333, 3: -0.8333, 4: -6.0}  # dawn, sunrise, sunset, dusk
PLACES = [(latitude, longitude) for latitude in (-90, -75, -66, -52, -34, -10, 0, 23, 40, 52.5, 60, 65, 68, 80, 90)
          for longitude in (-170, -74, 13.4, 151)]
FIRST = (datetime.date(2026, 1, 1) - datetime.date(1970, 1, 1)).days


def altitude(time, latitude, longitude):
    """The short series of the Astronomical Almanac, good to a hundredth of a degree until 2050."""
    days = time / 86400 - 10957.5
    anomaly = math.radians(357.528 + 0.9856003 * days)
    ecliptic = math.radians(280.460 + 0.9856474 * days + 1.915 * math.sin(anomaly) + 0.020 * math.sin(2 * anomaly))
    tilt = math.radians(23.439 - 0.0000004 * days)
    ascension = math.atan2(math.cos(tilt) * math.sin(ecliptic), math.cos(ecliptic))
    declination = math.asin(math.sin(tilt) * math.sin(ecliptic))
    hour = math.radians(280.46062 + 360.98564737 * days + longitude) - ascension
    north = math.radians(latitude)
    return math.degrees(math.asin(math.sin(north) * math.sin(declination)
                                  + math.cos(north) * math.cos(declination) * math.cos(hour)))


def check(latitude, longitude, day, kind, moment):
    place = (latitude, longitude)
    sign = 1 if kind in (1, 2) else -1
    slack = 0.01  # degrees, of both calculations together; near the poles that is more than a minute

    def above(time):
        return sign * (altitude(time, *place) - HORIZONS[kind])

    if moment:
        return above(moment - 60) < slack and above(moment + 60) > -slack
    noon = (day + 0.5 - longitude / 360) * 86400
    sides = [above(noon + step * 600) for step in range(-70, 71)]
    return not any(before < -slack and slack < after for before, after in zip(sides, sides[1:])
                   if abs(before - after) > 2 * slack)


def main():
    asked = "".join(f"{latitude} {longitude} {FIRST} {FIRST + 365}\n" for latitude, longitude in PLACES)
    lines = subprocess.run(sys.argv[1], input=asked, capture_output=True, text=True, check=True).stdout.splitlines()
    assert len(lines) == len(PLACES) * 365 * 4
    wrong = []
    for line in lines:
        latitude, longitude, *whole = line.split()
        day, kind, moment = map(int, whole)
        place = float(latitude), float(longitude)
        if not check(*place, day, kind, moment):
            wrong.append(line)
    print(len(lines), "events,", len(wrong), "wrong:", wrong[:10])
    sys.exit(bool(wrong))


main()
