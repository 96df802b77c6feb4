#pragma once
#include "model/Configuration.h"

#include <cstdint>
#include <string>

namespace kestrel {

// Display and entry rules of the four parameter boxes of a step row, as pure functions
// of the step, the selected pin (CurrentPin, 0..31) and NumberingBase (0 or 1).
//
// The "If" instructions (codes 104..107) show their "Value" in -64..63 while Par1 is a
// byte that travels to the module in seven bits. The value is stored as its seven-bit
// complement, (value + 128) mod 128: 0..63 are kept as they are and -64..-1 are stored
// as 64..127, the same way "Accel" keeps -1 as 127. A stored 64..127 reads back as
// stored - 128.
int ifValueStored(int value); // -64..63 -> 0..127
int ifValueShown(int stored); // 0..127 -> -64..63 (anything else is shown as it is)
bool isIfInstruction(int code);

// What one parameter box (0 = P.O./Par0 .. 3 = Par3) shows; unused parameters show "0"
// and are greyed.
struct ParameterBox {
    std::string text;
    bool used = false;
};
ParameterBox showParameter(const StepRecord& step, int parameter, int currentPin, int numberingBase);

// The result of typing into a parameter box: the text the box shows afterwards (the
// bound when the value was clamped, the typed text unchanged otherwise) and the byte to
// store in the parameter. A box of an unused parameter shows "0" and stores 0.
struct AcceptedParameter {
    std::string text;
    bool clamped = false;
    std::uint8_t stored = 0;
};
AcceptedParameter acceptParameter(const StepRecord& step, int parameter, const std::string& typed,
                                  int currentPin, int numberingBase);

// Upper bound of the "Par2" box for an instruction: 8 for "Jump", 255 for the SendSerial
// pair, 31 for "MXpulse", 63 for every other instruction.
int par2Maximum(int instruction);

// Duration in 20 ms ticks of Time x 8^Base. The result must fit a signed 16-bit value;
// a larger one (only possible from values typed nowhere, e.g. a file) is a ProgramFault.
int durationTicks(int time, int base);

// Ticks shown as "mm:ss.hh" (minutes, seconds, hundredths, two digits each).
std::string durationText(int ticks);

// The time label of a step row: "00:00.00" for codes up to 63, else Par2 x 8^Par3 ticks,
// and kTimeOverflow for a time the module's 16-bit count cannot hold (a value typed
// nowhere, e.g. Time 100 with Base 3 from a file). Every step can be shown.
inline constexpr const char* kTimeOverflow = "OVFLOW";
std::string stepTimeText(const StepRecord& step);

} // namespace kestrel
