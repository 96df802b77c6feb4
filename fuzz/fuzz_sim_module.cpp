// The simulated module's frame parser: arbitrary bytes written to a bus of three modules
// (one of them with an eXtended address). Whatever arrives, each module answers only
// with whole, well-formed reply frames, and its memory stays within its bounds.
//
// Input: [0] rotation of the address configuration reply's tagged bytes, then the bytes
// written to the bus.
#include "FuzzSupport.h"
#include "sim/SimBus.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::InputReader in(data, size);
    const int rotation = static_cast<std::int8_t>(in.byte());
    const auto bytes = in.rest();

    sim::SimBus bus;
    bus.addModule(0);
    bus.addModule(3, 17);
    bus.addModule(5);
    for (auto* m : bus.modules())
        m->addressConfigRotation = rotation;

    long accepted = 0;
    for (std::uint8_t b : bytes) {
        bus.write(b);
        // Replies are whole once the byte that completes a request has gone in.
        std::vector<int> out;
        while (bus.available())
            out.push_back(bus.read());
        fuzz::expectBusFrames(out, true, "module reply");
        long now = 0;
        for (auto* m : bus.modules())
            now += m->stats().framesAccepted;
        fuzz::expect(now >= accepted, "accepted frame count went down");
        accepted = now;
    }
    fuzz::expect(bus.stats().bytesIn == static_cast<long>(bytes.size()), "bus lost count of bytes written");
    return 0;
}
