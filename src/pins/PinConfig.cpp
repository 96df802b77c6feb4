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
    if ((rec.ConfigMode == kModePwm || rec.ConfigMode == kModePwm + 1) && lengthField < 8) {
        rec.P(4) = 0;
        rec.P(5) = 31;
    }
    if (rec.ConfigMode == kModeServo)
        rec.P(2) = currentServoMode(rec.P(2));
}

std::vector<int> pinConfigBytes(const PinRecord& rec, int target)
{
    const int value = target == 0 ? rec.OutputValue : rec.P(1);
    const int mode = rec.ConfigMode;
    if (mode == kModeServo) {
        std::vector<int> out{kModeServo, value, servoModeToStore(rec.P(2))};
        for (int n = 3; n <= 11; ++n)
            out.push_back(rec.P(n));
        return out;
    }
    if (mode == kModePwm || mode == kModePwm + 1)
        return {mode, value, rec.P(2), rec.P(3), rec.P(4), rec.P(5)};
    if (mode == kModeInput || mode == kModeInput + 1)
        return {mode, value, rec.P(2), rec.P(3), rec.P(4)};
    return {kModeNone};
}

} // namespace kestrel
