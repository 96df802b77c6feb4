#pragma once
#include "model/Configuration.h"

#include <string>

namespace kestrel {

class UserDialogs;

// The head of the device that pin p belongs to: p + DeviceOffset of p. A sum outside
// the signed 16-bit range, or a head that is no pin record, is a ProgramFault.
int deviceHead(const Configuration& config, int pin);

// The device description shown for pin p: the head's DeviceDescription, or
// "<Referral is no Device !>" when the head itself refers to another pin.
std::string deviceDescriptionText(const Configuration& config, int pin);

// Clears one pin: descriptions, initial aspect, layout, device offset and the 12-byte
// configuration block to zero, the state words to all ones, and in aspects 0..11 the
// description, the state word (all ones) and steps 0..8. Aspect 12 and step 9 of every
// aspect are left as they are.
void clearPin(Configuration& config, int pin);

// Clears steps 0..8 of one aspect to six zero bytes.
void clearAspectSteps(AspectRecord& aspect);

// The pin tool's clipboard: one whole pin record and the pin it was copied from. It is
// empty until the first copy and lives as long as the tool.
class PinTool {
public:
    // Copy: the record of CurrentPin.
    void copy(const Configuration& config);

    // Paste onto CurrentPin. With an empty clipboard the user is told "Nothing to Paste",
    // nothing changes and false is returned (the tool stays open). A non-zero device
    // offset is re-aimed so that the pasted pin still refers to the same device head.
    bool paste(Configuration& config, UserDialogs& dialogs) const;

    // Clear: clears CurrentPin.
    void clear(Configuration& config) const;

    bool hasContent() const { return filled; }
    int sourcePin() const { return source; }

private:
    PinRecord clipboard;
    int source = 0;
    bool filled = false;
};

} // namespace kestrel
