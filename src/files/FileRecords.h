#pragma once
#include "files/ItemStream.h"
#include "model/Configuration.h"

#include <array>

namespace kestrel {

// Records that the data file and the definitions file spell alike.

// "Cfg",<mode>,...: all eleven parameters for a servo (whose parameter 2 first loses
// its top two bits, in the pin as well), five for PWM, four for an input, none else.
void writeCfgRecord(ItemWriter& w, int indent, PinRecord& pin);

// "Ins",<s>,<op>,<par0>..<par3> with op = 16 x Fade + Instruction.
void writeInsRecord(ItemWriter& w, int indent, int s, const StepRecord& step);

// Stores an "Ins" record's op and parameters into a step: the op is stored whole as the
// instruction, and only an op of 19 to 63 is split into fade (bit 4) and instruction.
void readStepOp(StepRecord& step, int op, const std::array<int, 4>& par);

} // namespace kestrel
