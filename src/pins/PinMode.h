#pragma once
#include "model/Configuration.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kestrel {

// The mode numbers of a pin's configuration (ConfigMode), as the module, the data file and
// the definitions file carry them. The record keeps the byte as it came, so that a mode
// the program does not know is shown and kept as it is.
enum class PinMode : std::uint8_t {
    None = 0, // not configured
    Servo = 1,
    Pwm = 2,
    PwmInverted = 3,
    Input = 4,
    InputInverted = 5,
};

// The page of the pin-configuration view that shows a mode (the index of SSTabPCFG); the
// inverted modes share their page. Unknown for any other mode number, whose page stays
// as it was.
enum class ModePage { Unknown = -1, None = 0, Servo = 1, Pwm = 2, Input = 3 };

constexpr std::uint8_t modeByte(PinMode mode) { return static_cast<std::uint8_t>(mode); }
constexpr bool hasMode(const PinRecord& pin, PinMode mode) { return pin.ConfigMode == modeByte(mode); }

// The mode a number names; none for a number outside 0..5.
std::optional<PinMode> pinMode(int configMode);
ModePage pageOfMode(int configMode);
// The mode that a page gives a pin, the "Inverted" box checked or not (the pages of no
// configuration and of a servo have no inverted mode).
PinMode modeOfPage(ModePage page, bool inverted = false);
// The name of a mode as the view calls its page: "Not configured", "Servo", "PWM",
// "Input", the inverted ones with ", Inverted" (the page's "Inverted" box), any other as
// "Unknown configuration: " and the mode.
std::string modeName(int configMode);

// The configuration parameters a mode carries after the mode byte, on the wire and in the
// data and definitions files alike: a servo P1..P11, PWM P1..P5, an input P1..P4, any
// other mode none.
int configParameterCount(int configMode);

// A servo's parameter 2 (its mode byte) as the module and the files hold it: one of the
// older layout (range index in the high nibble, bit 3 clear) becomes today's (index + 40);
// today's is kept. Bits 6 and 7 are status the module sets itself: they are never sent or
// saved.
std::uint8_t currentServoMode(std::uint8_t p2);
constexpr std::uint8_t servoModeToStore(std::uint8_t p2) { return p2 & 63; }
// A servo's signed values (its position, initial position, midpoint and bounces) are
// stored with 64 added.
constexpr int kSignedOffset = 64;
constexpr std::uint8_t storedSigned(int shown) { return static_cast<std::uint8_t>(shown + kSignedOffset); }
constexpr int shownSigned(int stored) { return stored - kSignedOffset; }
// PWM parameters 4 and 5 of a module or data file of the older three-parameter form, which
// carries neither: 0 and 31.
void setOlderPwmLimits(PinRecord& pin);

} // namespace kestrel
