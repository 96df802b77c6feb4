// kestrel-sim: simulated Kestrel modules (optionally behind a simulated Corvid system)
// on a pseudo-terminal. The first line of stdout is the path of the terminal to open;
// a one-line statistics summary goes to stderr on exit (SIGINT or SIGTERM), followed by
// the same numbers as a "kestrel-sim-stats:" line of key=value pairs.

#include "platform/CommandLine.h"
#include "seed/SimLayout.h"
#include "seed/SimSeed.h"
#include "sim/SimBus.h"
#include "sim/SimCorvid.h"
#include "sim/SimOptions.h"
#include "sim/SimPty.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace kestrel::sim;

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    for (std::size_t i = 0; i < args.size(); ++i)
        if (args[i] == "--help" || args[i] == "-h") {
            std::fputs(kSimUsage, stdout);
            return 0;
        } else if (args[i] == "--version" && (i + 1 == args.size() || args[i + 1][0] == '-')) {
            // Without a firmware version after it: the program's own version.
            std::printf("kestrel-sim %s\n", KESTREL_VERSION);
            return 0;
        }
    SimOptions options;
    try {
        std::vector<kestrel::CommandLineOption> known{{{"corvid"}, false}, {{"layout"}, false}};
        for (const char* name :
             {"address", "xaddress", "version", "pace-baud", "drop-replies", "corrupt-copies", "garbage",
              "refuse", "system-version", "unit", "unit-version", "load"})
            known.push_back({{name}, true});
        const kestrel::CommandLine line = kestrel::readCommandLine(args, known, false);
        for (const auto& [option, value] : line.options)
            takeSimOption(options, option, value);
        if (!line.error.empty())
            throw std::invalid_argument(line.error);
        if (options.addresses.empty() && !options.layout)
            options.addresses.push_back(0);
    } catch (const std::exception& e) {
        std::fprintf(stderr, "kestrel-sim: %s\n%s", e.what(), kSimUsage);
        return 2;
    }

    SimBus bus;
    if (options.layout)
        kestrel::addSimLayout(bus);
    std::vector<SimModule*> own; // the modules of --address
    for (int a : options.addresses) {
        const auto& layout = kestrel::simLayoutModules();
        if (options.layout &&
            std::any_of(layout.begin(), layout.end(), [a](const auto& m) { return m.address == a; })) {
            std::fprintf(stderr, "kestrel-sim: address %d belongs to the layout\n", a);
            return 2;
        }
        own.push_back(&bus.addModule(a, options.xaddress, options.version));
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
    for (SimModule* m : own)
        m->faults = options.faults;

    std::unique_ptr<SimCorvid> corvid;
    SimEndpoint* endpoint = &bus;
    if (options.corvid) {
        corvid = std::make_unique<SimCorvid>(bus);
        corvid->setSystemVersion(options.systemVersion);
        corvid->setUnit(options.unit, options.unitVersion);
        endpoint = corvid.get();
    }
    return serveOnPty(*endpoint, options.paceBaud);
}
