#pragma once
#include "model/Configuration.h"

#include <array>

namespace kestrel {

// The five bytes a step occupies in the module: code byte (Instruction + 16 x Fade),
// then four parameter bytes, each 0..127 (SendSerial 1 and 2 pack their 8-bit values).
std::array<int, 5> encodeStep(const StepRecord& step);
StepRecord decodeStep(const std::array<int, 5>& bytes);

// Splits a code byte (or a data file's op) into Instruction and Fade: a byte with
// bit 4 set and 19 <= byte < 64 is a faded step, anything else is unfaded.
void splitCodeByte(int codeByte, StepRecord& step);

} // namespace kestrel
