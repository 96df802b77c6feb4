#pragma once
#include "base/UserDialogs.h"

#include <deque>
#include <string>
#include <string_view>

namespace kestrel {

// A text for the console: line ends (LF, CR LF) as they are, every other control
// character written as \xNN, so that nothing the module or a file holds (a NUL, an
// escape sequence) reaches the terminal raw.
std::string printable(std::string_view text);

// The batch tool's dialogs: every message goes to stderr; questions are answered
// from the command line (`yes` answers OK/Yes, otherwise Cancel/No) and echoed.
class ConsoleDialogs : public UserDialogs {
public:
    bool yes = false;
    int messageCount = 0;
    // Answers for the next questions, used before `yes` decides.
    std::deque<Answer> scripted;
    void message(const std::string& text, Icon icon) override;
    Answer ask(const std::string& text, Buttons buttons, Icon icon) override;
    std::string openFileName(const std::string&, const std::string&, const std::string& defaultName) override
    {
        return defaultName;
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string& defaultName) override
    {
        return defaultName;
    }
};

} // namespace kestrel
