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
#include <QGroupBox>
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
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(newPauseBox());
    layout->addWidget(newScheduleBox(), 1);
}

/// As they are seen, since handles come and go.
void SchedulePage::orderControls() {
    std::vector<QWidget*> order = {begin_, resume_, use_};
    std::ranges::copy(strip_->handlesInOrder(), std::back_inserter(order));
    std::ranges::copy(std::initializer_list<QWidget*>{list_, anchor_, time_, offset_, look_, add_,
                                                      remove_, place_},
                      std::back_inserter(order));
    orderTabs(*this, order);
}

QWidget* SchedulePage::newPauseBox() {
    auto* box = new QGroupBox(localized("Pause"));
    auto* layout = new QHBoxLayout(box);
    pause_ = newSentence();
    begin_ = new QPushButton(localized("Pause"));
    begin_->setAutoDefault(false);
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
    resume_ = new QPushButton(localized("Resume"));
    resume_->setObjectName(QStringLiteral("resume"));
    resume_->setAutoDefault(false);
    connect(resume_, &QAbstractButton::clicked, this, [this] { around_->automation.resume(); });
    layout->addWidget(pause_, 1);
    layout->addWidget(begin_);
    layout->addWidget(resume_);
    return box;
}

QWidget* SchedulePage::newScheduleBox() {
    auto* box = new QGroupBox(localized("Schedule"));
    auto* layout = new QVBoxLayout(box);
    use_ = new QCheckBox(localized("Choose looks by the clock and the sun"));
    use_->setObjectName(QStringLiteral("useSchedule"));
    connect(use_, &QAbstractButton::clicked, this,
            [this](bool on) { around_->defaults.setBool(on, kUseSchedule); });
    sentence_ = newSentence();
    strip_ = new ScheduleStrip;
    connect(strip_, &ScheduleStrip::moved, this, &SchedulePage::movePoint);
    connect(strip_, &ScheduleStrip::chosen, this, &SchedulePage::choose);
    list_ = newList(localized("Schedule"), 3);
    connect(list_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item != nullptr) {
            choose(item->data(0, Qt::UserRole).toInt());
        }
    });
    problem_ = newSentence();
    place_ = new QLineEdit;
    place_->setObjectName(QStringLiteral("schedulePlace"));
    describe(*place_, localized("Place"),
             localized("Latitude and longitude, such as 52.5 13.4; by the time zone where empty"));
    connect(place_, &QLineEdit::editingFinished, this, &SchedulePage::takePlace);
    auto* place = new QFormLayout;
    place->addRow(localized("Place of the sun:"), place_);
    layout->addWidget(use_);
    layout->addWidget(sentence_);
    layout->addWidget(strip_);
    layout->addWidget(list_, 1);
    layout->addLayout(newEditor());
    layout->addWidget(problem_);
    layout->addLayout(place);
    return box;
}

QLayout* SchedulePage::newEditor() {
    anchor_ = new QComboBox;
    anchor_->addItems({localized("Time"), localized("Dawn"), localized("Sunrise"),
                       localized("Sunset"), localized("Dusk")});
    describe(*anchor_, localized("What the point's time is counted from"));
    time_ = new QTimeEdit;
    time_->setDisplayFormat(QStringLiteral("HH:mm"));
    time_->setKeyboardTracking(false);
    describe(*time_, localized("Time"));
    offset_ = new OffsetField;
    describe(*offset_, localized("Minutes before or after the sun"));
    look_ = new QComboBox;
    describe(*look_, localized("Look of the point"));
    add_ = new QPushButton(localized("Add"));
    add_->setObjectName(QStringLiteral("addPoint"));
    remove_ = new QPushButton(localized("Remove"));
    remove_->setObjectName(QStringLiteral("removePoint"));
    connect(anchor_, &QComboBox::activated, this, &SchedulePage::changePoint);
    connect(look_, &QComboBox::activated, this, &SchedulePage::changePoint);
    connect(time_, &QTimeEdit::timeChanged, this, &SchedulePage::changePoint);
    connect(offset_, &QSpinBox::valueChanged, this, &SchedulePage::changePoint);
    connect(add_, &QAbstractButton::clicked, this, &SchedulePage::addPoint);
    connect(remove_, &QAbstractButton::clicked, this, [this] {
        static_cast<void>(
            removeSchedulePoint(around_->defaults, static_cast<std::size_t>(current_)));
    });
    auto* row = new QHBoxLayout;
    for (QWidget* part : std::initializer_list<QWidget*>{anchor_, time_, offset_}) {
        row->addWidget(part);
    }
    row->addWidget(look_, 1);
    for (QPushButton* button : {add_, remove_}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    return row;
}

} // namespace nocturo
