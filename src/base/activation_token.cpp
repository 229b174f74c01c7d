#include "base/activation_token.h"

#include <cstdlib>

namespace nocturo {

void keepActivationToken(const std::string& token) {
    // A much longer one would keep the guards, which inherit it, from being started.
    constexpr std::size_t kLongest = 1000;
    if (!token.empty() && token.size() <= kLongest) {
        setenv("XDG_ACTIVATION_TOKEN", token.c_str(), 1); // where Qt looks for it
    }
}

std::string givenActivationToken() {
    const char* token = std::getenv("XDG_ACTIVATION_TOKEN");
    return token != nullptr ? token : "";
}

} // namespace nocturo
