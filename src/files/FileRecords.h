#pragma once
#include "files/ItemStream.h"
#include "model/Configuration.h"

#include <array>

namespace kestrel {

// "Configuration parameter n" for n = 1..11, as the readers name a parameter that cannot be sent.
extern const char* const kConfigParameterNames[12];

// Records that the data file and the definitions file spell alike.

// "Cfg",<mode>,...: all eleven parameters for a servo (whose parameter 2 first loses
// its top two bits, in the pin as well), five for PWM, four for an input, none else.
void writeCfgRecord(ItemWriter& w, int indent, PinRecord& pin);

// "Ins",<s>,<op>,<par0>..<par3> with op = 16 x Fade + Instruction.
void writeInsRecord(ItemWriter& w, int indent, int s, const StepRecord& step);

// The items of an "Asp" record after its keyword: the aspect index (0..12), which is
// returned, and the description, stored into that aspect of the pin.
int readAspRecord(ItemReader& in, Configuration& config, int pin);

// The items of an "Ins" record after its keyword, into a step of the pin's aspect: the op
// is stored whole as the instruction, and only an op of 19 to 63 is split into fade
// (bit 4) and instruction, so 16 to 18 never carry a fade and outside 19..63 the fade
// stays as it was.
void readInsRecord(ItemReader& in, Configuration& config, int pin, int aspect);

} // namespace kestrel
