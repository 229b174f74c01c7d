// How the page of the schedule is made.

#include "automation/automation.h"
#include "automation/schedule_setting.h"
#include "desktop/controls/page_parts.h"
#include "desktop/qt/localized.h"
#include "desktop/schedule/point_handle.h"
#include "desktop/schedule/schedule_page.h"
#include "desktop/schedule/schedule_strip.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTimeEdit>
#include <QTreeWidget>

#include <algorithm>
#include <iterator>

namespace nocturo {

namespace {

/// Minutes before or after something.
class OffsetField : public QSpinBox {
  public:
    OffsetField() {
        setRange(-12 * 60, 12 * 60);
        setSingleStep(5);
        setSuffix(localized(" min"));
        setKeyboardTracking(false);
    }

    QString textFromValue(int minutes) const override { return signedNumber(minutes); }
    int valueFromText(const QString& text) const override {
        return QSpinBox::valueFromText(QString(text).replace(kMinus, u'-'));
    }
    QValidator::State validate(QString& text, int& position) const override {
        QString typed = QString(text).replace(kMinus, u'-');
        return QSpinBox::validate(typed, position);
    }
};

} // namespace

void SchedulePage::make() {
    strip_ = new ScheduleStrip;
    connect(strip_, &ScheduleStrip::moved, this, &SchedulePage::movePoint);
    connect(strip_, &ScheduleStrip::chosen, this, &SchedulePage::choose);
    problem_ = newSentence();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(newTop());
    layout->addWidget(strip_, 2); // grows first, and no further than its times need
    layout->addLayout(newEditor(), 1);
    layout->addWidget(problem_);
    layout->addLayout(newBottom());
}

/// As they are seen, since handles come and go.
void SchedulePage::orderControls() {
    std::vector<QWidget*> order = {use_, begin_, resume_};
    std::ranges::copy(strip_->handlesInOrder(), std::back_inserter(order));
    std::ranges::copy(std::initializer_list<QWidget*>{list_, anchor_, time_, offset_, look_, add_,
                                                      remove_, place_, fade_},
                      std::back_inserter(order));
    orderTabs(*this, order);
}

QLayout* SchedulePage::newTop() {
    use_ = new QCheckBox(localized("&Choose looks by the clock and the sun"));
    use_->setObjectName(QStringLiteral("useSchedule"));
    connect(use_, &QAbstractButton::clicked, this,
            [this](bool on) { around_->defaults.setBool(on, kUseSchedule); });
    sentence_ = newSentence();
    begin_ = new QPushButton(localized("Pa&use"));
    begin_->setAutoDefault(false);
    describe(*begin_, {}, localized("A pause gives the screens their own colors for a while."));
    auto* menu = new QMenu(begin_);
    const auto offer = [&](const QString& text, const char* words) {
        menu->addAction(text, this, [this, words] {
            if (const auto begun = around_->automation.pause(words); !begun) {
                say(begun.error().text);
            }
        });
    };
    offer(localized("30 minutes"), "30m");
    offer(localized("1 hour"), "1h");
    offer(localized("Until tomorrow"), "until tomorrow");
    begin_->setMenu(menu);
    resume_ = new QPushButton(localized("Resu&me"));
    resume_->setObjectName(QStringLiteral("resume"));
    resume_->setAutoDefault(false);
    connect(resume_, &QAbstractButton::clicked, this, [this] { around_->automation.resume(); });
    auto* row = new QHBoxLayout;
    row->addWidget(use_);
    row->addWidget(sentence_, 1);
    row->addWidget(begin_);
    row->addWidget(resume_);
    return row;
}

QLayout* SchedulePage::newBottom() {
    place_ = new QLineEdit;
    place_->setObjectName(QStringLiteral("schedulePlace"));
    describe(*place_, {},
             localized("Latitude and longitude, such as 52.5 13.4; by the time zone where empty"));
    connect(place_, &QLineEdit::editingFinished, this, &SchedulePage::takePlace);
    fade_ = new QSpinBox;
    fade_->setObjectName(QStringLiteral("scheduleFade"));
    fade_->setRange(static_cast<int>(kScheduleFadeMinutes.lowest),
                    static_cast<int>(kScheduleFadeMinutes.highest));
    fade_->setSingleStep(5);
    fade_->setSuffix(localized(" min"));
    fade_->setSpecialValueText(localized("at once"));
    fade_->setKeyboardTracking(false);
    describe(*fade_, {}, localized("How long the colors take to change when a point comes"));
    connect(fade_, &QSpinBox::valueChanged, this, [this](int minutes) {
        around_->defaults.setFloat(static_cast<float>(minutes), kScheduleFadeMinutes.key);
    });
    auto* row = new QHBoxLayout;
    row->addWidget(newLabel(localized("&Place of the sun:"), place_));
    row->addWidget(place_, 1);
    row->addWidget(newLabel(localized("Change o&ver:"), fade_));
    row->addWidget(fade_);
    return row;
}

QLayout* SchedulePage::newEditor() {
    list_ = newList(localized("Schedule"), 3, 1);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item != nullptr) {
            choose(item->data(0, Qt::UserRole).toInt());
        }
    });
    anchor_ = new QComboBox;
    anchor_->addItems({localized("Time"), localized("Dawn"), localized("Sunrise"),
                       localized("Sunset"), localized("Dusk")});
    time_ = new QTimeEdit;
    time_->setDisplayFormat(QStringLiteral("HH:mm"));
    time_->setKeyboardTracking(false);
    describe(*time_, localized("Time"));
    offset_ = new OffsetField;
    describe(*offset_, localized("Minutes before or after the sun"));
    time_->setMinimumWidth(offset_->sizeHint().width()); // one stands in the other's place
    look_ = new QComboBox;
    add_ = new QPushButton(localized("&Add"));
    add_->setObjectName(QStringLiteral("addPoint"));
    remove_ = new QPushButton(localized("&Remove"));
    remove_->setObjectName(QStringLiteral("removePoint"));
    for (QPushButton* button : {add_, remove_}) {
        button->setAutoDefault(false);
    }
    connect(anchor_, &QComboBox::activated, this, &SchedulePage::changePoint);
    connect(look_, &QComboBox::activated, this, &SchedulePage::changePoint);
    connect(time_, &QTimeEdit::timeChanged, this, &SchedulePage::changePoint);
    connect(offset_, &QSpinBox::valueChanged, this, &SchedulePage::changePoint);
    connect(add_, &QAbstractButton::clicked, this, &SchedulePage::addPoint);
    connect(remove_, &QAbstractButton::clicked, this, [this] {
        static_cast<void>(
            removeSchedulePoint(around_->defaults, static_cast<std::size_t>(current_)));
    });
    auto* form = new QFormLayout;
    addRow(*form, localized("&When:"), {anchor_, time_, offset_});
    addRow(*form, localized("&Look:"), {look_});
    return newListAndForm(list_, form, {add_, remove_});
}

} // namespace nocturo
