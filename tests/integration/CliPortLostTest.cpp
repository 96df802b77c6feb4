// kestrel-cli loses its port mid-job: a kestrel-sim paced like a 9600 baud wire (a job takes
// seconds) stops, its pseudo-terminal with it. The job ends at once: one message, status 1.
#include "support/Files.h"
#include "support/Process.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

using namespace kestrel::test;
using std::filesystem::exists;

namespace {

// Stops the paced simulator a second into the job.
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

TEST(CliPortLost, ReadAndWriteEndWithOneMessageAndThePortServesAgain)
{
    ScratchDir dir("lost");
    const std::string lost = dir.file("lost-read.dat"), demo = dir.file("demo.dat");
    // The demonstration configuration of the built-in module, to write.
    ASSERT_EQ(runProgram(binPath("kestrel-cli"), {"--port", "sim", "read", demo}).status, 0);

    // Not "No response received ..." nor "Select communications port" per item left; the reason
    // is the system's ("the port hung up" or "Input/output error"), then where the job stopped.
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
    const CommandResult again = runProgram(binPath("kestrel-cli"), {"--port", sim.pty(), "read", lost});
    EXPECT_EQ(std::tuple(again.status, again.err, exists(lost)), std::tuple(0, "", true));
}
