#include "seed/SimLayout.h"

#include "base/ProgramFault.h"
#include "base/UserDialogs.h"
#include "files/ConfigurationFile.h"
#include "files/DemoConfiguration.h"
#include "seed/SimSeed.h"

namespace kestrel {

namespace {

// The general records of a module of the layout, in the data file's words.
std::string generalRecords(const std::string& id, int dcc, int xaddress)
{
    return "\"KestrelConfiguration 3100\"\r\n\"ID$\",\"" + id + "\"\r\n\"DCC\"," + std::to_string(dcc) +
           ",1,0\r\n\"XAD\",64,0," + std::to_string(xaddress) +
           ",0,0,0,0\r\n\"HWC\",1,0,0,0\r\n\"LED\",9,1\r\n\"SPC\",0,\"19200\",8,0,1\r\n";
}

// A servo turnout on one pin: straight and diverging.
std::string turnout(int pin, const std::string& name)
{
    const std::string p = std::to_string(pin);
    return "\"Pin\"," + p + ",2,0,\"" + name + " servo\"\r\n  \"Dev\",0,\"Turnout " + name +
           "\"\r\n  \"Cfg\",1,39,25,64,60,40,20,10,64,0,64,0\r\n  \"PAM\",1,1,1\r\n"
           "  \"Asp\",0,\"Straight\"\r\n    \"Ins\",0,100,0,39,40,0\r\n    \"Ins\",1,127,0,0,0,0\r\n"
           "  \"Asp\",1,\"Diverging\"\r\n    \"Ins\",0,100,0,89,40,0\r\n    \"Ins\",1,127,0,0,0,0\r\n";
}

// A lamp pin without aspects of its own (the second lamp of a device).
std::string lamp(int pin, int offset, const std::string& name)
{
    return "\"Pin\"," + std::to_string(pin) + ",0,0,\"" + name + "\"\r\n  \"Dev\"," + std::to_string(offset) +
           ",\"\"\r\n  \"Cfg\",2,0,3,8,0,31\r\n  \"PAM\",0,0,0\r\n";
}

std::string yardText()
{
    return generalRecords("Yard east", 110, 0) + turnout(0, "W7") + turnout(1, "W8") +
           "\"Pin\",4,2,1,\"B9 red\"\r\n  \"Dev\",0,\"Block signal B9\"\r\n  \"Cfg\",2,0,3,8,0,31\r\n"
           "  \"PAM\",1,1,1\r\n  \"Asp\",0,\"Stop\"\r\n    \"Ins\",0,25,0,0,0,0\r\n    "
           "\"Ins\",1,24,1,0,0,0\r\n"
           "  \"Asp\",1,\"Clear\"\r\n    \"Ins\",0,24,0,0,0,0\r\n    \"Ins\",1,25,1,0,0,0\r\n" +
           lamp(5, -1, "B9 green") + "\"End\"\r\n";
}

std::string stationText()
{
    return generalRecords("Station", 150, 0) +
           "\"Pin\",0,2,0,\"S1 red\"\r\n  \"Dev\",0,\"Home signal S1\"\r\n  \"Cfg\",2,0,3,8,0,31\r\n"
           "  \"PAM\",1,2,1\r\n  \"Asp\",0,\"Stop\"\r\n    \"Ins\",0,29,0,1,0,0\r\n"
           "  \"Asp\",1,\"Caution\"\r\n    \"Ins\",0,29,0,2,0,0\r\n"
           "  \"Asp\",2,\"Clear\"\r\n    \"Ins\",0,29,0,4,0,0\r\n" +
           lamp(1, -1, "S1 yellow") + lamp(2, -2, "S1 green") +
           "\"Pin\",8,2,0,\"Platform lights\"\r\n  \"Dev\",0,\"Platform\"\r\n  \"Cfg\",2,0,3,8,0,31\r\n"
           "  \"PAM\",1,1,0\r\n  \"Asp\",0,\"Off\"\r\n    \"Ins\",0,24,0,0,0,0\r\n"
           "  \"Asp\",1,\"On\"\r\n    \"Ins\",0,25,0,0,0,0\r\n\"End\"\r\n";
}

std::string crossingText()
{
    return generalRecords("Crossing 2", 50, 7) +
           "\"Pin\",0,2,0,\"Lamp left\"\r\n  \"Dev\",0,\"Level crossing 2\"\r\n  \"Cfg\",2,0,3,4,0,31\r\n"
           "  \"PAM\",1,1,1\r\n  \"Asp\",0,\"Off\"\r\n    \"Ins\",0,24,0,0,0,0\r\n    "
           "\"Ins\",1,24,1,0,0,0\r\n"
           "  \"Asp\",1,\"Flashing\"\r\n    \"Ins\",0,58,0,40,0,0\r\n" +
           lamp(1, -1, "Lamp right") + "\"End\"\r\n";
}

void seed(sim::SimBus& bus, int address, const std::string& text)
{
    Configuration config;
    GeneralSettings general;
    if (!text.empty()) {
        FaultingDialogs dialogs("Simulated layout"); // the texts are ours
        readConfigurationText(text, config, general, dialogs);
    } else {
        fillDemoConfiguration(config, general);
    }
    std::string error;
    if (!seedModule(bus, address, config, general, error))
        throw ProgramFault("Simulated layout, address " + std::to_string(address) + ": " + error);
}

} // namespace

const std::vector<SimLayoutModule>& simLayoutModules()
{
    static const std::vector<SimLayoutModule> modules = {
        {0, std::nullopt, "Demo layout"},
        {3, std::nullopt, "Yard east"},
        {5, 7, "Crossing 2"},
        {15, std::nullopt, "Station"},
    };
    return modules;
}

void addSimLayout(sim::SimBus& bus)
{
    const std::string texts[] = {{}, yardText(), crossingText(), stationText()}; // "" = the demonstration
    int i = 0;
    for (const SimLayoutModule& m : simLayoutModules()) {
        bus.addModule(m.address, m.xaddress);
        seed(bus, m.address, texts[i++]);
    }
    bus.resetStats();
}

SimLayout::SimLayout()
{
    addSimLayout(bus);
    corvid.setSystemVersion(3300); // tunneling, and addresses up to 31
}

} // namespace kestrel
