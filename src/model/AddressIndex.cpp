#include "model/AddressIndex.h"

#include "base/ProgramFault.h"

namespace kestrel {

namespace {

struct Sums {
    std::array<std::uint8_t, kPinRecords> first{};
    std::uint8_t total = 0;
};

Sums computeSums(Configuration& config, AddressKind kind)
{
    Sums out;
    int running = 0;
    for (int p = 0; p < kPinRecords; ++p) {
        out.first[p] = static_cast<std::uint8_t>(running);
        running += addressCount(config.pin(p), kind);
        if (running > 255)
            throw ProgramFault("Overflow: address sum above 255 at pin " + std::to_string(p));
    }
    out.total = static_cast<std::uint8_t>(running);
    return out;
}

void store(Configuration& config, AddressKind kind, const Sums& sums)
{
    switch (kind) {
    case AddressKind::Dcc:
        config.DccFirstIndex = sums.first;
        config.DccTotal = sums.total;
        break;
    case AddressKind::XDcc:
        config.XDccFirstIndex = sums.first;
        config.XDccTotal = sums.total;
        break;
    case AddressKind::Lynx:
        config.LynxFirstIndex = sums.first;
        config.LynxTotal = sums.total;
        break;
    }
}

} // namespace

std::uint8_t& addressCount(PinRecord& pin, AddressKind kind)
{
    switch (kind) {
    case AddressKind::Dcc:
        return pin.DccCount;
    case AddressKind::XDcc:
        return pin.XDccCount;
    case AddressKind::Lynx:
        return pin.LynxCount;
    }
    throw ProgramFault("unknown address kind");
}

std::uint8_t addressCount(const PinRecord& pin, AddressKind kind)
{
    return addressCount(const_cast<PinRecord&>(pin), kind); // read only
}

int addressCountMaximum(AddressKind kind) { return kind == AddressKind::XDcc ? 1 : 7; }

void RecalcAddressIndex(Configuration& config, AddressKind kind)
{
    store(config, kind, computeSums(config, kind));
}

void RecalcDccAddressIndex(Configuration& config) { RecalcAddressIndex(config, AddressKind::Dcc); }

void RecalcXDccAddressIndex(Configuration& config) { RecalcAddressIndex(config, AddressKind::XDcc); }

void RecalcLynxAddressIndex(Configuration& config) { RecalcAddressIndex(config, AddressKind::Lynx); }

void RecalcAddressIndex(Configuration& config)
{
    const Sums dcc = computeSums(config, AddressKind::Dcc);
    const Sums xdcc = computeSums(config, AddressKind::XDcc);
    const Sums lynx = computeSums(config, AddressKind::Lynx);
    store(config, AddressKind::Dcc, dcc);
    store(config, AddressKind::XDcc, xdcc);
    store(config, AddressKind::Lynx, lynx);
}

} // namespace kestrel
