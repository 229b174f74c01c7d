#pragma once

#include <QPalette>

namespace nocturo {

/// Colors of dark windows, for where the desktop's theme brings none.
QPalette darkPalette();

/// Gives windows dark colors if the user wants them so and the desktop's theme has made them light,
/// and takes those colors away again. Themes that draw in a style of their own are left alone.
void preferDark(bool dark);

} // namespace nocturo
