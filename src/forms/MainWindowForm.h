#pragma once
#include "files/ConfigurationFile.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrel {

class Session;

// The main window's file buttons without their widgets: Save File and Load File.

// The save button: left button (1) alone saves the full file, with Shift (1) the compact
// file; anything else does nothing. Asks for the file name through the save dialog
// (filter "Kestrel Config Data|*.dat", no name proposed); no name ends silently.
// `refused`, when given, turns down a chosen path (having said why): nothing is saved.
std::string CommandSave_MouseDown(
    Session& session, int button, int shift,
    const std::function<bool(const std::string&)>& refused = {}); // the path written, "" for none

// Saves to a file already chosen (the window's Save to the current file, a recent file);
// a failure says why. True when the file was written.
bool saveConfigurationTo(Session& session, const std::string& path, SaveForm form);

// The load button: asks for the file name through the open dialog, loads it into the
// session (the window then shows it on every page).
// Returns the path and how far it was read; a cancelled dialog gives an empty path.
struct LoadOutcome {
    std::string path;
    LoadResult result = LoadResult::CannotOpen;
};
LoadOutcome CommandLoad_Click(Session& session);
// The same for a file already chosen (a recent file).
LoadOutcome loadConfigurationFrom(Session& session, const std::string& path);

// How a window job ended, for the status bar.
struct JobEnd {
    std::string title;  // "Read All", "Verify All Pins", ...
    bool fault = false; // stopped by a program error
    bool cancelled = false;
    bool ok = false;        // the operation returned True
    bool reads = false;     // it fills the pages
    bool verifies = false;  // it compares the module with the configuration in the report
    bool imageKnown = true; // the session still knows what the module holds
    std::string summary;    // the session's job summary ("" when nothing was left undone)
    std::string lastStep;   // the last step reported ("Reading pin 12")
    double seconds = 0;
};
// "Read All done in 7.4 s", "Verify OK", "Verify All Pins: the module differs, see the
// verification report", "Write All stopped at pin 12 of 32", "Read All cancelled while
// reading DCC settings: the pages show a partial read", "Write Changes incomplete: ...;
// the module may hold only part of it".
std::string jobOutcomeText(const JobEnd& end);

// Whether every difference a verification reported is a pin's configuration (and there is
// one): then the report's last line says how to write them.
bool onlyPinConfigurationsDiffer(const std::vector<std::string>& reportLines);
inline constexpr const char* kWritePinConfigurationsHint =
    "The pins' configurations were not written: check \"Write pin configurations too\" and write again.";

} // namespace kestrel
