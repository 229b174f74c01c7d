#pragma once

#include "automation/schedule_day.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace nocturo {

class PointHandle;

/// A day of 24 hours with its daylight, the points of a schedule as handles on it and what each
/// brings written behind it, until the next; without the times where it is low. It does not change
/// the points: it tells where the user has put one. Main thread only.
class ScheduleStrip : public QWidget {
    Q_OBJECT

  public:
    /// A point on it.
    struct Point {
        std::optional<int> time; // in minutes since midnight; nothing where it does not come
        QString name;            // what it brings
        QString description;     // when it comes by the sun, in words; may be empty
        bool isOn = false;
    };

    explicit ScheduleStrip(QWidget* parent = nullptr);

    /// The handle that has the keyboard keeps it as long as there are as many points.
    void setPoints(std::vector<Point> points);

    /// Marks the point of that index; none for -1.
    void setCurrent(int index);

    /// The handles that are shown, the first of the day first.
    std::vector<QWidget*> handlesInOrder() const;

    void setSun(const SunOfDay& sun);
    void setNow(int minutes);

    QSize sizeHint() const override;

  Q_SIGNALS:
    void moved(int index, int minutes);
    void chosen(int index);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    bool hasRoomForTimes() const;
    QRect track() const;
    int xOf(int minutes) const;
    int timeAt(int x) const;
    void addHandle();
    void followFont();
    void placeHandles();
    std::vector<int> inOrder() const;
    void paintDaylight(QPainter& painter) const;
    void paintHours(QPainter& painter) const;
    void paintNames(QPainter& painter) const;
    void paintTimes(QPainter& painter) const;

    std::vector<Point> points_;
    std::vector<PointHandle*> handles_; // of each
    SunOfDay sun_;
    int now_ = -1;
    int current_ = -1;
};

} // namespace nocturo
