#pragma once

#include <string>

namespace nocturo {

class ChosenLook;
class NDAppController;

/// What a click on a look does, wherever looks are shown. Main thread only.
class LookPicker {
  public:
    /// Both must outlive this.
    LookPicker(NDAppController& controller, ChosenLook& chosen)
        : controller_(controller), chosen_(chosen) {}

    ChosenLook& chosen() { return chosen_; }

    /// The name of the look that the displays show while the effect is on: that of whoever rules,
    /// or else that of the settings; empty where it is none.
    std::string shown();

    /// Applies the look and switches the effect on. The look that the displays show is left for
    /// what was there before it, which may be no effect.
    void pick(const std::string& name);

  private:
    void leave();

    NDAppController& controller_;
    ChosenLook& chosen_;
    bool switchedOn_ = false; // by the pick before
};

} // namespace nocturo
