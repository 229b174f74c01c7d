#pragma once

#include "displays/display_identifiers.h"
#include "displays/display_services.h"
#include "displays/gamma_hardware.h"

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace nocturo {

/// Which displays there are, under identifiers that stay theirs, and what has changed about them.
class DisplayList {
  public:
    /// The hardware must outlive the list. Nothing is listed before the first look.
    explicit DisplayList(GammaHardware& hardware) : hardware_(hardware) {}

    enum class Look { nothingNew, listedAnew, failed };

    /// Lists the heads anew where the hardware says that they may have changed since the last look.
    /// When that fails the list stays and the next look tries again.
    Look look();

    /// Whether a look would list anew.
    bool isOutdated() { return generation_ != hardware_.topologyGeneration(); }

    /// The online displays in the hardware's order.
    const std::vector<DisplayInfo>& online() const { return online_; }

    /// The CRTC that shows the display at that place of online().
    std::uint32_t crtcAt(std::size_t place) const { return crtcs_[place]; }

    /// Whether the last listing had displays that the one before did not have.
    bool hasNewcomers() const { return hasNewcomers_; }

    /// The displays whose mode was set since this was asked last, each once.
    std::vector<CGDirectDisplayID> takeModeChanges() { return std::exchange(modeChanges_, {}); }
    bool hasModeChanges() const { return !modeChanges_.empty(); }

    /// Whether the displays or their arrangement are others than when this was asked last.
    bool takeArrangementChange() { return std::exchange(arrangementChanged_, false); }
    bool hasArrangementChange() const { return arrangementChanged_; }

  private:
    void takeHead(const Head& head, CGDirectDisplayID id);

    GammaHardware& hardware_;
    DisplayIdentifiers identifiers_;
    std::optional<std::uint64_t> generation_; // nothing when the heads must be listed
    std::vector<DisplayInfo> online_;
    std::vector<std::uint32_t> crtcs_;                 // as online_
    std::map<CGDirectDisplayID, std::uint64_t> modes_; // generations, of those that are online
    std::vector<CGDirectDisplayID> modeChanges_;
    bool arrangementChanged_ = false;
    bool hasNewcomers_ = false;
};

} // namespace nocturo
