#include "desktop/test_card/test_card.h"

#include "desktop/level_tables.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QSaveFile>

// A static library's resources are dropped by the linker unless they are asked for by name, which
// must be done outside of any namespace.
static void keepResource() {
    Q_INIT_RESOURCE(test_card);
}

namespace nocturo {

namespace {

// Low on purpose: every write of a ramp draws a picture, and a slider writes many a second.
constexpr int kCompression = 11;

const QImage& testCard() {
    static const QImage card = [] {
        keepResource();
        return QImage(":/simulated/test-card.png").convertToFormat(QImage::Format_RGB32);
    }();
    return card;
}

/// For each 8-bit level, what the panel shows.
LevelTable shownLevels(const std::vector<std::uint16_t>& channel) {
    const std::uint32_t last = static_cast<std::uint32_t>(channel.size()) - 1;
    LevelTable levels{};
    for (std::uint32_t level = 0; level < levels.size(); ++level) {
        const std::uint32_t value = channel[(level * last + 127) / 255];
        levels[level] = static_cast<std::uint8_t>((value + 128) / 257);
    }
    return levels;
}

} // namespace

bool writeTestCard(const Ramp& ramp, const std::filesystem::path& picture) {
    const QImage shown = throughLevels(
        testCard(), {shownLevels(ramp.red), shownLevels(ramp.green), shownLevels(ramp.blue)});
    // Encoded in memory first: on a full disk the encoder would complain by itself, at every write.
    QBuffer encoded;
    encoded.open(QIODevice::WriteOnly);
    QImageWriter writer(&encoded, "png");
    writer.setCompression(kCompression);
    QSaveFile file(QString::fromStdString(picture.string()));
    return writer.write(shown) && file.open(QIODevice::WriteOnly) &&
           file.write(encoded.data()) == encoded.size() && file.commit();
}

} // namespace nocturo
