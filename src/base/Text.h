#pragma once
#include <string>

namespace kestrel {

// The numeric value of a typed text as an entry box takes it: leading blanks
// skipped, an optional sign, digits with an optional decimal point; anything else
// ends the number, and a text without a number is 0 ("12ab" is 12, "abc" is 0).
double val(const std::string& text);

// val() rounded to the nearest integer (halves away from zero).
long valInt(const std::string& text);

// Hexadecimal in capitals without leading zeros ("0" for zero).
std::string hexUpper(unsigned value);

} // namespace kestrel
