#pragma once
#include "session/Session.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrel {

// How long the bus scan waits for each address to answer, instead of the 2 s of every
// other exchange. A module answers Request Version within a few milliseconds of the
// request's last byte; 500 ms leaves room for the request and reply on the wire at 9600
// bit/s (about 30 ms) and for the Corvid system's polls on the tunnel route, and still
// asks the 16 addresses of the bus in about 8 s.
inline constexpr int kScanReplyTimeoutMs = 500;

// The addresses asked: 0..15 on the direct route, 0..31 through the Corvid system.
inline constexpr int kDirectAddresses = 16;
inline constexpr int kTunnelAddresses = 32;
inline constexpr int kExtendedAddresses = 96; // eXtended addresses 0..95

// One module that answered the scan, and how it is reached.
struct FoundModule {
    bool corvid = false;         // through the Corvid system (else directly on the bus)
    int address = 0;             // bus address
    std::optional<int> xaddress; // eXtended address; none: asked without one
    std::string version;         // "1.2.3.4"
    std::string id;              // its ID string
    bool operator==(const FoundModule&) const = default;
};

struct ScanOptions {
    // Also ask every eXtended address 0..95 on each bus address that answered. The modules
    // found so are listed in place of the address's answer without one (which every
    // module of that address gives at once).
    bool extendedRange = false;
};

// "Find Modules": asks every bus address of the route the link is set to for its version
// and then its ID string, each with the scan's short time-out. An address that does not
// answer shows nothing and leaves "Bidirectional Comm." checked; the link's settings are
// put back afterwards, unsynchronised, as after any change of address. One progress step
// a address; a Cancel ends the scan at the next exchange with what was found so far.
// A job of the session ("Find Modules").
std::vector<FoundModule> findModules(Session& session, const ScanOptions& options = {});

// Runs `job` with the link addressed to `module` (route, address, eXtended address) and
// puts the link's settings back afterwards, unsynchronised, as after any change of address.
bool withModule(Session& session, const FoundModule& module, const std::function<bool()>& job);

// "address 3", "address 5, eXtended address 7", "address 20 (Corvid)": as the modules'
// lists and results name a module, numbered from `numberingBase`.
std::string moduleName(const FoundModule& module, int numberingBase);

} // namespace kestrel
