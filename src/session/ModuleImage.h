#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"

#include <array>
#include <compare>
#include <string>
#include <vector>

namespace kestrel {

// Which module an image belongs to: the port and the addresses it answers at.
struct ModuleKey {
    std::string port;
    bool corvid = false;
    int address = 0;
    bool extended = false;
    int xaddress = 0;
    auto operator<=>(const ModuleKey&) const = default;
};

// What one module holds, as it was last read, written or verified: the configuration and
// general settings that Write All would send to make it so. Each pin's configuration in
// flash is known only when it was read, written or verified (Write All leaves it alone
// unless asked to send it).
struct ModuleImage {
    Configuration config;
    GeneralSettings general;
    std::array<bool, kPinCount> pinConfigKnown{};

    // The module now holds config and general; the pins' configurations too when
    // pinConfigs, else each keeps what the image knew of it.
    void take(const Configuration& c, const GeneralSettings& g, bool pinConfigs);
    // The module now holds pin p of c: layout, steps, initial aspect, addresses, and its
    // configuration when pinConfig.
    void takePin(const Configuration& c, int p, bool pinConfig);
};

// Whether a frame sent to a module changes what it keeps (general settings, a pin's
// layout, steps, initial aspect, events, addresses or configuration in flash, or the
// erase); live output and a pin's active parameters do not.
bool changesModule(const std::vector<int>& frame);

} // namespace kestrel
