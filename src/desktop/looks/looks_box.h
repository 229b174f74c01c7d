#pragma once

#include "base/result.h"

#include <QWidget>

#include <functional>
#include <string>

class QMenu;
class QToolButton;
class QVBoxLayout;

namespace nocturo {

class ChosenLook;
class DefaultsStore;
class LooksRow;
struct PreviewCurves;

/// The row of looks, with what keeps, renames, orders and deletes them. Main thread only.
class LooksBox : public QWidget {
    Q_OBJECT

  public:
    explicit LooksBox(QWidget* parent = nullptr);

    /// Both must outlive the box. `pick` is called with the name of a look that was clicked;
    /// `shown` answers with that of the one to tick, which is that in force without it.
    void setLooks(DefaultsStore& defaults, ChosenLook& chosen,
                  std::function<void(const std::string& name)> pick,
                  std::function<std::string()> shown = {});

    /// Lists the looks anew. Nothing before there are any.
    void list();

    /// Shows which look is in force now.
    void tick();

    /// Whether there is little room; there is enough at first.
    void setTight(bool isTight);

    /// What the pictures are drawn from.
    void setCurves(const PreviewCurves& curves);

  private:
    void makeMenu();
    void askForName();
    void askForOtherName();
    void askWhetherToRemove();
    void move(int places);
    void showFailure(const Result<void>& result);

    DefaultsStore* defaults_ = nullptr; // what names looks
    ChosenLook* chosen_ = nullptr;
    std::function<std::string()> shown_;
    LooksRow* row_;
    QToolButton* saveButton_;
    QToolButton* menuButton_;
    QVBoxLayout* buttons_;
    QMenu* menu_;
};

} // namespace nocturo
