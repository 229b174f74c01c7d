#include "desktop/qt/qt_run_loop.h"

#include "desktop/qt/socket_watch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <utility>

namespace nocturo {

namespace {

class QtTimer : public Timer {
  public:
    QtTimer(std::chrono::milliseconds interval, bool once, std::function<void()> action)
        : action_(std::move(action)) {
        // A coarse timer may be 5 % late, which is seen where 6 seconds were promised.
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setSingleShot(once);
        // The action may destroy this timer, and with it the function that is running.
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            const auto running = action_;
            running();
        });
        timer_.start(interval);
    }

  private:
    QTimer timer_;
    std::function<void()> action_;
};

class FirstCall : public QObject {
  public:
    explicit FirstCall(std::function<void()> function) : function_(std::move(function)) {}

  protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::User) {
            return QObject::event(event);
        }
        function_();
        deleteLater();
        return true;
    }

  private:
    std::function<void()> function_;
};

} // namespace

std::unique_ptr<Timer> QtRunLoop::scheduleRepeatingTimer(std::chrono::milliseconds interval,
                                                         std::function<void()> action) {
    return std::make_unique<QtTimer>(interval, false, std::move(action));
}

std::unique_ptr<Timer> QtRunLoop::scheduleTimer(std::chrono::milliseconds delay,
                                                std::function<void()> action) {
    return std::make_unique<QtTimer>(delay, true, std::move(action));
}

std::unique_ptr<Watch> QtRunLoop::watch(int descriptor, std::function<void()> action) {
    struct QtWatch : Watch {
        std::unique_ptr<QSocketNotifier> notifier;
    };
    auto watch = std::make_unique<QtWatch>();
    watch->notifier = whenReadable(descriptor, std::move(action));
    return watch;
}

void QtRunLoop::callSoon(std::function<void()> action) {
    QMetaObject::invokeMethod(qApp, std::move(action), Qt::QueuedConnection);
}

void callFirst(std::function<void()> function) {
    QCoreApplication::postEvent(new FirstCall(std::move(function)), new QEvent(QEvent::User),
                                Qt::HighEventPriority);
}

} // namespace nocturo
