#pragma once
// Test-side byte helpers, derived from the receiver's rule (first byte plus the low 7
// bits of every later byte is a multiple of 128) rather than from the simulator's
// running-sum code, so the two can disagree when one of them is wrong.
#include <cstdint>
#include <optional>
#include <vector>

namespace kestrel::sim::test {

using Bytes = std::vector<std::uint8_t>;

inline std::uint8_t closingByte(const Bytes& frame)
{
    unsigned sum = frame[0];
    for (std::size_t i = 1; i < frame.size(); ++i)
        sum += frame[i] & 127u;
    return static_cast<std::uint8_t>(128 + (128 - sum % 128) % 128);
}

// A bus request to module `address` with toggle 0 or 64.
inline Bytes busRequest(int address, int toggle, const std::vector<int>& data, bool bidirectional = true,
                        std::optional<int> xaddress = std::nullopt)
{
    Bytes f{static_cast<std::uint8_t>(address * 4 + 3 + toggle),
            static_cast<std::uint8_t>(192 + (bidirectional ? 32 : 0) + (xaddress ? 16 : 0) + data.size())};
    if (xaddress)
        f.push_back(static_cast<std::uint8_t>(128 + *xaddress));
    for (int d : data)
        f.push_back(static_cast<std::uint8_t>(128 + d));
    f.push_back(closingByte(f));
    return f;
}

inline bool sumsToZero(const Bytes& frame)
{
    unsigned sum = frame[0];
    for (std::size_t i = 1; i < frame.size(); ++i)
        sum += frame[i] & 127u;
    return sum % 128 == 0;
}

// A Corvid frame with the given data (header forms: below 8 short 40 + n, 8..15 n - 8,
// 16..23 n; bit 6 toggle).
inline Bytes corvidRequest(const std::vector<int>& data, bool toggle = false)
{
    const int n = static_cast<int>(data.size());
    const int header = (n < 8 ? 40 + n : n < 16 ? n - 8 : n) + (toggle ? 64 : 0);
    Bytes f{static_cast<std::uint8_t>(header)};
    for (int d : data)
        f.push_back(static_cast<std::uint8_t>(128 + d));
    f.push_back(closingByte(f));
    return f;
}

} // namespace kestrel::sim::test
