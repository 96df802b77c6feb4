#pragma once
#include "model/Configuration.h"

#include <string>
#include <vector>

namespace kestrel {

class UserDialogs;

// Device definitions files: named groups of pins kept as templates, placed onto the
// module's pins with their head on the selected pin.
inline constexpr const char* kDeviceFileKeyword = "KestrelDeviceDefinitions";
inline constexpr const char* kDeviceFileFilter = "Kestrel Device Definitions|*.def";
inline constexpr const char* kStandardDeviceFile = "KestrelDevices.def";
inline constexpr const char* kMyDeviceFile = "KestrelMyDevice.def";

// The device list beside cboDevice: the names in file order, for each the file it came
// from, the selection, and the version caption lblDDVersion.
struct DeviceList {
    std::vector<std::string> cboDevice;
    std::vector<std::string> paths;
    int selected = -1; // list index of the name shown, -1 for none
    std::string lblDDVersion;
};

enum class ListMode { Replace, Append };

enum class ListLoad {
    Loaded,
    CannotOpen, // the file could not be read; nothing shown, nothing changed
    Invalid,    // "Invalid definition file" shown, nothing changed
};

// Reads the device names of a definitions file's text (which came from path) into the
// list. Replace clears the list and sets the caption to the file's version text; Append
// keeps the list and adds " + " and the version text to the caption, which is then
// shortened to ".." and its last 48 characters when longer than 50. After Replace the
// first name is selected; Append keeps the selection. A text that ends before "End"
// keeps the names found and shows a warning that says where it ended.
ListLoad readDeviceListText(DeviceList& list, const std::string& text, const std::string& path, ListMode mode,
                            UserDialogs& dialogs);
ListLoad readDeviceList(DeviceList& list, const std::string& path, ListMode mode, UserDialogs& dialogs);

// Dissolves the device headed at pin: nothing when pin is a member (non-zero offset);
// otherwise every pin 0..31 that refers to it, itself included, gets offset 0 and an
// empty device description.
void dissolveDevice(Configuration& config, int pin);

// Places the device called name, found in a definitions file's text, with its head on
// config.CurrentPin (wrapping past pin 31 to pin 0). Shows "No match found" when the
// text holds no such device, and "The following Pin numbers were already used: " with
// the numbers of the pins that had a description (warning; they are overwritten all
// the same). A fault in the block (premature end, index out of range, bad number) stops
// the load with a warning that names line and item; what was placed stays. The address
// index is rebuilt. True when the device was found.
bool loadDeviceFromText(const std::string& text, const std::string& name, Configuration& config,
                        UserDialogs& dialogs);

// The definitions text of the device headed at head: header, "Dev", the head's block,
// then every member in rising pin order. Servo pins lose the top two bits of parameter
// 2, in config as well.
std::string writeDeviceText(Configuration& config, int head);

// Writes that text to path, replacing a file only once the new one is complete.
bool saveDeviceFile(const std::string& path, Configuration& config, int head, std::string& error);

} // namespace kestrel
