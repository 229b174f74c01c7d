#pragma once

#include <QObject>

#include <filesystem>

namespace nocturo {

class NDAppController;

/// Keeps, from one run to the next, which windows were to be seen: written when the session ends
/// and when asked, which whoever ends the application does. Needs a QGuiApplication.
class WindowRestoration : public QObject {
  public:
    /// `file` is the absolute path of a property list, which need not exist.
    WindowRestoration(NDAppController& controller, std::filesystem::path file);

    /// Shows the windows that the last run left open.
    void restore();

    /// Until then nothing is written, so that a launch that ends early keeps what was there.
    void startKeeping();

    /// Writes what is to be seen now, once keeping has started.
    void save() const;

  private:
    NDAppController& controller_;
    std::filesystem::path file_;
    bool keeping_ = false;
};

} // namespace nocturo
