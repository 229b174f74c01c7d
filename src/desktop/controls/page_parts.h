#pragma once

#include <QStringList>

#include <vector>

class QComboBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

namespace nocturo {

class Looks;

// What pages that are made by hand are made of.

/// Sentences, as many as it takes.
QLabel* newSentence();

/// Rows of texts without a header, as wide as they need to be.
QTreeWidget* newList(const QString& name, int columns);

/// Adds a row to such a list, with some room around its texts.
QTreeWidgetItem* newRow(QTreeWidget& list, const QStringList& texts);

/// For screen readers and the pointer.
void describe(QWidget& control, const QString& name, const QString& toolTip = {});

/// Lists the text for none, whose data is empty, and the looks with their names as data, and
/// chooses one, which may be gone. Tells nobody.
void listLooks(QComboBox& choice, Looks& looks, const QString& chosen, const QString& none);

/// The keyboard comes to them after the tabs that the page belongs to, in this order: whatever is
/// made late would be last otherwise.
void orderTabs(const QWidget& page, const std::vector<QWidget*>& order);

} // namespace nocturo
