#pragma once
#include "model/Configuration.h"
#include "pins/PinMode.h"
#include "session/GeneralSettings.h"

#include <array>
#include <string>

namespace kestrel {

// What the pin-configuration page shows for one pin, control by control. Only the
// controls of the selected page are filled; the others keep their defaults and the page
// leaves those controls as they are. Signed values are shown (stored byte - 64).
struct PinConfigView {
    // Page of SSTabPCFG; Unknown for an unknown mode, whose page stays as it was and
    // `message` is shown instead.
    ModePage SSTabPCFG = ModePage::Unknown;
    std::string message; // "Unknown configuration: " and the mode, or empty

    // servo page
    int TextPosition = 0;
    int TextSrvInitPos = 0;
    int OptionServoRange = 0; // P2 & 7, 0 when above 4
    bool ChkSrvAutoSuspend = false;
    bool ChkSrvSuspended = false;
    bool ChkSrvInitialized = false;
    int TextMidpoint = 0;
    int TextSrvAntiMass = 0;
    int TextSrvFriction = 0;
    int TextSrvMaxSpd = 0;
    int TextSrvMaxAccel = 0;
    int TextBounceDown = 0;
    int TextBounceDownFactor = 0;
    int TextBounceUp = 0;
    int TextBounceUpFactor = 0;

    // PWM page
    bool CheckPWMInverted = false;
    int TextPWMLevel = 0;
    int TextPWMInitLevel = 0;
    int OptionPWMDriveMode = 0;
    int OptionPWMAccelMode = 0;
    int TextPWMAccel = 0;
    int TextPWMOffLevel = 0;
    int TextPWMOnLevel = 0;

    // input page
    bool CheckInputInvert = false;
    std::array<int, 2> TextInputDelay{};

    // "Warning: Hardware Configuration Mismatch" on the servo and input pages: the pin's
    // group of eight has a sink or source driver checked on the General page.
    bool LabelSrvHWCWarn = false;
    bool LabelInpHWCWarn = false;
};

inline const char* const kHardwareWarning = "Warning: Hardware Configuration Mismatch";

// True when the group of eight that the pin belongs to has ChkGenHWCSink or
// ChkGenHWCSource checked.
bool hardwareMismatch(const GeneralSettings& general, int pin);

// The view of CurrentPin's configuration.
PinConfigView ShowPinConfig(const Configuration& config, const GeneralSettings& general);

} // namespace kestrel
