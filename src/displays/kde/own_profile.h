#pragma once

#include "displays/kde/output_devices.h"
#include "displays/ramp.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace nocturo {

/// What an output shows by its user's setting.
struct OwnProfile {
    std::vector<std::uint8_t> bytes; // a profile of a display, with or without a calibration
    Ramp calibration;                // of kCalibrationSize entries; the identity where it has none
    bool isUsers = false;            // rather than a plain one
};

/// Reads them. A file that is missing, no profile or anything else than a file is said once, and a
/// plain profile is there in its place.
class OwnProfiles {
  public:
    OwnProfile read(const ProfileSetting& own, const OutputDevice& device);

    /// A plain one in the place of a profile that is of no use, and a sentence that says so, once.
    OwnProfile refuse(const ProfileSetting& own, const OutputDevice& device,
                      const std::string& because);

  private:
    std::set<std::string> refused_;
};

} // namespace nocturo
