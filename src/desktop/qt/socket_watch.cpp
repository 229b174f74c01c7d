#include "desktop/qt/socket_watch.h"

#include <utility>

namespace nocturo {

std::unique_ptr<QSocketNotifier> whenReadable(int descriptor, std::function<void()> action) {
    if (descriptor < 0) {
        return nullptr;
    }
    auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(),
                     std::move(action));
    return notifier;
}

} // namespace nocturo
