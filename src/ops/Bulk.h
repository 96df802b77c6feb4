#pragma once
#include "session/Session.h"

namespace kestrel {

// The whole configuration at once. Each step runs only when the one before succeeded;
// a failed step has shown its own message and ends the run.

// Version, ID string, DCC settings, serial addressing (flex-addressing warning
// suppressed), LED control, hardware configuration, serial port, all pins, all events,
// enable maps. Whatever happened, session.onConfigurationChanged is then called so that
// every display shows the model again.
bool ReadAll(Session& session);

// ID string, DCC settings, LED control, hardware configuration, serial port, all pins
// (with withPinConfig also each pin's configuration to flash), all events, enable maps,
// and serial addressing last, since it can change how the module is addressed.
bool WriteAll(Session& session, bool withPinConfig = false);

// Clears the report, verifies general settings, event control and all pins (each
// stage only when the one before compared equal) and ends the report with "Verify OK"
// or "Verification Stopped"; then session.onShowVerification.
bool VerifyAll(Session& session);

} // namespace kestrel
