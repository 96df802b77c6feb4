#pragma once
#include <functional>
#include <string>

namespace kestrel {

// The verification report (the text of the report window): one line at a time,
// each ended by CR LF.
class Report {
public:
    void clear()
    {
        txtVerification.clear();
        if (onClear)
            onClear();
    }
    void line(const std::string& text)
    {
        txtVerification += text + "\r\n";
        if (onLine)
            onLine(text);
    }
    std::string txtVerification;
    std::function<void(const std::string&)> onLine;
    std::function<void()> onClear;
};

} // namespace kestrel
