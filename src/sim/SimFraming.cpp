#include "sim/SimFraming.h"

#include <stdexcept>
#include <string>

namespace kestrel::sim {

std::uint8_t runningSumCheck(const std::uint8_t* bytes, std::size_t count)
{
    int sum = count ? bytes[0] : 0;
    for (std::size_t i = 1; i < count; ++i) {
        sum += bytes[i];
        if (sum > 256)
            sum -= 256;
    }
    int check = (256 - sum % 256) % 256;
    if (check < 128)
        check += 128;
    return static_cast<std::uint8_t>(check);
}

bool checkSumsToZero(const Bytes& frame)
{
    if (frame.empty())
        return false;
    unsigned sum = frame[0];
    for (std::size_t i = 1; i < frame.size(); ++i)
        sum += frame[i] & 127u;
    return sum % 128 == 0;
}

Bytes busFrame(std::uint8_t addressByte, std::uint8_t header7, std::optional<std::uint8_t> xaddress,
               const Bytes& data)
{
    Bytes frame;
    frame.push_back(addressByte & 127);
    frame.push_back(static_cast<std::uint8_t>(128 | header7));
    if (xaddress)
        frame.push_back(static_cast<std::uint8_t>(128 | (*xaddress & 127)));
    for (auto b : data)
        frame.push_back(static_cast<std::uint8_t>(128 | (b & 127)));
    frame.push_back(runningSumCheck(frame.data(), frame.size()));
    return frame;
}

std::uint8_t corvidHeader(std::size_t length, bool toggle)
{
    if (length > 23)
        throw std::invalid_argument("Corvid frame longer than 23 bytes: " + std::to_string(length));
    int h;
    if (length < 8)
        h = 40 + static_cast<int>(length);
    else if (length < 16)
        h = static_cast<int>(length) - 8;
    else
        h = static_cast<int>(length);
    return static_cast<std::uint8_t>(h + (toggle ? 64 : 0));
}

std::size_t corvidLength(std::uint8_t header)
{
    if (header & 8)
        return header & 7;
    return 8 + ((header & 16) ? 8 : 0) + (header & 7);
}

Bytes corvidFrame(const Bytes& data, bool toggle)
{
    Bytes frame;
    frame.push_back(corvidHeader(data.size(), toggle));
    for (auto b : data)
        frame.push_back(static_cast<std::uint8_t>(128 | (b & 127)));
    frame.push_back(runningSumCheck(frame.data(), frame.size()));
    return frame;
}

int decodeCorvidVersion(std::uint8_t x, std::uint8_t y)
{
    return (x >> 3) * 1000 + (x & 7) * 100 + (y >> 3) * 10 + (y & 7);
}

std::pair<std::uint8_t, std::uint8_t> encodeCorvidVersion(int v)
{
    if (v < 0 || v > 9999)
        throw std::invalid_argument("version out of range: " + std::to_string(v));
    int d1000 = v / 1000, d100 = v / 100 % 10, d10 = v / 10 % 10, d1 = v % 10;
    if (d100 > 7 || d1 > 7)
        throw std::invalid_argument("version " + std::to_string(v) +
                                    " cannot be carried (hundreds and units digits must be 0..7)");
    return {static_cast<std::uint8_t>(d1000 << 3 | d100), static_cast<std::uint8_t>(d10 << 3 | d1)};
}

} // namespace kestrel::sim
