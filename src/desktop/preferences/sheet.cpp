#include "desktop/preferences/sheet.h"

#include "desktop/qt/localized.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QSpacerItem>

namespace nocturo {

QMessageBox* newSheet(QWidget* window, QMessageBox::Icon icon, const QString& title,
                      const QString& message) {
    auto* sheet =
        new QMessageBox(icon, QGuiApplication::applicationDisplayName(), title, {}, window);
    sheet->setInformativeText(message);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setWindowModality(Qt::WindowModal);
    return sheet;
}

void showSheet(QMessageBox& sheet) {
    widenMessage(sheet);
    sheet.show();
}

void showFailure(QWidget* window, const std::string& sentence) {
    QMessageBox* alert =
        newSheet(window, QMessageBox::Warning, QString::fromStdString(sentence), {});
    alert->setDefaultButton(alert->addButton(localized("OK"), QMessageBox::AcceptRole));
    showSheet(*alert);
}

void widenMessage(QMessageBox& message) {
    for (QLabel* label : message.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText); // what looks like markup is a file's name
    }
    // Left to itself the box is as narrow as its title, and the explanation a column.
    if (auto* grid = qobject_cast<QGridLayout*>(message.layout())) {
        const int width = message.fontMetrics().averageCharWidth() * 60;
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

} // namespace nocturo
