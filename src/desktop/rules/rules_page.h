#pragma once

#include "desktop/automation_surroundings.h"
#include "settings/rule_words.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <string>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QToolButton;
class QTreeWidget;

namespace nocturo {

class Foreground;

/// The page of rules: which there are, which hold now, and what makes another one. It holds no
/// settings, and follows whoever changes them. Where the desktop does not tell of its windows it
/// offers nothing that is about them. Its controls are made when it is first shown. Main thread
/// only.
class RulesPage : public QWidget {
    Q_OBJECT

  public:
    explicit RulesPage(QWidget* parent = nullptr);
    ~RulesPage() override;

    /// Without them the page stays empty.
    void setSurroundings(const AutomationSurroundings& surroundings);

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void make();
    QFormLayout* newForm();
    void makeButtons();
    void makeMoves();
    void listen();
    void offerConditions();

    void update();
    void updateList();
    void updateControls();
    QString conditionOf(const Rule& rule) const;
    QString titleOf(const std::string& look) const;

    void choose();
    void add();
    void move(int by);
    void pickWindow(bool isWanted);
    void windowCameToFront();
    void say(const std::string& problem);

    std::optional<AutomationSurroundings> around_;
    std::unique_ptr<Foreground> picking_; // until a window was picked

    // Null until the page is made.
    QCheckBox* use_ = nullptr;
    QLabel* sentence_ = nullptr;
    QTreeWidget* list_ = nullptr;
    QFormLayout* form_ = nullptr;
    QComboBox* when_ = nullptr;
    QLineEdit* program_ = nullptr;
    QPushButton* pick_ = nullptr;
    QComboBox* look_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* remove_ = nullptr;
    QToolButton* up_ = nullptr;
    QToolButton* down_ = nullptr;
    QLabel* problem_ = nullptr;
};

} // namespace nocturo
