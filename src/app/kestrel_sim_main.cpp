// kestrel-sim: simulated Kestrel modules (optionally behind a simulated Corvid system)
// on a pseudo-terminal. The first line of stdout is the path of the terminal to open;
// a one-line statistics summary goes to stderr on exit (SIGINT or SIGTERM), followed by
// the same numbers as a "kestrel-sim-stats:" line of key=value pairs.

#include "seed/SimSeed.h"
#include "sim/SimBus.h"
#include "sim/SimCorvid.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <poll.h>
#include <sstream>
#include <stdexcept>
#include <string>
#include <termios.h>
#include <unistd.h>
#include <vector>

using namespace kestrel::sim;

namespace {

constexpr const char* kUsage =
    "usage: kestrel-sim [--help] [--address N[,N...]]... [--xaddress N] [--version [A.B.C.D]]\n"
    "                   [--pace-baud RATE]\n"
    "                   [--corvid [--system-version X.Y] [--unit hub-a|hub-b|linkbox]\n"
    "                             [--unit-version N]]\n"
    "  --address N      a module at bus address N (0..31; 16..31 only through --corvid);\n"
    "                   repeat it or give a list for several modules (default 0)\n"
    "  --xaddress N     give the modules eXtended address N (0..127)\n"
    "  --version A.B.C.D  firmware version of the modules (default 1.2.3.4); without a\n"
    "                   value: print the program's version and exit\n"
    "  --pace-baud RATE deliver replies no faster than a wire at RATE baud would carry\n"
    "                   request and reply (11 bits a byte)\n"
    "  --corvid         put a simulated Corvid system in front of the modules\n"
    "  --system-version X.Y  Corvid system version, e.g. 6.45 = 6045 (default 6.45)\n"
    "  --unit TYPE      interface unit: hub-a (default), hub-b or linkbox\n"
    "  --unit-version N interface unit version, e.g. 1020 or 1.20 (default 1020)\n"
    "  --load FILE.dat  every module starts with the configuration of this data file\n"
    "fault switches (every module):\n"
    "  --drop-replies N     leave the next N replies unsent\n"
    "  --corrupt-copies N   send the next N replies first as a copy with a bad check byte\n"
    "  --garbage N          send N stray bytes before every reply\n"
    "  --refuse CMD[,ITEM][:noreply|echo|length]  answer a command (for one item or pin)\n"
    "                       not at all, with a wrong echo or with a wrong length\n";

struct Options {
    std::vector<int> addresses;
    std::optional<std::uint8_t> xaddress;
    std::array<std::uint8_t, 4> version{1, 2, 3, 4};
    int paceBaud = 0;
    bool corvid = false;
    int systemVersion = 6045;
    CorvidUnit unit = CorvidUnit::HubA;
    int unitVersion = 1020;
    std::string load; // configuration data file that every module starts with
    ModuleFaults faults;
};

int parseInt(const std::string& text, int lo, int hi, const std::string& what)
{
    std::size_t used = 0;
    int v = 0;
    try {
        v = std::stoi(text, &used);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used != text.size() || text.empty() || v < lo || v > hi)
        throw std::invalid_argument(what + " must be a number from " + std::to_string(lo) + " to " +
                                    std::to_string(hi) + ", not \"" + text + "\"");
    return v;
}

// "6.45" = 6045 (thousands, then the rest), or a plain four-digit number.
int parseCorvidVersion(const std::string& text, const std::string& what)
{
    const auto dot = text.find('.');
    int v = dot == std::string::npos ? parseInt(text, 0, 9999, what)
                                     : parseInt(text.substr(0, dot), 0, 9, what) * 1000 +
                                           parseInt(text.substr(dot + 1), 0, 999, what);
    encodeCorvidVersion(v); // throws when the digits cannot be carried
    return v;
}

Options parseOptions(int argc, char** argv)
{
    Options o;
    auto value = [&](int& i) -> std::string {
        if (i + 1 >= argc)
            throw std::invalid_argument(std::string(argv[i]) + " needs a value");
        return argv[++i];
    };
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--address") {
            std::stringstream list(value(i));
            std::string item;
            while (std::getline(list, item, ','))
                o.addresses.push_back(parseInt(item, 0, 31, "--address"));
        } else if (arg == "--xaddress") {
            o.xaddress = static_cast<std::uint8_t>(parseInt(value(i), 0, 127, "--xaddress"));
        } else if (arg == "--version") {
            std::stringstream parts(value(i));
            std::string item;
            int n = 0;
            while (std::getline(parts, item, '.')) {
                if (n == 4)
                    throw std::invalid_argument("--version takes four numbers A.B.C.D");
                o.version[n++] = static_cast<std::uint8_t>(parseInt(item, 0, 127, "--version part"));
            }
            if (n != 4)
                throw std::invalid_argument("--version takes four numbers A.B.C.D");
        } else if (arg == "--pace-baud") {
            o.paceBaud = parseInt(value(i), 1, 10000000, "--pace-baud");
        } else if (arg == "--drop-replies") {
            o.faults.dropReplies = parseInt(value(i), 0, 1000000, "--drop-replies");
        } else if (arg == "--corrupt-copies") {
            o.faults.corruptCopies = parseInt(value(i), 0, 1000000, "--corrupt-copies");
        } else if (arg == "--garbage") {
            const int n = parseInt(value(i), 0, 64, "--garbage");
            o.faults.garbage.assign(static_cast<std::size_t>(n), 0xAA);
        } else if (arg == "--refuse") {
            // CMD[,ITEM][:noreply|echo|length]
            std::string text = value(i);
            Refusal how = Refusal::NoReply;
            const auto colon = text.find(':');
            if (colon != std::string::npos) {
                const std::string kind = text.substr(colon + 1);
                if (kind == "echo")
                    how = Refusal::WrongEcho;
                else if (kind == "length")
                    how = Refusal::WrongLength;
                else if (kind != "noreply")
                    throw std::invalid_argument("--refuse: the kind must be noreply, echo or length");
                text.resize(colon);
            }
            const auto comma = text.find(',');
            const int command = parseInt(text.substr(0, comma), 0, 127, "--refuse command");
            const int item =
                comma == std::string::npos ? -1 : parseInt(text.substr(comma + 1), 0, 127, "--refuse item");
            o.faults.refuse(command, how, item);
        } else if (arg == "--corvid") {
            o.corvid = true;
        } else if (arg == "--system-version") {
            o.systemVersion = parseCorvidVersion(value(i), "--system-version");
        } else if (arg == "--unit") {
            const std::string u = value(i);
            if (u == "hub-a")
                o.unit = CorvidUnit::HubA;
            else if (u == "hub-b")
                o.unit = CorvidUnit::HubB;
            else if (u == "linkbox")
                o.unit = CorvidUnit::Linkbox;
            else
                throw std::invalid_argument("--unit must be hub-a, hub-b or linkbox");
        } else if (arg == "--unit-version") {
            o.unitVersion = parseCorvidVersion(value(i), "--unit-version");
        } else if (arg == "--load") {
            o.load = value(i);
        } else {
            throw std::invalid_argument("unknown option " + arg);
        }
    }
    if (o.addresses.empty())
        o.addresses.push_back(0);
    return o;
}

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

int main(int argc, char** argv)
{
    Options options;
    try {
        for (int i = 1; i < argc; ++i)
            if (std::string(argv[i]) == "--help" || std::string(argv[i]) == "-h") {
                std::fputs(kUsage, stdout);
                return 0;
            } else if (std::string(argv[i]) == "--version" && (i + 1 == argc || argv[i + 1][0] == '-')) {
                // Without a firmware version after it: the program's own version.
                std::printf("kestrel-sim %s\n", KESTREL_VERSION);
                return 0;
            }
        options = parseOptions(argc, argv);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kestrel-sim: %s\n%s", e.what(), kUsage);
        return 2;
    }

    SimBus bus;
    for (int a : options.addresses) {
        bus.addModule(a, options.xaddress, options.version);
        if (a > 15 && !options.corvid)
            std::fprintf(stderr, "kestrel-sim: warning: address %d can only be reached through --corvid\n",
                         a);
    }
    if (!options.load.empty()) {
        for (int a : options.addresses) {
            std::string error;
            bool seeded = false;
            try {
                seeded = kestrel::seedModuleFromFile(bus, a, options.load, error);
            } catch (const std::exception& e) {
                error = std::string("program fault while loading ") + options.load + ": " + e.what();
            }
            if (!seeded) {
                std::fprintf(stderr, "kestrel-sim: %s\n", error.c_str());
                return 2;
            }
        }
        bus.resetStats();
    }
    // The fault switches act from here on, after the modules got their configuration.
    for (SimModule* m : bus.modules())
        m->faults = options.faults;

    std::unique_ptr<SimCorvid> corvid;
    SimEndpoint* endpoint = &bus;
    if (options.corvid) {
        corvid = std::make_unique<SimCorvid>(bus);
        corvid->setSystemVersion(options.systemVersion);
        corvid->setUnit(options.unit, options.unitVersion);
        endpoint = corvid.get();
    }

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

    const auto byteTime = options.paceBaud > 0 ? std::chrono::duration_cast<SteadyClock::duration>(
                                                     std::chrono::duration<double>(11.0 / options.paceBaud))
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
            endpoint->write(buffer[i]);
            while (endpoint->available()) {
                wireFree = std::max(wireFree, SteadyClock::now()) + byteTime;
                outgoing.push_back({wireFree, static_cast<std::uint8_t>(endpoint->read())});
            }
        }
    }

    const WireStats& s = endpoint->stats();
    const int baud = options.paceBaud > 0 ? options.paceBaud : 19200;
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
