#include "pins/PinConfigView.h"

namespace kestrel {

bool hardwareMismatch(const GeneralSettings& general, int pin)
{
    const int group = pin / 8;
    if (group < 0 || group >= 4)
        return false;
    return general.ChkGenHWCSink[group] == 1 || general.ChkGenHWCSource[group] == 1;
}

PinConfigView ShowPinConfig(const Configuration& config, const GeneralSettings& general)
{
    const PinRecord& rec = config.pin(config.CurrentPin);
    PinConfigView view;
    const bool warn = hardwareMismatch(general, config.CurrentPin);
    view.LabelSrvHWCWarn = warn;
    view.LabelInpHWCWarn = warn;
    auto signedValue = [](int stored) { return shownSigned(stored); };

    view.SSTabPCFG = pageOfMode(rec.ConfigMode);
    switch (view.SSTabPCFG) {
    case ModePage::None:
        break;
    case ModePage::Servo: {
        const int p2 = rec.P(2);
        view.TextPosition = signedValue(rec.OutputValue);
        view.TextSrvInitPos = signedValue(rec.P(1));
        view.OptionServoRange = (p2 & 7) > 4 ? 0 : (p2 & 7);
        view.ChkSrvAutoSuspend = (p2 & 16) != 0;
        view.ChkSrvSuspended = (p2 & 32) != 0;
        view.ChkSrvInitialized = (p2 & 64) != 0;
        view.TextMidpoint = signedValue(rec.P(3));
        view.TextSrvAntiMass = rec.P(4);
        view.TextSrvFriction = rec.P(5);
        view.TextSrvMaxSpd = rec.P(6);
        view.TextSrvMaxAccel = rec.P(7);
        view.TextBounceDown = signedValue(rec.P(8));
        view.TextBounceDownFactor = rec.P(9);
        view.TextBounceUp = signedValue(rec.P(10));
        view.TextBounceUpFactor = rec.P(11);
        break;
    }
    case ModePage::Pwm:
        view.CheckPWMInverted = hasMode(rec, PinMode::PwmInverted);
        view.TextPWMLevel = rec.OutputValue;
        view.TextPWMInitLevel = rec.P(1);
        view.OptionPWMDriveMode = rec.P(2) & 1;
        view.OptionPWMAccelMode = (rec.P(2) >> 1) & 1;
        view.TextPWMAccel = rec.P(3);
        view.TextPWMOffLevel = rec.P(4);
        view.TextPWMOnLevel = rec.P(5);
        break;
    case ModePage::Input:
        view.CheckInputInvert = hasMode(rec, PinMode::InputInverted);
        view.TextInputDelay = {rec.P(3), rec.P(4)};
        break;
    case ModePage::Unknown:
        view.message = modeName(rec.ConfigMode); // "Unknown configuration: " and the number
        break;
    }
    return view;
}

} // namespace kestrel
