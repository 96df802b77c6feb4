#include "files/ConfigurationFile.h"
#include "files/DemoConfiguration.h"
#include "files/TextFile.h"
#include "forms/MainWindowForm.h"
#include "ops/Bulk.h"
#include "ops/SendCheck.h"
#include "session/Session.h"
#include "support/Files.h"
#include "support/ScriptedModule.h"
#include "support/SimSession.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

// General settings that touch every bit of the six general records.
GeneralSettings sampleGeneral()
{
    GeneralSettings g;
    g.TextGenIDString = "Yard 3";
    g.TextGenDCCAddress = "202";
    g.TextGenXDCCAddress = "0.3";
    g.OptGenDCC_PRP = 2;
    g.ChkGenDCC_BPSI = 1; // flags 2 + 4 = 6
    g.CheckGenLynxaddr = 1;
    g.LynxFlexAddress = 5;
    g.ExtendedAddress = 17;
    g.CheckGenXGM[0] = g.CheckGenXGM[5] = g.CheckGenXGM[15] = 1; // masks 1, 2, 0, 8
    g.ChkGenHWCSink = {1, 0, 0, 1};
    g.ChkGenHWCSource = {0, 1, 0, 1};          // 1, 2, 0, 3
    g.CheckLCGreen[0] = g.CheckLCGreen[3] = 1; // 9
    g.CheckLCOrange[7] = 1;                    // 0: element 7 is not written
    g.CheckGenSerialEnable = 1;
    g.ComboGenBaud = 4; // "38400"
    g.OptionGenSerialDatabits = 1;
    g.OptionGenSerialParity = 2;
    g.OptionGenSerialStop = 1;
    return g;
}

// Pin 5 heads a servo "Home signal" with layout 3, pin 6 is its PWM member, pin 7 an
// input, pin 9 an unknown mode without description.
Configuration sampleConfig()
{
    Configuration c;
    c.EventMap[0].OnEvent = {-1, 0, 11, 3, 0};
    for (int p = 1; p < kPinCount; ++p)
        c.EventMap[p].OffEvent = {-1, -1, -1, -1, 0};

    PinRecord& head = c.Pins[5];
    head.Description = "Signal, home";
    head.DeviceDescription = "Home signal";
    head.AspectLayout = 3;
    head.InitAspect = 2;
    head.ConfigMode = 1;
    head.ConfigParams = {64, 200, 64, 4, 5, 6, 7, 68, 9, 60, 11, 0};
    head.XDccCount = 1;
    head.DccCount = 2;
    head.LynxCount = 3;
    head.Aspects[0].Description = "Danger";
    head.Aspects[0].Steps[0] = {39, 1, 0, 24, 0, 0};
    head.Aspects[0].Steps[2] = {127, 0, 0, 0, 25, 1};
    head.Aspects[1].Steps[0] = {8, 0, 0, 0, 0, 0}; // aspect without description
    head.Aspects[2].Description = "Clear";
    head.Aspects[2].Steps[0] = {9, 0, 1, 0, 0, 0};

    PinRecord& lamp = c.Pins[6];
    lamp.Description = "Signal lamp";
    lamp.DeviceOffset = -1;
    lamp.ConfigMode = 2;
    lamp.ConfigParams = {0, 3, 8, 0, 31, 99, 0, 0, 0, 0, 0, 0};

    PinRecord& button = c.Pins[7];
    button.Description = "Button";
    button.ConfigMode = 4;
    button.ConfigParams = {1, 2, 3, 4, 5, 0, 0, 0, 0, 0, 0, 0};

    c.Pins[9].ConfigMode = 7;
    return c;
}

std::string generalAndEventLines()
{
    std::string out =
        crlf({"\"KestrelConfiguration 3100\"", "\"ID$\",\"Yard 3\"", "\"DCC\",202,0.3,6",
              "\"XAD\",5,1,17,1,2,0,8", "\"HWC\",1,2,0,3", "\"LED\",9,0", "\"SPC\",1,\"38400\",8,2,2"});
    out += "\"Eon\",0,0,1,12,4\r\n";
    for (int p = 1; p < 32; ++p)
        out += "\"Eon\"," + std::to_string(p) + ",1,1,1,1\r\n";
    out += "\"Eof\",0,1,1,1,1\r\n";
    for (int p = 1; p < 32; ++p)
        out += "\"Eof\"," + std::to_string(p) + ",0,0,0,0\r\n";
    return out;
}

// Pin 5 up to its first step.
const std::string kPin5 = crlf({"\"Pin\",5,3,2,\"Signal, home\"", "  \"Dev\",0,\"Home signal\"",
                                "  \"Cfg\",1,64,8,64,4,5,6,7,68,9,60,11", "  \"PAM\",1,2,3",
                                "  \"Asp\",0,\"Danger\"", "    \"Ins\",0,55,0,24,0,0"});

const std::string kPin6And7 =
    crlf({"\"Pin\",6,0,0,\"Signal lamp\"", "  \"Dev\",-1,\"\"", "  \"Cfg\",2,0,3,8,0,31", "  \"PAM\",0,0,0",
          "\"Pin\",7,0,0,\"Button\"", "  \"Dev\",0,\"\"", "  \"Cfg\",4,1,2,3,4", "  \"PAM\",0,0,0"});

std::string emptyPin(int p, const std::string& mode = "0")
{
    return crlf({"\"Pin\"," + std::to_string(p) + ",0,0,\"\"", "  \"Dev\",0,\"\"", "  \"Cfg\"," + mode,
                 "  \"PAM\",0,0,0"});
}

std::string emptySteps(int from, int to)
{
    std::string out;
    for (int s = from; s <= to; ++s)
        out += "    \"Ins\"," + std::to_string(s) + ",0,0,0,0,0\r\n";
    return out;
}

struct Loader {
    RecordingDialogs dialogs;
    Configuration config;
    GeneralSettings general;
    LoadResult load(const std::string& text) { return readConfigurationText(text, config, general, dialogs); }
};

} // namespace

TEST(DataFileWriting, CompactHoldsOnlyDescribedPinsAspectsAndSteps)
{
    Configuration c = sampleConfig();
    const std::string expected =
        generalAndEventLines() + kPin5 +
        crlf({"    \"Ins\",2,127,0,0,25,1", "  \"Asp\",2,\"Clear\"", "    \"Ins\",0,9,1,0,0,0"}) + kPin6And7 +
        "\"End\"\r\n";
    // Servo parameter 2 of 200 is written as 200 AND 63 = 8 (and kept so: DataFileSaving).
    EXPECT_EQ(writeConfigurationText(c, sampleGeneral(), SaveForm::Compact), expected);
}

TEST(DataFileWriting, FullHoldsEveryPinEveryAspectOfTheLayoutAndEveryStep)
{
    Configuration c = sampleConfig();
    std::string expected = generalAndEventLines();
    for (int p = 0; p < 5; ++p)
        expected += emptyPin(p);
    expected += kPin5 + crlf({"    \"Ins\",1,0,0,0,0,0", "    \"Ins\",2,127,0,0,25,1"});
    expected += emptySteps(3, 8);
    expected += crlf({"  \"Asp\",1,\"\"", "    \"Ins\",0,8,0,0,0,0"}) + emptySteps(1, 8);
    expected += crlf({"  \"Asp\",2,\"Clear\"", "    \"Ins\",0,9,1,0,0,0"}) + emptySteps(1, 8);
    expected += "  \"Asp\",3,\"\"\r\n" + emptySteps(0, 8);
    expected += kPin6And7 + emptyPin(8) + emptyPin(9, "7");
    for (int p = 10; p < 32; ++p)
        expected += emptyPin(p);
    expected += "\"End\"\r\n";
    EXPECT_EQ(writeConfigurationText(c, sampleGeneral(), SaveForm::Full), expected);
}

TEST(DataFileWriting, CompactWithoutDescriptionsIsHeaderGeneralEventsAndEnd)
{
    Configuration c;
    const std::string text = writeConfigurationText(c, GeneralSettings{}, SaveForm::Compact);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1 + 6 + 64 + 1);
    EXPECT_NE(text.find("\"DCC\",0,0,0\r\n\"XAD\",0,0,0,0,0,0,0\r\n"), std::string::npos);
    EXPECT_NE(text.find("\"SPC\",0,\"9600\",7,0,1\r\n"), std::string::npos);

    // Native mode is mode byte 64; the flex-address is not written while flex-addressing is off.
    GeneralSettings g;
    g.CheckGenKestrelNative = 1;
    g.LynxFlexAddress = 9;
    EXPECT_NE(writeConfigurationText(c, g, SaveForm::Compact).find("\"XAD\",64,0,0,"), std::string::npos);
}

TEST(DemoConfiguration, BuildsItsAddressIndexAndWritesAsItsDataFileText)
{
    Configuration c;
    GeneralSettings g;
    fillDemoConfiguration(c, g);
    EXPECT_GT(c.DccTotal, 0); // the address index is built

    // It is a compact data file as this program writes it.
    EXPECT_EQ(writeConfigurationText(c, g, SaveForm::Compact), demoConfigurationText());
}

TEST(DataFileReading, FullFileReadsBackToTheSameTextUnderACommaDecimalLocale)
{
    // The DCC numbers keep their point, and 0.3 is written as typed, not as its binary value.
    CommaDecimalLocale comma;
    Configuration c = sampleConfig();
    c.Pins[9].ConfigMode = 0; // an unknown mode reads back as 0 (see CfgRules...)
    const std::string first = writeConfigurationText(c, sampleGeneral(), SaveForm::Full);
    Loader l;
    ASSERT_EQ(l.load(first), LoadResult::Loaded);
    EXPECT_EQ(writeConfigurationText(l.config, l.general, SaveForm::Full), first);

    // Output value from parameter 1; PWM parameters 6..11 cleared; input parameter 5 not in
    // the file, left as it was; the address index rebuilt (pin 5 has 2).
    EXPECT_EQ(std::tuple(l.dialogs.messages.size(), l.general.TextGenXDCCAddress, l.general.TextGenXaddr,
                         l.config.Pins[5].OutputValue, l.config.Pins[6].P(6), l.config.Pins[7].P(5),
                         l.config.EventMap[0].OnEvent[0], l.config.DccFirstIndex[6]),
              std::tuple(0u, "0.3", "17", 64, 0, 0, -1, 2));
}

TEST(DataFileReading, CompactFileLeavesWhatItDoesNotNameEmpty)
{
    Configuration c = sampleConfig();
    const std::string compact = writeConfigurationText(c, sampleGeneral(), SaveForm::Compact);
    Loader l;
    l.config.Pins[5].Aspects[1].Description = "Old";
    l.config.Pins[5].Aspects[3].Steps[4] = {9, 1, 2, 3, 4, 5};
    l.config.Pins[5].Aspects[11].Steps[8].Instruction = 7;
    l.config.Pins[5].Aspects[11].Steps[9].Instruction = 7; // step 9 is not touched
    l.config.Pins[8].Description = "Keep me";
    ASSERT_EQ(l.load(compact), LoadResult::Loaded);
    const PinRecord& p = l.config.Pins[5];
    // Step 9 is untouched; "Pin" sets the counts before "PAM"; pin 8 has no record and is kept.
    EXPECT_EQ(std::tuple(p.Aspects[1].Description, p.Aspects[3].Steps[4], p.Aspects[11].Steps[8],
                         p.Aspects[11].Steps[9].Instruction, p.Aspects[0].Steps[0], l.config.Pins[7].DccCount,
                         l.config.Pins[8].DccCount, l.config.Pins[8].Description),
              std::tuple("", StepRecord{}, StepRecord{}, 7, StepRecord{39, 1, 0, 24, 0, 0}, 0, 0, "Keep me"));
}

TEST(DataFileReading, InsOpSplitsOnlyFrom19To63)
{
    // op = 16 x Fade + Instruction, split only for 19..63 (by bit 4). Before any "Pin" record
    // the step is not cleared first, and op 17 leaves its fade.
    Loader l;
    l.config.Pins[0].Aspects[0].Steps[0].Fade = 1;
    ASSERT_EQ(l.load(crlf({"\"KestrelConfiguration 3100\"", "\"Ins\",0,17,0,1,0,0", "\"Pin\",2,3,0,\"x\"",
                           "\"Asp\",0,\"a\"", "\"Ins\",0,17,0,1,0,0", "\"Ins\",1,35,0,5,0,0",
                           "\"Ins\",2,112,0,0,3,1", "\"Ins\",3,16,0,0,0,0", "\"Ins\",4,38,0,1,0,0",
                           "\"Ins\",5,51,0,5,0,0", "\"Ins\",6,26,0,9,0,0", "\"End\""})),
              LoadResult::Loaded);
    // 17 is "Feedback", never a faded "Jump"; 35 and 38 have bit 4 clear; 51 = 16 + 35 and 26 =
    // 16 + 10 ("Invert") fade; 112 and 16 keep the fade that "Pin" cleared.
    const int want[][2] = {{17, 0}, {35, 0}, {112, 0}, {16, 0}, {38, 0}, {35, 1}, {10, 1}};
    for (int i = 0; i < 7; ++i) {
        const StepRecord& st = l.config.Pins[2].Aspects[0].Steps[i];
        EXPECT_EQ(std::pair(int{st.Instruction}, int{st.Fade}), std::pair(want[i][0], want[i][1])) << i;
    }
    EXPECT_EQ((StepRecord{17, 1, 0, 1, 0, 0}), l.config.Pins[0].Aspects[0].Steps[0]);
}

TEST(DataFileReading, CfgRulesOutputValueAndServoConversion)
{
    Loader l;
    l.config.Pins[4].ConfigParams = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
    ASSERT_EQ(l.load(crlf({"\"KestrelConfiguration 3100\"", "\"Pin\",1,0,0,\"a\"",
                           "\"Cfg\",1,70,48,64,1,1,1,1,64,0,64,0", "\"Pin\",2,0,0,\"b\"",
                           "\"Cfg\",1,70,56,64,1,1,1,1,64,0,64,0", "\"Pin\",3,0,0,\"c\"", "\"Cfg\",9",
                           "\"Pin\",4,0,0,\"d\"", "\"Cfg\",5,10,11,12,13", "\"End\""})),
              LoadResult::Loaded);
    // 48: range 3 in the high nibble, bit 3 clear -> 3 + 40; 56 has bit 3 set: kept. Mode 9
    // is no mode; an input leaves the parameters it does not name as they were.
    const auto& pins = l.config.Pins;
    EXPECT_EQ(std::tuple(pins[1].P(2), pins[2].P(2), pins[1].OutputValue, pins[3].ConfigMode,
                         pins[4].ConfigMode, pins[4].P(4), pins[4].P(5), pins[4].OutputValue),
              std::tuple(43, 56, 70, 0, 5, 13, 9, 10));
}

TEST(DataFileReading, GeneralRecordsSetTheControls)
{
    Loader l;
    l.config.NumberingBase = 1;
    l.general.ComboGenBaud = 3;
    l.general.CheckLCOrange[7] = 1;
    ASSERT_EQ(
        l.load(crlf({"\"KestrelConfiguration 3100\"", "\"ID$\",\"Fifteen chars!!\"",
                     "\"XAD\",64,0,20,15,0,0,0", "\"LED\",0,127", "\"SPC\",1,\"1200\",7,3,1", "\"End\""})),
        LoadResult::Loaded);
    const GeneralSettings& g = l.general;
    // The eXtended address is shown with the numbering base; "LED" sets only the seven bit
    // boxes; "1200" is no entry of the list, so the selection stays.
    EXPECT_EQ(std::tuple(g.CheckGenKestrelNative, g.CheckGenLynxaddr, g.ExtendedAddress, g.TextGenXaddr,
                         g.CheckGenXGM[3], g.CheckGenXGM[4], g.CheckLCGreen[0], g.CheckLCOrange[6],
                         g.TextGenIDString, g.CheckLCGreen[7], g.CheckLCOrange[7], g.ComboGenBaud,
                         g.OptionGenSerialParity, g.OptionGenSerialDatabits),
              std::tuple(1, 0, 20, "21", 1, 0, 0, 1, "Fifteen char", 0, 1, 3, 3, 0));
    EXPECT_EQ(l.dialogs.texts(), std::vector<std::string>{"ID string cut to 12 characters: Fifteen char"});
}

TEST(DataFileReading, OlderVersionsReadWhatTheyHeld)
{
    // Version 31: DCC without the eXtended address, PAM without the eXtended count.
    Loader v31;
    ASSERT_EQ(v31.load(crlf({"\"KestrelConfiguration 0031\"", "\"DCC\",202,6", "\"Pin\",1,0,0,\"a\"",
                             "\"PAM\",4,2", "\"End\""})),
              LoadResult::Loaded);
    EXPECT_EQ(v31.dialogs.messages, (std::vector<Shown>{{"Data File Version = 31", Icon::Information}}));
    const auto& [g, p1] = std::tie(v31.general, v31.config.Pins[1]);
    EXPECT_EQ(std::tuple(g.TextGenDCCAddress, g.TextGenXDCCAddress, g.OptGenDCC_PRP, g.ChkGenDCC_BPSI,
                         p1.DccCount, p1.LynxCount, p1.XDccCount),
              std::tuple("202", "0", 2, 1, 4, 2, 1));
    // Version 22: no DCC flags either.
    Loader v22;
    v22.general.OptGenDCC_PRP = 1;
    ASSERT_EQ(v22.load(crlf({"\"KestrelConfiguration 0022\"", "\"DCC\",7", "\"LED\",3,0", "\"End\""})),
              LoadResult::Loaded);
    EXPECT_EQ(
        std::tuple(v22.general.TextGenDCCAddress, v22.general.OptGenDCC_PRP, v22.general.CheckLCGreen[1]),
        std::tuple("7", 1, 1));
    // Version 19: PWM with three parameters, off-level 0 and on-level 31.
    Loader v19;
    v19.config.Pins[2].ConfigParams = {9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9};
    ASSERT_EQ(v19.load(crlf({"\"KestrelConfiguration 0019\"", "\"Pin\",2,0,0,\"a\"", "\"Cfg\",3,5,1,8",
                             "\"PAM\",1,1", "\"End\""})),
              LoadResult::Loaded);
    const PinRecord& p2 = v19.config.Pins[2];
    EXPECT_EQ(std::tuple(p2.ConfigMode, p2.P(3), p2.P(4), p2.P(5), p2.P(6), p2.P(11), p2.DccCount),
              std::tuple(3, 8, 0, 31, 0, 0, 1));
}

TEST(DataFileReading, UnknownKeywordsAndEvtArePassedOverOrAccepted)
{
    Loader l;
    ASSERT_EQ(
        l.load(crlf({"\"KestrelConfiguration 3100\"", "\"Note\",\"made by hand\",1,2,3", "\"Evt\",4,0,1,2,3",
                     "\"Extra\"", "\"Eof\",4,13,0,0,0", "\"End\"", "\"ID$\",\"after End\""})),
        LoadResult::Loaded);
    EXPECT_TRUE(l.dialogs.messages.empty());
    const EventRecord& e = l.config.EventMap[4];
    EXPECT_EQ(std::tuple(e.OnEvent[0], e.OnEvent[3], e.OffEvent[0], l.general.TextGenIDString),
              std::tuple(-1, 2, 12, ""));
}

TEST(DataFileReading, BadHeaderChangesNothing)
{
    for (const std::string text : {"\"KestrelConfiguration 310\"\r\n\"ID$\",\"x\"\r\n\"End\"\r\n",
                                   "\"KestrelDeviceDefinitions 3100\"\r\n\"End\"\r\n", "", "\r\n"}) {
        Loader l;
        EXPECT_EQ(l.load(text), LoadResult::InvalidHeader);
        EXPECT_EQ(std::tuple(l.dialogs.messages, l.general.TextGenIDString),
                  std::tuple(std::vector<Shown>{{"Invalid configuration file", Icon::Warning}}, ""));
    }
}

TEST(DataFileReading, FormatErrorsStopTheLoadAndKeepWhatWasRead)
{
    const std::string head =
        "\"KestrelConfiguration 3100\"\r\n\"ID$\",\"Kept\"\r\n\"Pin\",3,0,0,\"Lamp\"\r\n";
    const std::string tail = "\r\nLoading stopped; what was read before is kept.";
    const std::pair<std::string, std::string> cases[] = {
        {head + "  \"Cfg\",2,1", "The file ends before \"End\" at line 4, item 4"},
        {head, "The file ends before \"End\" at line 3, item 6"},
        {head + "\"Pin\",33,0,0,\"x\"\r\n\"End\"\r\n", "Pin index 33 out of range 0..32 at line 4, item 2"},
        {head + "\"Asp\",13,\"x\"\r\n\"End\"\r\n", "Aspect index 13 out of range 0..12 at line 4, item 2"},
        {head + "\"Ins\",10,9,0,0,0,0\r\n\"End\"\r\n", "Step index 10 out of range 0..9 at line 4, item 2"},
        {head + "\"LED\",1," + std::string(70, 'x') + "\r\n\"End\"\r\n",
         "Number expected, found \"" + std::string(60, 'x') + "...\" at line 4, item 3"},
        // Values that the module cannot be sent are file errors too, so nothing is half written.
        {head + "\"Ins\",0,300,0,0,0,0\r\n\"End\"\r\n",
         "Instruction code 300 cannot be sent: 0..127 at line 4, item 3"},
        {head + "\"Ins\",0,9,0,200,0,0\r\n\"End\"\r\n", "Par1 200 cannot be sent: 0..127 at line 4, item 5"},
        {head + "\"DCC\",9000,0,0\r\n\"End\"\r\n",
         "DCC address 9000 cannot be sent: 0..8191 at line 4, item 2"},
        {head + "\"DCC\",0,-1,0\r\n\"End\"\r\n",
         "eXtended DCC address -1 cannot be sent: 0..8191 at line 4, item 3"},
        {head + "\"Eon\",1,0,201,0,0\r\n\"End\"\r\n",
         "Event-On entry 201 cannot be sent: 0..15 at line 4, item 4"},
        {head + "\"PAM\",255,255,255\r\n\"End\"\r\n",
         "eXtended DCC address count 255 cannot be sent: 0..1 at line 4, item 2"},
        {head + "\"Cfg\",4,1,2,3,128\r\n\"End\"\r\n",
         "Configuration parameter 4 128 cannot be sent: 0..127 at line 4, item 6"},
        {head + "\"ID$\",\"Caf\xc3\xa9\"\r\n\"End\"\r\n",
         "ID string character 195 at position 4 cannot be sent: 0..127 at line 4, item 2"},
    };
    for (const auto& [text, message] : cases) {
        Loader l;
        EXPECT_EQ(l.load(text), LoadResult::FormatError) << message;
        // What was read stays, and the address index is rebuilt from it.
        EXPECT_EQ(
            std::tuple(l.dialogs.messages, l.general.TextGenIDString, l.config.Pins[3].Description,
                       l.config.DccFirstIndex[4]),
            std::tuple(std::vector<Shown>{{"Error in configuration file: " + message + tail, Icon::Warning}},
                       "Kept", "Lamp", 1));
    }

    // Index 32 (the spare record), aspect 12 and step 9 are within the bounds.
    Loader l;
    EXPECT_EQ(l.load(head + "\"Pin\",32,0,0,\"\"\r\n\"Asp\",12,\"s\"\r\n\"Ins\",9,9,0,0,0,0\r\n\"End\"\r\n"),
              LoadResult::Loaded);
    EXPECT_EQ(l.config.Pins[32].Aspects[12].Steps[9].Instruction, 9);
}

// Whatever a file holds, what it lets into the model can be written whole (or a fault
// stopped the load): no program fault, and a file that loads sends every byte.
TEST(DataFileReading, TheFuzzCorpusLoadsThenWritesWithoutAProgramFault)
{
    const auto corpus =
        std::filesystem::path(__FILE__).parent_path() / ".." / ".." / "fuzz" / "corpus" / "fuzz_data_file";
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        SimSession rig;
        const std::string name = entry.path().filename().string();
        const LoadResult r = loadConfigurationFile(entry.path().string(), rig.session.config,
                                                   rig.session.general, rig.dialogs);
        ASSERT_NE(r, LoadResult::CannotOpen) << name;
        EXPECT_EQ(unsendableConfiguration(rig.session.config, rig.session.general, true), "") << name;
        bool written = false;
        EXPECT_NO_THROW(written = WriteAll(rig.session, true)) << name;
        EXPECT_TRUE(written || r != LoadResult::Loaded) << name;
        ++files;
    }
    EXPECT_GE(files, 10);
}

TEST(DataFileSaving, WritesBesideAndReplacesOnlyWhenComplete)
{
    ScratchDir dir("save");
    const std::string target = dir.file("layout.dat");
    spit(target, "old content");
    Configuration c = sampleConfig();
    std::string error;

    // The temporary file cannot be made: the target and the model stay as they were.
    std::filesystem::create_directory(temporaryPathFor(target));
    EXPECT_FALSE(saveConfigurationFile(target, c, sampleGeneral(), SaveForm::Full, error));
    EXPECT_FALSE(error.empty());
    EXPECT_EQ(std::tuple(slurp(target), c.Pins[5].P(2)), std::tuple("old content", 200));
    std::filesystem::remove(temporaryPathFor(target));

    // A folder is refused, saying why, leaving no temporary file (FIFOs, links: SpecialFilesPosixTest).
    const std::string folder = dir.file("folder.dat");
    std::filesystem::create_directory(folder);
    std::string text;
    EXPECT_FALSE(saveConfigurationFile(folder, c, sampleGeneral(), SaveForm::Full, error));
    EXPECT_EQ(error, "Can not replace " + folder + ": Is a directory");
    EXPECT_FALSE(std::filesystem::exists(temporaryPathFor(folder)));
    EXPECT_FALSE(readTextFile(folder, text, error));

    // No file above 1 MB is read.
    const std::string large = dir.file("large.dat");
    spit(large, std::string(kTextFileLimit + 1, ' '));
    EXPECT_FALSE(readTextFile(large, text, error));
    EXPECT_EQ(error, "File too large: " + std::to_string(kTextFileLimit + 1) + " bytes, at most 1 MB");

    ASSERT_TRUE(saveConfigurationFile(target, c, sampleGeneral(), SaveForm::Compact, error));
    EXPECT_EQ(std::tuple(c.Pins[5].P(2), slurp(target), std::filesystem::exists(temporaryPathFor(target))),
              std::tuple(8, writeConfigurationText(c, sampleGeneral(), SaveForm::Compact), false));
}

TEST(DataFileCommands, SaveAndLoadThroughTheFileDialog)
{
    ScratchDir dir("commands");
    ScriptedModule rig;
    rig.session.config = sampleConfig();
    rig.session.general = sampleGeneral();

    rig.dialogs.fileNames = {dir.file("full.dat"), dir.file("compact.dat"), dir.file("never.dat")};
    CommandSave_MouseDown(rig.session, 1, 0);
    CommandSave_MouseDown(rig.session, 1, 1);
    CommandSave_MouseDown(rig.session, 2, 0); // right button: nothing, not even the dialog
    CommandSave_MouseDown(rig.session, 1, 2); // Ctrl: nothing
    EXPECT_EQ(
        std::tuple(rig.dialogs.fileNames.size(), slurp(dir.file("full.dat")), slurp(dir.file("compact.dat"))),
        std::tuple(1u, writeConfigurationText(rig.session.config, rig.session.general, SaveForm::Full),
                   writeConfigurationText(rig.session.config, rig.session.general, SaveForm::Compact)));

    rig.dialogs.fileNames = {""}; // cancelled: silent
    CommandSave_MouseDown(rig.session, 1, 0);
    EXPECT_TRUE(rig.dialogs.messages.empty());

    ScriptedModule other;
    other.dialogs.fileNames = {dir.file("compact.dat"), dir.file("missing.dat"), ""};
    CommandLoad_Click(other.session);
    EXPECT_EQ(
        std::tuple(other.session.config.Pins[5].DeviceDescription, other.session.general.TextGenIDString),
        std::tuple("Home signal", "Yard 3"));
    CommandLoad_Click(other.session);
    CommandLoad_Click(other.session); // cancelled: silent
    EXPECT_EQ(other.dialogs.texts(), std::vector<std::string>{"Can not open " + dir.file("missing.dat") +
                                                              ": No such file or directory"});
}
