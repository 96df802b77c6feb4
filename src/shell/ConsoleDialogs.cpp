#include "shell/ConsoleDialogs.h"

#include <cstdio>
#include <string>

namespace kestrel {

std::string printable(std::string_view text)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        const bool lineEnd = c == '\n' || (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n');
        if ((c < 32 && !lineEnd) || c == 127) {
            out += "\\x";
            out += digits[c >> 4];
            out += digits[c & 15];
        } else {
            out += static_cast<char>(c);
        }
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
