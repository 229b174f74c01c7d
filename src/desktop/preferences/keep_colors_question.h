#pragma once

#include "desktop/preferences/screen_colors.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <optional>

class QMessageBox;

namespace nocturo {

/// Asks "Keep these colors?" when a change in the preference window has made every affected screen
/// unreadable, and goes back to the last readable colors when nobody answers within ten seconds.
/// Colors that were kept are not asked about again until they change.
class KeepColorsQuestion : public QObject {
    Q_OBJECT

  public:
    static constexpr int kSeconds = 10;

    /// `unreadable` tells whether the effect is on and no screen that it is on can be read.
    /// `second` is how long a second takes.
    KeepColorsQuestion(QWidget& window, std::function<bool()> unreadable,
                       std::chrono::milliseconds second = std::chrono::seconds(1));

    /// The user has changed what was `before`. While a slider is held the question waits: letting
    /// go where the screens are readable is an answer as well.
    void colorsDidChange(const ScreenColors& before);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void considerAsking();
    void ask();
    void tick();
    void keep();
    void goBack();
    void withdraw();

    QWidget& window_;
    std::function<bool()> unreadable_;
    std::optional<ScreenColors> lastReadable_; // while there is something to ask
    std::optional<ScreenColors> questioned_;   // while the question is shown
    std::optional<ScreenColors> kept_;
    QPointer<QMessageBox> box_;
    QTimer second_;
    QTimer released_; // lets the slider take the release in first
    int secondsLeft_ = 0;
};

} // namespace nocturo
