#include "seed/SimSeed.h"

#include "files/ConfigurationFile.h"
#include "ops/Bulk.h"
#include "session/Session.h"
#include "sim/SimPort.h"

namespace kestrel {

namespace {
// Collects what the operations would have shown in message boxes.
class CollectingDialogs : public UserDialogs {
public:
    std::string text;
    // The first line of each: what the window would add ("Loading stopped; ...") is not so here.
    void message(const std::string& t, Icon) override
    {
        text += (text.empty() ? "" : "; ") + t.substr(0, t.find("\r\n"));
    }
    Answer ask(const std::string&, Buttons, Icon) override { return Answer::Ok; }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
};
} // namespace

bool seedModule(sim::SimBus& bus, int address, const Configuration& config, const GeneralSettings& general,
                std::string& error)
{
    sim::SimModule* module = bus.module(address);
    if (!module) {
        error = "no simulated module at address " + std::to_string(address);
        return false;
    }
    const auto keptXAddress = module->memory().extendedAddress;
    sim::SimPort port(bus);
    port.open();
    SystemClock clock;
    CollectingDialogs dialogs;
    Session session(port, clock, dialogs);
    session.config = config;
    session.general = general;
    session.link.settings.TargetAddress = address;
    session.link.settings.CheckXaddress = module->hasXAddress();
    session.link.settings.TargetXAddress = keptXAddress;
    const bool ok = WriteAll(session, true);
    // A module started with an eXtended address keeps answering to it; one without takes
    // the file's, like any module that is written.
    if (module->hasXAddress())
        module->memory().extendedAddress = keptXAddress;
    // Then it starts as a module does that was written and switched on again: its pins run
    // the configuration in flash.
    module->memory().powerUp();
    if (!ok)
        error = dialogs.text.empty() ? "the module refused the configuration" : dialogs.text;
    return ok;
}

bool seedModuleFromFile(sim::SimBus& bus, int address, const std::string& path, std::string& error)
{
    Configuration config;
    GeneralSettings general;
    CollectingDialogs dialogs;
    std::string why;
    if (loadConfigurationFile(path, config, general, dialogs, &why) != LoadResult::Loaded) {
        error = "cannot load " + path + ": " + (!why.empty() ? why : dialogs.text);
        return false;
    }
    return seedModule(bus, address, config, general, error);
}

} // namespace kestrel
