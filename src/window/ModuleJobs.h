#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

namespace kestrel {

class KestrelConfig;

// The window's jobs on the module, by name (Jobs::): what each runs, under which title and
// with which progress, and what the window does after it: a completed Read All is kept as
// a backup, Compare with Module shows its differences, the jobs over the layout fill the
// Layout page and end with their summary.
class ModuleJobs {
public:
    static void add(KestrelConfig& window);
    // Find Modules, Back Up All and Check All, over the list of the Layout page.
    static void addLayoutJobs(KestrelConfig& window);
    // The buttons that start a job (the job runner lets them replace a job asked for), and
    // those that write to the module (a mnemonic on them asks first).
    static void setButtons(KestrelConfig& window);
    // The differences of a Compare with Module, in the window's compare dialog (made on
    // first use and kept): the chosen ones can be taken, then written.
    static void showComparison(KestrelConfig& window, const Configuration& module,
                               const GeneralSettings& gmodule);
};

} // namespace kestrel
