#pragma once
#include "base/Wire.h"
#include "model/Configuration.h"
#include "pins/PinMode.h"

#include <vector>

namespace kestrel {

// Stores the n configuration bytes of a "Q"/"q" reply (mode first) into a pin record as
// ReadPinConfig does: a change of mode clears P1..P12 (a new servo gets both positions at
// 64), the byte after the mode goes into OutputValue for source 0, a short PWM reply
// (length field below 8) sets off-level 0 and on-level 31, an older servo P2 is converted.
void storePinConfigReply(PinRecord& pin, int source, const std::vector<int>& bytes, int lengthField);

// The data bytes that SendPinConfig(target, pin) sends after command and pin: mode, then
// value (OutputValue for target 0, P1 for target 1) and the mode's parameters. A servo's
// P2 is sent with bits 6 and 7 cleared; an unknown mode is sent as 0 alone.
std::vector<int> pinConfigBytes(const PinRecord& pin, int target);

} // namespace kestrel
