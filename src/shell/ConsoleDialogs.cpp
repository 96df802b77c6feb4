#include "shell/ConsoleDialogs.h"

#include <cstdio>
#include <string>

namespace kestrel {

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
    std::fprintf(stderr, "%s%s\n", prefix(icon), forConsole(text).c_str());
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
    std::fprintf(stderr, "%s%s\n  -> %s\n", prefix(icon), forConsole(text).c_str(), shown);
    return a;
}

} // namespace kestrel
