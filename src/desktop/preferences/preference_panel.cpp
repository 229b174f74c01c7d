#include "desktop/preferences/preference_panel.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>

#include <utility>

namespace nocturo {

namespace {

constexpr int kFrameMilliseconds = 16;

// The only document that is being dragged; empty when it is none or several.
QString draggedDocument(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

PreferencePanel::PreferencePanel() {
    setAcceptDrops(true);
    for (const QKeySequence& keys :
         {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)}) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
    }
}

void PreferencePanel::closeDirectly() {
    closingDirectly_ = true;
    close();
    closingDirectly_ = false;
}

bool PreferencePanel::event(QEvent* event) {
    if (event->type() == QEvent::UpdateRequest) {
        if (frame_.isActive()) {
            frameIsDue_ = true;
            return true;
        }
        frame_.start(kFrameMilliseconds, Qt::PreciseTimer, this);
    }
    const bool recognized = QWidget::event(event);
    if (event->type() == QEvent::ScreenChangeInternal) {
        Q_EMIT screenChanged();
    }
    return recognized;
}

void PreferencePanel::timerEvent(QTimerEvent* /*event*/) {
    frame_.stop();
    if (std::exchange(frameIsDue_, false)) {
        QEvent request(QEvent::UpdateRequest);
        event(&request);
    }
}

void PreferencePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    Q_EMIT resized();
}

void PreferencePanel::closeEvent(QCloseEvent* event) {
    event->setAccepted(closingDirectly_ || !shouldClose || shouldClose());
    if (event->isAccepted()) {
        Q_EMIT closed();
    }
}

void PreferencePanel::dragEnterEvent(QDragEnterEvent* event) {
    if (!draggedDocument(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void PreferencePanel::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    Q_EMIT documentDropped(draggedDocument(*event->mimeData()));
}

void PreferencePanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        Q_EMIT activated();
    }
}

} // namespace nocturo
