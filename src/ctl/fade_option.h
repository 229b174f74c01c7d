#pragma once

#include "ctl/commands.h"

#include <optional>
#include <string>
#include <vector>

namespace nocturo {

class BusClient;

/// A verb's "--fade SECONDS", wherever it stands among its words.
class FadeOption {
  public:
    /// Throws Failure where the seconds are none.
    explicit FadeOption(Arguments arguments);

    bool isGiven() const { return seconds_.has_value(); }

    /// The words without it.
    Arguments rest() const { return rest_; }

    /// Has what the client calls next take that long.
    void tell(BusClient& client) const;

  private:
    std::vector<std::string> rest_;
    std::optional<double> seconds_;
};

} // namespace nocturo
