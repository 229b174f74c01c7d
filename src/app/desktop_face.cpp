#include "app/desktop_face.h"

#include "base/texts/translated.h"

namespace nocturo {

std::string titleOf(const Alert& alert) {
    const std::string title = translated(alert.title);
    return filledText(title, alert.titleArguments);
}

} // namespace nocturo
