#pragma once

namespace nocturo {

/// What Nocturo is called on the session bus, by the one that runs and by those who look for it.
inline constexpr const char* kBusName = "org.nocturo.Nocturo";
inline constexpr const char* kObjectPath = "/org/nocturo/Nocturo";
inline constexpr const char* kNocturoInterface = "org.nocturo.Nocturo1";

/// The names of the errors that it answers with: the caller's mistake, and what could not be done.
inline constexpr const char* kInvalidArgumentError = "org.nocturo.Error.InvalidArgument";
inline constexpr const char* kFailedError = "org.nocturo.Error.Failed";

} // namespace nocturo
