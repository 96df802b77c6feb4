#pragma once
#include "pins/PinConfig.h"

namespace kestrel {

class Session;

// Reads a pin's configuration: source 0 = the active parameters ("Q"), 1 = flash ("q").
// Sets CheckKestrelBD. On a reply of the wrong size, command or pin shows
// "No valid response" and returns False.
bool ReadPinConfig(Session& session, int source, int pin);

// Sends a pin's configuration: target 0 = active parameters ("A"), 1 = flash ("a").
// A servo's P2 loses bits 6 and 7 in the model too. Nothing is awaited or reported;
// returns the transport's result.
bool SendPinConfig(Session& session, int target, int pin);

} // namespace kestrel
