#pragma once
#include "base/UserDialogs.h"

#include <deque>
#include <string>
#include <vector>

namespace kestrel::test {

// Records every message and question; answers questions from a script (OK by default).
class RecordingDialogs : public UserDialogs {
public:
    struct Shown {
        std::string text;
        Icon icon;
    };
    std::vector<Shown> messages;
    std::vector<Shown> questions;
    std::deque<Answer> answers;
    Answer defaultAnswer = Answer::Ok;
    std::deque<std::string> fileNames;

    void message(const std::string& text, Icon icon) override { messages.push_back({text, icon}); }
    Answer ask(const std::string& text, Buttons, Icon icon) override
    {
        questions.push_back({text, icon});
        if (answers.empty())
            return defaultAnswer;
        const Answer a = answers.front();
        answers.pop_front();
        return a;
    }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override
    {
        return next();
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override
    {
        return next();
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
    std::string next()
    {
        if (fileNames.empty())
            return {};
        auto n = fileNames.front();
        fileNames.pop_front();
        return n;
    }
};

} // namespace kestrel::test
