#include "desktop/menus/alert_box.h"

#include "base/log.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"

#include <QApplication>
#include <QIcon>
#include <QPushButton>
#include <QStyle>
#include <QWindow>

#include <utility>

namespace nocturo {

namespace {

QString text(const Alert& alert, const char* english, const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments) {
        list.append(QString::fromStdString(argument));
    }
    return filled(localized(english, alert.table), list);
}

bool canBeSeen() {
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

/// Shows a box when the window that it stands over can be seen, and keeps it over that: a window
/// manager may give the window its place later.
class WhenExposed : public QObject {
  public:
    WhenExposed(QWindow& window, QMessageBox& box) : QObject(&box), box_(box) {
        window.installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Expose && !wasExposed_ &&
            static_cast<QWindow*>(watched)->isExposed()) {
            wasExposed_ = true;
            box_.show();
        } else if (event->type() == QEvent::Move && box_.isVisible()) {
            const QRect place = static_cast<QWindow*>(watched)->geometry();
            box_.move(place.center() - box_.rect().center());
        }
        return false;
    }

  private:
    QMessageBox& box_;
    bool wasExposed_ = false;
};

void setIcon(QMessageBox& box, const Alert& alert) {
    box.setIcon(alert.critical ? QMessageBox::Critical : QMessageBox::Information);
    const QString name = QString::fromStdString(alert.icon);
    const QIcon icon = name.startsWith(u'/') ? QIcon(name) : QIcon::fromTheme(name);
    const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    const QPixmap pixmap = icon.pixmap(side);
    if (!pixmap.isNull()) {
        box.setIconPixmap(pixmap);
    }
}

} // namespace

std::unique_ptr<QMessageBox> shownAlert(QWidget* window, const Alert& alert,
                                        std::function<void(AlertAnswer answer)> answered) {
    const QString title = text(alert, alert.title, alert.titleArguments);
    if (!canBeSeen()) {
        logWarning(kLogApp, title.toStdString());
        return nullptr;
    }
    auto box = std::make_unique<QMessageBox>(window);
    setIcon(*box, alert);
    box->setWindowTitle(QGuiApplication::applicationDisplayName());
    box->setText(title);
    box->setInformativeText(text(alert, alert.message, alert.messageArguments));
    auto* first =
        box->addButton(localized(alert.defaultButton, alert.table), QMessageBox::AcceptRole);
    auto* second =
        box->addButton(localized(alert.alternateButton, alert.table), QMessageBox::RejectRole);
    box->setDefaultButton(first);
    box->setEscapeButton(alert.closed == AlertAnswer::defaultButton ? first : second);
    widenMessage(*box);
    QObject::connect(box.get(), &QDialog::finished, box.get(),
                     [box = box.get(), first, answered = std::move(answered)] {
                         answered(box->clickedButton() == first ? AlertAnswer::defaultButton
                                                                : AlertAnswer::alternateButton);
                     });
    box->setWindowModality(window != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    if (window == nullptr || window->windowHandle()->isExposed()) {
        box->show();
    } else {
        new WhenExposed(*window->windowHandle(), *box);
    }
    return box;
}

std::unique_ptr<QMessageBox> shownMessage(const QString& title, const QString& message) {
    if (!canBeSeen()) {
        return nullptr;
    }
    auto box = std::make_unique<QMessageBox>(QMessageBox::Warning,
                                             QGuiApplication::applicationDisplayName(), title);
    box->setInformativeText(message);
    box->setDefaultButton(box->addButton(localized("OK"), QMessageBox::AcceptRole));
    widenMessage(*box);
    box->show();
    return box;
}

} // namespace nocturo
