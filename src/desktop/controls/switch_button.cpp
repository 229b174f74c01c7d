#include "desktop/controls/switch_button.h"

#include "desktop/mixed_color.h"

#include <QPainter>

namespace nocturo {

namespace {

constexpr int kMargin = 3; // for the focus

} // namespace

SwitchButton::SwitchButton(QWidget* parent) : QCheckBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SwitchButton::pill() const {
    const int height = fontMetrics().height() + 4;
    return {height * 2, height};
}

QSize SwitchButton::sizeHint() const {
    return pill() + QSize(2, 2) * kMargin;
}

void SwitchButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor paper = palette().color(QPalette::Window);
    const QSizeF size(pill());
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const QRectF track(mirrored ? width() - kMargin - size.width() : kMargin,
                       (height() - size.height()) / 2, size.width(), size.height());
    const double round = size.height() / 2;

    // Off differs by place and fill, not by color alone.
    painter.setPen(QPen(mixedColor(paper, ink, 0.55F), 1));
    painter.setBrush(isChecked() ? palette().color(QPalette::Highlight)
                                 : mixedColor(paper, ink, 0.12F));
    painter.drawRoundedRect(track.adjusted(0.5, 0.5, -0.5, -0.5), round, round);
    const double knob = size.height() - 6;
    const bool atRight = isChecked() != mirrored;
    painter.setBrush(isChecked() ? palette().color(QPalette::HighlightedText)
                                 : mixedColor(paper, ink, 0.7F));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(
        QRectF(atRight ? track.right() - 3 - knob : track.left() + 3, track.top() + 3, knob, knob));
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(mixedColor(palette().color(QPalette::Highlight), ink, 0.4F), 2));
        painter.drawRoundedRect(track.adjusted(-1, -1, 1, 1), round + 1, round + 1);
    }
}

} // namespace nocturo
