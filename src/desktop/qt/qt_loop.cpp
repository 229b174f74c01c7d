#include "desktop/qt/qt_loop.h"

#include "base/event_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>

namespace nocturo {

QtLoop::QtLoop(EventLoop& loop) : loop_(loop) {
    auto* notifier = new QSocketNotifier(loop.descriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] { loop_.dispatchPending(); });
    auto* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this,
            [this] { loop_.dispatchPending(); });
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this, dispatcher] {
        if (loop_.prepare()) {
            dispatcher->wakeUp();
        }
    });
    qApp->installEventFilter(this);
    loop.runInside([&loop] { loop.quit(QCoreApplication::exec()); },
                   [] { QCoreApplication::quit(); });
}

QtLoop::~QtLoop() {
    loop_.runInside(nullptr, nullptr);
}

bool QtLoop::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit) {
        return false;
    }
    // Qt would close the windows first, and go on running if one of them has a question.
    QCoreApplication::exit(0);
    return true;
}

} // namespace nocturo
