#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace nocturo {

enum class LogLevel { info, warning };

/// What a log line is about, by which users choose what they want to see.
inline constexpr std::string_view kLogApp = "nocturo.app";
inline constexpr std::string_view kLogBus = "nocturo.bus";
inline constexpr std::string_view kLogDisplays = "nocturo.displays";
inline constexpr std::string_view kLogHotKeys = "nocturo.hotkeys";
inline constexpr std::string_view kLogSettings = "nocturo.settings";
inline constexpr std::string_view kLogWorkspace = "nocturo.workspace";

/// Receives every log line: its level, its category and one plain sentence.
using LogSink = std::function<void(LogLevel, std::string_view category, std::string_view sentence)>;

/// Replaces the sink. The one in force at start writes to standard error: all warnings, and the
/// rest of the categories that the environment's NOCTURO_LOG names, separated by commas
/// ("displays", or "all").
void setLogSink(LogSink sink);

void logInfo(std::string_view category, std::string_view sentence);
void logWarning(std::string_view category, std::string_view sentence);

} // namespace nocturo
