#pragma once
#include <array>
#include <string>

namespace kestrel {

// The Event Control area as plain values, one field per control, named after it.
// The enable check boxes CheckInitEE live with the General page values.
struct EventControlPage {
    std::string TextECpin = "0";                              // the pin shown, NumberingBase added
    std::array<std::string, 4> TextECon{"0", "0", "0", "0"};  // Event-On entries of slots 0..3
    std::array<std::string, 4> TextECoff{"0", "0", "0", "0"}; // Event-Off entries of slots 0..3
    bool operator==(const EventControlPage&) const = default;
};

} // namespace kestrel
