#pragma once
#include "base/SerialPort.h"

#include <memory>

namespace kestrel {

// The simulated module that the port list offers as "sim": a module at bus address 0
// holding a small demonstration configuration, reached in process.
std::unique_ptr<SerialPort> makeBuiltInSimPort();

} // namespace kestrel
