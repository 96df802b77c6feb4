#include "files/DemoConfiguration.h"

#include "base/ProgramFault.h"
#include "base/UserDialogs.h"
#include "files/ConfigurationFile.h"

namespace kestrel {

const std::string& demoConfigurationText()
{
    static const std::string text = "\"KestrelConfiguration 3100\"\r\n"
                                    "\"ID$\",\"Demo layout\"\r\n"
                                    "\"DCC\",1,1,0\r\n"
                                    "\"XAD\",64,0,0,0,0,0,0\r\n"
                                    "\"HWC\",1,0,0,0\r\n"
                                    "\"LED\",9,1\r\n"
                                    "\"SPC\",0,\"19200\",8,0,1\r\n"
                                    "\"Eon\",0,0,0,1,0\r\n"
                                    "\"Eon\",1,0,0,0,0\r\n"
                                    "\"Eon\",2,0,0,0,0\r\n"
                                    "\"Eon\",3,0,0,0,0\r\n"
                                    "\"Eon\",4,0,0,0,0\r\n"
                                    "\"Eon\",5,0,0,0,0\r\n"
                                    "\"Eon\",6,0,0,0,0\r\n"
                                    "\"Eon\",7,0,0,0,0\r\n"
                                    "\"Eon\",8,0,2,0,0\r\n"
                                    "\"Eon\",9,0,0,0,0\r\n"
                                    "\"Eon\",10,0,0,0,0\r\n"
                                    "\"Eon\",11,0,0,0,0\r\n"
                                    "\"Eon\",12,2,0,0,0\r\n"
                                    "\"Eon\",13,0,0,0,0\r\n"
                                    "\"Eon\",14,0,0,0,0\r\n"
                                    "\"Eon\",15,0,0,0,0\r\n"
                                    "\"Eon\",16,0,0,0,0\r\n"
                                    "\"Eon\",17,0,0,0,0\r\n"
                                    "\"Eon\",18,0,0,0,0\r\n"
                                    "\"Eon\",19,0,0,0,0\r\n"
                                    "\"Eon\",20,0,0,0,0\r\n"
                                    "\"Eon\",21,0,0,0,0\r\n"
                                    "\"Eon\",22,0,0,0,0\r\n"
                                    "\"Eon\",23,0,0,0,0\r\n"
                                    "\"Eon\",24,0,0,0,0\r\n"
                                    "\"Eon\",25,0,0,0,0\r\n"
                                    "\"Eon\",26,0,0,0,0\r\n"
                                    "\"Eon\",27,0,0,0,0\r\n"
                                    "\"Eon\",28,0,0,0,0\r\n"
                                    "\"Eon\",29,0,0,0,0\r\n"
                                    "\"Eon\",30,0,0,0,0\r\n"
                                    "\"Eon\",31,0,0,0,0\r\n"
                                    "\"Eof\",0,0,0,0,0\r\n"
                                    "\"Eof\",1,0,0,0,0\r\n"
                                    "\"Eof\",2,0,0,0,0\r\n"
                                    "\"Eof\",3,0,0,0,0\r\n"
                                    "\"Eof\",4,0,0,0,0\r\n"
                                    "\"Eof\",5,0,0,0,0\r\n"
                                    "\"Eof\",6,0,0,0,0\r\n"
                                    "\"Eof\",7,0,0,0,0\r\n"
                                    "\"Eof\",8,0,1,0,0\r\n"
                                    "\"Eof\",9,0,0,0,0\r\n"
                                    "\"Eof\",10,0,0,0,0\r\n"
                                    "\"Eof\",11,0,0,0,0\r\n"
                                    "\"Eof\",12,1,0,0,0\r\n"
                                    "\"Eof\",13,0,0,0,0\r\n"
                                    "\"Eof\",14,0,0,0,0\r\n"
                                    "\"Eof\",15,0,0,0,0\r\n"
                                    "\"Eof\",16,0,0,0,0\r\n"
                                    "\"Eof\",17,0,0,0,0\r\n"
                                    "\"Eof\",18,0,0,0,0\r\n"
                                    "\"Eof\",19,0,0,0,0\r\n"
                                    "\"Eof\",20,0,0,0,0\r\n"
                                    "\"Eof\",21,0,0,0,0\r\n"
                                    "\"Eof\",22,0,0,0,0\r\n"
                                    "\"Eof\",23,0,0,0,0\r\n"
                                    "\"Eof\",24,0,0,0,0\r\n"
                                    "\"Eof\",25,0,0,0,0\r\n"
                                    "\"Eof\",26,0,0,0,0\r\n"
                                    "\"Eof\",27,0,0,0,0\r\n"
                                    "\"Eof\",28,0,0,0,0\r\n"
                                    "\"Eof\",29,0,0,0,0\r\n"
                                    "\"Eof\",30,0,0,0,0\r\n"
                                    "\"Eof\",31,0,0,0,0\r\n"
                                    "\"Pin\",0,2,1,\"A1 red\"\r\n"
                                    "  \"Dev\",0,\"Home signal A1\"\r\n"
                                    "  \"Cfg\",2,0,3,8,0,31\r\n"
                                    "  \"PAM\",1,2,1\r\n"
                                    "  \"Asp\",0,\"Stop\"\r\n"
                                    "    \"Ins\",0,29,0,1,0,0\r\n"
                                    "  \"Asp\",1,\"Caution\"\r\n"
                                    "    \"Ins\",0,29,0,2,0,0\r\n"
                                    "  \"Asp\",2,\"Clear\"\r\n"
                                    "    \"Ins\",0,29,0,4,0,0\r\n"
                                    "\"Pin\",1,0,0,\"A1 yellow\"\r\n"
                                    "  \"Dev\",-1,\"\"\r\n"
                                    "  \"Cfg\",2,0,3,8,0,31\r\n"
                                    "  \"PAM\",0,0,0\r\n"
                                    "\"Pin\",2,0,0,\"A1 green\"\r\n"
                                    "  \"Dev\",-2,\"\"\r\n"
                                    "  \"Cfg\",2,0,3,8,0,31\r\n"
                                    "  \"PAM\",0,0,0\r\n"
                                    "\"Pin\",3,2,1,\"B2 red\"\r\n"
                                    "  \"Dev\",0,\"Block signal B2\"\r\n"
                                    "  \"Cfg\",2,0,3,8,0,31\r\n"
                                    "  \"PAM\",1,1,1\r\n"
                                    "  \"Asp\",0,\"Stop\"\r\n"
                                    "    \"Ins\",0,25,0,0,0,0\r\n"
                                    "    \"Ins\",1,24,1,0,0,0\r\n"
                                    "  \"Asp\",1,\"Clear\"\r\n"
                                    "    \"Ins\",0,24,0,0,0,0\r\n"
                                    "    \"Ins\",1,25,1,0,0,0\r\n"
                                    "\"Pin\",4,0,0,\"B2 green\"\r\n"
                                    "  \"Dev\",-1,\"\"\r\n"
                                    "  \"Cfg\",2,0,3,8,0,31\r\n"
                                    "  \"PAM\",0,0,0\r\n"
                                    "\"Pin\",8,2,1,\"W1 servo\"\r\n"
                                    "  \"Dev\",0,\"Turnout W1\"\r\n"
                                    "  \"Cfg\",1,39,25,64,60,40,20,10,64,0,64,0\r\n"
                                    "  \"PAM\",1,1,1\r\n"
                                    "  \"Asp\",0,\"Straight\"\r\n"
                                    "    \"Ins\",0,100,0,39,40,0\r\n"
                                    "    \"Ins\",1,8,1,0,0,0\r\n"
                                    "    \"Ins\",2,127,0,0,0,0\r\n"
                                    "  \"Asp\",1,\"Diverging\"\r\n"
                                    "    \"Ins\",0,100,0,89,40,0\r\n"
                                    "    \"Ins\",1,9,1,0,0,0\r\n"
                                    "    \"Ins\",2,127,0,0,0,0\r\n"
                                    "\"Pin\",9,0,0,\"W1 frog relay\"\r\n"
                                    "  \"Dev\",-1,\"\"\r\n"
                                    "  \"Cfg\",0\r\n"
                                    "  \"PAM\",0,0,0\r\n"
                                    "\"Pin\",10,2,1,\"S3 arm\"\r\n"
                                    "  \"Dev\",0,\"Semaphore S3\"\r\n"
                                    "  \"Cfg\",1,24,26,64,24,12,40,20,88,70,44,50\r\n"
                                    "  \"PAM\",1,1,1\r\n"
                                    "  \"Asp\",0,\"Danger\"\r\n"
                                    "    \"Ins\",0,55,0,24,0,0\r\n"
                                    "    \"Ins\",1,127,0,0,25,1\r\n"
                                    "  \"Asp\",1,\"Clear\"\r\n"
                                    "    \"Ins\",0,55,0,99,0,0\r\n"
                                    "    \"Ins\",1,127,0,0,25,1\r\n"
                                    "\"Pin\",12,2,1,\"Crossing lamp left\"\r\n"
                                    "  \"Dev\",0,\"Level crossing\"\r\n"
                                    "  \"Cfg\",2,0,3,4,0,31\r\n"
                                    "  \"PAM\",1,1,1\r\n"
                                    "  \"Asp\",0,\"Off\"\r\n"
                                    "    \"Ins\",0,24,0,0,0,0\r\n"
                                    "    \"Ins\",1,24,1,0,0,0\r\n"
                                    "  \"Asp\",1,\"Flashing\"\r\n"
                                    "    \"Ins\",0,58,0,40,0,0\r\n"
                                    "\"Pin\",13,0,0,\"Crossing lamp right\"\r\n"
                                    "  \"Dev\",-1,\"\"\r\n"
                                    "  \"Cfg\",2,0,3,4,0,31\r\n"
                                    "  \"PAM\",0,0,0\r\n"
                                    "\"End\"\r\n";
    return text;
}

namespace {

// The text is ours: anything that the reader would tell the user is a program fault.
class NoDialogs : public UserDialogs {
public:
    void message(const std::string& text, Icon) override
    {
        throw ProgramFault("Demonstration configuration: " + text);
    }
    Answer ask(const std::string& text, Buttons, Icon) override
    {
        throw ProgramFault("Demonstration configuration: " + text);
    }
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

void fillDemoConfiguration(Configuration& config, GeneralSettings& general)
{
    NoDialogs dialogs;
    readConfigurationText(demoConfigurationText(), config, general, dialogs);
}

} // namespace kestrel
