#pragma once
#include "base/UserDialogs.h"

#include <deque>
#include <string>
#include <string_view>

namespace kestrel {

// A text for the console: line ends (LF, CR LF) and well-formed UTF-8 as they are;
// every other control character written as \xNN, every byte that is no part of a
// well-formed UTF-8 character (0x9B, an 8-bit CSI, among them) as \xNN, and the C1
// controls, the bidirectional marks, embeddings, overrides and isolates and the line
// and paragraph separators as \uNNNN, so that nothing the module or a file holds (a NUL,
// an escape sequence, a text that reorders what follows it) reaches the terminal raw.
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
