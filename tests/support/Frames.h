#pragma once
// Frames built and checked on the test side from the receiver's rule (the first byte plus
// the low 7 bits of every later byte is a multiple of 128), never with the client's or the
// simulator's own code, so that the two can disagree when one of them is wrong.
#include <cstdint>
#include <initializer_list>
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

template <typename Bytes> bool sumsToZero(const Bytes& f) { return !f.empty() && closingByte(f) == 128; }

// The given leading bytes, the data + 128 and the check byte.
template <typename Bytes = std::vector<int>> Bytes frame(Bytes head, const std::vector<int>& data)
{
    for (int d : data)
        head.push_back(static_cast<typename Bytes::value_type>(128 + d));
    head.push_back(static_cast<typename Bytes::value_type>(closingByte(head)));
    return head;
}

// The frames one after the other, as they go over the wire.
inline std::vector<int> concat(std::initializer_list<std::vector<int>> parts)
{
    std::vector<int> out;
    for (const auto& p : parts)
        out.insert(out.end(), p.begin(), p.end());
    return out;
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

// Number of data bytes that a Corvid header announces.
inline int corvidLength(int header)
{
    return (header & 8) ? (header & 7) : 8 + 8 * ((header >> 4) & 1) + (header & 7);
}

// Follows the frames that a client writes, byte by byte; a byte with bit 7 clear starts one. A bus
// header holds the size (low nibble), an eXtended address byte follows (bit 4), a reply wanted (bit 5).
struct FrameReader {
    bool corvid = false;
    int first = 0;         // the address byte (toggle included), or the Corvid header
    int header = 0;        // the bus header
    std::vector<int> data; // the frame's data so far, 7 bits each

    // True when `b` is the check byte that ends a frame.
    bool push(int b)
    {
        if (b < 128) {
            first = b;
            data.clear();
            length = corvid ? corvidLength(b) : 0;
            stage = !corvid ? Stage::Header : length ? Stage::Data : Stage::Check;
            return false;
        }
        switch (stage) {
        case Stage::Header:
            header = b;
            length = b & 15;
            stage = (b & 16) ? Stage::XAddress : length ? Stage::Data : Stage::Check;
            return false;
        case Stage::XAddress:
            stage = length ? Stage::Data : Stage::Check;
            return false;
        case Stage::Data:
            data.push_back(b & 127);
            if (static_cast<int>(data.size()) == length)
                stage = Stage::Check;
            return false;
        case Stage::Check:
            stage = Stage::Idle;
            return true;
        case Stage::Idle:
            return false;
        }
        return false;
    }
    bool wantsReply() const { return (header & 32) != 0; }

private:
    enum class Stage { Idle, Header, XAddress, Data, Check } stage = Stage::Idle;
    int length = 0;
};

} // namespace kestrel::test
