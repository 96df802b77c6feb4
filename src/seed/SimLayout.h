#pragma once
#include "sim/SimBus.h"
#include "sim/SimCorvid.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrel {

// The simulated layout: the demonstration module at bus address 0, exactly as the
// built-in "sim" has it alone, and beside it a yard module at 3, a station module at 15
// and, at 5, a level crossing module that answers eXtended address 7 (besides requests
// without an eXtended address, as every module does).
struct SimLayoutModule {
    int address;
    std::optional<std::uint8_t> xaddress;
    std::string id; // its ID string
};
const std::vector<SimLayoutModule>& simLayoutModules();

// Adds the layout's modules to `bus`, each seeded with its configuration through the
// program's own Write All, and starts the bus's counts afresh.
void addSimLayout(sim::SimBus& bus);

// The layout on its bus, and the same modules behind a simulated Corvid system that
// supports tunneling, for a port on either route.
struct SimLayout {
    SimLayout();
    sim::SimBus bus;
    sim::SimCorvid corvid{bus};
};

} // namespace kestrel
