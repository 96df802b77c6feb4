#include "cli/ConsoleDialogs.h"

#include <cstdio>
#include <string>

namespace kestrel {

namespace {

// The length of the well-formed UTF-8 sequence at text[i] and its code point, or 0 when
// the bytes there are not one (a stray continuation byte, an overlong form, a surrogate,
// a sequence cut short).
std::size_t utf8At(std::string_view text, std::size_t i, char32_t& code)
{
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    const unsigned char lead = byte(i);
    std::size_t n = 0;
    char32_t lowest = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        n = 2, code = lead & 0x1F, lowest = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        n = 3, code = lead & 0x0F, lowest = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        n = 4, code = lead & 0x07, lowest = 0x10000;
    } else {
        return 0;
    }
    if (i + n > text.size())
        return 0;
    for (std::size_t k = 1; k < n; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80)
            return 0;
        code = (code << 6) | (byte(i + k) & 0x3F);
    }
    if (code < lowest || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
        return 0;
    return n;
}

// Characters that a terminal acts on instead of showing: the C1 controls, and those that
// change the order in which the text around them is shown (the bidirectional marks,
// embeddings, overrides and isolates) or break its lines.
bool actsOnTerminal(char32_t c)
{
    return (c >= 0x80 && c <= 0x9F) || c == 0x061C || c == 0x200E || c == 0x200F ||
           (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

void appendHex(std::string& out, const char* prefix, unsigned value, int digits)
{
    static const char hex[] = "0123456789ABCDEF";
    out += prefix;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        out += hex[(value >> shift) & 15];
}

} // namespace

std::string printable(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        const bool lineEnd = c == '\n' || (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n');
        if (c < 128) {
            if ((c < 32 && !lineEnd) || c == 127)
                appendHex(out, "\\x", c, 2);
            else
                out += static_cast<char>(c);
            ++i;
            continue;
        }
        char32_t code = 0;
        const std::size_t n = utf8At(text, i, code);
        if (n == 0)
            appendHex(out, "\\x", c, 2); // a byte of no character (an 8-bit control such as 0x9B among them)
        else if (actsOnTerminal(code))
            appendHex(out, "\\u", static_cast<unsigned>(code), 4);
        else
            out.append(text.substr(i, n));
        i += n == 0 ? 1 : n;
    }
    return out;
}

namespace {
// Message texts break lines with CR LF; a terminal wants LF.
std::string forConsole(std::string text)
{
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        out += text[i];
    }
    return out;
}

const char* prefix(Icon icon)
{
    switch (icon) {
    case Icon::Warning:
        return "Warning: ";
    case Icon::Information:
        return "Information: ";
    default:
        return "";
    }
}
} // namespace

void ConsoleDialogs::message(const std::string& text, Icon icon)
{
    ++messageCount;
    std::fprintf(stderr, "%s%s\n", prefix(icon), printable(forConsole(text)).c_str());
}

Answer ConsoleDialogs::ask(const std::string& text, Buttons buttons, Icon icon)
{
    Answer a;
    if (!scripted.empty()) {
        a = scripted.front();
        scripted.pop_front();
    } else if (buttons == Buttons::YesNo)
        a = yes ? Answer::Yes : Answer::No;
    else if (buttons == Buttons::OkCancel)
        a = yes ? Answer::Ok : Answer::Cancel;
    else
        a = Answer::Ok;
    const char* shown = a == Answer::Ok ? "OK" : a == Answer::Yes ? "Yes" : a == Answer::No ? "No" : "Cancel";
    std::fprintf(stderr, "%s%s\n  -> %s\n", prefix(icon), printable(forConsole(text)).c_str(), shown);
    return a;
}

} // namespace kestrel
