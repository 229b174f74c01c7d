#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace nocturo {

/// The value of that variable; empty where it is not set.
std::string environment(const char* name);

/// The directory that the variable names, if it does so by an absolute path, or else one in the
/// user's home, which is that of the system's list of users where HOME is not absolute either.
std::filesystem::path userDirectory(const char* variable, const char* inHome);

/// Where what is no setting outlives a run. Need not exist.
std::filesystem::path stateDirectory();

/// Where what is installed for everybody or for the user alone lies, the user's first.
std::vector<std::filesystem::path> dataDirectories();

/// The parts between colons, without the empty ones.
std::vector<std::string> partsOfList(const std::string& list);

} // namespace nocturo
