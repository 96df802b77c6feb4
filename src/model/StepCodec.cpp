#include "model/StepCodec.h"

namespace kestrel {

void splitCodeByte(int b, StepRecord& step)
{
    if ((b & 16) && b >= 19 && b < 64) {
        step.Instruction = static_cast<std::uint8_t>(b - 16);
        step.Fade = 1;
    } else {
        step.Instruction = static_cast<std::uint8_t>(b);
        step.Fade = 0;
    }
}

std::array<int, 5> encodeStep(const StepRecord& s)
{
    std::array<int, 5> out{};
    out[0] = s.Instruction + 16 * s.Fade;
    if (s.Instruction == 4 || s.Instruction == 5) {
        out[1] = 2 * ((s.Par2 >> 7) & 1) + ((s.Par1 >> 7) & 1);
        out[2] = s.Par1 & 127;
        out[3] = s.Par2 & 127;
        out[4] = s.Par3;
    } else {
        out[1] = s.Par0;
        out[2] = s.Par1;
        out[3] = s.Par2;
        out[4] = s.Par3;
    }
    return out;
}

StepRecord decodeStep(const std::array<int, 5>& b)
{
    StepRecord s;
    splitCodeByte(b[0], s);
    if (s.Instruction == 4 || s.Instruction == 5) {
        s.Par0 = 0;
        s.Par1 = static_cast<std::uint8_t>(128 * (b[1] & 1) + b[2]);
        s.Par2 = static_cast<std::uint8_t>(128 * ((b[1] / 2) & 1) + b[3]);
        s.Par3 = static_cast<std::uint8_t>(b[4]);
    } else {
        s.Par0 = static_cast<std::uint8_t>(b[1]);
        s.Par1 = static_cast<std::uint8_t>(b[2]);
        s.Par2 = static_cast<std::uint8_t>(b[3]);
        s.Par3 = static_cast<std::uint8_t>(b[4]);
    }
    return s;
}

} // namespace kestrel
