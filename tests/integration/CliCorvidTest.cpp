// kestrel-cli through a simulated Corvid system on a pseudo-terminal.
#include "support/Process.h"

#include <gtest/gtest.h>

using namespace kestrel::test;

TEST(CliThroughCorvid, TunnelThenTransparentModeThenDirectAndAnOldSystemRefusesTheTunnel)
{
    SimProcess sim({"--corvid", "--address", "0,20", "--version", "3.1.4.1", "--unit", "linkbox",
                    "--unit-version", "1030"});
    const std::string cli = binPath("kestrel-cli");
    // Through the tunnel, addresses above 15 are reachable.
    auto r = runProgram(cli, {"--port", sim.pty(), "--corvid", "--address", "20", "version"});
    EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "3.1.4.1\n")) << r.err;

    // The system supports tunneling, so switching the unit asks first; without --yes: no.
    EXPECT_EQ(runProgram(cli, {"--port", sim.pty(), "transparent"}).status, 1);
    r = runProgram(cli, {"--port", sim.pty(), "transparent", "--yes"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_NE(r.err.find("Your Linkbox has been put in Transparent Mode"), std::string::npos) << r.err;

    // Now the direct route passes through the unit.
    r = runProgram(cli, {"--port", sim.pty(), "version"});
    EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "3.1.4.1\n")) << r.err;

    // An old system refuses the tunnel.
    SimProcess old({"--corvid", "--system-version", "3.0"});
    r = runProgram(cli, {"--port", old.pty(), "--corvid", "version"});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Your system does not support this function\nProtocol = 3.0"), std::string::npos)
        << r.err;
}
