#pragma once
#include "model/Configuration.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace kestrel {

// The edit boxes of the pin-configuration page, each bound to one byte of the pin record.
enum class PinField {
    // servo page
    TextPosition,         // OutputValue, shown -64..63, stored + 64
    TextSrvInitPos,       // P1, -64..63, + 64
    TextMidpoint,         // P3, -64..63, + 64
    TextSrvAntiMass,      // P4, 0..127
    TextSrvFriction,      // P5, 0..127
    TextSrvMaxSpd,        // P6, 1..127
    TextSrvMaxAccel,      // P7, 1..127
    TextBounceDown,       // P8, 0..63, + 64
    TextBounceDownFactor, // P9, 0..127
    TextBounceUp,         // P10, -63..0, + 64
    TextBounceUpFactor,   // P11, 0..127
    // PWM page
    TextPWMLevel,     // OutputValue, 0..31
    TextPWMInitLevel, // P1, 0..31
    TextPWMAccel,     // P3, 0..127
    TextPWMOffLevel,  // P4, 0..31
    TextPWMOnLevel,   // P5, 0..31
    // input page
    TextInputDelay0, // P3, on-delay 0..31
    TextInputDelay1, // P4, off-delay 0..31
};

// Where a box's value goes and what it may be: byte 0 = OutputValue, else Pn; the
// stored byte is the shown value + shift.
struct PinFieldRule {
    int byte;
    int min;
    int max;
    int shift;
};
PinFieldRule pinFieldRule(PinField field);

// A box after its handler ran: the text to put back (the typed text, or the bound it
// was clamped to) and the byte stored.
struct CommittedField {
    std::string text;
    std::uint8_t stored;
};

// The handler of one box: takes the typed value, clamps it to the box's range, stores
// it into the pin record and returns the text for the box.
CommittedField commitPinField(PinRecord& pin, PinField field, const std::string& typed);

// The boxes that CommitPinEdits applies for each page, in order: page 1 (servo) midpoint,
// max speed, max acceleration, 1/mass, damping, bounce up, bounce down, bounce up factor,
// bounce down factor; page 2 (PWM) acceleration; page 3 (input) the two delays; page 0
// none. The aspect step boxes that follow are the aspect editor's.
const std::vector<PinField>& pinEditOrder(int page);

// Applies the edit boxes of the shown page to the pin: each box present in `boxes` is
// committed in the order above and its text replaced by the committed text.
void CommitPinEdits(PinRecord& pin, int page, std::map<PinField, std::string>& boxes);

// The option and check boxes: a servo's P2 (range option 0..4 in bits 0-2, bit 3 marking
// this layout of the byte, auto suspend bit 4, suspended bit 5, initialised bit 6), a PWM
// P2 (drive mode bit 0, acceleration mode bit 1), and the modes that the "Inverted" boxes
// select.
std::uint8_t servoModeByte(int rangeOption, bool autoSuspend, bool suspended, bool initialised);
std::uint8_t pwmModeByte(int driveMode, int accelMode);
int pwmConfigMode(bool inverted);
int inputConfigMode(bool inverted);

} // namespace kestrel
