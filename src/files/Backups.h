#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <chrono>
#include <string>
#include <vector>

namespace kestrel {

// Automatic backups of what was read from a module: under a root folder one folder per
// module, named after its ID string (backupFolderName), holding full data files named by
// the local date and time of the read ("2026-11-23_14-05-09.dat", "..._002.dat" for a
// second one within the same second, "..._incomplete.dat" for a read that reported
// problems) and beside each a small side file (".info") with the module's ID string and
// firmware version ("incomplete=yes" too for such a read). The data file itself is an
// ordinary one.
inline constexpr int kBackupsKept = 30;

// Whether the read ran to its end without a problem reported (Session::lastJob()'s
// incomplete()): a read that reported problems may hold values the module never sent.
enum class BackupKind { Complete, Incomplete };

struct BackupEntry {
    std::string path;        // the data file
    std::string when;        // "2026-11-23 14:05:09"
    std::string id;          // the module's ID string
    std::string version;     // its firmware version ("1.2.3.4"), "" when not known
    bool incomplete = false; // kept from a read that reported problems
};

// The folder name of a module: its ID string with every letter, digit and '_' as it is
// and every other byte as '%' and two hexadecimal digits ("Demo layout" "Demo%20layout",
// "Demo.layout" "Demo%2Elayout"), so that different IDs never share a folder; "no-id"
// for an empty ID.
std::string backupFolderName(const std::string& id);

// Saves config and general (its ID string and LabelGenVersionString) as a new backup of
// the kind given under root, then deletes the module's oldest beyond the last
// kBackupsKept: incomplete ones before complete ones, never the one just saved, and an
// incomplete one never makes room by deleting a complete one. The path of the data file,
// or "" with error saying why when it could not be saved.
std::string saveBackup(const std::string& root, Configuration& config, const GeneralSettings& general,
                       std::chrono::system_clock::time_point now, std::string& error,
                       BackupKind kind = BackupKind::Complete);

// Every backup under root: the complete ones newest first, then the incomplete ones newest
// first. Files of other names are left out (and alone).
std::vector<BackupEntry> listBackups(const std::string& root);

} // namespace kestrel
