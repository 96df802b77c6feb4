#pragma once
#include "ops/EventControl.h"

namespace kestrel {

// The Event Control page without its widgets: the pin shown, its entries, the single-pin buttons.

// The pin shown in TextECpin (0..31, the box clamped and written back).
int shownEventPin(Session& session);

// TextECpin changed: show the pin's entries in TextECon / TextECoff.
void ShowEventPin(Session& session);

// Read / Write for the pin shown.
bool ReadSingleEvents(Session& session);

bool WriteSingleEvents(Session& session);

// "Copy to All": the shown entries into every pin.
void CopyEventsToAll(Session& session);

// An entry box was edited: its value clamped to -1..11 (a clamped number is written
// back into the box) is stored for the pin shown.
void EditEventEntry(Session& session, EventSide side, int slot);

} // namespace kestrel
