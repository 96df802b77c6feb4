#include "pins/PinMode.h"
#include "base/Translatable.h"

namespace kestrel {

std::optional<PinMode> pinMode(int configMode)
{
    if (configMode < modeByte(PinMode::None) || configMode > modeByte(PinMode::InputInverted))
        return std::nullopt;
    return static_cast<PinMode>(configMode);
}

ModePage pageOfMode(int configMode)
{
    const std::optional<PinMode> mode = pinMode(configMode);
    if (!mode)
        return ModePage::Unknown;
    switch (*mode) {
    case PinMode::None:
        return ModePage::None;
    case PinMode::Servo:
        return ModePage::Servo;
    case PinMode::Pwm:
    case PinMode::PwmInverted:
        return ModePage::Pwm;
    case PinMode::Input:
    case PinMode::InputInverted:
        return ModePage::Input;
    }
    return ModePage::Unknown;
}

PinMode modeOfPage(ModePage page, bool inverted)
{
    switch (page) {
    case ModePage::Servo:
        return PinMode::Servo;
    case ModePage::Pwm:
        return inverted ? PinMode::PwmInverted : PinMode::Pwm;
    case ModePage::Input:
        return inverted ? PinMode::InputInverted : PinMode::Input;
    default:
        return PinMode::None;
    }
}

std::string modeName(int configMode)
{
    const std::optional<PinMode> mode = pinMode(configMode);
    if (!mode)
        return "Unknown configuration: " + std::to_string(configMode);
    // By mode number, None to InputInverted.
    static const char* const names[] = {KC_TRANSLATABLE("PinMode", "Not configured"),
                                        KC_TRANSLATABLE("PinMode", "Servo"),
                                        KC_TRANSLATABLE("PinMode", "PWM"),
                                        KC_TRANSLATABLE("PinMode", "PWM, Inverted"),
                                        KC_TRANSLATABLE("PinMode", "Input"),
                                        KC_TRANSLATABLE("PinMode", "Input, Inverted")};
    return names[modeByte(*mode)];
}

int configParameterCount(int configMode)
{
    switch (pageOfMode(configMode)) {
    case ModePage::Servo:
        return 11;
    case ModePage::Pwm:
        return 5;
    case ModePage::Input:
        return 4;
    default:
        return 0;
    }
}

std::uint8_t currentServoMode(std::uint8_t p2)
{
    return p2 >= 16 && (p2 & 8) == 0 ? static_cast<std::uint8_t>(p2 / 16 + 40) : p2;
}

void setOlderPwmLimits(PinRecord& pin)
{
    pin.P(4) = 0;
    pin.P(5) = 31;
}

} // namespace kestrel
