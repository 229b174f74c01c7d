#include "desktop/controls/page_parts.h"

#include "documents/looks.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTreeWidget>

namespace nocturo {

namespace {

int heightOfRow(const QTreeWidget& list) {
    return list.fontMetrics().height() * 3 / 2;
}

} // namespace

QLabel* newSentence() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* newLabel(const QString& text, QWidget* control) {
    auto* label = new QLabel(text);
    label->setBuddy(control);
    return label;
}

QTreeWidget* newList(const QString& name, int columns, int widest) {
    auto* list = new QTreeWidget;
    list->setColumnCount(columns);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(widest, QHeaderView::Stretch);
    list->setMinimumHeight(3 * heightOfRow(*list) + 2 * list->frameWidth());
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    describe(*list, name);
    return list;
}

QTreeWidgetItem* newRow(QTreeWidget& list, const QStringList& texts) {
    auto* row = new QTreeWidgetItem(&list, texts);
    const QFontMetrics metrics = list.fontMetrics();
    for (int column = 0; column < texts.size(); ++column) {
        const int width = metrics.horizontalAdvance(texts[column]);
        row->setSizeHint(column, {width + 2 * metrics.height(), heightOfRow(list)});
    }
    return row;
}

void addRow(QFormLayout& form, const QString& label, const std::vector<QWidget*>& controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls) {
        row->addWidget(control, control == controls.front() ? 1 : 0);
    }
    form.addRow(newLabel(label, controls.front()), row);
}

QLayout* newListAndForm(QTreeWidget* list, QFormLayout* form,
                        const std::vector<QAbstractButton*>& buttons) {
    auto* row = new QHBoxLayout;
    for (QAbstractButton* button : buttons) {
        row->addWidget(button);
    }
    row->addStretch();
    auto* column = new QVBoxLayout;
    column->addLayout(form);
    column->addLayout(row);
    column->addStretch();
    auto* both = new QHBoxLayout;
    both->addWidget(list, 1);
    both->addLayout(column);
    return both;
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
