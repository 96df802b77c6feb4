// kestrel-cli's scan, backup-all and check-all against kestrel-sim's simulated layout on a
// pseudo-terminal (modules at 0, 3, 5 and 15, and a silent one at 9), directly and through
// a simulated Corvid system; the built-in layout behind its Corvid system.
#include "support/Files.h"
#include "support/Process.h"

#include <cstdlib>
#include <gtest/gtest.h>

using namespace kestrel::test;

namespace {

const std::string cli = binPath("kestrel-cli");

// The layout with a module at 9 that never answers; backups kept in a folder of the test's own.
struct LayoutOnPty {
    SimProcess sim;
    ScratchDir data{"layout-cli"};
    explicit LayoutOnPty(bool corvid)
        : sim(corvid ? std::vector<std::string>{"--layout", "--corvid", "--address", "9", "--drop-replies",
                                                "1000000"}
                     : std::vector<std::string>{"--layout", "--address", "9", "--drop-replies", "1000000"})
    {
        setenv("XDG_DATA_HOME", data.path.c_str(), 1);
    }
    CommandResult run(std::vector<std::string> args) const
    {
        args.insert(args.begin(), {"--port", sim.pty()});
        return runProgram(cli, args);
    }
    std::string backups() const { return data.file("Kestrel/Kestrel Config/backups"); }
};

const char* const kScan = "0 1.2.3.4 \"Demo layout\"\n"
                          "3 1.2.3.4 \"Yard east\"\n"
                          "5 1.2.3.4 \"Crossing 2\"\n"
                          "15 1.2.3.4 \"Station\"\n";

// The summary's rows: each module's result, in the order of the scan.
std::vector<std::string> results(const std::string& out)
{
    std::vector<std::string> rows;
    const std::size_t table = out.find("\nmodule ");
    for (std::size_t at = out.find('\n', table + 1); at != std::string::npos && at + 1 < out.size();
         at = out.find('\n', at + 1)) {
        const std::string line = out.substr(at + 1, out.find('\n', at + 1) - at - 1);
        const std::size_t result = line.find_first_not_of(' ', line.find('"', line.find('"') + 1) + 1);
        rows.push_back(line.substr(result, line.find("  ", result) - result));
    }
    return rows;
}

} // namespace

TEST(CliLayout, ScanBackUpAllAndCheckAll)
{
    const LayoutOnPty layout(false);
    const struct {
        std::vector<std::string> args;
        int status;
        std::string out;
    } scans[] = {
        {{"scan"}, 0, kScan},
        {{"--number-from-1", "scan"},
         0,
         "1 1.2.3.4 \"Demo layout\"\n4 1.2.3.4 \"Yard east\"\n6 1.2.3.4 \"Crossing 2\"\n16 1.2.3.4 "
         "\"Station\"\n"},
    };
    for (const auto& c : scans) {
        const auto r = layout.run(c.args);
        EXPECT_EQ(std::tuple(r.status, r.out, r.err), std::tuple(c.status, c.out, "")) << c.args[0];
    }

    // Nothing kept yet: no module can be checked.
    auto r = layout.run({"check-all"});
    EXPECT_EQ(std::tuple(r.status, results(r.out)), std::tuple(1, std::vector<std::string>(4, "no backup")))
        << r.out << r.err;

    r = layout.run({"backup-all"});
    EXPECT_EQ(std::tuple(r.status, results(r.out)), std::tuple(0, std::vector<std::string>(4, "backed up")))
        << r.out << r.err;
    EXPECT_NE(r.out.find("Backing up 15 \"Station\" (4 of 4)\n"), std::string::npos) << r.out;
    for (const char* folder : {"Demo%20layout", "Yard%20east", "Crossing%202", "Station"})
        EXPECT_FALSE(std::filesystem::is_empty(layout.backups() + "/" + folder)) << folder;

    // The yard module's DCC address changes: only it differs, in compare's words.
    ScratchDir dir("layout-cli-yard");
    const std::string yard = dir.file("yard.dat");
    ASSERT_EQ(layout.run({"--address", "3", "read", yard}).status, 0);
    std::string text = slurp(yard);
    text.replace(text.find("\"DCC\",110,"), 10, "\"DCC\",111,");
    spit(yard, text);
    ASSERT_EQ(layout.run({"--address", "3", "write", yard}).status, 0);
    r = layout.run({"check-all"});
    EXPECT_EQ(std::tuple(r.status, results(r.out)),
              std::tuple(1, std::vector<std::string>{"holds its newest backup", "differs (1 item)",
                                                     "holds its newest backup", "holds its newest backup"}))
        << r.out << r.err;
    EXPECT_NE(r.out.find("Checking 3 \"Yard east\" (2 of 4)\ngeneral DCC Address: module 111, file 110\n"),
              std::string::npos)
        << r.out;

    // Only the silent module: nothing found.
    SimProcess silent({"--address", "9", "--drop-replies", "1000000"});
    r = runProgram(cli, {"--port", silent.pty(), "scan"});
    EXPECT_EQ(std::tuple(r.status, r.out, r.err), std::tuple(1, "", ""));
}

TEST(CliLayout, ScanBackUpAllAndCheckAllThroughTheCorvidSystem)
{
    // The built-in "sim (Corvid)": the same modules behind a system that tunnels.
    auto builtIn = runProgram(cli, {"--port", "sim (Corvid)", "--corvid", "--address", "15", "version"});
    EXPECT_EQ(std::tuple(builtIn.status, builtIn.out, builtIn.err), std::tuple(0, "1.2.3.4\n", ""));

    const LayoutOnPty layout(true);
    auto r = layout.run({"--corvid", "scan"});
    EXPECT_EQ(std::tuple(r.status, r.out, r.err), std::tuple(0, kScan, ""));
    r = layout.run({"--corvid", "backup-all"});
    EXPECT_EQ(std::tuple(r.status, results(r.out)), std::tuple(0, std::vector<std::string>(4, "backed up")))
        << r.out << r.err;
    r = layout.run({"--corvid", "check-all"});
    EXPECT_EQ(std::tuple(r.status, results(r.out)),
              std::tuple(0, std::vector<std::string>(4, "holds its newest backup")))
        << r.out << r.err;
}
