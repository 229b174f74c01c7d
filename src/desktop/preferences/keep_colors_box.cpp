#include "desktop/preferences/keep_colors_box.h"

#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace nocturo {

void KeepColorsBox::show(QWidget* window, int secondsLeft,
                         std::function<void(bool keep)> answered) {
    const bool canBeSeen =
        window != nullptr || QGuiApplication::platformName() != QLatin1String("offscreen");
    const bool isNew = box_ == nullptr;
    if (!canBeSeen) {
        return;
    }
    if (isNew) {
        make(window, std::move(answered));
    }
    box_->setInformativeText(
        filled(localized("The screens are hard to read now. They go back by themselves in %d s."),
               {QString::number(secondsLeft)}));
    if (isNew) {
        showSheet(*box_);
    }
}

void KeepColorsBox::make(QWidget* window, std::function<void(bool keep)> answered) {
    box_ = newSheet(window, QMessageBox::Question, localized("Keep these colors?"), QString());
    auto* keepButton = box_->addButton(localized("&Keep"), QMessageBox::AcceptRole);
    auto* backButton = box_->addButton(localized("&Go back"), QMessageBox::RejectRole);
    // Whoever cannot read the question and presses anything gets the readable screen.
    box_->setDefaultButton(backButton);
    box_->setEscapeButton(backButton);
    connect(box_, &QDialog::finished, this, [this, keepButton, answered = std::move(answered)] {
        answered(box_->clickedButton() == keepButton);
    });
}

void KeepColorsBox::withdraw() {
    if (QMessageBox* box = std::exchange(box_, nullptr)) {
        box->disconnect(this);
        box->close();
    }
}

void KeepColorsBox::whenPointerIsReleased(std::function<void()> action) {
    if (QGuiApplication::mouseButtons() == Qt::NoButton) {
        action();
        return;
    }
    whenReleased_ = std::move(action);
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeepColorsBox::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        QCoreApplication::instance()->removeEventFilter(this);
        // The slider takes the release in first.
        QTimer::singleShot(0, this, std::exchange(whenReleased_, nullptr));
    }
    return QObject::eventFilter(watched, event);
}

} // namespace nocturo
