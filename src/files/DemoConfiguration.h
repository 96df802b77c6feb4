#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <string>

namespace kestrel {

// The demonstration configuration that the built-in simulated module starts with: a
// three-aspect home signal on pins 0-2, a two-aspect block signal on 3-4, a servo
// turnout with its frog relay on 8-9, a semaphore on a servo on 10, level-crossing
// blinkers on 12-13, and events that work the crossing, the turnout and the home signal.
// It is kept as the compact data file text below.
const std::string& demoConfigurationText();

// Loads the demonstration configuration into config and general (on top of what they
// hold: pins that it does not name are left as they are).
void fillDemoConfiguration(Configuration& config, GeneralSettings& general);

} // namespace kestrel
