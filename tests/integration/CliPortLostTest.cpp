// kestrel-cli loses its port in the middle of a job: kestrel-sim, paced like a 9600 baud
// wire so that the job takes a few seconds, is stopped while the job runs, and its
// pseudo-terminal goes with it. The job ends at once with one message and status 1.
#include "support/Files.h"
#include "support/Process.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

using namespace kestrel::test;
using std::filesystem::exists;

namespace {

// Runs kestrel-cli with args against a paced kestrel-sim and stops the simulator a second
// after the job has started.
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
    CommandResult r = runProgram(binPath("kestrel-cli"), all);
    pull.join();
    return r;
}

} // namespace

TEST(CliPortLost, ReadEndsWithOneMessageAndNoFile)
{
    ScratchDir dir("lost-read");
    const std::string file = dir.file("lost-read.dat");
    std::string pty;
    const CommandResult r = runAndPullThePort({"read", file}, pty);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "");
    // Not "No response received ...", nothing for the rest of the job, and last where it stopped.
    // The reason is the system's: "the port hung up" or "Input/output error", as the pty went.
    EXPECT_EQ(r.err.rfind("Warning: Communications port lost: " + pty + " (", 0), 0u) << r.err;
    EXPECT_NE(r.err.find(")\nRead All stopped at Reading pin "), std::string::npos) << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 2) << r.err;
    EXPECT_FALSE(exists(file));

    // A port that is there again serves the next job.
    SimProcess sim;
    const CommandResult again = runProgram(binPath("kestrel-cli"), {"--port", sim.pty(), "read", file});
    EXPECT_EQ(again.status, 0) << again.err;
    EXPECT_EQ(again.err, "");
    EXPECT_TRUE(exists(file));
}

TEST(CliPortLost, WriteEndsWithOneMessage)
{
    // The demonstration configuration of the built-in module, to write.
    ScratchDir dir("lost-write");
    const std::string file = dir.file("lost-write.dat");
    const CommandResult saved = runProgram(binPath("kestrel-cli"), {"--port", "sim", "read", file});
    ASSERT_EQ(saved.status, 0) << saved.err;

    std::string pty;
    const CommandResult r = runAndPullThePort({"write", file}, pty);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "");
    // In particular no "Select communications port" for each item left to write.
    // The reason is the system's: "the port hung up" or "Input/output error", as the pty went.
    EXPECT_EQ(r.err.rfind("Warning: Communications port lost: " + pty + " (", 0), 0u) << r.err;
    EXPECT_NE(r.err.find(")\nWrite All stopped at Writing "), std::string::npos) << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 2) << r.err;
}
