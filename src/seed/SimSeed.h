#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"
#include "sim/SimBus.h"

#include <string>

namespace kestrel {

// Puts a configuration into the simulated module at `address` the way the program puts
// it into a real one: Write All over an in-process port, every pin's configuration
// included; the module then starts again (its pins' active configurations loaded from
// flash). A module built with an eXtended address keeps it. False, with
// `error` naming what went wrong, when a write was refused.
bool seedModule(sim::SimBus& bus, int address, const Configuration& config, const GeneralSettings& general,
                std::string& error);

// The same from a configuration data file.
bool seedModuleFromFile(sim::SimBus& bus, int address, const std::string& path, std::string& error);

} // namespace kestrel
