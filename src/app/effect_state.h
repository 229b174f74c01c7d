#pragma once

#include <string>

namespace nocturo {

class DefaultsStore;
class NDAppController;

/// stateSentence() of what the displays show now.
std::string stateSentence(const NDAppController& controller, const DefaultsStore& defaults);

} // namespace nocturo
