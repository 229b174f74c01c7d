#include "desktop/rules/rules_page.h"

#include "automation/automation.h"
#include "automation/rules_setting.h"
#include "automation/word_list.h"
#include "base/notification_center.h"
#include "desktop/controls/page_parts.h"
#include "desktop/qt/localized.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <utility>

namespace nocturo {

namespace {

constexpr std::array kShownSettings{kRules, kUseRules};
constexpr int kProgramRow = 1; // of the form

/// Nocturo's own window, which is in front while one picks another.
bool isOurs(const std::string& program) {
    const QString name = QString::fromStdString(program);
    return name.compare(QLatin1String("nocturo"), Qt::CaseInsensitive) == 0 ||
           name == QLatin1String("org.nocturo.Nocturo");
}

} // namespace

RulesPage::RulesPage(QWidget* parent) : QWidget(parent) {}

RulesPage::~RulesPage() {
    if (around_) {
        around_->localCenter.removeObserver(this);
    }
}

void RulesPage::setSurroundings(const AutomationSurroundings& surroundings) {
    around_.emplace(surroundings);
}

void RulesPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (around_ && list_ == nullptr) {
        make();
        listen();
    }
    if (around_) {
        offerConditions();
        update();
    }
}

void RulesPage::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (pick_ != nullptr) {
        pickWindow(false);
    }
}

void RulesPage::make() {
    use_ = new QCheckBox(localized("&Choose looks by what is in front"));
    use_->setObjectName(QStringLiteral("useRules"));
    connect(use_, &QAbstractButton::clicked, this,
            [this](bool on) { around_->defaults.setBool(on, kUseRules); });
    sentence_ = newSentence();
    list_ = newList(localized("Rules"), 2, 0);
    describe(*list_, list_->accessibleName(),
             localized("Of the rules that hold for a screen the first one counts."));
    connect(list_, &QTreeWidget::currentItemChanged, this, &RulesPage::choose);
    problem_ = newSentence();
    form_ = newForm();
    makeButtons();
    makeMoves();
    auto* top = new QHBoxLayout;
    top->addWidget(use_);
    top->addWidget(sentence_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(newListAndForm(list_, form_, {add_, remove_, up_, down_}), 1);
    layout->addWidget(problem_);
    orderTabs(*this, {use_, list_, when_, program_, pick_, look_, add_, remove_, up_, down_});
}

QFormLayout* RulesPage::newForm() {
    when_ = new QComboBox;
    connect(when_, &QComboBox::activated, this, &RulesPage::updateControls);
    program_ = new QLineEdit;
    program_->setObjectName(QStringLiteral("ruleProgram"));
    program_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // the list needs the room
    program_->setMinimumWidth(6 * program_->fontMetrics().height());
    describe(*program_, {}, localized("As its windows are called"));
    connect(program_, &QLineEdit::textChanged, this, &RulesPage::updateControls);
    pick_ = new QPushButton(localized("P&ick a window"));
    pick_->setObjectName(QStringLiteral("pickWindow"));
    pick_->setCheckable(true);
    pick_->setAutoDefault(false);
    describe(*pick_, {}, localized("The next window that comes to the front tells its program"));
    connect(pick_, &QAbstractButton::clicked, this, &RulesPage::pickWindow);
    look_ = new QComboBox;
    auto* form = new QFormLayout;
    addRow(*form, localized("&When:"), {when_});
    addRow(*form, localized("&Program:"), {program_, pick_});
    addRow(*form, localized("&Look:"), {look_});
    return form;
}

void RulesPage::makeButtons() {
    add_ = new QPushButton(localized("&Add"));
    add_->setObjectName(QStringLiteral("addRule"));
    add_->setAutoDefault(false);
    connect(add_, &QAbstractButton::clicked, this, &RulesPage::add);
    remove_ = new QPushButton(localized("&Remove"));
    remove_->setObjectName(QStringLiteral("removeRule"));
    remove_->setAutoDefault(false);
    connect(remove_, &QAbstractButton::clicked, this, [this] {
        const int row = list_->indexOfTopLevelItem(list_->currentItem());
        static_cast<void>(removeRule(around_->defaults, static_cast<std::size_t>(row)));
    });
}

/// The keys are the list's alone, since a choice opens by one of them.
void RulesPage::makeMoves() {
    const auto make = [this](const QString& name, Qt::ArrowType arrow, Qt::Key key, int by) {
        auto* button = new QToolButton;
        const QKeySequence keys(Qt::ALT | key);
        button->setArrowType(arrow);
        button->setFocusPolicy(Qt::StrongFocus);
        describe(*button, name,
                 QStringLiteral("%1 (%2)").arg(name, keys.toString(QKeySequence::NativeText)));
        connect(button, &QAbstractButton::clicked, this, [this, by] { move(by); });
        auto* shortcut = new QShortcut(keys, list_);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, by] { move(by); });
        return button;
    };
    up_ = make(localized("Move the rule up"), Qt::UpArrow, Qt::Key_Up, -1);
    down_ = make(localized("Move the rule down"), Qt::DownArrow, Qt::Key_Down, 1);
}

void RulesPage::listen() {
    const auto follow = [this] {
        if (isVisible()) {
            update();
        }
    };
    around_->localCenter.addObserver(this, kRulingNotification, follow);
    around_->localCenter.addObserver(this, kLooksDidChangeNotification, follow);
    around_->localCenter.addObserver(this, NSUserDefaultsDidChangeNotification,
                                     [follow](const Subjects& settings) {
                                         if (settings.containAnyOf(kShownSettings)) {
                                             follow();
                                         }
                                     });
}

void RulesPage::offerConditions() {
    const bool seesWindows = around_->automation.rules().canSeeWindows();
    const auto offer = [this](const QString& text, Rule::When when) {
        when_->addItem(text, static_cast<int>(when));
    };
    if (when_->count() != (seesWindows ? 3 : 1)) { // what is chosen stays
        when_->clear();
        if (seesWindows) {
            offer(localized("A window fills a screen"), Rule::When::fullscreen);
            offer(localized("A program is in front"), Rule::When::program);
        }
        offer(localized("A game is running"), Rule::When::game);
    }
    form_->setRowVisible(kProgramRow, seesWindows);
    say(seesWindows
            ? std::string()
            : localized("This desktop does not tell which window is in front.").toStdString());
}

void RulesPage::update() {
    use_->setChecked(around_->defaults.boolForKey(kUseRules));
    listLooks(*look_, around_->looks, look_->currentData().toString(), localized("Off"));
    updateList();
    updateControls();
}

void RulesPage::updateList() {
    const int current = std::max(0, list_->indexOfTopLevelItem(list_->currentItem()));
    QStringList holding;
    {
        const QSignalBlocker quiet(list_);
        list_->clear();
        for (const ListedRule& listed : around_->automation.rules().listed()) {
            const auto rule = ruleFromWords(listed.words);
            QTreeWidgetItem* row =
                newRow(*list_, {rule ? conditionOf(*rule) : QString::fromStdString(listed.words),
                                rule ? titleOf(rule->look) : QString()});
            row->setData(0, Qt::UserRole, QString::fromStdString(listed.words));
            row->setData(1, Qt::UserRole, QString::fromStdString(listed.problem));
            if (listed.holds) {
                QFont bold = list_->font();
                bold.setBold(true);
                row->setFont(0, bold);
                row->setFont(1, bold);
                holding << row->text(0) + QStringLiteral(" – ") + row->text(1);
            }
        }
        list_->setCurrentItem(
            list_->topLevelItem(std::min(current, list_->topLevelItemCount() - 1)));
    }
    sentence_->setText(holding.isEmpty()
                           ? localized("No rule holds now.")
                           : filled(localized("Now: %@"), {holding.join(QStringLiteral("; "))}));
}

void RulesPage::updateControls() {
    const bool isOfProgram = when_->currentData().toInt() == static_cast<int>(Rule::When::program);
    program_->setEnabled(isOfProgram);
    form_->itemAt(kProgramRow, QFormLayout::LabelRole)->widget()->setEnabled(isOfProgram);
    add_->setEnabled(!isOfProgram || !program_->text().trimmed().isEmpty());
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    remove_->setEnabled(row >= 0);
    for (const auto& [button, isOfUse] :
         {std::pair(up_, row > 0),
          std::pair(down_, row >= 0 && row + 1 < list_->topLevelItemCount())}) {
        if (!isOfUse && button->hasFocus()) {
            list_->setFocus(); // not the other button, which would undo the move
        }
        button->setEnabled(isOfUse);
    }
}

QString RulesPage::conditionOf(const Rule& rule) const {
    switch (rule.when) {
    case Rule::When::program:
        return filled(localized("%@ is in front"), {QString::fromStdString(rule.program)});
    case Rule::When::game:
        return localized("A game is running");
    case Rule::When::fullscreen:
        break;
    }
    return localized("A window fills a screen");
}

QString RulesPage::titleOf(const std::string& look) const {
    const int row = look_->findData(QString::fromStdString(look));
    return row < 0 ? QString::fromStdString(look) : look_->itemText(row);
}

/// The rule stands in the controls then, from where it can be given another look.
void RulesPage::choose() {
    const QTreeWidgetItem* item = list_->currentItem();
    const auto rule = item != nullptr
                          ? ruleFromWords(item->data(0, Qt::UserRole).toString().toStdString())
                          : std::nullopt;
    const int when = rule ? when_->findData(static_cast<int>(rule->when)) : -1;
    if (when >= 0) {
        when_->setCurrentIndex(when);
        program_->setText(QString::fromStdString(rule->program));
        listLooks(*look_, around_->looks, QString::fromStdString(rule->look), localized("Off"));
    }
    say(item != nullptr ? item->data(1, Qt::UserRole).toString().toStdString() : std::string());
    updateControls();
}

/// Of two rules about the same the second would never count, so it takes the place of the first.
void RulesPage::add() {
    Rule rule;
    rule.when = static_cast<Rule::When>(when_->currentData().toInt());
    if (rule.when == Rule::When::program) {
        rule.program = program_->text().trimmed().toStdString();
    }
    rule.look = look_->currentData().toString().toStdString();
    const auto listed = around_->automation.rules().listed();
    const auto same = std::ranges::find_if(listed, [&](const ListedRule& each) {
        const auto other = ruleFromWords(each.words);
        return other && conditionText(*other) == conditionText(rule);
    });
    if (same != listed.end()) {
        static_cast<void>(replaceWords(around_->defaults, kRules,
                                       static_cast<std::size_t>(same - listed.begin()),
                                       textOf(rule)));
    } else if (const auto added = addRule(around_->defaults, around_->looks, textOf(rule));
               !added) {
        say(added.error().text);
    } else {
        list_->setCurrentItem(list_->topLevelItem(list_->topLevelItemCount() - 1));
    }
}

void RulesPage::move(int by) {
    const int row = list_->indexOfTopLevelItem(list_->currentItem());
    const int to = row + by;
    if (row >= 0 && to >= 0 &&
        moveRule(around_->defaults, static_cast<std::size_t>(row), static_cast<std::size_t>(to))) {
        list_->setCurrentItem(list_->topLevelItem(to));
    }
}

void RulesPage::pickWindow(bool isWanted) {
    pick_->setChecked(isWanted);
    if (isWanted) {
        picking_ = around_->automation.rules().follow([this] { windowCameToFront(); });
        say(localized("Now click a window of the program.").toStdString());
    } else if (std::exchange(picking_, nullptr) != nullptr) {
        say({});
    }
}

void RulesPage::windowCameToFront() {
    const auto programs =
        picking_ != nullptr ? picking_->inFront().programs : std::vector<std::string>();
    if (programs.empty() || std::ranges::any_of(programs, isOurs)) {
        return;
    }
    when_->setCurrentIndex(when_->findData(static_cast<int>(Rule::When::program)));
    program_->setText(QString::fromStdString(programs.back())); // the class, where there are two
    updateControls();
    // Who tells this is still at it.
    QMetaObject::invokeMethod(
        this,
        [this] {
            pickWindow(false);
            window()->raise();
            window()->activateWindow();
        },
        Qt::QueuedConnection);
}

void RulesPage::say(const std::string& problem) {
    problem_->setText(QString::fromStdString(problem));
    problem_->setVisible(!problem.empty());
}

} // namespace nocturo
