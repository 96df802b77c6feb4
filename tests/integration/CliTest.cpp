// kestrel-cli against kestrel-sim on pseudo-terminals: the real serial path end to end, directly
// and through a simulated Corvid system; reading, writing, comparing and losing the port.
#include "files/DemoConfiguration.h"
#include "support/Files.h"
#include "support/Process.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

using namespace kestrel;
using namespace kestrel::test;
using std::filesystem::exists;

static const std::string cli = binPath("kestrel-cli");

TEST(CliAgainstSimProcess, VersionAtEachBitRateAndAddress)
{
    SimProcess sim({"--address", "0", "--address", "5", "--version", "9.8.7.6"});
    // Left with odd parity by a client that was killed, the port opens all the same.
    ASSERT_NE(std::system(("stty -F " + sim.pty() + " parenb parodd 2>/dev/null").c_str()), -1);
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

TEST(CliThroughCorvid, TunnelThenTransparentModeThenDirectAndAnOldSystemRefusesTheTunnel)
{
    SimProcess sim({"--corvid", "--address", "0,20", "--version", "3.1.4.1", "--unit", "linkbox",
                    "--unit-version", "1030"});
    // Through the tunnel, addresses above 15 are reachable.
    auto r = runProgram(cli, {"--port", sim.pty(), "--corvid", "--address", "20", "version"});
    EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(0, "3.1.4.1\n")) << r.err;
    // Behind the live system nobody answers at address 5: the jobs fail, as on the direct route.
    ScratchDir dir("cli-corvid");
    spit(dir.file("demo.dat"), demoConfigurationText());
    for (const char* job : {"write", "verify"}) {
        r = runProgram(cli, {"--port", sim.pty(), "--corvid", "--address", "5", job, dir.file("demo.dat")});
        EXPECT_EQ(
            std::tuple(r.status, r.err.rfind("No response received from the module through the Corvid", 0)),
            std::tuple(1, 0u))
            << job << r.err;
    }

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
        {{"--one-way", "write", bad, "--changes-from", bad},
         "",
         "without replies the module's ID string cannot"},
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
    const std::string demo = dir.file("incomplete.dat"), loop = dir.file("loop.dat");
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

    // A read is never saved over a link that leads back to itself (nor a FIFO, a folder).
    std::filesystem::create_symlink("loop.dat", loop);
    r = runProgram(cli, {"read", loop});
    EXPECT_EQ(std::tuple(r.status, std::filesystem::is_symlink(loop)), std::tuple(1, true));
    EXPECT_NE(
        r.err.find("Cannot save " + loop + ": Can not replace " + loop + ": Too many levels of symbolic"),
        std::string::npos)
        << r.err;

    // Control characters (C0, 0x9B alone and in UTF-8, bidirectional overrides) reach stdout escaped.
    spit(demo, "\"KestrelConfiguration 3100\"\r\n\"Pin\",0,0,0,\"A\x01\x9B\xC2\x9B\xE2\x80\xAE\xE2\x81\xA6"
               "B\"\r\n\"End\"\r\n");
    const auto v = runProgram(cli, {"show", demo});
    EXPECT_NE(v.out.find("description: \"A\\x01\\x9B\\u009B\\u202E\\u2066B\"\n"), std::string::npos) << v.out;
}

TEST(CliDiff, AFileDiffersFromNothingOfItselfAndTheModuleByThePlantedStepAlone)
{
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

namespace {

// Pulls the port from under kestrel-cli mid-job: a kestrel-sim paced like a 9600 baud wire (a job
// takes seconds) stops a second into the job, its pseudo-terminal with it.
CommandResult runAndPullThePort(const std::vector<std::string>& args, std::string& pty)
{
    SimProcess sim({"--pace-baud", "9600"});
    pty = sim.pty();
    std::vector<std::string> all{"--port", sim.pty(), "--baud", "9600"};
    all.insert(all.end(), args.begin(), args.end());
    std::thread pull([&sim] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        sim.stop();
    });
    CommandResult r = runProgram(cli, all);
    pull.join();
    return r;
}

} // namespace

TEST(CliPortLost, ReadAndWriteEndWithOneMessageAndThePortServesAgain)
{
    ScratchDir dir("lost");
    const std::string lost = dir.file("lost-read.dat"), demo = dir.file("demo.dat");
    // The demonstration configuration of the built-in module, to write.
    ASSERT_EQ(runProgram(cli, {"--port", "sim", "read", demo}).status, 0);

    // The job ends at once: one message, status 1. Not "No response received ..." nor "Select communications
    // port" per item left; the reason is the system's ("the port hung up" or "Input/output error"), then
    // where the job stopped.
    for (const auto& [args, stopped] :
         {std::pair{std::vector<std::string>{"read", lost}, ")\nRead All stopped at Reading pin "},
          {std::vector<std::string>{"write", demo}, ")\nWrite All stopped at Writing "}}) {
        std::string pty;
        const CommandResult r = runAndPullThePort(args, pty);
        EXPECT_EQ(std::tuple(r.status, r.out), std::tuple(1, "")) << args[0];
        EXPECT_EQ(r.err.rfind("Warning: Communications port lost: " + pty + " (", 0), 0u) << r.err;
        EXPECT_NE(r.err.find(stopped), std::string::npos) << r.err;
        EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 2) << r.err;
    }
    EXPECT_FALSE(exists(lost)); // the read saved nothing

    // A port that is there again serves the next job.
    SimProcess sim;
    const CommandResult again = runProgram(cli, {"--port", sim.pty(), "read", lost});
    EXPECT_EQ(std::tuple(again.status, again.err, exists(lost)), std::tuple(0, "", true));
}

// Both programs read their command lines alike: options and operands in any order, a value
// the next word whatever it looks like, the first fault in the order given told in the
// program's words, and no other spelling of an option taken.
TEST(CommandLines, TheFirstFaultInTheOrderGivenIsToldAndNoOtherSpellingIsTaken)
{
    const std::string sim = binPath("kestrel-sim");
    const struct {
        std::string program;
        std::vector<std::string> args;
        std::string firstLine;
    } cases[] = {
        {cli, {"--baud", "5", "--bogus"}, "kestrel-cli: --baud must be 9600, 19200 or 38400"},
        {cli, {"--bogus", "--baud", "5"}, "kestrel-cli: unknown option --bogus"},
        {cli, {"--port=sim", "version"}, "kestrel-cli: unknown option --port=sim"},
        {cli, {"--", "ports"}, "kestrel-cli: unknown option --"},
        {cli, {"-port", "sim", "version"}, "kestrel-cli: unknown option -port"},
        {cli, {"ports", "--port"}, "kestrel-cli: --port needs a value"},
        {cli,
         {"--xaddress-range", "version"},
         "kestrel-cli: --xaddress-range goes with scan, backup-all or check-all"},
        {cli,
         {"--port", "--corvid", "version"},
         "Warning: Cannot open port --corvid: No such file or directory"},
        {sim,
         {"--garbage", "65", "--bogus"},
         "kestrel-sim: --garbage must be a number from 0 to 64, not \"65\""},
        {sim, {"--bogus", "--garbage", "65"}, "kestrel-sim: unknown option --bogus"},
        {sim, {"--address=3"}, "kestrel-sim: unknown option --address=3"},
        {sim, {"3"}, "kestrel-sim: unknown option 3"},
        {sim, {"--load"}, "kestrel-sim: --load needs a value"},
    };
    for (const auto& c : cases) {
        const auto r = runProgram(c.program, c.args);
        EXPECT_EQ(std::tuple(r.status, r.out, r.err.substr(0, r.err.find('\n'))),
                  std::tuple(2, "", c.firstLine))
            << r.err;
    }
    // An empty word before the command is passed over, as it always was.
    const auto r = runProgram(cli, {"", "ports"});
    const std::string simulated = "sim\nsim (Corvid)\n";
    EXPECT_EQ(std::tuple(r.status, r.out.rfind(simulated)), std::tuple(0, r.out.size() - simulated.size()))
        << r.err;
}

TEST(KestrelConfigWithoutADisplay, AnswersHelpAndVersionAndOtherwiseSaysSoInOneLine)
{
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(name);
    const std::string config = binPath("kestrel-config");
    auto help = runProgram(config, {"--help"}), version = runProgram(config, {"--version"});
    EXPECT_EQ(std::tuple(help.status, version.status, version.out.rfind("kestrel-config ", 0)),
              std::tuple(0, 0, 0u));
    EXPECT_NE(help.out.find("--size <WxH>"), std::string::npos);
    auto r = runProgram(config, {});
    EXPECT_EQ(std::tuple(r.status, r.out, std::count(r.err.begin(), r.err.end(), '\n')), std::tuple(1, "", 1))
        << r.err;
}
