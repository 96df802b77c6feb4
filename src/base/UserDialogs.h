#pragma once
#include "base/ProgramFault.h"

#include <string>
#include <utility>

namespace kestrel {

enum class Icon { None, Warning, Information, Question };
enum class Buttons { Ok, OkCancel, YesNo, SaveDiscardCancel };
enum class Answer { Ok, Cancel, Yes, No, Save, Discard };

// Everything the core tells or asks the user goes through here: message boxes in
// the window, stderr and command-line flags in the batch tool, a recorder in tests.
class UserDialogs {
public:
    virtual ~UserDialogs() = default;
    virtual void message(const std::string& text, Icon icon = Icon::None) = 0;
    virtual Answer ask(const std::string& text, Buttons buttons, Icon icon) = 0;
    // File-name prompts; an empty result means the user cancelled.
    virtual std::string openFileName(const std::string& title, const std::string& filter,
                                     const std::string& defaultName) = 0;
    virtual std::string saveFileName(const std::string& title, const std::string& filter,
                                     const std::string& defaultName) = 0;
};

// The dialogs of a text that is the program's own: anything it would tell or ask the user
// is a program fault ("<source>: <text>"); a file prompt is cancelled.
class FaultingDialogs : public UserDialogs {
public:
    explicit FaultingDialogs(std::string source) : source(std::move(source)) {}
    void message(const std::string& text, Icon) override { throw ProgramFault(source + ": " + text); }
    Answer ask(const std::string& text, Buttons, Icon) override { throw ProgramFault(source + ": " + text); }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }

private:
    std::string source;
};

} // namespace kestrel
