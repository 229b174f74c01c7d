#pragma once

#include <functional>
#include <memory>

namespace nocturo {

class Bus;
class BusSlot;

/// Follows whether the user wants windows dark, as the desktop's portal tells it. Main thread only.
class ColorScheme {
  public:
    /// Of an answer or a change. Nobody is told anything where the desktop has no word on it.
    using Told = std::function<void(bool dark)>;

    /// The bus must outlive this. `told` is called from the loop, first with what holds now.
    ColorScheme(const Bus& bus, Told told);
    ~ColorScheme();

  private:
    void ask();

    const Bus& bus_;
    Told told_;
    std::unique_ptr<BusSlot> answer_;
    std::unique_ptr<BusSlot> changes_;
    std::unique_ptr<BusSlot> owner_;
};

} // namespace nocturo
