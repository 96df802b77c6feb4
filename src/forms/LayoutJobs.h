#pragma once
#include "ops/BusScan.h"
#include "session/Session.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace kestrel {

// The jobs over every module of a layout (a list that findModules gave). Each module is
// addressed in turn (withModule) and read beside what is shown, which stays as it was; a
// module that fails is reported in its result and the others still run; a Cancel ends the
// run after the module it cut short. The progress runs over the whole list, each module
// taking its share.

// The result of backing up one module.
struct ModuleBackup {
    FoundModule module;
    bool ok = false;         // read and kept
    bool incomplete = false; // the read reported problems: kept as an incomplete backup
    std::string file;        // the backup's data file
    std::string error;       // why it failed
};

// "Back Up All": Read All of each module, kept under `root` as the window keeps a backup
// after Read All (files/Backups: its folder by ID string, a read that reported problems
// as an incomplete one). What the module does not hold (descriptions) is taken from its
// newest complete backup, else left empty. A job of the session ("Back Up All").
std::vector<ModuleBackup>
backUpAll(Session& session, const std::vector<FoundModule>& modules, const std::string& root,
          const std::function<std::chrono::system_clock::time_point()>& now = std::chrono::system_clock::now);

enum class CheckVerdict { Equal, Differs, NoBackup, Failed };

// The result of checking one module against its newest complete backup.
struct ModuleCheck {
    FoundModule module;
    CheckVerdict verdict = CheckVerdict::Failed;
    std::string backup;                   // the backup's data file compared with
    std::vector<std::string> differences; // as `compare` prints them: "<item>: module <v>, file <v>"
    std::string error;                    // why it failed
};

// "Check All": each module read beside what is shown (as Compare with Module does, over
// its newest complete backup so that descriptions count as equal) and compared item by
// item with that backup. A job of the session ("Check All").
std::vector<ModuleCheck> checkAll(Session& session, const std::vector<FoundModule>& modules,
                                  const std::string& root);

} // namespace kestrel
