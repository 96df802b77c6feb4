// show / diff / compare: the data files without a port, and a module against a file.
#include "files/DemoConfiguration.h"
#include "support/Files.h"
#include "support/Process.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(CliDiff, AFileDiffersFromNothingOfItselfAndTheModuleByThePlantedStepAlone)
{
    const std::string cli = binPath("kestrel-cli");
    ScratchDir dir("cli-diff");
    const std::string demo = dir.file("demo.dat"), planted = dir.file("planted.dat");
    spit(demo, demoConfigurationText());
    std::string text = demoConfigurationText();
    const std::string off = "\"Ins\",1,24,1,0,0,0"; // pin 3, aspect 0, step 1: "Off" with fade
    text.replace(text.find(off), off.size(), "\"Ins\",1,25,1,0,0,0");
    spit(planted, text);

    auto r = runProgram(cli, {"diff", demo, demo});
    EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "")) << r.err;
    EXPECT_EQ(runProgram(cli, {"diff", demo, dir.file("missing.dat")}).status, 2);

    SimProcess sim({"--load", demo});
    r = runProgram(cli, {"--port", sim.pty(), "--number-from-1", "compare", planted});
    EXPECT_EQ(r.status, 1) << r.err;
    EXPECT_EQ(
        r.out,
        "pin 4 aspect 0 step 1: module \"Off\" P.O. 1 T(/60) 0 Fade, file \"On\" P.O. 1 T(/60) 0 Fade\n");

    // Writing only the change from what the module holds leaves nothing to compare.
    r = runProgram(cli, {"--port", sim.pty(), "write", planted, "--changes-from", demo});
    EXPECT_EQ(r.status, 0) << r.err;
    r = runProgram(cli, {"--port", sim.pty(), "compare", planted});
    EXPECT_EQ(r.status, 0) << r.out;
}
