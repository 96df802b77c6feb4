#pragma once
#include "model/Configuration.h"

namespace kestrel {

enum class AddressKind { Dcc, XDcc, Lynx };

// Rebuilds one kind's first-index array and total from the counts of all 33 records
// (the spare record 32 included): entry p is the sum of the counts of pins 0..p-1 and
// the total the sum over all records. The sums are bytes: a running sum above 255 is a
// ProgramFault, and then the array and total keep their previous values.
void RecalcDccAddressIndex(Configuration& config);
void RecalcXDccAddressIndex(Configuration& config);
void RecalcLynxAddressIndex(Configuration& config);
void RecalcAddressIndex(Configuration& config, AddressKind kind);

// All three kinds; if one overflows, none of the three is changed.
void RecalcAddressIndex(Configuration& config);

// The count of a kind in a pin record, and the largest count the module takes for it
// (DCC 0..7, eXtended DCC 0..1, serial 0..7).
std::uint8_t& addressCount(PinRecord& pin, AddressKind kind);
std::uint8_t addressCount(const PinRecord& pin, AddressKind kind);
int addressCountMaximum(AddressKind kind);

} // namespace kestrel
