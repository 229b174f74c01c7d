#pragma once

#include <QObject>

#include <functional>
#include <string>

namespace nocturo {

/// Finds out which program is likely to change the displays' colours behind our back.
class DisturberFinder : public QObject {
  public:
    /// Answers "redshift", "gammastep" or "wlsunset" when the user runs one of them, "Night Light"
    /// when the desktop's is on, and otherwise with nothing at all; at once, or from the event loop
    /// unless the finder is destroyed before.
    void find(std::function<void(const std::string& name)> answer);
};

} // namespace nocturo
