#include "pins/PinConfig.h"

namespace kestrel {

void storePinConfigReply(PinRecord& rec, int source, const std::vector<int>& bytes, int lengthField)
{
    if (bytes.empty())
        return;
    const int mode = bytes[0];
    if (rec.ConfigMode != mode) {
        rec.ConfigParams.fill(0);
        if (mode == kModeServo) {
            rec.OutputValue = 64;
            rec.P(1) = 64;
        }
    }
    // At most the mode and P1..P12 can arrive.
    const int n = bytes.size() > 13 ? 13 : static_cast<int>(bytes.size());
    for (int i = 0; i < n; ++i) {
        const auto b = static_cast<std::uint8_t>(bytes[i]);
        if (i == 0)
            rec.ConfigMode = b;
        else if (i == 1 && source == 0)
            rec.OutputValue = b; // the active set carries the current position or level here
        else
            rec.P(i) = b;
    }
    if ((rec.ConfigMode == kModePwm || rec.ConfigMode == kModePwm + 1) && lengthField < 8)
        setOlderPwmLimits(rec);
    if (rec.ConfigMode == kModeServo)
        rec.P(2) = currentServoMode(rec.P(2));
}

std::vector<int> pinConfigBytes(const PinRecord& rec, int target)
{
    // The mode, then its parameters as the files hold them, but P1 is the live position or
    // level for the active set and a servo's mode byte goes without its status bits.
    const int count = configParameterCount(rec.ConfigMode);
    if (count == 0)
        return {kModeNone};
    std::vector<int> out{rec.ConfigMode, target == 0 ? rec.OutputValue : rec.P(1)};
    for (int n = 2; n <= count; ++n)
        out.push_back(n == 2 && rec.ConfigMode == kModeServo ? servoModeToStore(rec.P(2)) : rec.P(n));
    return out;
}

int pageOfMode(int mode)
{
    switch (mode) {
    case kModeNone:
        return 0;
    case kModeServo:
        return 1;
    case kModePwm:
    case kModePwm + 1:
        return 2;
    case kModeInput:
    case kModeInput + 1:
        return 3;
    default:
        return -1;
    }
}

} // namespace kestrel
