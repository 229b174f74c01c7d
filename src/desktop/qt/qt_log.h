#pragma once

namespace nocturo {

/// Sends log lines through Qt's logging categories, so that QT_LOGGING_RULES chooses among them
/// ("nocturo.displays.info=true"). Without rules, warnings are shown on standard error.
void installQtLogSink();

} // namespace nocturo
