#pragma once
#include <string>
#include <string_view>

namespace kestrel {

// What a value can be on its way to the module. Every data byte of a request carries 7
// bits; some fields have narrower ranges because the module reads them by their tags.
// Both the file readers and the writers check against these, so that nothing that cannot
// be sent gets into the model from a file and nothing is half sent.
inline constexpr int kDataByteMax = 127;
inline constexpr long kDccAddressMax = 8191; // 6 bits low, 7 bits high
inline constexpr int kDccCountMax = 7;
inline constexpr int kXDccCountMax = 1;
inline constexpr int kLynxCountMax = 7;
inline constexpr int kInitAspectMax = 15;      // stored aspect + 1; the entry's low nibble
inline constexpr int kEventActionWireMax = 14; // 15 on the wire means "no action"
inline constexpr std::size_t kIdStringLength = 12;

// "<what> <value> cannot be sent: <lo>..<hi>"
std::string cannotSendText(std::string_view what, std::string_view value, long lo, long hi);
std::string cannotSendText(std::string_view what, long value, long lo, long hi);

// An item or a text quoted for a message: at most 60 characters of it, then "...".
std::string quoteForMessage(std::string_view text);

// The ID string as the module will hold it, checked when it is loaded, typed or sent.
struct IdStringCheck {
    std::string text;     // at most kIdStringLength characters
    std::string message;  // "" when the text is taken as it is; else what happened to it
    bool refused = false; // a character the module cannot store: the text must not be sent
};

// A character the module can store in its ID string: a 7-bit code.
bool isIdStringCharacter(char c);

// Refused (with "ID string character 233 at position 3 cannot be sent: 0..127") when a
// character cannot be stored; otherwise cut to 12 characters with the notice
// "ID string cut to 12 characters: <the cut text>", or taken as it is.
IdStringCheck checkIdString(std::string_view id);

} // namespace kestrel
