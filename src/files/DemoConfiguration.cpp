#include "files/DemoConfiguration.h"

#include "files/ConfigurationFile.h"
#include "link/ProgramFault.h"
#include "link/UserDialogs.h"

namespace kestrel {

const std::string& demoConfigurationText()
{
    static const std::string text =
;
    return text;
}

namespace {

// The text is ours: anything that the reader would tell the user is a program fault.
class NoDialogs : public UserDialogs {
public:
    void message(const std::string& text, Icon) override { throw ProgramFault("Demonstration configuration: " + text); }
    Answer ask(const std::string& text, Buttons, Icon) override
    {
        throw ProgramFault("Demonstration configuration: " + text);
    }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override { return {}; }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override { return {}; }
};

} // namespace

void fillDemoConfiguration(Configuration& config, GeneralSettings& general)
{
    NoDialogs dialogs;
    readConfigurationText(demoConfigurationText(), config, general, dialogs);
}

} // namespace kestrel
