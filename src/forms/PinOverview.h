#pragma once
#include "model/AddressIndex.h"
#include "model/Configuration.h"
#include "pins/PinMode.h"
#include "session/GeneralSettings.h"

#include <array>
#include <string>

namespace kestrel {

// One line of the pin overview, every column as it is shown.
struct PinOverviewRow {
    std::string pin;         // pin number + NumberingBase
    std::string description; // the pin's Description
    std::string mode;        // modeName(ConfigMode), pins/PinMode
    std::string layout;      // the aspect page's layout option: "0", "4" or "12"
    std::string device;      // head + NumberingBase and the head's device description; "" alone
    std::string dcc, xdcc, serial;
};

// The addresses of one kind that a pin answers to, as the overview shows them.
//
// The module's block of a kind starts at its base address and gives each pin the next
// `count` addresses: first = base + FirstIndex[pin], last = first + count - 1 (the running
// sums are RecalcAddressIndex's, read as they stand).
//   DCC and eXtended DCC: the base is the number in TextGenDCCAddress or
//     TextGenXDCCAddress as the writer takes it (the page clamps it to 0..8191; a larger
//     one from elsewhere shows as an overflow), shown as the module and the command
//     station count them, without NumberingBase. Address 0 is answered only while
//     ChkGenDCCAllow0 is checked; otherwise a base of 0 starts the block at 1. The
//     largest address is 8191, the most the module's two address bytes carry (6 bits
//     low, 7 high).
//   Serial (Lynx): with flex-addressing on (CheckGenLynxaddr) the base is LynxFlexAddress
//     x 4; otherwise (native mode or none) the module answers on its own bus address and
//     the base is 0. Shown with NumberingBase added, as TextGenLynxaddr shows the
//     flex-address. The largest address is 511: the flex-address is 7 bits in units of 4.
// Texts: "No addr in use" for a count of 0, the address alone for a count of 1,
// "first .. last" otherwise, and "first .. OVFLOW" when last is above the largest address.
std::string addressText(const Configuration& config, const GeneralSettings& general, int pin,
                        AddressKind kind);

// The largest address of a kind (8191 for both DCC kinds, 511 for serial) and the
// module's first address of the kind as the overview counts it (before NumberingBase).
long largestAddress(AddressKind kind);
long baseAddress(const GeneralSettings& general, AddressKind kind);

// The 32 pins, read-only: the model is not changed (stale running sums are shown as they
// stand; whoever changes a count runs RecalcAddressIndex).
std::array<PinOverviewRow, kPinCount> pinOverview(const Configuration& config,
                                                  const GeneralSettings& general);

} // namespace kestrel
