#include "desktop/preferences/keep_colors_question.h"

#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>

#include <utility>

namespace nocturo {

KeepColorsQuestion::KeepColorsQuestion(QWidget& window, std::function<bool()> unreadable,
                                       std::chrono::milliseconds second)
    : window_(window), unreadable_(std::move(unreadable)) {
    second_.setInterval(second);
    connect(&second_, &QTimer::timeout, this, &KeepColorsQuestion::tick);
    released_.setSingleShot(true);
    connect(&released_, &QTimer::timeout, this, &KeepColorsQuestion::considerAsking);
}

void KeepColorsQuestion::colorsDidChange(const ScreenColors& before) {
    if (!unreadable_()) {
        kept_.reset();
        withdraw();
        return;
    }
    if (!lastReadable_) {
        lastReadable_ = before;
    }
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        QCoreApplication::instance()->installEventFilter(this);
    } else {
        considerAsking();
    }
}

bool KeepColorsQuestion::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        QCoreApplication::instance()->removeEventFilter(this);
        released_.start();
    }
    return QObject::eventFilter(watched, event);
}

void KeepColorsQuestion::considerAsking() {
    const ScreenColors now = currentScreenColors();
    if (!lastReadable_ || !unreadable_() || kept_ == now) {
        withdraw();
        return;
    }
    questioned_ = now;
    if (box_ == nullptr) {
        ask();
    }
}

void KeepColorsQuestion::ask() {
    box_ = newSheet(window_, QMessageBox::Question, localized("Keep these colors?"), QString());
    auto* keepButton = box_->addButton(localized("&Keep"), QMessageBox::AcceptRole);
    auto* backButton = box_->addButton(localized("&Go back"), QMessageBox::RejectRole);
    // Whoever cannot read the question and presses anything gets the readable screen.
    box_->setDefaultButton(backButton);
    box_->setEscapeButton(backButton);
    connect(box_, &QDialog::finished, this, [this, keepButton] {
        if (box_->clickedButton() == keepButton) {
            keep();
        } else {
            goBack();
        }
    });
    secondsLeft_ = kSeconds + 1;
    tick();
    second_.start();
    showSheet(*box_);
}

void KeepColorsQuestion::tick() {
    if (--secondsLeft_ == 0) {
        goBack();
    } else if (box_ != nullptr) {
        box_->setInformativeText(filled(
            localized("The screens are hard to read now. They go back by themselves in %d s."),
            {QString::number(secondsLeft_)}));
    }
}

void KeepColorsQuestion::keep() {
    kept_ = questioned_;
    withdraw();
}

void KeepColorsQuestion::goBack() {
    const auto readable = std::exchange(lastReadable_, std::nullopt);
    const bool asAsked = questioned_ == currentScreenColors(); // otherwise somebody else helped
    withdraw();
    if (readable && asAsked) {
        setScreenColors(*readable);
    }
}

void KeepColorsQuestion::withdraw() {
    second_.stop();
    lastReadable_.reset();
    questioned_.reset();
    if (QMessageBox* box = std::exchange(box_, nullptr)) {
        box->disconnect(this);
        box->close();
    }
}

} // namespace nocturo
