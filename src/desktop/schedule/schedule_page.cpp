#include "desktop/schedule/schedule_page.h"

#include "automation/automation.h"
#include "automation/schedule_setting.h"
#include "automation/word_list.h"
#include "base/local_time.h"
#include "base/notification_center.h"
#include "desktop/controls/page_parts.h"
#include "desktop/qt/localized.h"
#include "desktop/schedule/point_handle.h"
#include "desktop/schedule/schedule_strip.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimeEdit>
#include <QTreeWidget>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace nocturo {

namespace {

using namespace std::chrono;
using Anchor = SchedulePoint::Anchor;

constexpr int kMillisecondsOfMinute = 60'000;

int count(minutes time) {
    return static_cast<int>(time.count());
}

} // namespace

SchedulePage::SchedulePage(QWidget* parent) : QWidget(parent) {
    connect(&clock_, &QTimer::timeout, this, &SchedulePage::followClock);
}

SchedulePage::~SchedulePage() {
    if (around_) {
        around_->localCenter.removeObserver(this);
    }
}

void SchedulePage::setSurroundings(const AutomationSurroundings& surroundings) {
    around_.emplace(surroundings);
}

void SchedulePage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (around_ && strip_ == nullptr) {
        make();
        listen();
    }
    if (around_) {
        update();
        followClock();
    }
}

void SchedulePage::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    clock_.stop();
}

void SchedulePage::listen() {
    // After every change of the schedule's settings, too, once it was read.
    around_->localCenter.addObserver(this, kRulingNotification, [this] { follow(); });
    around_->localCenter.addObserver(this, kLooksDidChangeNotification, [this] { follow(); });
    around_->localCenter.addObserver(this, NSUserDefaultsDidChangeNotification,
                                     [this](const Subjects& settings) {
                                         if (settings.contain(kScheduleFadeMinutes.key)) {
                                             follow();
                                         }
                                     });
}

void SchedulePage::follow() {
    if (around_ && isVisible()) {
        update();
    }
}

void SchedulePage::followClock() {
    const Moment now = around_->automation.now();
    strip_->setNow(count(timeOfDay(now)));
    updateSentence();
    const auto sinceMinute = static_cast<int>((now - floor<minutes>(now)).count());
    clock_.start(kMillisecondsOfMinute - 1000 * sinceMinute);
}

void SchedulePage::update() {
    use_->setChecked(around_->defaults.boolForKey(kUseSchedule));
    const Moment now = around_->automation.now();
    const auto place = placeOfSchedule(around_->defaults);
    sun_ = sunOfDay(place, localDay(now));
    listedLooks_ = {{{}, localized("Off")}};
    for (const Look& look : around_->looks.all()) {
        listedLooks_.push_back({look.name, QString::fromStdString(look.title)});
    }
    points_.clear();
    for (const ListedPoint& listed : around_->automation.listedPoints()) {
        points_.push_back(schedulePoint(listed.words));
    }
    current_ = std::clamp(current_, points_.empty() ? -1 : 0, static_cast<int>(points_.size()) - 1);
    strip_->setSun(sun_);
    updatePoints();
    updateEditor();
    updateSentence();
    const QSignalBlocker quiet(fade_);
    fade_->setValue(
        static_cast<int>(std::lround(around_->defaults.floatForKey(kScheduleFadeMinutes))));
    if (!place_->hasFocus()) {
        const PropertyValue* typed = around_->defaults.objectForKey(kPlace);
        const auto* words = typed != nullptr ? typed->as<std::string>() : nullptr;
        place_->setText(words != nullptr ? QString::fromStdString(*words) : QString());
    }
    place_->setPlaceholderText(place ? QStringLiteral("%1 %2")
                                           .arg(place->latitude, 0, 'f', 2)
                                           .arg(place->longitude, 0, 'f', 2)
                                     : QString());
}

void SchedulePage::updatePoints() {
    std::vector<ScheduleStrip::Point> shown;
    std::vector<int> order;
    for (const auto& point : points_) {
        order.push_back(static_cast<int>(shown.size()));
        const auto time = point ? timeOfPoint(*point, sun_) : std::nullopt;
        shown.push_back({time ? std::optional(count(*time)) : std::nullopt,
                         point ? titleOf(*point) : QString(), point ? whenText(*point) : QString(),
                         point && !point->look.empty()});
    }
    std::ranges::stable_sort(order, {}, [&shown](int index) {
        return shown[static_cast<std::size_t>(index)].time.value_or(24 * 60);
    });
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const int index : order) {
        const auto place = static_cast<std::size_t>(index);
        const ScheduleStrip::Point& point = shown[place];
        const ListedPoint& listed = around_->automation.listedPoints()[place];
        QTreeWidgetItem* row = newRow(
            *list_, {point.time ? clockText(*point.time) : QStringLiteral("–"),
                     points_[place] ? point.description : QString::fromStdString(listed.words),
                     point.name});
        row->setData(0, Qt::UserRole, index);
        if (index == current_) {
            list_->setCurrentItem(row);
        }
    }
    strip_->setPoints(std::move(shown));
    strip_->setCurrent(current_);
    orderControls();
}

void SchedulePage::updateEditor() {
    const auto point = pointAt(current_);
    const bool isOfTheSun = point && point->anchor != Anchor::midnight;
    const std::array<QSignalBlocker, 3> quiet{QSignalBlocker(anchor_), QSignalBlocker(time_),
                                              QSignalBlocker(offset_)};
    for (QWidget* part : std::initializer_list<QWidget*>{anchor_, time_, offset_, look_}) {
        part->setEnabled(point.has_value());
    }
    remove_->setEnabled(current_ >= 0);
    add_->setEnabled(points_.size() < kMostSchedulePoints);
    time_->setVisible(!isOfTheSun);
    offset_->setVisible(isOfTheSun);
    listLooks(*look_, around_->looks, point ? QString::fromStdString(point->look) : QString(),
              localized("Off"));
    if (point) {
        anchor_->setCurrentIndex(static_cast<int>(point->anchor));
        const QTime time = QTime(0, 0).addSecs(isOfTheSun ? 0 : 60 * count(point->offset));
        if (time != time_->time()) { // what is being typed stays
            time_->setTime(time);
        }
        offset_->setValue(isOfTheSun ? count(point->offset) : 0);
    }
    say(current_ < 0
            ? std::string()
            : around_->automation.listedPoints()[static_cast<std::size_t>(current_)].problem);
}

void SchedulePage::updateSentence() {
    const Ruling ruling = around_->automation.ruling(true);
    const bool isPaused = ruling.by == Ruler::pause;
    resume_->setEnabled(isPaused);
    const ListedPoint* next = nullptr;
    for (const ListedPoint& listed : around_->automation.listedPoints()) {
        if (listed.next && (next == nullptr || *listed.next <= *next->next)) {
            next = &listed;
        }
    }
    const auto point = next != nullptr ? schedulePoint(next->words) : std::nullopt;
    if (isPaused) {
        sentence_->setText(pauseText(ruling));
    } else if (point) {
        const std::string time = clockText(*next->next, around_->automation.now());
        sentence_->setText(filled(localized("Next: %1$@ at %2$@"),
                                  {titleOf(*point), QString::fromStdString(time)}));
    } else {
        sentence_->setText(around_->automation.listedPoints().empty()
                               ? localized("Nothing is scheduled.")
                               : localized("Not in use."));
    }
}

QString SchedulePage::pauseText(const Ruling& ruling) const {
    if (!ruling.until) {
        return localized("Paused until you go on");
    }
    const Moment now = around_->automation.now();
    const auto left = count(ceil<minutes>(*ruling.until - now));
    return filled(localized("Paused until %1$@, %2$@ h left"),
                  {QString::fromStdString(clockText(*ruling.until, now)),
                   QStringLiteral("%1:%2").arg(left / 60).arg(left % 60, 2, 10, QLatin1Char('0'))});
}

void SchedulePage::choose(int index) {
    current_ = index;
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = list_->topLevelItem(row);
        if (item->data(0, Qt::UserRole).toInt() == index) {
            const QSignalBlocker quiet(list_);
            list_->setCurrentItem(item);
        }
    }
    strip_->setCurrent(index);
    updateEditor();
}

/// An evening and a morning first; after that an hour that is free.
void SchedulePage::addPoint() {
    const bool hasSun = sun_.sunset && sun_.sunrise;
    std::vector<SchedulePoint> offers = {
        {hasSun ? Anchor::sunset : Anchor::midnight, hasSun ? 0h : 20h,
         listedLooks_.size() > 1
             ? listedLooks_[std::min<std::size_t>(2, listedLooks_.size() - 1)].name
             : std::string()},
        {hasSun ? Anchor::sunrise : Anchor::midnight, hasSun ? 0h : 7h, {}}};
    for (hours hour = 12h; hour < 36h; hour += 1h) {
        offers.push_back({Anchor::midnight, hour % 24h, {}});
    }
    const auto isTaken = [this](const SchedulePoint& offer) {
        return std::ranges::any_of(points_, [&](const auto& point) {
            return point && point->anchor == offer.anchor && point->offset == offer.offset;
        });
    };
    const auto offer = std::ranges::find_if_not(offers, isTaken);
    const auto added = addSchedulePoint(around_->defaults, around_->looks,
                                        textOf(offer != offers.end() ? *offer : offers.back()));
    if (!added) {
        say(added.error().text);
        return;
    }
    choose(static_cast<int>(points_.size()) - 1);
    anchor_->setFocus();
}

void SchedulePage::changePoint() {
    const auto before = pointAt(current_);
    if (!before) {
        return;
    }
    SchedulePoint point = *before;
    point.anchor = static_cast<Anchor>(anchor_->currentIndex());
    point.look = look_->currentData().toString().toStdString();
    if (point.anchor != before->anchor) {
        // The time stays near where it was.
        point.offset =
            point.anchor == Anchor::midnight ? timeOfPoint(*before, sun_).value_or(12h) : 0min;
    } else if (point.anchor == Anchor::midnight) {
        point.offset = minutes(QTime(0, 0).secsTo(time_->time()) / 60);
    } else {
        point.offset = minutes(offset_->value());
    }
    if (point != *before) {
        static_cast<void>(replaceWords(around_->defaults, kSchedule,
                                       static_cast<std::size_t>(current_), textOf(point)));
    }
}

void SchedulePage::movePoint(int index, int minutesOfDay) {
    choose(index);
    if (const auto point = pointAt(index)) {
        static_cast<void>(replaceWords(around_->defaults, kSchedule,
                                       static_cast<std::size_t>(index),
                                       textOf(movedTo(*point, minutes(minutesOfDay), sun_))));
    }
}

void SchedulePage::takePlace() {
    const std::string words = place_->text().trimmed().toStdString();
    if (words.empty()) {
        around_->defaults.removeObjectForKey(kPlace);
    } else if (placeFromText(words)) {
        around_->defaults.setObject(words, kPlace);
    } else {
        say(place_->toolTip().toStdString());
    }
}

void SchedulePage::say(const std::string& problem) {
    problem_->setText(QString::fromStdString(problem));
    problem_->setVisible(!problem.empty());
}

std::optional<SchedulePoint> SchedulePage::pointAt(int index) const {
    return index < 0 ? std::nullopt : points_[static_cast<std::size_t>(index)];
}

QString SchedulePage::titleOf(const SchedulePoint& point) const {
    const auto found = std::ranges::find(listedLooks_, point.look, &ListedLook::name);
    return found != listedLooks_.end() ? found->title : QString::fromStdString(point.look);
}

QString SchedulePage::whenText(const SchedulePoint& point) const {
    if (point.anchor == Anchor::midnight) {
        return {};
    }
    const QString anchor = anchor_->itemText(static_cast<int>(point.anchor));
    return point.offset == 0min
               ? anchor
               : anchor + u' ' + signedNumber(count(point.offset)) + localized(" min");
}

} // namespace nocturo
