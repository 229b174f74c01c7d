#pragma once

#include <filesystem>

namespace nocturo {

class NDAppController;

/// Keeps, from one run to the next, which windows were to be seen. Whoever ends the application or
/// hears of the session's end has it written.
class WindowRestoration {
  public:
    /// `file` is the absolute path of a property list, which need not exist.
    WindowRestoration(NDAppController& controller, std::filesystem::path file);

    /// Shows the windows that the last run left open.
    void restore();

    /// Until then nothing is written, so that a launch that ends early keeps what was there.
    void startKeeping() { keeping_ = true; }

    /// Writes what is to be seen now, once keeping has started.
    void save() const;

  private:
    NDAppController& controller_;
    std::filesystem::path file_;
    bool keeping_ = false;
};

} // namespace nocturo
