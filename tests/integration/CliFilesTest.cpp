// read / write / verify / erase through kestrel-sim on a pseudo-terminal.
#include "support/Process.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

using namespace kestrel::test;

namespace {
std::string slurp(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

std::string tempPath(const char* name)
{
    return "/tmp/kestrel-it-" + std::to_string(getpid()) + "-" + name;
}
} // namespace

TEST(CliFiles, ReadFromBuiltInThenWriteVerifyAndReadBackThroughThePty)
{
    const std::string cli = binPath("kestrel-cli");
    const std::string demo = tempPath("demo.dat"), back = tempPath("back.dat");

    // The built-in module starts with the demonstration configuration.
    auto r = runProgram(cli, {"--port", "sim", "read", demo});
    ASSERT_EQ(r.status, 0) << r.err;
    const std::string text = slurp(demo);
    EXPECT_EQ(text.rfind("\"KestrelConfiguration 3100\"\r\n", 0), 0u);
    EXPECT_NE(text.find("\"Pin\",0,2,"), std::string::npos);

    SimProcess sim({"--address", "2"});
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo});
    EXPECT_EQ(r.status, 1); // an empty module does not compare
    EXPECT_NE(r.out.find("Verification Stopped\r\n"), std::string::npos) << r.out;

    // A plain write leaves the pins' servo and PWM settings alone, and verification says so.
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "--baud", "38400", "write", demo});
    ASSERT_EQ(r.status, 0) << r.err;
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.out.find("Pin 0: Pinconfig does not compare\r\n"), std::string::npos);

    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "write", "--with-pin-config", demo});
    ASSERT_EQ(r.status, 0) << r.err;
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo});
    EXPECT_EQ(r.status, 0) << r.out << r.err;
    EXPECT_EQ(r.out, "Start General Settings Verification\r\nStart EC Verification\r\nStart Pin Verification\r\n"
                     "Verify OK\r\n");

    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "read", back});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(slurp(back) == text) << "the file read back differs from the one written";

    // Erase asks twice; without --yes nothing is sent.
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "erase"});
    EXPECT_EQ(r.status, 1);
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "erase", "--yes"});
    EXPECT_EQ(r.status, 0) << r.err;
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo});
    EXPECT_EQ(r.status, 1);

    std::remove(demo.c_str());
    std::remove(back.c_str());
}

TEST(CliFiles, BrokenFileAndMissingFileFailWithoutTouchingTheModule)
{
    const std::string cli = binPath("kestrel-cli");
    const std::string bad = tempPath("bad.dat");
    {
        std::ofstream out(bad, std::ios::binary);
        out << "\"KestrelConfig 3100\"\r\n\"End\"\r\n";
    }
    auto r = runProgram(cli, {"--port", "sim", "write", bad});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Invalid configuration file"), std::string::npos) << r.err;
    r = runProgram(cli, {"--port", "sim", "verify", tempPath("missing.dat")});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Cannot read"), std::string::npos) << r.err;
    EXPECT_EQ(runProgram(cli, {"read"}).status, 2);
    std::remove(bad.c_str());
}

TEST(CliFiles, SimulatorSeededFromAFile)
{
    const std::string cli = binPath("kestrel-cli");
    const std::string demo = tempPath("seed.dat");
    ASSERT_EQ(runProgram(cli, {"read", demo}).status, 0);
    SimProcess sim({"--load", demo, "--address", "0,7"});
    for (const char* address : {"0", "7"}) {
        auto r = runProgram(cli, {"--port", sim.pty(), "--address", address, "verify", demo});
        EXPECT_EQ(r.status, 0) << address << r.out << r.err;
    }
    std::remove(demo.c_str());
}
