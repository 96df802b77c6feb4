#include "pins/PinConfig.h"

namespace kestrel {

void storePinConfigReply(PinRecord& rec, int source, const std::vector<int>& bytes, int lengthField)
{
    if (bytes.empty())
        return;
    const int mode = bytes[0];
    if (rec.ConfigMode != mode) {
        rec.ConfigParams.fill(0);
        if (mode == modeByte(PinMode::Servo)) {
            rec.OutputValue = storedSigned(0);
            rec.P(1) = storedSigned(0);
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
    if (pageOfMode(rec.ConfigMode) == ModePage::Pwm && lengthField < 8)
        setOlderPwmLimits(rec);
    if (hasMode(rec, PinMode::Servo))
        rec.P(2) = currentServoMode(rec.P(2));
}

std::vector<int> pinConfigBytes(const PinRecord& rec, int target)
{
    // The mode, then its parameters as the files hold them, but P1 is the live position or
    // level for the active set and a servo's mode byte goes without its status bits.
    const int count = configParameterCount(rec.ConfigMode);
    if (count == 0)
        return {modeByte(PinMode::None)};
    std::vector<int> out{rec.ConfigMode, target == 0 ? rec.OutputValue : rec.P(1)};
    for (int n = 2; n <= count; ++n)
        out.push_back(n == 2 && hasMode(rec, PinMode::Servo) ? servoModeToStore(rec.P(2)) : rec.P(n));
    return out;
}

} // namespace kestrel
