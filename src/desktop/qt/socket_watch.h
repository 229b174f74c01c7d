#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace nocturo {

/// Calls `action` from the event loop whenever the descriptor is readable, until the result is
/// destroyed. Null for a negative descriptor.
std::unique_ptr<QSocketNotifier> whenReadable(int descriptor, std::function<void()> action);

} // namespace nocturo
