#include "shell/BuiltInSim.h"

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
        // A missing reply costs the full time-out, as on a real line.
        setRealTimeWaits(true);
    }
};
} // namespace

std::unique_ptr<SerialPort> makeBuiltInSimPort()
{
    return std::make_unique<BuiltInSimPort>();
}

} // namespace kestrel
