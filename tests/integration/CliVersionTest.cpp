// kestrel-cli against kestrel-sim on a pseudo-terminal: the real serial path end to end.
#include "support/Process.h"

#include <gtest/gtest.h>

using namespace kestrel::test;

static const std::string cli = binPath("kestrel-cli");

TEST(CliAgainstSimProcess, VersionAtEachBitRateAndAddress)
{
    SimProcess sim({"--address", "0", "--address", "5", "--version", "9.8.7.6"});
    for (const char* baud : {"9600", "19200", "38400"}) {
        auto r = runProgram(cli, {"--port", sim.pty(), "--baud", baud, "version"});
        EXPECT_EQ(std::tuple(r.status, r.out, r.err), std::tuple(0, "9.8.7.6\n", "")) << baud;
    }
    // Numbered from 1, address 6 is module 5.
    auto r = runProgram(cli, {"--port", sim.pty(), "--number-from-1", "--address", "6", "version"});
    EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "9.8.7.6\n")) << r.err;

    // Nobody at address 9: the time-out message on stderr, status 1.
    r = runProgram(cli, {"--port", sim.pty(), "--address", "9", "version"});
    EXPECT_EQ(std::tuple(r.status, r.out, r.err),
              std::tuple(1, "", "No response received, resetting bidirectional communication\n"));
}

TEST(CliAgainstSimProcess, UsageAndPortErrorsExitWithTwo)
{
    auto r = runProgram(cli, {"--port", "/dev/kestrel-no-such-port", "version"});
    EXPECT_EQ(r.status, 2);
    EXPECT_NE(r.err.find("Cannot open port /dev/kestrel-no-such-port"), std::string::npos) << r.err;
    EXPECT_EQ(runProgram(cli, {"frobnicate"}).status, 2);
    EXPECT_EQ(runProgram(cli, {"--baud", "1200", "version"}).status, 2);
    EXPECT_EQ(runProgram(cli, {}).status, 2);

    r = runProgram(cli, {"--port", "sim", "version"});
    EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "1.2.3.4\n"));
}

TEST(CliAgainstSimProcess, FaultSwitchesOfTheSimulator)
{
    SimProcess refusing({"--refuse", "112,0:length"});
    auto r = runProgram(cli, {"--port", refusing.pty(), "version"});
    EXPECT_EQ(std::tuple(r.status, r.err), std::tuple(1, "GetVersion: No valid response, size <> 6\n"));

    // Stray bytes and a corrupted copy before each good reply do no harm.
    SimProcess sim({"--garbage", "5", "--corrupt-copies", "2"});
    for (int i = 0; i < 3; ++i) {
        r = runProgram(cli, {"--port", sim.pty(), "version"});
        EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "1.2.3.4\n")) << r.err;
    }
}
