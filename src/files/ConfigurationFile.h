#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <string>

namespace kestrel {

class Session;
class UserDialogs;

// The configuration data file: the general settings, the event tables and every pin
// with its configuration, device membership and aspect programs, as comma-separated
// items with CR LF line ends.
inline constexpr const char* kConfigFileKeyword = "KestrelConfiguration";
inline constexpr const char* kConfigFileVersion = "3100";
inline constexpr const char* kConfigFileFilter = "Kestrel Config Data|*.dat";

enum class SaveForm {
    Full,    // every pin, every aspect of its layout, every step
    Compact, // only pins and aspects with a description, only steps with an instruction
};

// The text of a data file for config and general. Before a servo pin (mode 1) is
// written its parameter 2 loses its top two bits, in config as well as in the text.
std::string writeConfigurationText(Configuration& config, const GeneralSettings& general, SaveForm form);

// Writes the data file to path, replacing an existing file only once the new one is
// complete. False, with error saying why, when it could not be written; the old file,
// if any, is then unchanged.
bool saveConfigurationFile(const std::string& path, Configuration& config, const GeneralSettings& general,
                           SaveForm form, std::string& error);

enum class LoadResult {
    Loaded,        // read up to "End"
    InvalidHeader, // "Invalid configuration file" shown, nothing changed
    FormatError,   // stopped at a fault that was shown; what was read before it is kept
    CannotOpen,    // the file could not be read (loadConfigurationFile only)
};

// Reads a data file's text into config and general, telling the user through dialogs:
// "Invalid configuration file" (warning) for a bad header, "Data File Version = " and the
// number (information) for a file older than 3100, and a warning that names the fault
// with its line and item when the text ends before "End", an index is out of range or
// an item is not the number that is due. The address index is rebuilt afterwards
// (a ProgramFault from an address sum above 255 is passed on).
LoadResult readConfigurationText(const std::string& text, Configuration& config, GeneralSettings& general,
                                 UserDialogs& dialogs);

// The same for a file; a file that cannot be read (or is larger than 1 MB) changes
// nothing and shows nothing; why, when given, then says why.
LoadResult loadConfigurationFile(const std::string& path, Configuration& config, GeneralSettings& general,
                                 UserDialogs& dialogs, std::string* why = nullptr);

} // namespace kestrel
