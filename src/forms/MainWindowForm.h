#pragma once
#include "files/ConfigurationFile.h"

namespace kestrel {

class Session;

// The main window's file buttons without their widgets: Save File and Load File.

// The save button: left button (1) alone saves the full file, with Shift (1) the compact
// file; anything else does nothing. Asks for the file name through the save dialog
// (filter "Kestrel Config Data|*.dat", no name proposed); no name ends silently.
std::string CommandSave_MouseDown(Session& session, int button, int shift); // the path written, "" for none

// Saves to a file already chosen (the window's Save to the current file, a recent file);
// a failure says why. True when the file was written.
bool saveConfigurationTo(Session& session, const std::string& path, SaveForm form);

// The load button: asks for the file name through the open dialog, loads it into the
// session and then calls session.onConfigurationChanged so that every display follows.
// Returns the path and how far it was read; a cancelled dialog gives an empty path.
struct LoadOutcome {
    std::string path;
    LoadResult result = LoadResult::CannotOpen;
};
LoadOutcome CommandLoad_Click(Session& session);
// The same for a file already chosen (a recent file).
LoadOutcome loadConfigurationFrom(Session& session, const std::string& path);

} // namespace kestrel
