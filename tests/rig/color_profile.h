#pragma once

#include "rig/x_client.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace nocturo::rig {

/// An ICC profile of a display whose calibration is these three channels of 256 entries.
std::vector<std::uint8_t> colorProfile(const Channels& calibration);

/// A profile without a calibration.
std::vector<std::uint8_t> plainColorProfile();

/// The calibration in the profile in that file, at 256 entries; the identity where it has none.
/// Nothing where there is no profile.
std::optional<Channels> calibrationIn(const std::string& file);

/// A calibration of 256 entries, rising, another one for every number up to 1000.
Channels calibration(unsigned number);

} // namespace nocturo::rig
