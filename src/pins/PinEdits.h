#pragma once
#include "model/Configuration.h"
#include "pins/PinMode.h"

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
// The page that shows a box.
ModePage pageOfField(PinField field);

// A box's typed value clamped to its range: the value, and the text for the box (the
// typed text, or the bound it was clamped to).
struct ClampedField {
    std::string text;
    int value;
};
ClampedField clampPinField(PinField field, const std::string& typed);

// A box after its handler ran: the text to put back and the byte stored.
struct CommittedField {
    std::string text;
    std::uint8_t stored;
};

// The handler of one box: takes the typed value, clamps it to the box's range, stores
// it into the pin record and returns the text for the box.
CommittedField commitPinField(PinRecord& pin, PinField field, const std::string& typed);
// The same for a box of the page shown: while the pin is not in that page's mode (an
// unknown mode leaves the page as it was) the box is clamped and the record keeps its
// bytes. Returns the text for the box.
std::string takePinField(PinRecord& pin, PinField field, const std::string& typed);

// The boxes that CommitPinEdits applies for each page, in order: the servo page midpoint,
// max speed, max acceleration, 1/mass, damping, bounce up, bounce down, bounce up factor,
// bounce down factor; the PWM page acceleration; the input page the two delays; the others
// none. The aspect step boxes that follow are the aspect editor's.
const std::vector<PinField>& pinEditOrder(ModePage page);

// Applies the edit boxes of the page shown to the pin when the pin is in that page's mode:
// each box present in `boxes` is committed in the order above and its text replaced by
// the committed text. Returns whether the boxes were taken.
bool CommitPinEdits(PinRecord& pin, ModePage shown, std::map<PinField, std::string>& boxes);

// The option and check boxes, each taken only while the pin is in their page's mode: a
// servo's P2 (range option 0..4 in bits 0-2, bit 3 marking this layout of the byte, auto
// suspend bit 4, suspended bit 5, initialised bit 6), a PWM P2 (drive mode bit 0,
// acceleration mode bit 1), and the "Inverted" box of the PWM or input page.
void setServoFlags(PinRecord& pin, int rangeOption, bool autoSuspend, bool suspended, bool initialised);
void setPwmModes(PinRecord& pin, int driveMode, int accelMode);
void setInverted(PinRecord& pin, ModePage page, bool inverted);

// A page chosen by hand gives the pin that page's mode; a pin whose mode changes so starts
// with cleared parameters, as when the module reports a new mode (a servo at position 0).
// A servo, PWM or input pin loses parameters so, which the page asks about first.
void choosePage(PinRecord& pin, ModePage page);
bool choosingClearsParameters(const PinRecord& pin);

} // namespace kestrel
