#include "base/log.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace nocturo {

namespace {

// By the last part of its name.
bool isWanted(std::string_view category) {
    const char* named = std::getenv("NOCTURO_LOG");
    std::string_view wanted = named != nullptr ? named : "";
    category.remove_prefix(category.find('.') + 1);
    while (!wanted.empty()) {
        const std::size_t end = std::min(wanted.find(','), wanted.size());
        const std::string_view name = wanted.substr(0, end);
        if (name == "all" || name == category) {
            return true;
        }
        wanted.remove_prefix(std::min(end + 1, wanted.size()));
    }
    return false;
}

void writeToStandardError(LogLevel level, std::string_view category, std::string_view sentence) {
    if (level == LogLevel::warning || isWanted(category)) {
        std::fprintf(stderr, "%.*s: %.*s\n", static_cast<int>(category.size()), category.data(),
                     static_cast<int>(sentence.size()), sentence.data());
    }
}

LogSink& sink() {
    static LogSink current = writeToStandardError;
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
