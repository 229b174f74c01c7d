#include "desktop/menus/status_image.h"

#include <QIconEngine>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstring>
#include <optional>

namespace nocturo {

namespace {

class StatusImageEngine : public QIconEngine {
  public:
    StatusImageEngine(std::string_view name, const QColor& color) : name_(name), color_(color) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
               QIcon::State /*state*/) override {
        const int side = std::min(rect.width(), rect.height());
        const auto rgb = color_.isValid() ? std::optional<std::uint32_t>(color_.rgb() & 0xffffffU)
                                          : std::nullopt;
        const auto pixels = nocturo::statusImage(name_, side, rgb);
        QImage image(side, side, QImage::Format_ARGB32);
        std::memcpy(image.bits(), pixels.data(), pixels.size() * sizeof(std::uint32_t));
        painter->drawImage(rect.x() + (rect.width() - side) / 2,
                           rect.y() + (rect.height() - side) / 2, image);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new StatusImageEngine(*this); }

  private:
    std::string_view name_;
    QColor color_;
};

} // namespace

QIcon statusIcon(std::string_view name, const QColor& color) {
    for (const std::string_view known : {kStatusTemplate, kStatusActiveTemplate}) {
        if (name == known) {
            return QIcon(new StatusImageEngine(known, color));
        }
    }
    return {};
}

} // namespace nocturo
