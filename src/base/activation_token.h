#pragma once

#include <string>

namespace nocturo {

/// Keeps what a Wayland desktop gives along with a user's wish, so that the window which comes of
/// it next may come to the front. Nothing where it is empty or absurdly long.
void keepActivationToken(const std::string& token);

/// What the desktop gave this process along with the wish that started it; empty where nothing.
std::string givenActivationToken();

} // namespace nocturo
