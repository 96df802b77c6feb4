#pragma once
// Frames built and checked on the test side from the receiver's rule (the first byte plus
// the low 7 bits of every later byte is a multiple of 128), never with the client's or the
// simulator's own code, so that the two can disagree when one of them is wrong.
#include <cstdint>
#include <vector>

namespace kestrel::test {

// The check byte that closes a frame.
template <typename Bytes> int closingByte(const Bytes& frame)
{
    unsigned sum = frame[0];
    for (std::size_t i = 1; i < frame.size(); ++i)
        sum += static_cast<unsigned>(frame[i]) & 127u;
    return static_cast<int>(128 + (128 - sum % 128) % 128);
}

template <typename Bytes> bool sumsToZero(const Bytes& frame)
{
    if (frame.empty())
        return false;
    unsigned sum = frame[0];
    for (std::size_t i = 1; i < frame.size(); ++i)
        sum += static_cast<unsigned>(frame[i]) & 127u;
    return sum % 128 == 0;
}

// The given leading bytes, the data + 128 and the check byte.
template <typename Bytes = std::vector<int>> Bytes frame(Bytes head, const std::vector<int>& data)
{
    for (int d : data)
        head.push_back(static_cast<typename Bytes::value_type>(128 + d));
    head.push_back(static_cast<typename Bytes::value_type>(closingByte(head)));
    return head;
}

// A module's reply: address byte, header 128 + 96 + size (or the one given), data.
inline std::vector<int> moduleReply(int addressByte, const std::vector<int>& data, int header = -1)
{
    return frame<std::vector<int>>(
        {addressByte, header < 0 ? 128 + 96 + static_cast<int>(data.size()) : header}, data);
}

// A Corvid frame: header (below 8 bytes 40 + n, 8..15 n - 8, 16..23 n; bit 6 the toggle), data.
template <typename Bytes = std::vector<int>>
Bytes corvidFrame(const std::vector<int>& data, bool toggle = false)
{
    const int n = static_cast<int>(data.size());
    const int header = (n < 8 ? 40 + n : n < 16 ? n - 8 : n) + (toggle ? 64 : 0);
    return frame<Bytes>({static_cast<typename Bytes::value_type>(header)}, data);
}

} // namespace kestrel::test
