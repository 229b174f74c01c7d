#include "base/log.h"

#include <cstdio>
#include <utility>

namespace nocturo {

namespace {

void writeWarningsToStandardError(LogLevel level, std::string_view category,
                                  std::string_view sentence) {
    if (level == LogLevel::warning) {
        std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(category.size()), category.data(),
                     static_cast<int>(sentence.size()), sentence.data());
    }
}

LogSink& sink() {
    static LogSink current = writeWarningsToStandardError;
    return current;
}

} // namespace

void setLogSink(LogSink newSink) {
    sink() = std::move(newSink);
}

void logInfo(std::string_view category, std::string_view sentence) {
    sink()(LogLevel::info, category, sentence);
}

void logWarning(std::string_view category, std::string_view sentence) {
    sink()(LogLevel::warning, category, sentence);
}

} // namespace nocturo
