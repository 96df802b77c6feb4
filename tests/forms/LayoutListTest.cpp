// The layout list: how a scan and the jobs change it, and how it is kept with the settings.
#include "forms/LayoutList.h"

#include <gtest/gtest.h>

using namespace kestrel;

namespace {
FoundModule at(int address, std::optional<int> xaddress, const std::string& id, bool corvid = false)
{
    return {corvid, address, xaddress, "1.2.3.4", id};
}
} // namespace

TEST(LayoutList, AScanKeepsWhatWasLearntAndMarksTheMissingOnesOfItsRoute)
{
    const std::vector<LayoutEntry> listed = {
        {at(3, std::nullopt, "Yard east"), LayoutState::Differs, 2},
        {at(5, 7, "Crossing 2"), LayoutState::Holds, 0},
        {at(20, std::nullopt, "Far", true), LayoutState::Holds, 0}, // the other route: as it was
        {at(9, std::nullopt, "Gone"), LayoutState::Holds, 0},       // not found: did not answer
        {at(15, std::nullopt, "Station"), LayoutState::Holds, 0},   // another ID answers there now
    };
    const std::vector<LayoutEntry> after = afterScan(
        listed, {at(15, std::nullopt, "Platform"), at(3, std::nullopt, "Yard east"), at(5, 7, "Crossing 2")},
        false);
    std::vector<std::string> shown;
    for (const LayoutEntry& e : after)
        shown.push_back(shownModule(e.module, 1) + (e.module.corvid ? " Corvid: " : ": ") + stateText(e));
    EXPECT_EQ(shown, (std::vector<std::string>{"4 \"Yard east\": differs (2 items)",
                                               "6/8 \"Crossing 2\": holds its newest backup",
                                               "10 \"Gone\": did not answer", "16 \"Platform\": not checked",
                                               "21 \"Far\" Corvid: holds its newest backup"}));
    // Kept with the settings and read back; lines that are not the list's are passed over.
    std::vector<std::string> lines = encodeLayout(after);
    lines.insert(lines.begin(), {"", "1\t40\t-1\t0\t0\tv\tbeyond the Corvid addresses", "x\ty"});
    EXPECT_EQ(decodeLayout(lines), after);
}

TEST(LayoutList, TheJobsResultsSetTheStatesAndTheSummary)
{
    std::vector<LayoutEntry> list = {{at(0, std::nullopt, "A")}, {at(3, std::nullopt, "B")}, {at(5, 7, "C")}};
    const std::vector<ModuleCheck> checks = {
        {list[0].module, CheckVerdict::Equal, "a.dat", {}, {}},
        {list[1].module, CheckVerdict::Differs, "b.dat", {"general DCC Address: module 111, file 110"}, {}},
        {list[2].module, CheckVerdict::Failed, "", {}, "No response received"},
    };
    noteResults(list, checks);
    std::vector<SummaryRow> rows;
    for (const ModuleCheck& c : checks)
        rows.push_back(summaryRow(c, 0));
    EXPECT_EQ(summaryTable(rows), "module   result                        file\n"
                                  "0 \"A\"    holds its newest backup       a.dat\n"
                                  "3 \"B\"    differs (1 item)              b.dat\n"
                                  "5/7 \"C\"  failed: No response received  -\n");
    EXPECT_EQ(std::vector<std::string>({stateText(list[0]), stateText(list[1]), stateText(list[2])}),
              (std::vector<std::string>{"holds its newest backup", "differs (1 item)", "did not answer"}));
    noteResults(list, std::vector<ModuleBackup>{{list[1].module, true, false, "b2.dat", {}},
                                                {list[2].module, true, true, "c.dat", {}}});
    EXPECT_EQ(std::tuple(list[1].state, list[2].state),
              std::tuple(LayoutState::Holds, LayoutState::NotChecked));
}
