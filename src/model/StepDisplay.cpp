#include "model/StepDisplay.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "model/InstructionSet.h"

#include <cmath>

namespace kestrel {

namespace {

void checkSelection(int currentPin, int numberingBase)
{
    checkIndex(currentPin, kPinCount, "current pin");
    checkIndex(numberingBase, 2, "numbering base");
}

bool isAccel(int code) { return code >= 96 && code <= 99; }

constexpr int kMxPulse = 18;
constexpr int kClone = 7;

// Clamps v into [lo, hi]; reports whether it had to.
bool clampInto(long& v, long lo, long hi)
{
    if (v < lo) {
        v = lo;
        return true;
    }
    if (v > hi) {
        v = hi;
        return true;
    }
    return false;
}

AcceptedParameter finish(const std::string& typed, bool clamped, long shownValue, long stored)
{
    AcceptedParameter out;
    out.clamped = clamped;
    out.text = clamped ? std::to_string(shownValue) : typed;
    if (stored < 0 || stored > 255)
        throw ProgramFault("parameter value outside a byte: " + std::to_string(stored));
    out.stored = static_cast<std::uint8_t>(stored);
    return out;
}

} // namespace

bool isIfInstruction(int code) { return code >= 104 && code <= 107; }

int ifValueStored(int value)
{
    if (value < -64 || value > 63)
        throw ProgramFault("If value out of range: " + std::to_string(value));
    return (value + 128) % 128;
}

int ifValueShown(int stored)
{
    if (stored >= 64 && stored <= 127)
        return stored - 128;
    return stored;
}

ParameterBox showParameter(const StepRecord& step, int parameter, int currentPin, int numberingBase)
{
    checkSelection(currentPin, numberingBase);
    const InstructionInfo& info = instructionInfo(step.Instruction);
    ParameterBox box;
    box.used = info.used(parameter);
    if (!box.used) {
        box.text = "0";
        return box;
    }
    const int code = step.Instruction;
    int shown = 0;
    switch (parameter) {
    case 0:
        if (isAccel(code))
            shown = step.Par0 == 127 ? -1 : step.Par0;
        else if (code == kMxPulse)
            shown = step.Par0 + numberingBase;
        else // a pin offset, modulo 32: shown negative where it wraps past pin 31
            shown = currentPin + step.Par0 < 32 ? step.Par0 : step.Par0 - 32;
        break;
    case 1:
        if (isIfInstruction(code))
            shown = ifValueShown(step.Par1);
        else
            shown = step.Par1 + info.Par1Shift + (code == kClone ? numberingBase : 0);
        break;
    case 2:
        shown = step.Par2;
        break;
    default:
        shown = step.Par3;
        break;
    }
    box.text = std::to_string(shown);
    return box;
}

AcceptedParameter acceptParameter(const StepRecord& step, int parameter, const std::string& typed,
                                  int currentPin, int numberingBase)
{
    checkSelection(currentPin, numberingBase);
    const InstructionInfo& info = instructionInfo(step.Instruction);
    if (!info.used(parameter))
        return {"0", false, 0};
    const int code = step.Instruction;
    long v = valInt(typed);
    switch (parameter) {
    case 0: {
        if (isAccel(code)) {
            const bool c = clampInto(v, -1, 31);
            return finish(typed, c, v, (v + 128) % 128);
        }
        if (code == kMxPulse) {
            const bool c = clampInto(v, numberingBase, numberingBase + 31);
            return finish(typed, c, v, v - numberingBase);
        }
        // The offset may reach from the selected pin down to pin 0 and up to pin 31;
        // it is kept as its five-bit complement.
        const bool c = clampInto(v, -currentPin, 31 - currentPin);
        return finish(typed, c, v, (v + 32) % 32);
    }
    case 1: {
        const long e = code == kClone ? numberingBase : 0;
        long u = v - info.Par1Shift - e;
        const bool c = clampInto(u, info.Par1Min, info.Par1Max);
        const long shown = u + info.Par1Shift + e;
        return finish(typed, c, shown, isIfInstruction(code) ? ifValueStored(static_cast<int>(u)) : u);
    }
    case 2: {
        const bool c = clampInto(v, 0, par2Maximum(code));
        return finish(typed, c, v, v);
    }
    default: {
        const bool c = clampInto(v, 0, 3);
        return finish(typed, c, v, v);
    }
    }
}

int par2Maximum(int instruction)
{
    switch (instruction) {
    case 1:
        return 8;
    case 4:
    case 5:
        return 255;
    case kMxPulse:
        return 31;
    default:
        return 63;
    }
}

int durationTicks(int time, int base)
{
    const double ticks = std::round(time * std::pow(8.0, base));
    if (ticks < -32768 || ticks > 32767)
        throw ProgramFault("step time overflows: " + std::to_string(time) + " x 8^" + std::to_string(base));
    return static_cast<int>(ticks);
}

std::string durationText(int ticks)
{
    const int h = ticks % 50;
    const int s = (ticks - h) / 50;
    const int sec = s % 60;
    const int min = (s - sec) / 60;
    auto two = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    return two(min) + ":" + two(sec) + "." + two(2 * h);
}

std::string stepTimeText(const StepRecord& step)
{
    if (step.Instruction <= 63)
        return "00:00.00";
    if (step.Par2 * std::pow(8.0, step.Par3) > 32767)
        return kTimeOverflow;
    return durationText(durationTicks(step.Par2, step.Par3));
}

} // namespace kestrel
