#pragma once

#include "automation/schedule_day.h"
#include "desktop/automation_surroundings.h"

#include <QTimer>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTimeEdit;
class QTreeWidget;

namespace nocturo {

struct Ruling;
class ScheduleStrip;

/// The page of what happens by itself: pauses, and the schedule with its points on a day and in a
/// list, of which the current one is edited. It holds no settings: every control writes at once,
/// and follows whoever else does. Its controls are made when it is first shown. Main thread only.
class SchedulePage : public QWidget {
    Q_OBJECT

  public:
    explicit SchedulePage(QWidget* parent = nullptr);
    ~SchedulePage() override;

    /// Without them the page stays empty.
    void setSurroundings(const AutomationSurroundings& surroundings);

    /// Somebody turned the switch, which ends pauses.
    void follow();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct ListedLook {
        std::string name; // empty where the effect goes off
        QString title;
    };

    void make();
    QLayout* newTop();
    QLayout* newEditor();
    QLayout* newBottom();
    void listen();

    void update();
    void updatePoints();
    void orderControls();
    void updateEditor();
    void updateSentence();
    QString pauseText(const Ruling& ruling) const;
    void followClock();

    void choose(int index);
    void addPoint();
    void changePoint();
    void movePoint(int index, int minutes);
    void takePlace();
    void say(const std::string& problem);

    std::optional<SchedulePoint> pointAt(int index) const;
    QString titleOf(const SchedulePoint& point) const;
    QString whenText(const SchedulePoint& point) const;

    std::optional<AutomationSurroundings> around_;
    std::vector<ListedLook> listedLooks_;
    std::vector<std::optional<SchedulePoint>> points_; // of the setting; nothing for other words
    SunOfDay sun_;
    int current_ = -1;
    QTimer clock_; // while the page is shown

    // Null until the page is made.
    QPushButton* begin_ = nullptr;
    QPushButton* resume_ = nullptr;
    QCheckBox* use_ = nullptr;
    QLabel* sentence_ = nullptr;
    ScheduleStrip* strip_ = nullptr;
    QTreeWidget* list_ = nullptr;
    QComboBox* anchor_ = nullptr;
    QTimeEdit* time_ = nullptr;
    QSpinBox* offset_ = nullptr;
    QComboBox* look_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* remove_ = nullptr;
    QLabel* problem_ = nullptr;
    QLineEdit* place_ = nullptr;
    QSpinBox* fade_ = nullptr;
};

} // namespace nocturo
