#pragma once
#include "files/DeviceDefinitions.h"

namespace kestrel {

// The device controls without their widgets: the standard list at start-up, Reload DD, Load Device, Save
// Device.

// The standard definitions file: "KestrelDevices.def" beside the program, else the one of an
// installed program (programFolder/../share/kestrel-config/), else the first.
std::string standardDeviceFile(const std::string& programFolder);

// Start-up: the standard definitions file (above). When it cannot be opened: "Can not
// find Device Configuration file at standard location", then the open dialog proposes
// "KestrelDevices.def"; when that fails too or is cancelled: "No Device Configuration
// available" and the list stays empty. All warnings.
void loadStandardDeviceList(DeviceList& list, const std::string& programFolder, UserDialogs& dialogs);

// Reload DD: left button (1) only; Shift (1) appends, anything else replaces. A file
// that cannot be opened (or no file chosen) shows "No Device Configuration file
// selected" and changes nothing.
void CommandReloadDD_MouseDown(DeviceList& list, UserDialogs& dialogs, int button, int shift);

// Load Device: the device selected in the list, read from its own file. "Select
// Devicename to load" when no name is selected.
bool CommandPAspPreLoad_Click(const DeviceList& list, Configuration& config, UserDialogs& dialogs);

// Save Device: the device that config.CurrentPin belongs to. "Referral is not a device"
// (warning) when the pin's head is itself a member; asks for the file through the save
// dialog (no name proposed); no name ends silently.
bool CommandSaveDevice_Click(Configuration& config, UserDialogs& dialogs);

} // namespace kestrel
