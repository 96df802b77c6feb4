// The simulated Corvid system's frame parser, with the module bus behind it: arbitrary
// bytes written to it. It answers only with whole Corvid frames (whole bus frames once
// it has been switched into transparent mode).
//
// Input: [0] bits 0-1 the number of polls after which a tunnelled reply is handed out
// (1..4), bit 2 interface unit Linkbox instead of hub A; then the bytes written.
#include "FuzzSupport.h"
#include "sim/SimBus.h"
#include "sim/SimCorvid.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::InputReader in(data, size);
    const int flags = in.byte();
    const auto bytes = in.rest();

    sim::SimBus bus;
    bus.addModule(0);
    bus.addModule(20, 17); // reachable only through the tunnel
    sim::SimCorvid corvid(bus);
    corvid.setReplyDelayPolls((flags & 3) + 1);
    if (flags & 4)
        corvid.setUnit(sim::CorvidUnit::Linkbox, 1020);

    for (std::uint8_t b : bytes) {
        const bool transparent = corvid.transparent();
        corvid.write(b);
        std::vector<int> out;
        while (corvid.available())
            out.push_back(corvid.read());
        if (transparent)
            fuzz::expectBusFrames(out, true, "module reply through transparent mode");
        else
            fuzz::expectCorvidFrames(out, "Corvid answer");
    }
    fuzz::expect(corvid.stats().bytesIn == static_cast<long>(bytes.size()),
                 "Corvid lost count of bytes written");
    return 0;
}
