#pragma once
#include "base/Wire.h"
#include "session/Session.h"

#include <array>

namespace kestrel {

// Event control: for each pin and input slot 0..3 an Event-On and an Event-Off action
// (-1 = none, the editor allows -1..11), and the two enable maps of the module.

constexpr int kEventSlots = 4;
constexpr int kEventActionMin = -1;
constexpr int kEventActionMax = 11;

// A slot byte on the wire: slot number in the high nibble, the action in the low
// nibble, 15 for none.
int encodeEventSlot(int slot, int action);
// -1 when the byte's slot number is not `slot` or its action nibble is 15.
int decodeEventSlot(int slot, int byte);

enum class EventSide { On, Off };

// The outcome of one pin's event read.
enum class EventRead { NoReply, WrongReply, Ok };

// One pin's Event-On or Event-Off entries from the module into config.EventMap.
EventRead ReadPinEvents(Session& session, EventSide side, int pin);
// One pin's entries to the module; paced by 100 ms when no reply paces the sender.
bool WritePinEvents(Session& session, EventSide side, int pin);

// All 32 pins, Event-On first, then Event-Off. A module that does not know a read
// command is told about once per side and the other side still runs.
bool ReadAllEvents(Session& session);
bool WriteAllEvents(Session& session);

// Enable maps (enableMapOn, enableMapOff): bit i set = input i disabled, so each map is
// the inverse of its boxes.
bool ReadEnableMaps(Session& session);
bool WriteEnableMaps(Session& session);

// "Verify Event Control": its lines go to session.report; True when everything was
// read and compared equal.
bool VerifyEventControl(Session& session);

} // namespace kestrel
