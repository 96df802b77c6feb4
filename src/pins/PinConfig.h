#pragma once
#include "model/Configuration.h"

#include <vector>

namespace kestrel {

class Session;

// Configuration modes (ConfigMode).
constexpr int kModeNone = 0;
constexpr int kModeServo = 1;
constexpr int kModePwm = 2;         // 3 = inverted
constexpr int kModeInput = 4;       // 5 = inverted
constexpr int kReadActiveConfig = 81;  // "Q"
constexpr int kReadFlashConfig = 113;  // "q"
constexpr int kSendActiveConfig = 65;  // "A"
constexpr int kSendFlashConfig = 97;   // "a"

// Reads a pin's configuration: source 0 = the active parameters ("Q"), 1 = flash ("q").
// Sets CheckKestrelBD. On a reply of the wrong size, command or pin shows
// "No valid response" and returns False.
bool ReadPinConfig(Session& session, int source, int pin);

// Stores the n configuration bytes of a "Q"/"q" reply (mode first) into a pin record as
// ReadPinConfig does: a change of mode clears P1..P12 (a new servo gets both positions at
// 64), the byte after the mode goes into OutputValue for source 0, a short PWM reply
// (length field below 8) sets off-level 0 and on-level 31, an older servo P2 is converted.
void storePinConfigReply(PinRecord& pin, int source, const std::vector<int>& bytes, int lengthField);

// The data bytes that SendPinConfig(target, pin) sends after command and pin: mode, then
// value (OutputValue for target 0, P1 for target 1) and the mode's parameters. A servo's
// P2 is sent with bits 6 and 7 cleared; an unknown mode is sent as 0 alone.
std::vector<int> pinConfigBytes(const PinRecord& pin, int target);

// Sends a pin's configuration: target 0 = active parameters ("A"), 1 = flash ("a").
// A servo's P2 loses bits 6 and 7 in the model too. Nothing is awaited or reported;
// returns the transport's result.
bool SendPinConfig(Session& session, int target, int pin);

} // namespace kestrel
