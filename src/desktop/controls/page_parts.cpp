#include "desktop/controls/page_parts.h"

#include "documents/looks.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTreeWidget>

namespace nocturo {

QLabel* newSentence() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QTreeWidget* newList(const QString& name, int columns) {
    auto* list = new QTreeWidget;
    list->setColumnCount(columns);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->setMinimumHeight(list->fontMetrics().height() * 5);
    describe(*list, name);
    return list;
}

QTreeWidgetItem* newRow(QTreeWidget& list, const QStringList& texts) {
    auto* row = new QTreeWidgetItem(&list, texts);
    const QFontMetrics metrics = list.fontMetrics();
    const int line = metrics.height();
    for (int column = 0; column < texts.size(); ++column) {
        const int width = metrics.horizontalAdvance(texts[column]);
        row->setSizeHint(column, {width + 2 * line, line * 3 / 2});
    }
    return row;
}

void describe(QWidget& control, const QString& name, const QString& toolTip) {
    control.setAccessibleName(name);
    control.setToolTip(toolTip);
    control.setWhatsThis(toolTip);
}

void listLooks(QComboBox& choice, Looks& looks, const QString& chosen, const QString& none) {
    const QSignalBlocker quiet(choice);
    choice.clear();
    choice.addItem(none, QString());
    for (const Look& look : looks.all()) {
        choice.addItem(QString::fromStdString(look.title), QString::fromStdString(look.name));
    }
    if (choice.findData(chosen) < 0) {
        choice.addItem(chosen, chosen);
    }
    choice.setCurrentIndex(choice.findData(chosen));
}

void orderTabs(const QWidget& page, const std::vector<QWidget*>& order) {
    QWidget* before = page.parentWidget();
    while (before != nullptr && qobject_cast<QTabWidget*>(before) == nullptr) {
        before = before->parentWidget();
    }
    before = before != nullptr ? before->focusProxy() : nullptr;
    for (QWidget* part : order) {
        if (before != nullptr) {
            QWidget::setTabOrder(before, part);
        }
        before = part;
    }
}

} // namespace nocturo
