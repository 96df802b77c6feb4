#pragma once
#include <cstddef>
#include <cstdint>
#include <deque>

namespace kestrel::sim {

// Byte counts of one end of the simulated wire. An exchange is one request frame that
// a simulated device accepted (valid check byte, its address).
struct WireStats {
    long bytesIn = 0;  // bytes written by the client
    long bytesOut = 0; // bytes sent back to the client
    long exchanges = 0;
    // Time the serial wire needs at least to carry these bytes, 11 bits a byte
    // (start, 8 data, parity, stop).
    double wireSeconds(int baud) const { return baud > 0 ? (bytesIn + bytesOut) * 11.0 / baud : 0.0; }
};

// The next byte waiting to be sent back to the client, counted; -1 when none is waiting.
inline int takeReplyByte(std::deque<std::uint8_t>& out, WireStats& stats)
{
    if (out.empty())
        return -1;
    const int b = out.front();
    out.pop_front();
    ++stats.bytesOut;
    return b;
}

// What a serial port is connected to: the module bus itself, or a Corvid system in
// front of it. Bytes written go in one at a time; answers become readable as soon as
// the frame that caused them is complete.
class SimEndpoint {
public:
    virtual ~SimEndpoint() = default;
    virtual void write(std::uint8_t b) = 0;
    virtual std::size_t available() const = 0;
    // Next byte sent back, -1 when none is waiting.
    virtual int read() = 0;
    virtual const WireStats& stats() const = 0;
};

} // namespace kestrel::sim
