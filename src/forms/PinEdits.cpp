#include "forms/PinEdits.h"

#include "base/ProgramFault.h"
#include "base/Text.h"

#include <algorithm>
#include <vector>

namespace kestrel {

PinFieldRule pinFieldRule(PinField field)
{
    switch (field) {
    case PinField::TextPosition:
        return {0, -64, 63, 64};
    case PinField::TextSrvInitPos:
        return {1, -64, 63, 64};
    case PinField::TextMidpoint:
        return {3, -64, 63, 64};
    case PinField::TextSrvAntiMass:
        return {4, 0, 127, 0};
    case PinField::TextSrvFriction:
        return {5, 0, 127, 0};
    case PinField::TextSrvMaxSpd:
        return {6, 1, 127, 0};
    case PinField::TextSrvMaxAccel:
        return {7, 1, 127, 0};
    case PinField::TextBounceDown:
        return {8, 0, 63, 64};
    case PinField::TextBounceDownFactor:
        return {9, 0, 127, 0};
    case PinField::TextBounceUp:
        return {10, -63, 0, 64};
    case PinField::TextBounceUpFactor:
        return {11, 0, 127, 0};
    case PinField::TextPWMLevel:
        return {0, 0, 31, 0};
    case PinField::TextPWMInitLevel:
        return {1, 0, 31, 0};
    case PinField::TextPWMAccel:
        return {3, 0, 127, 0};
    case PinField::TextPWMOffLevel:
        return {4, 0, 31, 0};
    case PinField::TextPWMOnLevel:
        return {5, 0, 31, 0};
    case PinField::TextInputDelay0:
        return {3, 0, 31, 0};
    case PinField::TextInputDelay1:
        return {4, 0, 31, 0};
    }
    throw ProgramFault("Unknown pin configuration field");
}

CommittedField commitPinField(PinRecord& pin, PinField field, const std::string& typed)
{
    const PinFieldRule rule = pinFieldRule(field);
    const long typedValue = valInt(typed);
    const long value = std::clamp<long>(typedValue, rule.min, rule.max);
    const auto stored = static_cast<std::uint8_t>(value + rule.shift);
    if (rule.byte == 0)
        pin.OutputValue = stored;
    else
        pin.P(rule.byte) = stored;
    return {value == typedValue ? typed : std::to_string(value), stored};
}

const std::vector<PinField>& pinEditOrder(int page)
{
    static const std::vector<PinField> none;
    static const std::vector<PinField> servo{
        PinField::TextMidpoint,    PinField::TextSrvMaxSpd,      PinField::TextSrvMaxAccel,
        PinField::TextSrvAntiMass, PinField::TextSrvFriction,    PinField::TextBounceUp,
        PinField::TextBounceDown,  PinField::TextBounceUpFactor, PinField::TextBounceDownFactor};
    static const std::vector<PinField> pwm{PinField::TextPWMAccel};
    static const std::vector<PinField> input{PinField::TextInputDelay0, PinField::TextInputDelay1};
    switch (page) {
    case 1:
        return servo;
    case 2:
        return pwm;
    case 3:
        return input;
    default:
        return none;
    }
}

void CommitPinEdits(PinRecord& pin, int page, std::map<PinField, std::string>& boxes)
{
    for (PinField field : pinEditOrder(page)) {
        auto box = boxes.find(field);
        if (box != boxes.end())
            box->second = commitPinField(pin, field, box->second).text;
    }
}

std::uint8_t servoModeByte(int rangeOption, bool autoSuspend, bool suspended, bool initialised)
{
    const int range = rangeOption >= 0 && rangeOption <= 4 ? rangeOption : 0;
    return static_cast<std::uint8_t>(range | 8 | (autoSuspend ? 16 : 0) | (suspended ? 32 : 0) |
                                     (initialised ? 64 : 0));
}

std::uint8_t pwmModeByte(int driveMode, int accelMode)
{
    return static_cast<std::uint8_t>((driveMode & 1) | ((accelMode & 1) << 1));
}

int pwmConfigMode(bool inverted) { return inverted ? 3 : 2; }
int inputConfigMode(bool inverted) { return inverted ? 5 : 4; }

} // namespace kestrel
