#pragma once
#include "session/GeneralSettings.h"

#include <array>
#include <string>

namespace kestrel {

// The bytes of the general settings, written once for the module's requests, the
// verifier and the data file. Where the data file lays a setting out differently from
// the wire, its layout stands here beside the wire's, with the reason.

// What the writers send, from the current values of the page.
int dccOptionsByte(const GeneralSettings& g);
// An address text split as the module stores it: low 6 bits, then the rest.
std::array<int, 2> dccAddressBytes(const std::string& text);
int serialAddressModeByte(const GeneralSettings& g);
std::array<int, 4> groupMaskBytes(const GeneralSettings& g);
std::array<int, 4> hardwareConfigBytes(const GeneralSettings& g);
int ledByte(const std::array<int, 8>& boxes);
// How a reader shows an LED byte: 0 checks element 7 alone, anything else sets
// elements 0..6 from bits 0..6 (bit 7 ignored) and unchecks element 7.
void setLedBoxes(std::array<int, 8>& boxes, int b);
int serialPortByte(const GeneralSettings& g);

// The data file's address mode: the flex-address while flex-addressing is on, else 64 for
// native mode and 0 for neither. The wire sends the flex-address whenever native mode is
// off (the module ignores it then); the file writes 0 instead, so that a file does not keep
// a flex-address that is not in use.
int fileAddressModeByte(const GeneralSettings& g);

} // namespace kestrel
