#pragma once

#include <QObject>

#include <filesystem>

namespace nocturo {

class NDAppController;

/// Keeps, from one run to the next, which windows were to be seen: written when the application
/// quits and when the session ends. Quitting asks no window whether it may be closed. Needs a
/// QGuiApplication.
class WindowRestoration : public QObject {
  public:
    /// `file` is the absolute path of a property list, which need not exist.
    WindowRestoration(NDAppController& controller, std::filesystem::path file);

    /// Shows the windows that the last run left open.
    void restore();

    /// Until then nothing is written, so that a launch that ends early keeps what was there.
    void startKeeping();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void save() const;

    NDAppController& controller_;
    std::filesystem::path file_;
    bool keeping_ = false;
};

} // namespace nocturo
