#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace nocturo {

enum class LogLevel { info, warning };

/// Receives every log line: its level, its category ("nocturo.displays", "nocturo.settings", ...)
/// and one plain sentence.
using LogSink = std::function<void(LogLevel, std::string_view category, std::string_view sentence)>;

/// Replaces the sink. The one in force at start writes warnings to standard error and drops the
/// rest.
void setLogSink(LogSink sink);

void logInfo(std::string_view category, std::string_view sentence);
void logWarning(std::string_view category, std::string_view sentence);

} // namespace nocturo
