#pragma once

#include "ctl/bus_client.h"

namespace nocturo {

enum class Answer { whole, inPart };

/// Throws Failure unless the properties that this version knows are of the types that Nocturo's
/// contract gives them; a whole answer has them all. What else there is may be anything: a later
/// Nocturo may tell more.
void checkAnswer(const Json& properties, Answer answer);

/// For an answer that cannot be read at all.
[[noreturn]] void failBecauseNotUnderstood();

} // namespace nocturo
