#include "files/DeviceDefinitions.h"
#include "files/TextFile.h"
#include "forms/DevicesForm.h"
#include "model/InstructionSet.h"
#include "support/Files.h"
#include "support/RecordingDialogs.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

// The three-pin "Signal": a head with layout 2 and two aspects, members PWM.
std::string signalDevice(const std::string& headConfig = "    \"Cfg\",2,0,3,8,0,31")
{
    return crlf({"\"Dev\",\"Signal\"", "  \"Pin\",0,2,1,\"red\"", headConfig, "    \"PAM\",1,2,1",
                 "    \"Asp\",0,\"Stop\"", "      \"Ins\",0,29,0,1,0,0", "    \"Asp\",1,\"Clear\"",
                 "      \"Ins\",0,29,0,4,0,0", "      \"Ins\",1,17,0,1,0,0", "  \"Pin\",1,0,0,\"yellow\"",
                 "    \"Cfg\",2,0,3,8,0,31", "    \"PAM\",0,0,0", "  \"Pin\",2,0,0,\"green\"",
                 "    \"Cfg\",2,0,3,8,0,31", "    \"PAM\",0,0,0"});
}

// Two devices: the "Signal" and a one-pin "Button" in input mode.
const std::string kTwoDevices = crlf({"\"KestrelDeviceDefinitions Test set\""}) + signalDevice() +
                                crlf({"\"Dev\",\"Button\"", "  \"Pin\",0,0,0,\"push\"",
                                      "    \"Cfg\",4,1,2,3,4", "    \"PAM\",0,0,0", "\"End\""});

std::string standardFile()
{
    return (std::filesystem::path(__FILE__).parent_path() / ".." / ".." / "resources" / kStandardDeviceFile)
        .string();
}

struct Rig {
    RecordingDialogs dialogs;
    Configuration config;
    bool load(const std::string& text, const std::string& name, int head)
    {
        config.CurrentPin = head;
        return loadDeviceFromText(text, name, config, dialogs);
    }
};

} // namespace

TEST(DeviceLoading, ThreePinDeviceOnPin31WrapsToPins0And1)
{
    Rig r;
    ASSERT_TRUE(r.load(kTwoDevices, "Signal", 31));
    EXPECT_TRUE(r.dialogs.messages.empty());
    const auto& [head, yellow, green] = std::tie(r.config.Pins[31], r.config.Pins[0], r.config.Pins[1]);
    // Code 29 = fade 16 + 13; the address index is rebuilt.
    EXPECT_EQ(
        std::tuple(head.DeviceOffset, yellow.DeviceOffset, green.DeviceOffset, head.DeviceDescription,
                   yellow.Description, green.Description, head.InitAspect, head.Aspects[1].Steps[0],
                   head.Aspects[1].Steps[1].Instruction, head.DccCount, yellow.DccCount, r.config.DccTotal),
        std::tuple(0, 31, 30, "Signal", "yellow", "green", 1, StepRecord{13, 1, 0, 4, 0, 0}, 17, 2, 0, 2));
}

TEST(DeviceLoading, PinsGetClearedAspectsAndAWarningWhenAlreadyUsed)
{
    Rig r;
    r.config.NumberingBase = 1;
    r.config.Pins[5].Description = "old head";
    r.config.Pins[7].Description = "old lamp";
    r.config.Pins[7].Aspects[4].Description = "old aspect";
    r.config.Pins[7].Aspects[4].Steps[2].Instruction = 9;
    ASSERT_TRUE(r.load(kTwoDevices, "Signal", 5));
    // Overwritten all the same, the old aspects cleared.
    const PinRecord& p = r.config.Pins[7];
    EXPECT_EQ(std::tuple(p.Description, p.Aspects[4].Description, p.Aspects[4].Steps[2].Instruction),
              std::tuple("green", "", 0));
    EXPECT_EQ(
        r.dialogs.messages,
        (std::vector<Shown>{{"The following Pin numbers were already used: \r\n 6, 8", Icon::Warning}}));
}

TEST(DeviceLoading, DissolvesTheOldDeviceAtTheHeadAndAtEachTarget)
{
    Rig r;
    // "Old" at pin 4 with members 5, 6 and 7; "Other" at pin 10 with member 11.
    r.config.Pins[4].DeviceDescription = "Old";
    for (int p = 5; p <= 7; ++p)
        r.config.Pins[p].DeviceOffset = static_cast<std::int16_t>(4 - p);
    r.config.Pins[10].DeviceDescription = "Other";
    r.config.Pins[11].DeviceOffset = -1;

    const std::string pab = crlf({"\"KestrelDeviceDefinitions\"", "\"Dev\",\"Pair\"", "  \"Pin\",0,0,0,\"a\"",
                                  "  \"Pab\",42,0,0,\"b\"", "\"End\""}); // 42 mod 32 = 10
    ASSERT_TRUE(r.load(pab, "Pair", 4));
    const auto& pins = r.config.Pins; // pin 11 is released with "Other"
    EXPECT_EQ(std::tuple(pins[4].DeviceDescription, pins[5].DeviceOffset, pins[6].DeviceOffset,
                         pins[7].DeviceOffset, pins[10].DeviceOffset, pins[10].DeviceDescription,
                         pins[11].DeviceOffset),
              std::tuple("Pair", 0, 0, 0, -6, "", 0));

    // A member is not dissolved on its own.
    dissolveDevice(r.config, 10);
    EXPECT_EQ(r.config.Pins[10].DeviceOffset, -6);
}

TEST(DeviceLoading, OnlyServoAndPwmReadParameters)
{
    Rig r;
    for (int p : {3, 4, 5})
        r.config.Pins[p].ConfigParams.fill(9);
    const std::string text =
        crlf({"\"KestrelDeviceDefinitions x\"", "\"Dev\",\"Mixed\"", "  \"Pin\",0,0,0,\"input\"",
              "    \"Cfg\",4,1,2,3,4", "    \"PAM\",0,3,0", "  \"Pin\",1,0,0,\"old PWM\"",
              "    \"Cfg\",2,5,1,8", "    \"PAM\",0,4,0", "  \"Pin\",2,0,0,\"servo\"",
              "    \"Cfg\",1,70,48,64,1,1,1,1,64,0,64,0", "\"End\""});
    ASSERT_TRUE(r.load(text, "Mixed", 3));
    // The input keeps its old parameters (the items were passed over); the three-parameter
    // PWM ends at "PAM"; the servo's parameter 2 is not converted here.
    const auto& pins = r.config.Pins;
    EXPECT_EQ(std::tuple(pins[3].ConfigMode, pins[3].P(1), pins[3].DccCount, pins[4].P(3), pins[4].P(4),
                         pins[4].DccCount, pins[5].P(2), pins[5].P(11)),
              std::tuple(4, 9, 3, 8, 9, 4, 48, 0));
}

TEST(DeviceLoading, MissingDeviceNoSelectionAndBrokenBlocks)
{
    Rig r;
    EXPECT_FALSE(r.load(kTwoDevices, "Turntable", 0));
    EXPECT_EQ(r.dialogs.texts(), std::vector<std::string>{"No match found"});

    r.dialogs.clear();
    DeviceList empty;
    EXPECT_FALSE(CommandPAspPreLoad_Click(empty, r.config, r.dialogs));
    EXPECT_EQ(r.dialogs.texts(), std::vector<std::string>{"Select Devicename to load"});

    r.dialogs.clear();
    const std::string broken = crlf({"\"KestrelDeviceDefinitions\"", "\"Dev\",\"B\"",
                                     "  \"Pin\",0,0,0,\"kept\"", "    \"Asp\",14,\"x\""});
    EXPECT_TRUE(r.load(broken, "B", 2));
    EXPECT_EQ(r.dialogs.texts(),
              std::vector<std::string>{
                  "Error in device definitions file: Aspect index 14 out of range 0..12 at line 4, "
                  "item 2\r\nLoading stopped; what was placed before is kept."});
    EXPECT_EQ(r.config.Pins[2].Description, "kept");
}

TEST(DeviceList, ReplaceAppendAndLoadingFromEachEntrysOwnFile)
{
    ScratchDir dir("list");
    const std::string first = dir.file("first.def");
    const std::string second = dir.file("second.def");
    spit(first, kTwoDevices);
    // The second file has its own "Button" (a servo) and a "Crane".
    spit(second, crlf({"\"KestrelDeviceDefinitions Second set\"", "\"Dev\",\"Button\"",
                       "  \"Pin\",0,0,0,\"servo\"", "    \"Cfg\",1,1,2,3,4,5,6,7,8,9,10,11",
                       "\"Dev\",\"Crane\"", "  \"Pin\",0,0,0,\"hook\"", "\"End\""}));

    RecordingDialogs dialogs;
    DeviceList list;
    dialogs.fileNames = {first, second};
    CommandReloadDD_MouseDown(list, dialogs, 1, 0);
    CommandReloadDD_MouseDown(list, dialogs, 1, 1);
    EXPECT_EQ(std::tuple(dialogs.messages.size(), list.cboDevice, list.paths, list.lblDDVersion),
              std::tuple(0u, std::vector<std::string>{"Signal", "Button", "Button", "Crane"},
                         std::vector<std::string>{first, first, second, second}, "Test set + Second set"));

    Configuration config;
    list.selected = 1; // the first file's "Button"
    ASSERT_TRUE(CommandPAspPreLoad_Click(list, config, dialogs));
    EXPECT_EQ(config.Pins[0].ConfigMode, 4);
    list.selected = 2;
    ASSERT_TRUE(CommandPAspPreLoad_Click(list, config, dialogs));
    EXPECT_EQ(std::tuple(config.Pins[0].ConfigMode, config.Pins[0].P(11)), std::tuple(1, 11));

    // Plain Reload DD replaces the list; other buttons do nothing.
    dialogs.fileNames = {second, first};
    CommandReloadDD_MouseDown(list, dialogs, 1, 0);
    CommandReloadDD_MouseDown(list, dialogs, 2, 1);
    EXPECT_EQ(std::tuple(list.cboDevice, list.lblDDVersion, list.selected),
              std::tuple(std::vector<std::string>{"Button", "Crane"}, "Second set", 0));
}

TEST(DeviceList, LongCaptionsAndFilesThatCannotBeUsed)
{
    RecordingDialogs dialogs;
    DeviceList list;
    const std::string v1 = "Standard devices of the layout club";
    const std::string v2 = "Signals for the branch line";
    readDeviceListText(list, "\"KestrelDeviceDefinitions " + v1 + "\"\r\n\"End\"\r\n", "a", ListMode::Replace,
                       dialogs);
    readDeviceListText(list, "\"KestrelDeviceDefinitions " + v2 + "\"\r\n\"End\"\r\n", "b", ListMode::Append,
                       dialogs);
    const std::string joined = v1 + " + " + v2; // 65 characters, shown as the last 48 after ".."
    EXPECT_EQ(list.lblDDVersion, ".." + joined.substr(joined.size() - 48));

    // The header keyword alone gives an empty version text.
    readDeviceListText(list, "\"KestrelDeviceDefinitions\"\r\n\"Dev\",\"A\"\r\n\"End\"\r\n", "c",
                       ListMode::Replace, dialogs);
    EXPECT_EQ(list.lblDDVersion, "");

    EXPECT_EQ(readDeviceListText(list, "\"KestrelConfiguration 3100\"\r\n", "d", ListMode::Replace, dialogs),
              ListLoad::Invalid);

    dialogs.fileNames = {""};
    CommandReloadDD_MouseDown(list, dialogs, 1, 0);
    EXPECT_EQ(dialogs.texts(),
              (std::vector<std::string>{"Invalid definition file", "No Device Configuration file selected"}));
    EXPECT_EQ(list.cboDevice, std::vector<std::string>{"A"}); // kept by the invalid file and the cancel
}

TEST(DeviceList, StartUpFallsBackToTheDialog)
{
    ScratchDir dir("startup");
    RecordingDialogs dialogs;
    DeviceList list;
    dialogs.fileNames = {""};
    loadStandardDeviceList(list, dir.path.string(), dialogs);
    EXPECT_EQ(dialogs.texts(),
              (std::vector<std::string>{"Can not find Device Configuration file at standard location",
                                        "No Device Configuration available"}));
    EXPECT_TRUE(list.cboDevice.empty());

    dialogs.clear();
    dialogs.fileNames = {standardFile()};
    loadStandardDeviceList(list, dir.path.string(), dialogs);
    EXPECT_EQ(dialogs.texts(),
              std::vector<std::string>{"Can not find Device Configuration file at standard location"});

    dialogs.clear();
    DeviceList fromFolder;
    loadStandardDeviceList(fromFolder, std::filesystem::path(standardFile()).parent_path().string(), dialogs);
    EXPECT_EQ(std::tuple(dialogs.messages.size(), fromFolder.cboDevice, fromFolder.lblDDVersion),
              std::tuple(0u, list.cboDevice, "Kestrel standard devices 2026-11-21"));

    // An installed program finds it in ../share/kestrel-config/.
    std::filesystem::create_directories(dir.path / "bin");
    std::filesystem::create_directories(dir.path / "share" / "kestrel-config");
    std::filesystem::copy_file(standardFile(), dir.path / "share" / "kestrel-config" / "KestrelDevices.def");
    DeviceList installed;
    loadStandardDeviceList(installed, (dir.path / "bin").string(), dialogs);
    EXPECT_EQ(std::tuple(dialogs.messages.size(), installed.cboDevice), std::tuple(0u, list.cboDevice));
}

TEST(DeviceSaving, SavingFromAMemberWritesTheWholeDeviceFromItsHead)
{
    ScratchDir dir("save");
    Rig r;
    ASSERT_TRUE(r.load(kTwoDevices, "Signal", 31));
    r.config.Pins[31].ConfigMode = 1;
    r.config.Pins[31].ConfigParams = {64, 200, 64, 1, 2, 3, 4, 64, 0, 64, 0, 0};
    r.config.CurrentPin = 1; // a member
    r.dialogs.fileNames = {dir.file("mine.def")};
    ASSERT_TRUE(CommandSaveDevice_Click(r.config, r.dialogs));
    // The servo's parameter 2 is written in the current layout (200 AND 63).
    const std::string expected = crlf({"\"KestrelDeviceDefinitions Signal\""}) +
                                 signalDevice("    \"Cfg\",1,64,8,64,1,2,3,4,64,0,64,0") + "\"End\"\r\n";
    EXPECT_EQ(slurp(dir.file("mine.def")), expected);
    EXPECT_EQ(r.config.Pins[31].P(2), 8);

    // Read back, the saved device places the same pins.
    Rig again;
    ASSERT_TRUE(again.load(expected, "Signal", 31));
    for (int p : {31, 0, 1})
        EXPECT_EQ(again.config.Pins[p], r.config.Pins[p]) << p;
}

TEST(DeviceSaving, AReferralToAMemberIsNoDevice)
{
    Rig r;
    r.config.Pins[3].DeviceOffset = -1; // pin 3 points at 2
    r.config.Pins[2].DeviceOffset = -2; // and 2 itself at 0
    r.config.CurrentPin = 3;
    r.dialogs.fileNames = {"never used"};
    EXPECT_FALSE(CommandSaveDevice_Click(r.config, r.dialogs));
    EXPECT_EQ(r.dialogs.texts(), std::vector<std::string>{"Referral is not a device"});
    EXPECT_EQ(r.dialogs.fileNames.size(), 1u);
}

TEST(StandardDevices, EveryDeviceLoadsIntoSensibleSteps)
{
    std::string text, error;
    ASSERT_TRUE(readTextFile(standardFile(), text, error));
    RecordingDialogs dialogs;
    DeviceList list;
    ASSERT_EQ(readDeviceListText(list, text, standardFile(), ListMode::Replace, dialogs), ListLoad::Loaded);
    ASSERT_GE(list.cboDevice.size(), 8u);

    for (const std::string& name : list.cboDevice) {
        SCOPED_TRACE(name);
        Rig r;
        const int head = 29; // devices of more than three pins wrap around
        ASSERT_TRUE(r.load(text, name, head));
        EXPECT_TRUE(r.dialogs.messages.empty());
        EXPECT_EQ(r.config.Pins[head].DeviceDescription, name);
        EXPECT_GT(r.config.Pins[head].DccCount, 0);
        EXPECT_GT(r.config.Pins[head].InitAspect, 0);

        int aspects = 0;
        for (int p = 0; p < kPinCount; ++p) {
            const PinRecord& pin = r.config.Pins[p];
            if (pin.Description.empty())
                continue;
            EXPECT_EQ(p + pin.DeviceOffset, head); // address counts: the reader refuses too many
            if (pin.ConfigMode == 1) {
                EXPECT_EQ(pin.P(2) & 8, 8) << "servo parameter 2 in the current layout";
            }
            const LayoutSlots slots = layoutSlots(pin.AspectLayout);
            for (int a = 0; a < slots.aspects; ++a) {
                if (pin.Aspects[a].Description.empty())
                    continue;
                ++aspects;
                for (int s = 0; s < slots.steps; ++s) {
                    StepRecord step = pin.Aspects[a].Steps[s];
                    if (step.Instruction == 0)
                        continue;
                    const StepRecord stored = step;
                    EXPECT_FALSE(instructionInfo(step.Instruction).Name.empty()) << int(step.Instruction);
                    normaliseStep(step); // no fade where none is allowed, unused parameters 0
                    EXPECT_EQ(step, stored) << "pin " << p << " aspect " << a << " step " << s;
                    EXPECT_LE(step.Par2, 63);
                    EXPECT_LE(step.Par3, 3);
                    if (step.Instruction == 1) { // "Jump" stays inside the program
                        EXPECT_LT(step.Par1, slots.aspects);
                        EXPECT_LT(step.Par2, slots.steps);
                    }
                }
            }
            if (pin.InitAspect > 0) {
                EXPECT_FALSE(pin.Aspects[pin.InitAspect - 1].Description.empty());
            }
        }
        EXPECT_GE(aspects, 2);
    }
}
