#!/usr/bin/env python3
"""Computes what the effects make of a curve, by other means than the product's code.

Every step is carried out in exact rational arithmetic and rounded where the engine is meant to
round, to single or double precision. Prints a C++ header: for each case the 256 entries of red,
green and blue as the bits of singles, and as 16-bit ramp entries.
"""
import math
import struct
from fractions import Fraction

SIZE = 256


def single(value):
    """Rounds a rational (or a double) to the nearest single, ties to even, as a rational.

    Through a double first only where that is exact enough not to round twice.
    """
    value = Fraction(value)
    if value == 0:
        return Fraction(0)
    exponent = math.floor(math.log2(abs(value)))
    if Fraction(2) ** exponent > abs(value):
        exponent -= 1
    step = Fraction(2) ** (max(exponent, -126) - 23)
    return Fraction(round(value / step)) * step  # round() of a rational ties to even


def double(value):
    """Rounds a rational to the nearest double."""
    value = Fraction(value)
    return Fraction(value.numerator / value.denominator)


def blend(v, target, weight):
    weighted = single(weight * target)
    rest = double(1 - weight)
    return single(double(weighted + double(rest * v)))


def invert(curve):
    return [channel[::-1] for channel in curve]


def overexpose(curve):
    start = single(single(curve[0][0] + curve[1][0]) + curve[2][0])
    target = Fraction(0 if start < Fraction(3, 2) else 1)
    weight = single(Fraction(-1, 10))
    return [[min(blend(v, target, weight), Fraction(1)) for v in channel] for channel in curve]


def dim(level):
    level = single(level)
    target = Fraction(1 if level > 0 else 0)
    return lambda curve: [[blend(v, target, abs(level)) for v in channel] for channel in curve]


def color_filter(hue, vividness):
    hue, vividness = single(hue), single(vividness)

    def weight(phase):
        turns = double(double(hue * Fraction(0.002777777777777778)) - single(phase))
        radians = double(turns * Fraction(6.283185307179586))
        amount = double(Fraction(math.cos(float(radians))) + Fraction(1, 2))
        amount = single(max(Fraction(0), min(amount, Fraction(1))))
        return single(single(1 - amount) * vividness)

    weights = [weight(Fraction(third, 3)) for third in range(3)]
    return lambda curve: [
        [blend(v, Fraction(0), w) for v in channel] for channel, w in zip(curve, weights)
    ]


def video_range(curve):
    low, high = single(Fraction(16, 255)), single(Fraction(235, 255))
    span = single(high - low)
    return [[single(single(v * span) + low) for v in channel] for channel in curve]


def ramp_entry(v):
    return math.floor(min(max(v, Fraction(0)), Fraction(1)) * 65535 + Fraction(1, 2))


def bits(v):
    return struct.unpack("<I", struct.pack("<f", float(v)))[0]


CASES = {
    "plain": [],
    "inverted": [invert],
    "overexposed": [overexpose],
    "invertedAndOverexposed": [invert, overexpose],
    "dimmedByDefault": [dim(Fraction(-1, 2))],
    "lightened": [dim(Fraction(3, 10))],
    "redFilter": [color_filter(0, 1)],
    "videoRange": [video_range],
    "allFive": [
        invert,
        overexpose,
        dim(Fraction(-3, 10)),
        color_filter(Fraction(2005, 10), Fraction(7, 10)),
        video_range,
    ],
}


def main():
    # A ramp as real servers have it, not quite reaching full, with a different one for blue.
    ramp = [[256 * i for i in range(SIZE)] for _ in range(2)]
    ramp.append([200 * i + 3000 for i in range(SIZE)])
    own = [[single(Fraction(entry, 65535)) for entry in channel] for channel in ramp]
    print("#pragma once\n\n#include <array>\n#include <cstdint>\n")
    print("namespace nocturo::expected {\n")
    print("struct Curve {\n    std::array<std::array<std::uint32_t, 256>, 3> singles;")
    print("    std::array<std::array<std::uint16_t, 256>, 3> ramp;\n};\n")
    for name, steps in CASES.items():
        curve = own
        for step in steps:
            curve = step(curve)
        print(f"inline constexpr Curve {name} = {{{{{{")
        for channel in curve:
            print("    {{", ", ".join(map(str, map(bits, channel))), "}},")
        print("}}, {{")
        for channel in curve:
            print("    {{", ", ".join(map(str, map(ramp_entry, channel))), "}},")
        print("}}};\n")
    print("} // namespace nocturo::expected")


if __name__ == "__main__":
    main()
