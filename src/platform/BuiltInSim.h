#pragma once
#include "base/SerialPort.h"

#include <memory>

namespace kestrel {

// The simulated layout that the port list offers, reached in process: "sim" is its bus
// (the module at address 0 holds the small demonstration configuration), "sim (Corvid)"
// the same modules behind a simulated Corvid system (seed/SimLayout).
std::unique_ptr<SerialPort> makeBuiltInSimPort();

} // namespace kestrel
