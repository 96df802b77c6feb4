#pragma once
#include "forms/LayoutJobs.h"
#include "ops/BusScan.h"

#include <string>
#include <vector>

namespace kestrel {

// The modules of a layout as the front ends list them: found by the scan or remembered for
// the port, each with what the last job over the layout learnt about it.

// A module's bus address as shown: "3", "5/7" for eXtended address 7, numbered from `base`.
std::string shownAddress(const FoundModule& module, int base);
// The address as shown and the ID string: 3 "Yard east".
std::string shownModule(const FoundModule& module, int base);

enum class LayoutState { NotChecked, Holds, Differs, NoAnswer };

struct LayoutEntry {
    FoundModule module;
    LayoutState state = LayoutState::NotChecked;
    int differing = 0; // items that differ from the newest backup (Differs)
    bool operator==(const LayoutEntry&) const = default;
};

// "holds its newest backup", "differs (n items)", "not checked", "did not answer".
std::string stateText(const LayoutEntry& entry);

// The list after a scan of one route: the modules found (each keeping its state when the
// same module, by address and ID string, was listed), those listed on that route but not
// found now as "did not answer", and the other route's as they were; ordered by route,
// address and eXtended address.
std::vector<LayoutEntry> afterScan(const std::vector<LayoutEntry>& listed,
                                   const std::vector<FoundModule>& found, bool corvid);
// The states that Back Up All and Check All leave: a module kept whole holds its newest
// backup; one that failed did not answer.
void noteResults(std::vector<LayoutEntry>& list, const std::vector<ModuleBackup>& backups);
void noteResults(std::vector<LayoutEntry>& list, const std::vector<ModuleCheck>& checks);

// One line a module, for keeping the list with the settings, and back; a line that cannot
// be read is left out.
std::vector<std::string> encodeLayout(const std::vector<LayoutEntry>& list);
std::vector<LayoutEntry> decodeLayout(const std::vector<std::string>& lines);

// The summary that ends Back Up All and Check All: a row a module (module, result, file)
// and the table of them in columns under "module  result  file". A Check All's rows are
// preceded by the differences of each module that differs, as `compare` prints them.
struct SummaryRow {
    std::string module, result, file;
};
SummaryRow summaryRow(const ModuleBackup& backup, int base);
SummaryRow summaryRow(const ModuleCheck& check, int base);
std::string summaryTable(const std::vector<SummaryRow>& rows);

} // namespace kestrel
