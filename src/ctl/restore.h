#pragma once

namespace nocturo {

/// Has the running Nocturo switch off, or gives the displays back without it, and prints what was
/// done. Throws Failure.
void restoreDisplays();

} // namespace nocturo
