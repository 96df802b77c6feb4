#pragma once
#include "session/Session.h"

#include <functional>
#include <utility>
#include <vector>

namespace kestrel {

// The whole configuration at once. Each step runs only when the one before succeeded;
// a failed step has shown its own message and ends the run.

// Version, ID string, DCC settings, serial addressing (flex-addressing warning
// suppressed), LED control, hardware configuration, serial port, all pins, all events,
// enable maps. Whatever happened, what was read stays (the front end shows it when the
// job ends).
bool ReadAll(Session& session);

// Read All into module and gmodule, with what is shown (configuration, general settings,
// event entries) and every display left as they were; only the version the module told
// is kept. What the module does not hold (descriptions) is taken from what is shown.
bool ReadAllInto(Session& session, Configuration& module, GeneralSettings& gmodule);

// ID string, DCC settings, LED control, hardware configuration, serial port, all pins
// (with withPinConfig also each pin's configuration to flash), all events, enable maps,
// and serial addressing last, since it can change how the module is addressed.
bool WriteAll(Session& session, bool withPinConfig = false);
// Write All's steps in its order, each with what the progress says while it runs.
std::vector<std::pair<const char*, std::function<bool()>>> writeAllSteps(Session& session,
                                                                         bool withPinConfig);

// The frames Write All (with every pin's configuration to flash) would send for config
// and general, in its order, sending nothing.
std::vector<std::vector<int>> plannedWrites(Session& session, const Configuration& config,
                                            const GeneralSettings& general);
// Of the frames planned for what is shown, those the image does not hold already: a frame
// goes when the image's frame for the same item (general item, pin and command, step
// slot) differs or is missing, every step of a pin whose layout changes, and a pin's
// configuration when the image does not know it.
std::vector<std::vector<int>> changedWrites(Session& session, const ModuleImage& image);

// "Write Changes": only what differs from the image of the module addressed, in Write
// All's order, after the module's ID string has shown it to be the module of the image.
// With no image (or another module answering) it says so and offers Write All (with
// withPinConfig). Everything is checked before the first byte.
bool WriteChanges(Session& session, bool withPinConfig = false);

// Clears the report, verifies general settings, event control and all pins (each
// stage only when the one before compared equal) and ends the report with "Verify OK"
// or "Verification Stopped"; then session.onShowVerification.
bool VerifyAll(Session& session);

} // namespace kestrel
