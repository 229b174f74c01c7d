#include "desktop/looks/looks_box.h"

#include "automation/look_names.h"
#include "desktop/looks/looks_row.h"
#include "desktop/looks/name_sheet.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"
#include "documents/chosen_look.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace nocturo {

namespace {

QToolButton* newButton(QWidget* parent, const QString& text, const QString& toolTip) {
    auto* button = new QToolButton(parent);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    return button;
}

} // namespace

LooksBox::LooksBox(QWidget* parent)
    : QWidget(parent), row_(new LooksRow(this)),
      saveButton_(newButton(this, localized("Save as a look..."),
                            localized("Keeps the effects under a name of your own"))),
      menuButton_(newButton(this, localized("Change"),
                            localized("Renames, moves or deletes the look that is marked"))),
      buttons_(new QVBoxLayout), menu_(new QMenu(this)) {
    setFocusProxy(row_);
    row_->setObjectName(QStringLiteral("looksRow"));
    row_->setAccessibleName(localized("Looks"));
    row_->setToolTip(localized("A click puts a look on the screens, another one takes it away"));
    saveButton_->setObjectName(QStringLiteral("saveLook"));
    menuButton_->setObjectName(QStringLiteral("changeLook"));
    makeMenu();
    buttons_->addWidget(saveButton_);
    buttons_->addWidget(menuButton_);
    buttons_->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(row_, 1, Qt::AlignTop);
    layout->addLayout(buttons_);
    connect(saveButton_, &QToolButton::clicked, this, &LooksBox::askForName);
    connect(row_, &LooksRow::renameWanted, this, &LooksBox::askForOtherName);
    connect(row_, &LooksRow::removalWanted, this, &LooksBox::askWhetherToRemove);
    connect(row_, &LooksRow::moveWanted, this, &LooksBox::move);
}

void LooksBox::makeMenu() {
    QAction* rename = menu_->addAction(localized("Rename..."), this, &LooksBox::askForOtherName);
    QAction* earlier = menu_->addAction(localized("Move to the front"), this, [this] { move(-1); });
    QAction* later = menu_->addAction(localized("Move to the back"), this, [this] { move(1); });
    menu_->addSeparator();
    QAction* remove = menu_->addAction(localized("Delete..."), this, &LooksBox::askWhetherToRemove);
    connect(menu_, &QMenu::aboutToShow, this, [=, this] {
        const Look* look = row_->currentLook();
        const bool isOwn = look != nullptr && look->isOwn;
        rename->setEnabled(isOwn);
        remove->setEnabled(isOwn);
        earlier->setEnabled(look != nullptr && row_->currentRow() > 0);
        later->setEnabled(look != nullptr && row_->currentRow() + 1 < row_->count());
    });
    menuButton_->setMenu(menu_);
    menuButton_->setPopupMode(QToolButton::InstantPopup);
    row_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(row_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& point) { menu_->popup(row_->viewport()->mapToGlobal(point)); });
}

void LooksBox::setLooks(DefaultsStore& defaults, ChosenLook& chosen,
                        std::function<void(const std::string& name)> pick,
                        std::function<std::string()> shown) {
    defaults_ = &defaults;
    chosen_ = &chosen;
    shown_ = std::move(shown);
    connect(row_, &LooksRow::picked, this,
            [pick = std::move(pick)](const QString& name) { pick(name.toStdString()); });
    list();
}

void LooksBox::list() {
    if (chosen_ != nullptr) {
        row_->setLooks(chosen_->looks().all());
        tick();
    }
}

void LooksBox::tick() {
    if (chosen_ != nullptr) {
        row_->setInForce(shown_ ? shown_() : chosen_->nameInForce());
    }
}

void LooksBox::setTight(bool isTight) {
    row_->setTight(isTight);
    buttons_->setSpacing(isTight ? 2 : -1);
}

void LooksBox::setCurves(const PreviewCurves& curves) {
    row_->setCurves(curves);
}

void LooksBox::askForName() {
    auto* sheet = new NameSheet(
        window(), localized("Save as a look"), {}, localized("Save"),
        [this](const std::string& name) { return chosen_->save(name); },
        [this](const std::string& name) { return chosen_->looks().named(name) != nullptr; });
    sheet->show();
}

void LooksBox::askForOtherName() {
    const Look* look = row_->currentLook();
    if (look == nullptr || !look->isOwn) {
        return;
    }
    auto* sheet =
        new NameSheet(window(), localized("Rename Look"), QString::fromStdString(look->name),
                      localized("Rename"), [this, from = look->name](const std::string& name) {
                          auto renamed = name == from
                                             ? Result<void>()
                                             : renameLook(*defaults_, *chosen_, from, name);
                          row_->setCurrentLook(name);
                          return renamed;
                      });
    sheet->show();
}

void LooksBox::askWhetherToRemove() {
    const Look* look = row_->currentLook();
    if (look == nullptr || !look->isOwn) {
        return;
    }
    QStringList naming;
    for (const std::string& each : namingLook(*defaults_, chosen_->looks(), look->name)) {
        naming << QString::fromStdString(each);
    }
    QMessageBox* question = newSheet(
        window(), QMessageBox::Question,
        filled(localized("Delete the look \"%@\"?"), {QString::fromStdString(look->title)}),
        naming.isEmpty()
            ? QString()
            : filled(localized("It will be missed by: %@."), {naming.join(QStringLiteral(", "))}));
    auto* remove = question->addButton(localized("Delete"), QMessageBox::DestructiveRole);
    question->setDefaultButton(question->addButton(localized("Cancel"), QMessageBox::RejectRole));
    connect(remove, &QAbstractButton::clicked, this,
            [this, name = look->name] { showFailure(chosen_->looks().remove(name)); });
    showSheet(*question);
}

void LooksBox::move(int places) {
    const Look* look = row_->currentLook();
    const int to = row_->currentRow() + places;
    if (look == nullptr || to < 0 || to >= row_->count()) {
        return;
    }
    showFailure(chosen_->looks().move(std::string(look->name), static_cast<std::size_t>(to)));
}

void LooksBox::showFailure(const Result<void>& result) {
    if (!result) {
        nocturo::showFailure(window(), result.error().text);
    }
}

} // namespace nocturo
