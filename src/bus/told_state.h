#pragma once

#include "base/notification_center.h"
#include "bus/bus_values.h"

#include <map>
#include <span>
#include <string_view>
#include <vector>

namespace nocturo {

class Automation;
class ChosenLook;
class DefaultsStore;
class DisturbanceWatch;
class KeyboardLayout;
class NDAppController;

/// What the application tells about itself: the properties of org.nocturo.Nocturo1.xml, read anew
/// each time.
class ToldState {
  public:
    /// All must outlive the state.
    ToldState(const NDAppController& controller, const DefaultsStore& defaults,
              const DisturbanceWatch& disturbances, ChosenLook& chosenLook,
              const Automation& automation)
        : controller_(controller), defaults_(defaults), disturbances_(disturbances),
          chosenLook_(chosenLook), automation_(automation) {}

    /// Names keys by this layout, which must outlive the state; null for none.
    void setKeyboardLayout(KeyboardLayout* layout) { layout_ = layout; }

    BusValue property(std::string_view name) const;

    static std::vector<std::string_view> names();

    /// Those that a change of these settings may change.
    static std::vector<std::string_view> namesConcernedBy(const Subjects& settings);

    /// Whether reading it may have to read the files of looks.
    static bool isOfLooks(std::string_view name) { return name.starts_with("Look"); }

  private:
    struct Property {
        BusValue (ToldState::*read)() const;
        std::span<const std::string_view> settings; // that it is made of
    };
    static const std::map<std::string_view, Property>& properties();

    BusValue active() const;
    BusValue paused() const;
    BusValue ruler() const;
    BusValue rulesUntil() const;
    BusValue ruledLook() const;
    BusValue rule() const;
    BusValue schedule() const;
    BusValue rules() const;
    BusValue displayServicesName() const;
    BusValue displays() const;
    BusValue absentDisplays() const;
    BusValue effects() const;
    BusValue dimLevel() const;
    BusValue colorFilterHue() const;
    BusValue colorFilterVividness() const;
    BusValue temperature() const;
    BusValue look() const;
    BusValue looks() const;
    BusValue affectedScreens() const;
    BusValue hotKey() const;
    BusValue settings() const;
    BusValue disturbances() const;
    BusValue disturber() const;

    const NDAppController& controller_;
    const DefaultsStore& defaults_;
    const DisturbanceWatch& disturbances_;
    ChosenLook& chosenLook_;
    const Automation& automation_;
    KeyboardLayout* layout_ = nullptr;
};

} // namespace nocturo
