#pragma once

#include "rig/x_client.h"

#include <cstdint>
#include <vector>

namespace nocturo::rig {

/// An ICC profile of a display whose calibration is these three channels of 256 entries.
std::vector<std::uint8_t> colorProfile(const Channels& calibration);

/// A profile without a calibration.
std::vector<std::uint8_t> plainColorProfile();

/// A calibration of 256 entries, rising, another one for every number up to 1000.
Channels calibration(unsigned number);

} // namespace nocturo::rig
