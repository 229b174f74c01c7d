#include "desktop/qt/dark_palette.h"

#include <QApplication>
#include <QStyle>

namespace nocturo {

QPalette darkPalette() {
    QPalette palette(QColor(66, 66, 66), QColor(58, 58, 58));
    palette.setColor(QPalette::Base, QColor(26, 26, 26));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    palette.setColor(QPalette::Window, QColor(58, 58, 58));
    palette.setColor(QPalette::Button, QColor(72, 72, 72));
    palette.setColor(QPalette::Highlight, QColor(61, 125, 200));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(235, 235, 235));
        palette.setColor(QPalette::Disabled, role, QColor(150, 150, 150));
    }
    return palette;
}

void preferDark(bool dark) {
    static bool isOurs = false;
    constexpr int kMiddle = 128;
    if (isOurs && !dark) {
        isOurs = false;
        QApplication::setPalette(QPalette()); // the theme's
    } else if (dark && QApplication::style()->name() == QLatin1String("fusion") &&
               QApplication::palette().color(QPalette::Window).lightness() >= kMiddle) {
        isOurs = true;
        QApplication::setPalette(darkPalette());
    }
}

} // namespace nocturo
