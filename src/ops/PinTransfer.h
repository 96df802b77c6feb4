#pragma once
#include "session/Session.h"

namespace kestrel {

// Moving pins between the configuration model and the module: aspect layout (114 / 98),
// steps (115 / 99, aspect-major over exactly the layout's slots), initial aspect
// (entry of the 116 reply / 100 with length 3), address configuration (118 / 102) and,
// for full reads, the pin configuration from flash ("q", ReadPinConfig(1, pin)).
//
// Every procedure returns True on success. A failure has already shown its message
// (here or in the transport); the values stored for the pin so far stay.

// Full read of one pin: aspects, initial aspect, address configuration, then the pin
// configuration from flash. Rebuilds the address index.
bool ReadPin(Session& session, int pin);

// The aspect editor's read: as ReadPin, but stops before the pin configuration.
bool PAspReadPin(Session& session, int pin);

// Writes layout, initial aspect (always, 127 for none), address configuration and the
// steps of the layout. With withPinConfig the pin configuration is also written to flash
// (SendPinConfig(1, pin)), so that a restored backup brings back servo and PWM settings.
// While CheckKestrelBD is unchecked each write is followed by a 100 ms pause.
bool WritePin(Session& session, int pin, bool withPinConfig = false);

// The aspect page's "Write Aspect": only the steps of one aspect (99, the layout's steps),
// checked before the first byte. An aspect outside the pin's layout sends nothing and
// says so.
bool WriteAspect(Session& session, int pin, int aspect);

// Pins 0 to 31 in order, stopping at the first failure; Progress::step before each pin.
bool ReadAllPins(Session& session);
bool WriteAllPins(Session& session, bool withPinConfig = false);

// The device of CurrentPin. Its first pin (head) h is found from the module's device
// pointer of CurrentPin (118). The device is h and the pins directly after it, h + 1,
// h + 2, ..., up to the first pin whose device pointer does not name h: for a read the
// module's pointers decide (each probed with 118 before the pin is read), for a write the
// model's DeviceOffset. Failure to read the pointer of CurrentPin shows
// "Cannot read DevicePointer from Pin " and the pin number as shown (+ NumberingBase).
bool ReadDevice(Session& session);
bool WriteDevice(Session& session);

// Compares every pin of the module with the model and writes the report lines to
// session.report: "Start Pin Verification" (and "Note: Numbering starts at 1"), then per
// pin, in this order, the pin configuration in flash, layout, each aspect of the layout
// (the five step bytes as they would be written against those read), initial aspect, DCC
// and serial address counts, and device pointer. The pin configuration comparison takes
// the flash reply as ReadPinConfig(1, ...) would store it into a cleared record and
// compares the bytes that SendPinConfig(1, ...) would send: mode and P1..P11 for a servo
// (P2 without bits 6 and 7), mode and P1..P5 for PWM, mode and P1..P4 for an input, and
// the mode alone otherwise (any unknown mode is sent, and so compared, as 0).
// True only when everything was read and compared equal. A request without a valid
// reply, or a wrong reply to 114, 115 or "q", adds "No valid response" and stops.
bool VerifyAllPins(Session& session);

} // namespace kestrel
