#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Byte-level framing as the simulated devices see it. Written here on purpose and
// not shared with the client's link code: a framing mistake in the client must show
// up as a disagreement with the simulator, not be repeated by it.
namespace kestrel::sim {

using Bytes = std::vector<std::uint8_t>;

// Check byte by the running-sum rule: the sum starts at the first byte and adds every
// later byte, subtracting 256 whenever it exceeds 256; the check byte is 256 - sum,
// plus 128 when that is below 128.
std::uint8_t runningSumCheck(const std::uint8_t* bytes, std::size_t count);

// The receiver's rule: first byte plus the low 7 bits of every later byte (check byte
// included) is a multiple of 128.
bool checkSumsToZero(const Bytes& frame);

// A frame of the module bus: address byte (bit 7 clear), header with bit 7 set
// (header7 is its 7-bit value), optional eXtended address byte 128 + x, data bytes
// 128 + value, check byte.
Bytes busFrame(std::uint8_t addressByte, std::uint8_t header7, std::optional<std::uint8_t> xaddress,
               const Bytes& data);

// Corvid header forms: length below 8 uses the short form 40 + length (bits 3 and 5
// set); 8..15 the long form length - 8; 16..23 the long form length itself. Bit 6 is
// the toggle.
std::uint8_t corvidHeader(std::size_t length, bool toggle);
// Number of data bytes announced by a Corvid header: bit 3 set = b & 7, otherwise
// 8 + 8 * bit 4 + (b & 7).
std::size_t corvidLength(std::uint8_t header);
// Header, data bytes 128 + value, check byte.
Bytes corvidFrame(const Bytes& data, bool toggle);

// The four-digit version numbers of the Corvid system as two bytes x, y:
// (x >> 3) * 1000 + (x & 7) * 100 + (y >> 3) * 10 + (y & 7).
int decodeCorvidVersion(std::uint8_t x, std::uint8_t y);
// Throws std::invalid_argument when v is not 0..9999 or its hundreds or units digit is
// above 7 (three bits each).
std::pair<std::uint8_t, std::uint8_t> encodeCorvidVersion(int v);

} // namespace kestrel::sim
