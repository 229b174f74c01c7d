// Apart from the hardware, since the guard is too small for texts.

#include "displays/x11/opening_problem.h"

#include "base/texts/translated.h"

namespace nocturo {

std::string openingProblem(RandrRefusal refusal, const std::string& xDisplay) {
    switch (refusal) {
    case RandrRefusal::waylandGuest:
        return translated("The X server %@ is only a guest of a Wayland session and cannot change "
                          "its colors; displays under Wayland come with a later version.",
                          {xDisplay});
    case RandrRefusal::noRandr:
        return translated("The X server %@ has no RandR 1.3 or later.", {xDisplay});
    case RandrRefusal::unreachable:
        break;
    }
    return translated("The X server %@ cannot be reached.", {xDisplay});
}

} // namespace nocturo
