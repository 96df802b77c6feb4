#include "pins/PinEdits.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "pins/PinConfig.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace kestrel {

PinFieldRule pinFieldRule(PinField field)
{
    // In the order of PinField: eleven of the servo page, five of the PWM page, two of the
    // input page.
    static constexpr PinFieldRule rules[] = {{0, -64, 63, kSignedOffset},
                                             {1, -64, 63, kSignedOffset},
                                             {3, -64, 63, kSignedOffset},
                                             {4, 0, 127, 0},
                                             {5, 0, 127, 0},
                                             {6, 1, 127, 0},
                                             {7, 1, 127, 0},
                                             {8, 0, 63, kSignedOffset},
                                             {9, 0, 127, 0},
                                             {10, -63, 0, kSignedOffset},
                                             {11, 0, 127, 0},
                                             {0, 0, 31, 0},
                                             {1, 0, 31, 0},
                                             {3, 0, 127, 0},
                                             {4, 0, 31, 0},
                                             {5, 0, 31, 0},
                                             {3, 0, 31, 0},
                                             {4, 0, 31, 0}};
    static_assert(std::size(rules) == static_cast<std::size_t>(PinField::TextInputDelay1) + 1);
    const auto index = static_cast<std::size_t>(field);
    if (index >= std::size(rules))
        throw ProgramFault("Unknown pin configuration field");
    return rules[index];
}

ModePage pageOfField(PinField field)
{
    if (field <= PinField::TextBounceUpFactor)
        return ModePage::Servo;
    if (field <= PinField::TextPWMOnLevel)
        return ModePage::Pwm;
    return ModePage::Input;
}

ClampedField clampPinField(PinField field, const std::string& typed)
{
    const PinFieldRule rule = pinFieldRule(field);
    const long typedValue = valInt(typed);
    const long value = std::clamp<long>(typedValue, rule.min, rule.max);
    return {value == typedValue ? typed : std::to_string(value), static_cast<int>(value)};
}

CommittedField commitPinField(PinRecord& pin, PinField field, const std::string& typed)
{
    const PinFieldRule rule = pinFieldRule(field);
    const ClampedField clamped = clampPinField(field, typed);
    const auto stored = static_cast<std::uint8_t>(clamped.value + rule.shift);
    if (rule.byte == 0)
        pin.OutputValue = stored;
    else
        pin.P(rule.byte) = stored;
    return {clamped.text, stored};
}

std::string takePinField(PinRecord& pin, PinField field, const std::string& typed)
{
    if (pageOfMode(pin.ConfigMode) != pageOfField(field))
        return clampPinField(field, typed).text;
    return commitPinField(pin, field, typed).text;
}

const std::vector<PinField>& pinEditOrder(ModePage page)
{
    static const std::vector<PinField> none;
    static const std::vector<PinField> servo{
        PinField::TextMidpoint,    PinField::TextSrvMaxSpd,      PinField::TextSrvMaxAccel,
        PinField::TextSrvAntiMass, PinField::TextSrvFriction,    PinField::TextBounceUp,
        PinField::TextBounceDown,  PinField::TextBounceUpFactor, PinField::TextBounceDownFactor};
    static const std::vector<PinField> pwm{PinField::TextPWMAccel};
    static const std::vector<PinField> input{PinField::TextInputDelay0, PinField::TextInputDelay1};
    switch (page) {
    case ModePage::Servo:
        return servo;
    case ModePage::Pwm:
        return pwm;
    case ModePage::Input:
        return input;
    default:
        return none;
    }
}

bool CommitPinEdits(PinRecord& pin, ModePage shown, std::map<PinField, std::string>& boxes)
{
    if (pageOfMode(pin.ConfigMode) != shown)
        return false;
    for (PinField field : pinEditOrder(shown)) {
        auto box = boxes.find(field);
        if (box != boxes.end())
            box->second = commitPinField(pin, field, box->second).text;
    }
    return true;
}

void setServoFlags(PinRecord& pin, int rangeOption, bool autoSuspend, bool suspended, bool initialised)
{
    if (!hasMode(pin, PinMode::Servo))
        return;
    const int range = rangeOption >= 0 && rangeOption <= 4 ? rangeOption : 0;
    pin.P(2) = static_cast<std::uint8_t>(range | 8 | (autoSuspend ? 16 : 0) | (suspended ? 32 : 0) |
                                         (initialised ? 64 : 0));
}

void setPwmModes(PinRecord& pin, int driveMode, int accelMode)
{
    if (pageOfMode(pin.ConfigMode) == ModePage::Pwm)
        pin.P(2) = static_cast<std::uint8_t>((driveMode & 1) | ((accelMode & 1) << 1));
}

void setInverted(PinRecord& pin, ModePage page, bool inverted)
{
    if (pageOfMode(pin.ConfigMode) == page)
        pin.ConfigMode = modeByte(modeOfPage(page, inverted));
}

void choosePage(PinRecord& pin, ModePage page)
{
    // The mode alone, as a reply from flash without parameters would bring it.
    storePinConfigReply(pin, 1, {modeByte(modeOfPage(page))}, 3);
}

bool choosingClearsParameters(const PinRecord& pin)
{
    const ModePage page = pageOfMode(pin.ConfigMode);
    return page != ModePage::None && page != ModePage::Unknown;
}

} // namespace kestrel
