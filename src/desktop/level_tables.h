#pragma once

#include <QImage>

#include <array>
#include <cstdint>

namespace nocturo {

/// For each level of a channel, another one.
using LevelTable = std::array<std::uint8_t, 256>;

/// The picture with its levels replaced: tables for red, green and blue. It is opaque, of
/// Format_RGB32, as the given one must be.
inline QImage throughLevels(const QImage& picture, const std::array<LevelTable, 3>& tables) {
    const auto& [red, green, blue] = tables;
    QImage seen(picture.size(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(seen.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = from[x];
            to[x] = 0xff000000U | unsigned{red[pixel >> 16 & 0xffU]} << 16U |
                    unsigned{green[pixel >> 8 & 0xffU]} << 8U | unsigned{blue[pixel & 0xffU]};
        }
    }
    return seen;
}

} // namespace nocturo
