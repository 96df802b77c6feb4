#pragma once
#include "base/Wire.h"
#include "model/WireLimits.h"
#include "ops/GeneralCommands.h"

namespace kestrel {

// The General page's companion handlers, without its widgets.

// CheckGenLynxaddr was clicked (its new value is already in general.CheckGenLynxaddr).
void CheckGenLynxaddr_Click(Session& session);

// CheckGenKestrelNative was clicked (its new value is already in the field).
void CheckGenKestrelNative_Click(Session& session);

// The numbers typed in the page's address boxes, clamped to what the module takes and
// kept in the settings as the page shows them again (with the numbering base `base`).
// The limits are the wire's (kDccAddressMax, kExtendedAddressMax); the flex address is
// the mode byte, one data byte.
constexpr int kFlexAddressMaximum = kDataByteMax;
// TextGenDCCAddress and TextGenXDCCAddress: 0..8191, without the numbering base.
std::string clampedDccAddress(const std::string& typed);
// TextGenLynxaddr: the flex-address shown times 4 (LynxFlexAddress 0..127).
void takeFlexAddress(GeneralSettings& general, const std::string& typed, int base);
// TextGenXaddr: the eXtended address 0..95.
void takeExtendedAddress(GeneralSettings& general, const std::string& typed, int base);

} // namespace kestrel
