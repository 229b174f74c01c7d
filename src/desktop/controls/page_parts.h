#pragma once

#include <QStringList>

#include <vector>

class QAbstractButton;
class QComboBox;
class QFormLayout;
class QLabel;
class QLayout;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

namespace nocturo {

class Looks;

// What pages that are made by hand are made of.

/// Sentences, as many as it takes.
QLabel* newSentence();

/// The label of a control, with its mnemonic.
QLabel* newLabel(const QString& text, QWidget* control);

/// Rows of texts without a header. One column takes the room that the others leave; the list takes
/// what is left of the page's height, and that of three rows at least.
QTreeWidget* newList(const QString& name, int columns, int widest);

/// Adds a row to such a list, with some room around its texts.
QTreeWidgetItem* newRow(QTreeWidget& list, const QStringList& texts);

/// Adds a row whose label belongs to the first of its controls.
void addRow(QFormLayout& form, const QString& label, const std::vector<QWidget*>& controls);

/// A list, and beside it what its current row is made of with the buttons below.
QLayout* newListAndForm(QTreeWidget* list, QFormLayout* form,
                        const std::vector<QAbstractButton*>& buttons);

/// For screen readers and the pointer.
void describe(QWidget& control, const QString& name, const QString& toolTip = {});

/// Lists the text for none, whose data is empty, and the looks with their names as data, and
/// chooses one, which may be gone. Tells nobody.
void listLooks(QComboBox& choice, Looks& looks, const QString& chosen, const QString& none);

/// The keyboard comes to them after the tabs that the page belongs to, in this order: whatever is
/// made late would be last otherwise.
void orderTabs(const QWidget& page, const std::vector<QWidget*>& order);

} // namespace nocturo
