#include "desktop/qt/dark_palette.h"

#include <QApplication>
#include <QStyle>

namespace nocturo {

QPalette darkPalette() {
    QPalette palette(QColor(53, 53, 53), QColor(42, 42, 42));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(48, 48, 48));
    palette.setColor(QPalette::Window, QColor(49, 49, 49));
    palette.setColor(QPalette::Button, QColor(60, 60, 60));
    palette.setColor(QPalette::Highlight, QColor(61, 125, 200));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(235, 235, 235));
        palette.setColor(QPalette::Disabled, role, QColor(140, 140, 140));
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
