#include "pins/PinConfig.h"
#include "ops/LiveOutput.h"
#include "ops/PinConfigTransfer.h"
#include "pins/PinConfigView.h"
#include "pins/PinEdits.h"
#include "support/ScriptedModule.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(ReadPinConfig, ActiveReplyPutsSecondByteIntoOutputValueFlashIntoP1)
{
    for (int source : {0, 1}) {
        ScriptedModule rig;
        rig.session.link.settings.CheckKestrelBD = false; // a read switches it on
        rig.answer({source == 0 ? 'Q' : 'q', 7, 1, 70, 11, 64});
        ASSERT_TRUE(ReadPinConfig(rig.session, source, 7));
        const PinRecord& pin = rig.session.config.Pins[7];
        // The mode changed to servo: both positions start at 64 before the bytes arrive.
        EXPECT_EQ(std::tuple(rig.session.link.settings.CheckKestrelBD, rig.take()[0], pin.ConfigMode,
                             pin.OutputValue, pin.P(1), pin.P(2), pin.P(3)),
                  std::tuple(true, Data{source == 0 ? 81 : 113, 7}, 1, source == 0 ? 70 : 64,
                             source == 0 ? 64 : 70, 11, 64));
    }
}

TEST(ReadPinConfig, ModeChangeClearsAndRepliesAreNormalised)
{
    PinRecord pin;
    pin.ConfigMode = 2;
    pin.ConfigParams.fill(9);
    storePinConfigReply(pin, 1, {4, 1, 2, 3}, 6); // input: mode and three bytes
    EXPECT_EQ(std::tuple(pin.ConfigMode, pin.ConfigParams),
              std::tuple(4, std::array<std::uint8_t, 12>{1, 2, 3}));

    storePinConfigReply(pin, 1, {2, 10, 1, 5, 20}, 7); // PWM with five bytes only
    EXPECT_EQ(std::tuple(pin.P(4), pin.P(5)), std::tuple(0, 31));
    storePinConfigReply(pin, 1, {2, 10, 1, 5, 20, 25}, 8);
    EXPECT_EQ(std::tuple(pin.P(4), pin.P(5)), std::tuple(20, 25));

    storePinConfigReply(pin, 1, {1, 64, 48}, 5); // older servo format: range 3 in the high nibble
    EXPECT_EQ(pin.P(2), 43);
    storePinConfigReply(pin, 1, {1, 64, 56}, 5); // bit 3 set: already the current layout
    EXPECT_EQ(pin.P(2), 56);
}

TEST(ReadPinConfig, WrongPinOrCommandIsNoValidResponse)
{
    ScriptedModule rig;
    rig.answer({{'q', 8, 1, 64}, {'r', 7, 1, 64}, {'q', 7}}); // the last without configuration bytes
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(ReadPinConfig(rig.session, 1, 7));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>(3, "No valid response"));
}

TEST(SendPinConfig, EveryModeWithItsSizeAndValue)
{
    ScriptedModule rig;
    rig.session.link.settings.CheckKestrelBD = false;
    PinRecord& pin = rig.session.config.Pins[2];
    pin.ConfigMode = 1;
    pin.OutputValue = 80;
    pin.ConfigParams = {70, 0xCB, 60, 4, 5, 6, 7, 68, 9, 50, 11, 99};
    ASSERT_TRUE(SendPinConfig(rig.session, 1, 2));
    EXPECT_EQ(pin.P(2), 0x0B); // bits 6 and 7 cleared in the model too
    ASSERT_TRUE(SendPinConfig(rig.session, 0, 2));
    pin.ConfigMode = 3;
    SendPinConfig(rig.session, 0, 2);
    pin.ConfigMode = 5;
    SendPinConfig(rig.session, 1, 2);
    pin.ConfigMode = 7;
    SendPinConfig(rig.session, 0, 2);

    // An unknown mode 7 unconfigures the pin.
    EXPECT_EQ(rig.take(), (std::vector<Data>{{'a', 2, 1, 70, 0x0B, 60, 4, 5, 6, 7, 68, 9, 50, 11},
                                             {'A', 2, 1, 80, 0x0B, 60, 4, 5, 6, 7, 68, 9, 50, 11},
                                             {'A', 2, 3, 80, 0x0B, 60, 4, 5},
                                             {'a', 2, 5, 70, 0x0B, 60, 4},
                                             {'A', 2, 0}}));
}

TEST(LiveOutput, ServoAndPwmSubCommands)
{
    ScriptedModule rig;
    rig.session.link.settings.CheckKestrelBD = false;
    rig.session.config.CurrentPin = 12;
    PinRecord& pin = rig.session.config.Pins[12];
    sendServoLevel(rig.session, -10, true);
    EXPECT_EQ(pin.OutputValue, 54);
    sendServoLevel(rig.session, 5, false);
    sendServoJump(rig.session, -64);
    EXPECT_EQ(pin.OutputValue, 69); // the jump leaves the model alone
    sendPwmLevel(rig.session, 20, true);
    sendPwmJump(rig.session, 31);
    EXPECT_EQ(pin.OutputValue, 20);
    EXPECT_EQ(rig.take(),
              (std::vector<Data>{
                  {0, 55, 12, 54}, {0, 39, 12, 69}, {0, 39, 12, 0}, {0, 54, 12, 20}, {0, 38, 12, 31}}));
}

TEST(PinEdits, BoxesClampToTheirRangesAndStoreTheirEncoding)
{
    // The box, what is typed, what it then shows, what it stores.
    const std::tuple<PinField, const char*, const char*, int> cases[] = {
        {PinField::TextSrvMaxSpd, "0", "1", 1},      {PinField::TextSrvMaxAccel, "200", "127", 127},
        {PinField::TextBounceUp, "5", "0", 64},      {PinField::TextBounceUp, "-70", "-63", 1},
        {PinField::TextBounceDown, "-3", "0", 64},   {PinField::TextBounceDown, "63", "63", 127},
        {PinField::TextMidpoint, "-70", "-64", 0},   {PinField::TextMidpoint, "12ab", "12ab", 76},
        {PinField::TextSrvInitPos, "63", "63", 127}, {PinField::TextPosition, "-1", "-1", 63},
        {PinField::TextPWMLevel, "40", "31", 31},    {PinField::TextPWMAccel, "-5", "0", 0},
        {PinField::TextPWMOnLevel, "32", "31", 31},  {PinField::TextInputDelay1, "99", "31", 31},
    };
    for (const auto& [field, typed, shown, stored] : cases) {
        PinRecord pin;
        const CommittedField out = commitPinField(pin, field, typed);
        EXPECT_EQ(std::tuple(out.text, out.stored), std::tuple(shown, stored)) << typed;
        const PinFieldRule rule = pinFieldRule(field);
        EXPECT_EQ(rule.byte == 0 ? pin.OutputValue : pin.P(rule.byte), stored);
    }

    PinRecord pin;
    std::map<PinField, std::string> boxes{{PinField::TextPWMAccel, "300"}, {PinField::TextPWMOnLevel, "99"}};
    EXPECT_FALSE(CommitPinEdits(pin, ModePage::Pwm, boxes)); // not a PWM pin: nothing taken
    pin.ConfigMode = modeByte(PinMode::PwmInverted);
    CommitPinEdits(pin, ModePage::Pwm, boxes); // the PWM page commits only its acceleration box
    EXPECT_EQ(std::tuple(boxes[PinField::TextPWMAccel], boxes[PinField::TextPWMOnLevel], pin.P(3), pin.P(5)),
              std::tuple("127", "99", 127, 0));
}

TEST(ShowPinConfig, PagesControlsAndHardwareWarning)
{
    Configuration config;
    GeneralSettings general;
    config.CurrentPin = 9;
    PinRecord& pin = config.Pins[9];
    pin.ConfigMode = 1;
    pin.OutputValue = 60;
    pin.ConfigParams = {64, 8 + 16 + 64 + 6, 70, 0, 0, 0, 0, 64, 0, 50, 0, 0};
    PinConfigView v = ShowPinConfig(config, general);
    // Servo range 6 is above 4: shown as 0.
    EXPECT_EQ(std::tuple(v.SSTabPCFG, v.TextPosition, v.OptionServoRange, v.ChkSrvAutoSuspend,
                         v.ChkSrvSuspended, v.ChkSrvInitialized, v.TextMidpoint, v.TextBounceUp,
                         v.LabelSrvHWCWarn),
              std::tuple(ModePage::Servo, -4, 0, true, false, true, 6, -14, false));
    general.ChkGenHWCSource[1] = 1; // pins 8..15
    EXPECT_TRUE(ShowPinConfig(config, general).LabelSrvHWCWarn);

    pin.ConfigMode = 3;
    pin.P(2) = 2;
    v = ShowPinConfig(config, general);
    EXPECT_EQ(std::tuple(v.SSTabPCFG, v.CheckPWMInverted, v.OptionPWMDriveMode, v.OptionPWMAccelMode),
              std::tuple(ModePage::Pwm, true, 0, 1));

    pin.ConfigMode = 4;
    v = ShowPinConfig(config, general);
    EXPECT_EQ(std::tuple(v.SSTabPCFG, v.CheckInputInvert, v.TextInputDelay),
              std::tuple(ModePage::Input, false, std::array<int, 2>{70, 0}));

    pin.ConfigMode = 9;
    v = ShowPinConfig(config, general);
    EXPECT_EQ(std::tuple(v.SSTabPCFG, v.message), std::tuple(ModePage::Unknown, "Unknown configuration: 9"));
}
