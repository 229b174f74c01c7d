#pragma once

#include <cstring>
#include <string>
#include <utility>

#include <tl/expected.hpp>

namespace nocturo {

/// Why something was not done or is not to be had.
struct Problem {
    std::string text;    // a sentence or a clause, as the function that returns it says
    int errorNumber = 0; // the system's; 0 where the system did not refuse
    bool operator==(const Problem&) const = default;
};

/// A value, or what went wrong: a Problem, or another type where callers act on the kind of it.
/// Read it with `if (result)` and `*result`, or `result.error()` where there is no value.
template <class Value, class What = Problem>
using Result = tl::expected<Value, What>;

/// What a function that returns a Result<T> returns when it fails.
inline tl::unexpected<Problem> failed(std::string text) {
    return tl::unexpected(Problem{std::move(text), 0});
}

/// The same where the system refused; the text is the system's.
inline tl::unexpected<Problem> failedWith(int errorNumber) {
    return tl::unexpected(Problem{std::strerror(errorNumber), errorNumber});
}

} // namespace nocturo
