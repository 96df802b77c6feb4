#pragma once
// Test-side byte helpers for the simulator's tests (see support/Frames.h).
#include "sim/SimEndpoint.h"
#include "support/Frames.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kestrel::sim::test {

using Bytes = std::vector<std::uint8_t>;
using kestrel::test::sumsToZero;

// Request Version to address 0 with toggle 64, and the reply of a module of version 1.2.3.4
// (the worked example of the module tests).
const Bytes kVersionRequest{67, 226, 240, 128, 235};
const Bytes kVersionReply{67, 230, 240, 128, 129, 130, 131, 132, 221};

// A bus request to module `address` with toggle 0 or 64.
inline Bytes busRequest(int address, int toggle, const std::vector<int>& data, bool bidirectional = true,
                        std::optional<int> xaddress = std::nullopt)
{
    Bytes f{static_cast<std::uint8_t>(address * 4 + 3 + toggle),
            static_cast<std::uint8_t>(192 + (bidirectional ? 32 : 0) + (xaddress ? 16 : 0) + data.size())};
    if (xaddress)
        f.push_back(static_cast<std::uint8_t>(128 + *xaddress));
    return kestrel::test::frame(f, data);
}

// Writes the bytes to the bus (or the Corvid system) and takes all it answers.
inline Bytes feed(SimEndpoint& e, const Bytes& bytes)
{
    for (auto b : bytes)
        e.write(b);
    Bytes out;
    while (e.available())
        out.push_back(static_cast<std::uint8_t>(e.read()));
    return out;
}

inline Bytes corvidRequest(const std::vector<int>& data, bool toggle = false)
{
    return kestrel::test::corvidFrame<Bytes>(data, toggle);
}

} // namespace kestrel::sim::test
