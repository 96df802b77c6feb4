// Runs the kestrel-sim executable and talks to it through its pseudo-terminal.
#include "files/DemoConfiguration.h"
#include "support/Files.h"
#include "support/Frames.h"
#include "support/Process.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

// Opens the pseudo-terminal raw, writes `out` and collects up to `expect` bytes (3 s at most).
Bytes exchange(const std::string& path, const Bytes& out, std::size_t expect)
{
    const int fd = open(path.c_str(), O_RDWR | O_NOCTTY);
    EXPECT_GE(fd, 0) << path;
    if (fd < 0)
        return {};
    termios t{};
    tcgetattr(fd, &t);
    cfmakeraw(&t);
    t.c_cflag |= PARENB | PARODD;
    cfsetspeed(&t, B19200);
    tcsetattr(fd, TCSANOW, &t);
    EXPECT_EQ(write(fd, out.data(), out.size()), static_cast<ssize_t>(out.size()));
    Bytes in;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    while (in.size() < expect && std::chrono::steady_clock::now() < end) {
        pollfd p{fd, POLLIN, 0};
        std::uint8_t buf[64];
        if (poll(&p, 1, 100) > 0)
            if (const ssize_t n = read(fd, buf, sizeof buf); n > 0)
                in.insert(in.end(), buf, buf + n);
    }
    close(fd);
    return in;
}

} // namespace

TEST(KestrelSimProcess, AnswersThroughItsPseudoTerminalAcrossReopen)
{
    kestrel::test::SimProcess sim({"--address", "2", "--version", "9.8.7.6", "--pace-baud", "38400"});
    // Burst, empty frame to address 2, then Request Version with toggle 64.
    const Bytes first =
        exchange(sim.pty(), {0, 0, 0, 255, 255, 255, 170, 170, 170, 11, 192, 181, 75, 226, 240, 128, 227}, 9);
    EXPECT_EQ(first, kestrel::test::frame<Bytes>({75, 230}, {112, 0, 9, 8, 7, 6}));
    // The client goes away and comes back.
    EXPECT_EQ(exchange(sim.pty(), {11, 226, 240, 128, 163}, 9),
              kestrel::test::frame<Bytes>({11, 230}, {112, 0, 9, 8, 7, 6}));

    const std::string summary = sim.stop(); // written on a clean exit
    EXPECT_NE(summary.find("2 exchanges"), std::string::npos) << summary;
    EXPECT_NE(summary.find("at 38400 baud"), std::string::npos) << summary;
}

TEST(KestrelSimProcess, StartsWithTheFlashConfigurationActiveAndSaysWhyAFileCannotBeLoaded)
{
    using namespace kestrel::test;
    const ScratchDir dir("sim-load");
    const std::string demo = dir.file("demo.dat"), bad = dir.file("bad.dat");
    spit(demo, kestrel::demoConfigurationText());
    SimProcess sim({"--load", demo});
    // Get Pin Config ("Q") of the servo pin 8 answers its flash configuration ("Cfg",1,39,25,...).
    EXPECT_EQ(
        exchange(sim.pty(), {0, 0, 0, 255, 255, 255, 170, 170, 170, 3, 192, 189, 67, 226, 209, 136, 130}, 17),
        frame<Bytes>({67, 238}, {81, 8, 1, 39, 25, 64, 60, 40, 20, 10, 64, 0, 64, 0}));

    spit(bad, "\"KestrelConfiguration 3100\"\r\n\"Pin\",x\r\n");
    for (const auto& [file, why] :
         {std::pair{dir.file("none.dat"), ": No such file or directory\n"},
          {bad, ": Error in configuration file: Number expected, found \"x\" at line 2, item 2\n"}}) {
        const auto r = runProgram(binPath("kestrel-sim"), {"--load", file});
        EXPECT_EQ(std::tuple(r.status, r.err), std::tuple(2, "kestrel-sim: cannot load " + file + why));
    }
}
