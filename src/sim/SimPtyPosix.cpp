#include "sim/SimPty.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace kestrel::sim {

namespace {

volatile std::sig_atomic_t stopRequested = 0;
void onStopSignal(int) { stopRequested = 1; }

struct Pty {
    int master = -1;
    int slave = -1; // kept open so the master never sees a hangup when the client closes
    std::string path;
};

Pty openPty()
{
    Pty p;
    p.master = posix_openpt(O_RDWR | O_NOCTTY);
    if (p.master < 0 || grantpt(p.master) != 0 || unlockpt(p.master) != 0)
        throw std::runtime_error(std::string("cannot create a pseudo-terminal: ") + std::strerror(errno));
    const char* name = ptsname(p.master);
    if (!name)
        throw std::runtime_error(std::string("ptsname: ") + std::strerror(errno));
    p.path = name;
    p.slave = open(name, O_RDWR | O_NOCTTY);
    if (p.slave < 0)
        throw std::runtime_error("cannot open " + p.path + ": " + std::strerror(errno));
    termios t{};
    if (tcgetattr(p.slave, &t) == 0) {
        cfmakeraw(&t);
        tcsetattr(p.slave, TCSANOW, &t);
    }
    fcntl(p.master, F_SETFL, fcntl(p.master, F_GETFL) | O_NONBLOCK);
    return p;
}

using SteadyClock = std::chrono::steady_clock;

// Bytes on their way back to the client, each with the moment the wire would have
// carried it (now, without pacing).
struct Outgoing {
    SteadyClock::time_point due;
    std::uint8_t byte;
};

} // namespace

int serveOnPty(SimEndpoint& endpoint, int paceBaud)
{
    Pty pty;
    try {
        pty = openPty();
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kestrel-sim: %s\n", e.what());
        return 1;
    }
    std::printf("%s\n", pty.path.c_str());
    std::fflush(stdout);

    sigset_t blocked, waitMask;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGINT);
    sigaddset(&blocked, SIGTERM);
    sigprocmask(SIG_BLOCK, &blocked, &waitMask);
    sigdelset(&waitMask, SIGINT);
    sigdelset(&waitMask, SIGTERM);
    struct sigaction sa {};
    sa.sa_handler = onStopSignal;
    sigemptyset(&sa.sa_mask);
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGTERM, &sa, nullptr);

    const auto byteTime = paceBaud > 0 ? std::chrono::duration_cast<SteadyClock::duration>(
                                             std::chrono::duration<double>(11.0 / paceBaud))
                                       : SteadyClock::duration::zero();
    SteadyClock::time_point wireFree = SteadyClock::now();
    std::deque<Outgoing> outgoing;
    int exitCode = 0;

    while (!stopRequested) {
        const auto now = SteadyClock::now();
        // Send what is due.
        std::vector<std::uint8_t> chunk;
        for (const auto& o : outgoing) {
            if (o.due > now)
                break;
            chunk.push_back(o.byte);
        }
        if (!chunk.empty()) {
            const ssize_t n = write(pty.master, chunk.data(), chunk.size());
            if (n > 0)
                outgoing.erase(outgoing.begin(), outgoing.begin() + n);
            else if (n < 0 && errno != EAGAIN && errno != EINTR) {
                std::fprintf(stderr, "kestrel-sim: write: %s\n", std::strerror(errno));
                exitCode = 1;
                break;
            }
        }

        pollfd pfd{pty.master, POLLIN, 0};
        const bool blockedOnOutput = !outgoing.empty() && outgoing.front().due <= SteadyClock::now();
        if (blockedOnOutput)
            pfd.events |= POLLOUT;
        timespec timeout{};
        timespec* timeoutPtr = nullptr;
        if (!outgoing.empty() && !blockedOnOutput) {
            const auto wait =
                std::max(outgoing.front().due - SteadyClock::now(), SteadyClock::duration::zero());
            const auto ns = std::chrono::duration_cast<std::chrono::nanoseconds>(wait).count();
            timeout.tv_sec = static_cast<time_t>(ns / 1000000000);
            timeout.tv_nsec = static_cast<long>(ns % 1000000000);
            timeoutPtr = &timeout;
        }
        const int ready = ppoll(&pfd, 1, timeoutPtr, &waitMask);
        if (ready < 0) {
            if (errno == EINTR)
                continue;
            std::fprintf(stderr, "kestrel-sim: poll: %s\n", std::strerror(errno));
            exitCode = 1;
            break;
        }
        if (!(pfd.revents & POLLIN))
            continue;
        std::uint8_t buffer[256];
        const ssize_t n = read(pty.master, buffer, sizeof buffer);
        if (n < 0) {
            if (errno == EAGAIN || errno == EINTR || errno == EIO)
                continue;
            std::fprintf(stderr, "kestrel-sim: read: %s\n", std::strerror(errno));
            exitCode = 1;
            break;
        }
        for (ssize_t i = 0; i < n; ++i) {
            const auto arrived = SteadyClock::now();
            wireFree = std::max(wireFree, arrived) + byteTime;
            endpoint.write(buffer[i]);
            while (endpoint.available()) {
                wireFree = std::max(wireFree, SteadyClock::now()) + byteTime;
                outgoing.push_back({wireFree, static_cast<std::uint8_t>(endpoint.read())});
            }
        }
    }

    const WireStats& s = endpoint.stats();
    const int baud = paceBaud > 0 ? paceBaud : 19200;
    std::fprintf(stderr,
                 "kestrel-sim: %ld exchanges, %ld bytes received, %ld bytes sent, wire time at least %.3f s "
                 "at %d baud\n",
                 s.exchanges, s.bytesIn, s.bytesOut, s.wireSeconds(baud), baud);
    // The same numbers as key=value pairs on a line of their own, for scripts (scripts/bench).
    std::fprintf(stderr,
                 "kestrel-sim-stats: exchanges=%ld bytes_in=%ld bytes_out=%ld wire_seconds=%.6f baud=%d\n",
                 s.exchanges, s.bytesIn, s.bytesOut, s.wireSeconds(baud), baud);
    close(pty.slave);
    close(pty.master);
    return exitCode;
}

} // namespace kestrel::sim
