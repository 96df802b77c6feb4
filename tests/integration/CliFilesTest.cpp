// read / write / verify / erase through kestrel-sim on a pseudo-terminal.
#include "support/Files.h"
#include "support/Process.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace kestrel::test;

static const std::string cli = binPath("kestrel-cli");

TEST(CliFiles, ReadFromBuiltInThenWriteVerifyAndReadBackThroughThePty)
{
    ScratchDir dir("cli-files");
    const std::string demo = dir.file("demo.dat"), back = dir.file("back.dat");

    // The built-in module starts with the demonstration configuration.
    auto r = runProgram(cli, {"--port", "sim", "read", demo});
    ASSERT_EQ(r.status, 0) << r.err;
    const std::string text = slurp(demo);
    EXPECT_NE(text.find("\"Pin\",0,2,"), std::string::npos);

    // A plain write leaves the pins' servo and PWM settings alone, and verification says so.
    SimProcess sim({"--address", "2"});
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "--baud", "38400", "write", demo});
    ASSERT_EQ(r.status, 0) << r.err;
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.out.find("Pin 0: Pinconfig does not compare\r\n"), std::string::npos);

    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "write", "--with-pin-config", demo});
    ASSERT_EQ(r.status, 0) << r.err;
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo});
    EXPECT_EQ(r.status, 0) << r.out << r.err;
    EXPECT_EQ(r.out,
              "Start General Settings Verification\r\nStart EC Verification\r\nStart Pin Verification\r\n"
              "Verify OK\r\n");

    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "read", back});
    ASSERT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(slurp(back) == text) << "the file read back differs from the one written";

    // Erase asks twice; without --yes nothing is sent.
    EXPECT_EQ(runProgram(cli, {"--port", sim.pty(), "--address", "2", "erase"}).status, 1);
    r = runProgram(cli, {"--port", sim.pty(), "--address", "2", "erase", "--yes"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(runProgram(cli, {"--port", sim.pty(), "--address", "2", "verify", demo}).status, 1);

    // A simulator seeded from the file holds it at each of its addresses.
    SimProcess seeded({"--load", demo, "--address", "0,7"});
    for (const char* address : {"0", "7"}) {
        r = runProgram(cli, {"--port", seeded.pty(), "--address", address, "verify", demo});
        EXPECT_EQ(r.status, 0) << address << r.out << r.err;
    }
}

TEST(CliFiles, BadFilesAndAddressesAreUsageErrorsAndNothingIsSent)
{
    ScratchDir dir("cli-bad");
    const std::string bad = dir.file("bad.dat"), missing = dir.file("missing.dat");
    const std::string head = "\"KestrelConfiguration 3100\"\r\n";
    // Arguments, the text written to `bad` first (when not empty), part of stderr.
    const std::tuple<std::vector<std::string>, std::string, std::string> cases[] = {
        {{"write", bad}, "\"KestrelConfig 3100\"\r\n\"End\"\r\n", "Invalid configuration file"},
        {{"verify", missing}, "", "Cannot read " + missing + ": No such file"},
        {{"write", bad},
         head + "\"Pin\",0,3,0,\"\"\r\n\"PAM\",1,255,255\r\n\"End\"\r\n",
         "DCC address count 255 cannot be sent: 0..7"},
        {{"--address", "99", "erase", "--yes"}, "", "--address must be a number from 0 to 15, not \"99\""},
        {{"--address", "abc", "version"}, "", "--address must be a number from 0 to 15, not \"abc\""},
        {{"--number-from-1", "--address", "0", "version"}, "", "--address must be a number from 1 to 16"},
        {{"--xaddress", "96", "version"}, "", "--xaddress must be a number from 0 to 95"},
        {{"--port", "", "version"}, "", "--port needs a port name"},
    };
    // Modules 0, 3 and 15 on one bus: none of them may hear a byte.
    SimProcess sim({"--address", "0,3,15"});
    for (const auto& [args, file, err] : cases) {
        if (!file.empty())
            spit(bad, file);
        std::vector<std::string> all{"--port", sim.pty()};
        all.insert(all.end(), args.begin(), args.end());
        const auto r = runProgram(cli, all);
        EXPECT_EQ(r.status, 2) << err << "\n" << r.err;
        EXPECT_NE(r.err.find(err), std::string::npos) << r.err;
    }
    EXPECT_NE(sim.stop().find("kestrel-sim-stats: exchanges=0 bytes_in=0 "), std::string::npos);
}

TEST(CliFiles, AJobThatCannotCompleteFailsAndSaysWhatWasIncomplete)
{
    ScratchDir dir("cli-incomplete");
    const std::string demo = dir.file("incomplete.dat"), fifo = dir.file("fifo.dat");
    ASSERT_EQ(runProgram(cli, {"read", demo}).status, 0);

    // A silent module: the write stops at its first exchange, not going on blind, and says where.
    SimProcess silent({"--drop-replies", "100000"});
    const auto start = std::chrono::steady_clock::now();
    auto r = runProgram(cli, {"--port", silent.pty(), "write", demo});
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(std::tuple(r.status, r.err),
              std::tuple(1, "No response received, resetting bidirectional communication\n"
                            "Write All stopped at Writing ID string\n"));

    // A module that does not know one read: the read runs through and is saved, and fails.
    SimProcess refusing({"--refuse", "117:echo"});
    std::filesystem::remove(demo);
    r = runProgram(cli, {"--port", refusing.pty(), "read", demo});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "Read Event-Off: Function not supported by Device\nRead All incomplete: 1 problem "
                     "reported, the first: Read Event-Off: Function not supported by Device\n");
    EXPECT_EQ(slurp(demo).rfind("\"KestrelConfiguration 3100\"", 0), 0u);

    // A read is never saved over something that is not a regular file.
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    r = runProgram(cli, {"read", fifo});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("Cannot save " + fifo + ": Can not replace " + fifo + ": Not a regular file"),
              std::string::npos)
        << r.err;

    // A control character of the ID reaches stdout escaped.
    spit(demo, "\"KestrelConfiguration 3100\"\r\n\"ID$\",\"A\x01"
               "B\"\r\n\"End\"\r\n");
    const auto v = runProgram(cli, {"verify", demo});
    EXPECT_EQ(v.status, 1);
    EXPECT_NE(v.out.find("ID does not compare: KestrelConfig = <A\\x01B> Kestrel = <"), std::string::npos)
        << v.out;
}
