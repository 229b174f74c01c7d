#pragma once

#include <QObject>

namespace nocturo {

class EventLoop;

/// Makes Qt's event loop the outer one of a core's loop: while this lives EventLoop::run() runs
/// Qt's, which serves the core's, in dialogs' own loops too. Either loop's end ends both; windows
/// are not asked. Needs a QApplication.
class QtLoop : public QObject {
  public:
    /// The loop must outlive this.
    explicit QtLoop(EventLoop& loop);
    ~QtLoop() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    EventLoop& loop_;
};

} // namespace nocturo
