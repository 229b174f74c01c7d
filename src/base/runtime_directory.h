#pragma once

#include <filesystem>
#include <optional>

namespace nocturo {

/// Nocturo's directory for what lives only as long as the session: `nocturo` in the runtime
/// directory that the environment names ($XDG_RUNTIME_DIR), otherwise one for this user in the
/// temporary directory. Made if missing, readable by the user alone. Nothing when it cannot be
/// made, or either is somebody else's or others may write to it.
std::optional<std::filesystem::path> runtimeDirectory();

} // namespace nocturo
