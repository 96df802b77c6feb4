#pragma once
#include "base/SerialPort.h"

#include <memory>
#include <string>
#include <vector>

namespace kestrel {

// The serial port of the system the program runs on. The build picks the adapter that
// defines these: platform/WinSerialPort.cpp (the Win32 communications calls) on Windows,
// platform/QtSerialPort.cpp (Qt's serial port) elsewhere.
std::unique_ptr<SerialPort> makeSystemPort();
// The ports the system reports by name; empty where the ports are numbered.
std::vector<std::string> systemPortNames();

// Windows numbers its serial ports (COM1..COM16): the port list holds the numbers that
// open. Elsewhere it holds the device paths the system reports.
#ifdef _WIN32
inline constexpr bool kNumberedPorts = true;
#else
inline constexpr bool kNumberedPorts = false;
#endif

} // namespace kestrel
