// A panel that has no image of ours in its theme wants pixels, and the core draws them without a
// toolkit. The shapes are few and simple enough to say of every point which of them it lies in;
// several points in each pixel make smooth edges.

#include "app/status_image.h"

#include <algorithm>
#include <cmath>

namespace nocturo {

namespace {

constexpr double kGrid = 16; // the side of the image in the units of its shapes
constexpr int kPointsInRow = 4;
constexpr std::uint32_t kDark = 0x363636;
constexpr std::uint32_t kLight = 0xffffff;
constexpr std::uint32_t kAccent = 0xe66100; // told from light and dark grounds alike

struct Point {
    double x;
    double y;
};

double length(double x, double y) {
    return std::sqrt(x * x + y * y);
}

/// How far the point lies outside of the rectangle with rounded corners; negative within.
double distance(Point point, double left, double top, double width, double height, double radius) {
    const double x = std::abs(point.x - left - width / 2) - width / 2 + radius;
    const double y = std::abs(point.y - top - height / 2) - height / 2 + radius;
    return length(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
}

double distanceFromDisplay(Point point) {
    return distance(point, 0, 1, 16, 12, 2);
}

double distanceFromStand(Point point) {
    return std::min(distance(point, 6, 13, 4, 1, 0), distance(point, 4, 14, 8, 1, 0));
}

/// The effect's sign: a disk with half of another one cut out of it.
bool isInSign(Point point) {
    const double radius = length(point.x - 8, point.y - 7);
    return radius < 3 && !(radius < 2 && point.x > 8);
}

enum class Part { ground, shape, accent };

// The same shapes as the image files of the icon theme: a display, with the effect's sign in it,
// which is lit while the effect is on.
Part partAt(Point point, bool isActive) {
    if (distanceFromStand(point) < 0) {
        return Part::shape;
    }
    if (distanceFromDisplay(point) >= 0) {
        return Part::ground;
    }
    const bool isInFrame = distance(point, 2, 3, 12, 8, 0) >= 0;
    return isInFrame || isInSign(point) ? Part::shape : isActive ? Part::accent : Part::ground;
}

std::uint32_t mixed(std::uint32_t over, std::uint32_t under, double part) {
    std::uint32_t color = 0;
    for (const unsigned shift : {0U, 8U, 16U}) {
        const double one = (over >> shift) & 0xffU;
        const double other = (under >> shift) & 0xffU;
        color |= static_cast<std::uint32_t>(std::lround(other + (one - other) * part)) << shift;
    }
    return color;
}

} // namespace

std::vector<std::uint32_t> statusImage(std::string_view name, int side,
                                       std::optional<std::uint32_t> rgb) {
    const bool isActive = name == kStatusActiveTemplate;
    if (!isActive && name != kStatusTemplate) {
        return {};
    }
    // In whole pixels, so that small images stay sharp.
    const double edge = rgb ? 0 : std::max(1.0, std::round(side / 22.0));
    const double scale = (side - 2 * edge) / kGrid;
    std::vector<std::uint32_t> pixels;
    pixels.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int i = 0; i < side * side; ++i) {
        const int x = i % side;
        const int y = i / side;
        int inShape = 0;
        int inAccent = 0;
        int onGround = 0;
        for (int j = 0; j < kPointsInRow * kPointsInRow; ++j) {
            const int column = j % kPointsInRow;
            const int row = j / kPointsInRow;
            const Point point{(x + (column + 0.5) / kPointsInRow - edge) / scale,
                              (y + (row + 0.5) / kPointsInRow - edge) / scale};
            const Part part = partAt(point, isActive);
            const double away = std::min(distanceFromDisplay(point), distanceFromStand(point));
            inShape += part == Part::shape ? 1 : 0;
            inAccent += part == Part::accent ? 1 : 0;
            onGround += part != Part::ground || (!rgb && away * scale < edge) ? 1 : 0;
        }
        const auto share = [](int part, int whole) {
            return whole > 0 ? static_cast<double>(part) / whole : 0;
        };
        const auto alpha = static_cast<std::uint32_t>(
            std::lround(255 * share(onGround, kPointsInRow * kPointsInRow)));
        const std::uint32_t plain =
            mixed(rgb.value_or(kDark), rgb.value_or(kLight), share(inShape, onGround - inAccent));
        pixels.push_back(alpha << 24U | mixed(kAccent, plain, share(inAccent, onGround)));
    }
    return pixels;
}

const char* statusIconName(std::string_view name) {
    return name == kStatusActiveTemplate ? "nocturo-status-active-symbolic"
                                         : "nocturo-status-symbolic";
}

} // namespace nocturo
