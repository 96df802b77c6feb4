#pragma once
#include "base/UserDialogs.h"

#include <deque>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace kestrel::test {

// A message or question as it was put to the user.
struct Shown {
    std::string text;
    Icon icon;
    bool operator==(const Shown&) const = default;
    friend void PrintTo(const Shown& s, std::ostream* os)
    {
        *os << s.text << " (icon " << int(s.icon) << ')';
    }
};

// Records every message and question; answers questions from a script (OK by default).
class RecordingDialogs : public UserDialogs {
public:
    std::vector<Shown> messages;
    std::vector<Shown> questions;
    std::deque<Answer> answers;
    Answer defaultAnswer = Answer::Ok;
    std::deque<std::string> fileNames;

    void message(const std::string& text, Icon icon) override { messages.push_back({text, icon}); }
    Answer ask(const std::string& text, Buttons, Icon icon) override
    {
        questions.push_back({text, icon});
        return next(answers, defaultAnswer);
    }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override
    {
        return next(fileNames, {});
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override
    {
        return next(fileNames, {});
    }

    std::vector<std::string> texts() const
    {
        std::vector<std::string> out;
        for (const auto& m : messages)
            out.push_back(m.text);
        return out;
    }
    void clear()
    {
        messages.clear();
        questions.clear();
    }

private:
    // The next scripted value, taken off the script; `otherwise` when none is left.
    template <typename T> static T next(std::deque<T>& script, T otherwise)
    {
        if (script.empty())
            return otherwise;
        T v = std::move(script.front());
        script.pop_front();
        return v;
    }
};

} // namespace kestrel::test
