#include "platform/BuiltInSim.h"

#include "files/DemoConfiguration.h"
#include "seed/SimSeed.h"
#include "sim/SimBus.h"
#include "sim/SimPort.h"

namespace kestrel {

namespace {
struct BusHolder {
    sim::SimBus bus;
};

// The simulated module's port owns its bus (the bus is built before the port refers to it).
class BuiltInSimPort : private BusHolder, public sim::SimPort {
public:
    BuiltInSimPort() : SimPort(bus)
    {
        bus.addModule(0);
        // It starts with the demonstration configuration, so a first Read All shows something real.
        Configuration demo;
        GeneralSettings general;
        fillDemoConfiguration(demo, general);
        std::string error;
        seedModule(bus, 0, demo, general, error);
        bus.resetStats();
        // A missing reply costs the full time-out, as on a real line.
        setRealTimeWaits(true);
    }
};
} // namespace

std::unique_ptr<SerialPort> makeBuiltInSimPort() { return std::make_unique<BuiltInSimPort>(); }

} // namespace kestrel
