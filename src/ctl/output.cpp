#include "ctl/output.h"

#include "base/texts/translated.h"
#include "ctl/failure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <system_error>
#include <unistd.h>

namespace nocturo {

namespace {

struct Character {
    unsigned code;
    std::size_t bytes;
};

// Of one to three bytes, which is as many as those below have; anything else counts as harmless.
Character characterAt(std::string_view text) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    if (text.size() >= 2 && byte(0) >> 5U == 0x6) {
        return {(byte(0) & 0x1FU) << 6U | (byte(1) & 0x3FU), 2};
    }
    if (text.size() >= 3 && byte(0) >> 4U == 0xE) {
        return {(byte(0) & 0xFU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU), 3};
    }
    return {byte(0), 1};
}

bool isObeyed(const Character& character) {
    const unsigned code = character.code;
    const bool isControl = code < 0x20 || code == 0x7F || (code >= 0x80 && code < 0xA0);
    return (isControl && code != '\n' && (character.bytes > 1 || code < 0x80)) || code == 0x2028 ||
           code == 0x2029 || (code >= 0x200E && code <= 0x200F) ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

[[noreturn]] void failToWrite() {
    throw Failure{kFailed, translated("The answer cannot be written: %@.",
                                      {std::generic_category().message(errno)})};
}

} // namespace

void print(std::string_view text) {
    const std::string shown = visible(text);
    errno = 0;
    if (std::fwrite(shown.data(), 1, shown.size(), stdout) != shown.size() ||
        std::fflush(stdout) != 0) {
        failToWrite();
    }
}

// A pipe that says that it can be written to takes so much at once.
void PatientOutput::goOn() {
    const ssize_t written =
        ::write(STDOUT_FILENO, rest_.data(), std::min<std::size_t>(rest_.size(), PIPE_BUF));
    if (written >= 0) {
        rest_.erase(0, static_cast<std::size_t>(written));
    } else if (errno != EAGAIN && errno != EINTR) {
        failToWrite();
    }
}

std::string visible(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Character character = characterAt(text);
        if (isObeyed(character)) {
            std::array<char, 8> escaped{};
            std::snprintf(escaped.data(), escaped.size(), "\\u%04x", character.code);
            result += escaped.data();
        } else {
            result += text.substr(0, character.bytes);
        }
        text.remove_prefix(character.bytes);
    }
    return result;
}

} // namespace nocturo
