// Runs the kestrel-sim executable and talks to it through its pseudo-terminal.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

std::string readLine(int fd, int timeoutMs)
{
    std::string line;
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    while (std::chrono::steady_clock::now() < end) {
        pollfd p{fd, POLLIN, 0};
        if (poll(&p, 1, 100) <= 0)
            continue;
        char c;
        if (read(fd, &c, 1) != 1)
            break;
        if (c == '\n')
            return line;
        line += c;
    }
    return line;
}

std::string readAll(int fd)
{
    std::string text;
    char buf[256];
    ssize_t n;
    while ((n = read(fd, buf, sizeof buf)) > 0)
        text.append(buf, static_cast<std::size_t>(n));
    return text;
}

int openRaw(const std::string& path)
{
    const int fd = open(path.c_str(), O_RDWR | O_NOCTTY);
    if (fd < 0)
        return fd;
    termios t{};
    tcgetattr(fd, &t);
    cfmakeraw(&t);
    t.c_cflag |= PARENB | PARODD;
    cfsetspeed(&t, B19200);
    tcsetattr(fd, TCSANOW, &t);
    return fd;
}

Bytes exchange(int fd, const Bytes& out, std::size_t expect)
{
    EXPECT_EQ(write(fd, out.data(), out.size()), static_cast<ssize_t>(out.size()));
    Bytes in;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    while (in.size() < expect && std::chrono::steady_clock::now() < end) {
        pollfd p{fd, POLLIN, 0};
        if (poll(&p, 1, 100) <= 0)
            continue;
        std::uint8_t buf[64];
        const ssize_t n = read(fd, buf, sizeof buf);
        if (n > 0)
            in.insert(in.end(), buf, buf + n);
    }
    return in;
}

} // namespace

TEST(KestrelSimProcess, AnswersThroughItsPseudoTerminalAcrossReopen)
{
    // The binaries' folder from KESTREL_BIN_DIR, else the folder of this test program
    // (both land in <build>/bin).
    std::string dir;
    char self[4096];
    if (const char* env = std::getenv("KESTREL_BIN_DIR")) {
        dir = env;
    } else if (const ssize_t n = readlink("/proc/self/exe", self, sizeof self - 1); n > 0) {
        dir = std::string(self, static_cast<std::size_t>(n));
        dir = dir.substr(0, dir.rfind('/'));
    }
    const std::string exe = dir + "/kestrel-sim";
    if (access(exe.c_str(), X_OK) != 0)
        GTEST_SKIP() << exe << " has not been built";

    int outPipe[2], errPipe[2];
    ASSERT_EQ(pipe(outPipe), 0);
    ASSERT_EQ(pipe(errPipe), 0);
    const pid_t pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
        dup2(outPipe[1], 1);
        dup2(errPipe[1], 2);
        close(outPipe[0]);
        close(errPipe[0]);
        execl(exe.c_str(), exe.c_str(), "--address", "2", "--version", "9.8.7.6", "--pace-baud", "38400",
              static_cast<char*>(nullptr));
        _exit(127);
    }
    close(outPipe[1]);
    close(errPipe[1]);
    const std::string path = readLine(outPipe[0], 5000);
    ASSERT_FALSE(path.empty());

    int fd = openRaw(path);
    ASSERT_GE(fd, 0) << path;
    // Burst, empty frame to address 2 (11, 192, 192 - 11), then Request Version with
    // toggle 64: 75, 226, 240, 128 and check 75 + 98 + 112 = 285 = 2 * 128 + 29 -> 99 + 128.
    const Bytes first = exchange(fd, {0, 0, 0, 255, 255, 255, 170, 170, 170, 11, 192, 181, 75, 226, 240, 128, 227}, 9);
    // 75 + 102 + 112 + 0 + 9 + 8 + 7 + 6 = 319 = 2 * 128 + 63 -> 65 + 128.
    EXPECT_EQ(first, (Bytes{75, 230, 240, 128, 137, 136, 135, 134, 193}));
    close(fd);

    fd = openRaw(path); // the client goes away and comes back
    ASSERT_GE(fd, 0);
    const Bytes second = exchange(fd, {11, 226, 240, 128, 163}, 9);
    ASSERT_EQ(second.size(), 9u);
    EXPECT_EQ(second[0], 11);
    close(fd);

    kill(pid, SIGTERM);
    int status = 0;
    ASSERT_EQ(waitpid(pid, &status, 0), pid);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    const std::string summary = readAll(errPipe[0]);
    EXPECT_NE(summary.find("2 exchanges"), std::string::npos) << summary;
    EXPECT_NE(summary.find("at 38400 baud"), std::string::npos) << summary;
    close(outPipe[0]);
    close(errPipe[0]);
}
