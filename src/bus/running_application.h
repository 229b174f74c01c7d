#pragma once

namespace nocturo {

class Bus;

// What is asked of the application that owns its name on the bus; false when it does not answer.

bool reopenRunningApplication(const Bus& bus);

/// Has it switch its effect off. Waits for so long at most.
bool switchRunningApplicationOff(const Bus& bus, int patienceMs);

} // namespace nocturo
