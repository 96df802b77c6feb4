#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <functional>
#include <string>
#include <vector>

namespace kestrel {

// Two configurations side by side, item by item, and one configuration as readable text.
// Only what the module and the data file both carry counts (no selection, no visibility,
// no enable maps); values are written as the pages show them.

enum class DiffGroup { General, Pin, Aspect, Events };

struct Difference {
    DiffGroup group = DiffGroup::General;
    int pin = -1, aspect = -1, step = -1; // what it concerns, -1 = not applicable (model indices)
    std::string item;   // as the line shows it: "pin 5 aspect 2 step 1", "general DCC Address", "pin 5 mode"
    std::string first;  // the value in the first configuration
    std::string second; // the value in the second configuration
    // Copies exactly this item from the configuration given as `from` into `to`.
    std::function<void(const Configuration& from, const GeneralSettings& gfrom, Configuration& to,
                       GeneralSettings& gto)>
        take;
};

// Every difference, in the order Write All sends: general settings (ID string, DCC
// settings, LED control, hardware configuration, serial port, then any other item the data
// file carries, as its data bytes), then pins 0..31 (description,
// device, mode and its parameters, layout, each aspect's description and steps, initial
// aspect, address counts), then the events, and serial addressing last.
//
// Where two pins' modes are of different kinds (servo, PWM, input) only the mode line
// stands for the block, and taking it takes the mode with all parameters; where two
// layouts differ, aspects and steps are compared where both layouts have them, and taking
// the layout line takes the layout with every aspect and step outside that common part.
std::vector<Difference> differences(const Configuration& first, const GeneralSettings& gfirst,
                                    const Configuration& second, const GeneralSettings& gsecond,
                                    int numberingBase);

// `<item>: <firstName> <first>, <secondName> <second>`.
std::string differenceLine(const Difference& d, const std::string& firstName, const std::string& secondName);

// The whole configuration, one item per line, nested by indentation (two spaces a level).
std::string configurationText(const Configuration& config, const GeneralSettings& general, int numberingBase);

} // namespace kestrel
