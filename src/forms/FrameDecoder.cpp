#include "forms/FrameDecoder.h"
#include "base/Wire.h"

#include <algorithm>
#include <iterator>

namespace kestrel {

namespace {

// The commands the program sends. A size of -1 fits any; kWriteInitOrEventOn writes the initial
// aspect with three bytes and the Event-On slots with six, and its acknowledgement does
// not tell which.
struct CommandEntry {
    int code;
    int size;
    const char* name;
    bool general; // the byte after the command is a general item, else a pin
};
constexpr CommandEntry kCommands[] = {
    {0, -1, "live output", false},
    {kSendActiveConfig, -1, "set pin config", false},
    {kReadActiveConfig, -1, "get pin config", false},
    {kGeneralWrite, -1, "write general item", true},
    {kSendFlashConfig, -1, "write pin config", false},
    {kWriteLayout, -1, "write aspect layout", false},
    {kWriteStep, -1, "write step", false},
    {kWriteInitOrEventOn, 3, "write initial aspect", false},
    {kWriteInitOrEventOn, 6, "write Event-On", false},
    {kWriteInitOrEventOn, -1, "write initial aspect or Event-On", false},
    {kWriteEventOff, -1, "write Event-Off", false},
    {kWriteAddrConfig, -1, "write pin address config", false},
    {kGeneralRead, -1, "read general item", true},
    {kReadFlashConfig, -1, "read pin config", false},
    {kReadLayout, -1, "read aspect layout", false},
    {kReadStep, -1, "read step", false},
    {kReadEventOn, -1, "read Event-On", false},
    {kReadEventOff, -1, "read Event-Off", false},
    {kReadAddrConfig, -1, "read pin address config", false},
};

const char* itemName(int command, int item)
{
    if (command == kGeneralWrite && item == kItemVersionErase)
        return "erase configuration memory";
    const GeneralItemInfo* info = generalItemInfo(item);
    return info ? info->name : nullptr;
}

const char* liveName(int sub)
{
    switch (sub) {
    case kPwmDirect:
        return "PWM level";
    case kPwmSlow:
        return "PWM level slow";
    case kServoDirect:
        return "servo position";
    case kServoDynamic:
        return "servo position dynamic";
    default:
        return nullptr;
    }
}

const std::string kNotDecoded = "(not decoded)";
const std::vector<int> kWakeUp = {0, 0, 0, 255, 255, 255, 170, 170, 170};

DecodedFrame notDecoded() { return {kNotDecoded, kNotDecoded}; }

std::string numbers(std::vector<int>::const_iterator from, std::vector<int>::const_iterator to)
{
    std::string out;
    for (auto i = from; i != to; ++i)
        out += " " + std::to_string(*i);
    return out;
}

// A Kestrel message from its data bytes (7 bits each, the command first); a reply names
// the command it echoes.
DecodedFrame kestrel(bool reply, const std::vector<int>& d)
{
    if (d.empty())
        return {reply ? "empty reply" : "empty frame", reply ? "empty reply" : "empty frame"};
    const int size = reply ? -1 : static_cast<int>(d.size());
    const auto e = std::find_if(std::begin(kCommands), std::end(kCommands), [&](const CommandEntry& c) {
        return c.code == d[0] && (c.size < 0 || c.size == size);
    });
    if (e == std::end(kCommands))
        return {kNotDecoded,
                "command " + std::to_string(d[0]) + numbers(d.begin() + 1, d.end()) + " " + kNotDecoded};
    std::string text = (reply ? "reply to " : "") + std::string(e->name);
    auto rest = d.begin() + 1;
    if (e->code == 0 && rest != d.end()) { // live output: sub-command, pin, value
        const char* sub = liveName(*rest);
        text += ", " + (sub ? std::string(sub) : "sub-command " + std::to_string(*rest));
        ++rest;
    }
    if (rest != d.end()) {
        if (e->general) {
            const char* item = itemName(e->code, *rest);
            text += ", item " + std::to_string(*rest) + (item ? " (" + std::string(item) + ")" : "");
        } else {
            text += ", pin " + std::to_string(*rest);
        }
        ++rest;
    }
    if (rest != d.end()) {
        if (reply && e->code == kGeneralRead && d[1] == kItemIdString) // the ID string's characters
            text += ", text \"" + std::string(rest, d.end()) + "\"";
        else
            text += ", data" + numbers(rest, d.end());
    }
    return {e->name, text};
}

// The receiver's rule of both routes: the first byte plus the low 7 bits of every later
// byte, the checksum included, is a multiple of 128.
bool checksumFits(const std::vector<int>& bytes)
{
    int sum = bytes[0];
    for (std::size_t i = 1; i < bytes.size(); ++i)
        sum += bytes[i] & 127;
    return sum % 128 == 0;
}

std::vector<int> low7(std::vector<int>::const_iterator from, std::vector<int>::const_iterator to)
{
    std::vector<int> out;
    for (auto i = from; i != to; ++i)
        out.push_back(*i & 127);
    return out;
}

// Address byte, header (bit 4: an eXtended address byte follows; low nibble: the size),
// [eXtended address], data, checksum.
DecodedFrame direct(FrameDirection direction, const std::vector<int>& b)
{
    if (b == kWakeUp)
        return {"wake-up burst", "wake-up burst"};
    if (b.size() < 3 || b[0] > 127 || b[1] < 128)
        return notDecoded();
    const int x = (b[1] & 16) ? 1 : 0;
    const std::size_t size = static_cast<std::size_t>(b[1] & 15);
    if (b.size() != 3 + x + size || !std::all_of(b.begin() + 1, b.end(), [](int v) { return v >= 128; }))
        return notDecoded();
    const auto data = b.begin() + 2 + x;
    return kestrel(direction == FrameDirection::In, low7(data, data + static_cast<long>(size)));
}

// Header (bit 3: the short form, length in bits 0..2; else 8 + 8 x bit 4 + bits 0..2),
// data, checksum. A tunnelled Kestrel frame carries 0, kTunnelBase + module address, the inner
// header (bit 4: an eXtended address byte follows; in a reply the low nibble is the size),
// [eXtended address], the Kestrel data.
DecodedFrame corvid(FrameDirection direction, const std::vector<int>& b)
{
    if (b.size() < 2 || b[0] > 127)
        return notDecoded();
    const int length = (b[0] & 8) ? (b[0] & 7) : 8 + 8 * ((b[0] >> 4) & 1) + (b[0] & 7);
    if (b.size() != static_cast<std::size_t>(length) + 2)
        return notDecoded();
    const bool in = direction == FrameDirection::In;
    const std::vector<int> d = low7(b.begin() + 1, b.end() - 1);
    auto named = [&](const std::string& name, const std::string& answer) -> DecodedFrame {
        return {name, in ? answer : name + " request"};
    };
    if (d.empty())
        return in ? DecodedFrame{"empty frame", "empty frame"} : DecodedFrame{"poll", "poll"};
    if (d.size() >= 2 && d[0] == 1 && d[1] == 2 && (!in || d.size() == 4))
        return named("system version", in ? "system version, bytes" + numbers(d.begin() + 2, d.end()) : "");
    if (d.size() >= 2 && d[0] == 1 && d[1] == 10 && (!in || d.size() == 5))
        return named("interface unit", in ? "interface unit, type " + std::to_string(d[2]) +
                                                ", version bytes" + numbers(d.begin() + 3, d.end())
                                          : "");
    if (!in && d == std::vector<int>{1, 5, 16})
        return named("transparent mode", "");
    if (d.size() >= 3 && d[0] == 0 && d[1] >= kTunnelBase) {
        const std::size_t from = (d[2] & 16) ? 4 : 3;
        const std::size_t to = in ? from + static_cast<std::size_t>(d[2] & 15) : d.size();
        if (from <= d.size() && to <= d.size()) {
            DecodedFrame k = kestrel(
                in, std::vector<int>(d.begin() + static_cast<long>(from), d.begin() + static_cast<long>(to)));
            k.text = "tunnel, module " + std::to_string(d[1] - kTunnelBase) + ": " + k.text;
            return k;
        }
    }
    return {kNotDecoded, "Corvid data" + numbers(d.begin(), d.end()) + " " + kNotDecoded};
}

} // namespace

DecodedFrame decodeFrame(FrameDirection direction, FrameRoute route, const std::vector<int>& bytes)
{
    if (bytes.empty())
        return notDecoded();
    DecodedFrame f = route == FrameRoute::Direct ? direct(direction, bytes) : corvid(direction, bytes);
    if (f.command != kNotDecoded && bytes != kWakeUp && !checksumFits(bytes))
        f.text += " (checksum error)";
    return f;
}

std::string frameBytesText(const std::vector<int>& bytes)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    for (int b : bytes) {
        if (!out.empty())
            out += ' ';
        out += digits[(b >> 4) & 15];
        out += digits[b & 15];
    }
    return out;
}

} // namespace kestrel
