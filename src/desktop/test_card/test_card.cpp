#include "desktop/test_card/test_card.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QSaveFile>

#include <array>
#include <cstddef>

// A static library's resources are dropped by the linker unless they are asked for by name, which
// must be done outside of any namespace.
static void keepResource() {
    Q_INIT_RESOURCE(test_card);
}

namespace nocturo {

namespace {

// Low on purpose: every write of a ramp draws a picture, and a slider writes many a second.
constexpr int kCompression = 11;

using ShownLevels = std::array<QRgb, 256>;

const QImage& testCard() {
    static const QImage card = [] {
        keepResource();
        return QImage(":/simulated/test-card.png").convertToFormat(QImage::Format_RGB32);
    }();
    return card;
}

/// For each 8-bit level, what the panel shows, as it stands in a pixel at `shift`.
ShownLevels shownLevels(const std::vector<std::uint16_t>& channel, unsigned shift) {
    const std::uint32_t last = static_cast<std::uint32_t>(channel.size()) - 1;
    ShownLevels levels{};
    for (std::uint32_t level = 0; level < levels.size(); ++level) {
        const std::uint32_t value = channel[(level * last + 127) / 255];
        levels[level] = (value + 128) / 257 << shift;
    }
    return levels;
}

QImage throughRamp(const QImage& card, const Ramp& ramp) {
    const ShownLevels red = shownLevels(ramp.red, 16);
    const ShownLevels green = shownLevels(ramp.green, 8);
    const ShownLevels blue = shownLevels(ramp.blue, 0);
    QImage shown(card.size(), QImage::Format_RGB32);
    for (int y = 0; y < card.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(card.constScanLine(y));
        auto* to = reinterpret_cast<QRgb*>(shown.scanLine(y));
        for (int x = 0; x < card.width(); ++x) {
            const auto pixel = from[x];
            to[x] = 0xff000000U | red[pixel >> 16 & 0xffU] | green[pixel >> 8 & 0xffU] |
                    blue[pixel & 0xffU];
        }
    }
    return shown;
}

} // namespace

bool writeTestCard(const Ramp& ramp, const std::filesystem::path& picture) {
    // Encoded in memory first: on a full disk the encoder would complain by itself, at every write.
    QBuffer encoded;
    encoded.open(QIODevice::WriteOnly);
    QImageWriter writer(&encoded, "png");
    writer.setCompression(kCompression);
    QSaveFile file(QString::fromStdString(picture.string()));
    return writer.write(throughRamp(testCard(), ramp)) && file.open(QIODevice::WriteOnly) &&
           file.write(encoded.data()) == encoded.size() && file.commit();
}

} // namespace nocturo
