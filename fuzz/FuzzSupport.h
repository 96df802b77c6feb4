#pragma once
// Helpers shared by the fuzz targets: reading settings from the front of an input, and
// the checks that turn a wrong result into a finding (a crash that libFuzzer records).
#include "support/Frames.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace kestrel::fuzz {

// Takes values from the front of the fuzzer's input; past the end every value is 0.
class InputReader {
public:
    InputReader(const std::uint8_t* data, std::size_t size) : data(data), size(size) {}
    std::uint8_t byte() { return pos < size ? data[pos++] : 0; }
    std::vector<std::uint8_t> rest()
    {
        std::vector<std::uint8_t> out(data + pos, data + size);
        pos = size;
        return out;
    }
    std::string restAsText()
    {
        std::string out(reinterpret_cast<const char*>(data + pos), size - pos);
        pos = size;
        return out;
    }
    std::size_t left() const { return size - pos; }

private:
    const std::uint8_t* data;
    std::size_t size;
    std::size_t pos = 0;
};

// A broken expectation: print it and abort, so libFuzzer keeps the input.
[[noreturn]] inline void finding(const std::string& what)
{
    std::fprintf(stderr, "fuzz finding: %s\n", what.c_str());
    std::fflush(stderr);
    std::abort();
}

inline void expect(bool condition, const char* what)
{
    if (!condition)
        finding(what);
}

// The receiver's rule for both kinds of frame, as the tests check it.
using kestrel::test::sumsToZero;

// Splits bytes sent on the module bus into frames and checks that every one of them is
// whole and well formed: address byte (bit 7 clear), header with bit 7 set and the
// size in its low nibble, the eXtended address when bit 4 says so, the data, a check
// byte that fits. `replies` also asks for the reply header bits 5 and 6.
inline void expectBusFrames(const std::vector<int>& bytes, bool replies, const char* who)
{
    std::size_t i = 0;
    while (i < bytes.size()) {
        if (bytes[i] >= 128)
            finding(std::string(who) + ": byte with bit 7 set outside a frame");
        if (i + 1 >= bytes.size())
            finding(std::string(who) + ": frame cut after its address byte");
        const int header = bytes[i + 1];
        if (header < 128)
            finding(std::string(who) + ": header without bit 7");
        if (replies && (header & 96) != 96)
            finding(std::string(who) + ": reply header without bits 5 and 6");
        const std::size_t length = 2 + ((header & 16) ? 1 : 0) + (header & 15) + 1;
        if (i + length > bytes.size())
            finding(std::string(who) + ": frame cut short");
        std::vector<int> frame(bytes.begin() + static_cast<std::ptrdiff_t>(i),
                               bytes.begin() + static_cast<std::ptrdiff_t>(i + length));
        for (std::size_t k = 1; k < frame.size(); ++k)
            if (frame[k] < 128)
                finding(std::string(who) + ": byte without bit 7 inside a frame");
        if (!sumsToZero(frame))
            finding(std::string(who) + ": check byte does not fit");
        i += length;
    }
}

// The same for Corvid frames: header (bit 7 clear), the announced data bytes, check byte.
inline void expectCorvidFrames(const std::vector<int>& bytes, const char* who)
{
    std::size_t i = 0;
    while (i < bytes.size()) {
        if (bytes[i] >= 128)
            finding(std::string(who) + ": Corvid byte with bit 7 set outside a frame");
        const std::size_t length = 1 + static_cast<std::size_t>(kestrel::test::corvidLength(bytes[i])) + 1;
        if (i + length > bytes.size())
            finding(std::string(who) + ": Corvid frame cut short");
        std::vector<int> frame(bytes.begin() + static_cast<std::ptrdiff_t>(i),
                               bytes.begin() + static_cast<std::ptrdiff_t>(i + length));
        for (std::size_t k = 1; k < frame.size(); ++k)
            if (frame[k] < 128)
                finding(std::string(who) + ": Corvid byte without bit 7 inside a frame");
        if (!sumsToZero(frame))
            finding(std::string(who) + ": Corvid check byte does not fit");
        i += length;
    }
}

} // namespace kestrel::fuzz
