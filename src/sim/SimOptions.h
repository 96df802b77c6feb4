#pragma once
#include "sim/SimCorvid.h"
#include "sim/SimModule.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kestrel::sim {

// kestrel-sim's help text.
extern const char* const kSimUsage;

// What kestrel-sim's command line asks for.
struct SimOptions {
    std::vector<int> addresses;
    bool layout = false; // the simulated layout (seed/SimLayout) beside the modules of --address
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

// Takes one option of the command line ("--address") with its value ("" for --corvid), in
// the order given. Throws std::invalid_argument with the message the program prints.
void takeSimOption(SimOptions& options, const std::string& option, const std::string& value);

} // namespace kestrel::sim
