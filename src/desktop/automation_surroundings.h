#pragma once

namespace nocturo {

class Automation;
class DefaultsStore;
class Looks;
class NotificationCenter;

/// What a page of something that happens by itself needs of its surroundings; all must outlive it.
struct AutomationSurroundings {
    DefaultsStore& defaults;
    NotificationCenter& localCenter;
    Automation& automation;
    Looks& looks;
};

} // namespace nocturo
