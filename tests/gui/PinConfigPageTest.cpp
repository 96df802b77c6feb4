// The pin-configuration page on the built-in simulated module.
#include "window/PinConfigPage.h"
#include "gui/GuiRig.h"
#include "ops/PinConfigTransfer.h"
#include "pins/PinConfig.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QTabBar>

using namespace kestrel;
using namespace kestrel::test;

using PinConfigRig = PageRig<PinConfigPage>;

TEST(PinConfigPage, TheServoIsReadClampedWrittenToFlashReadBackAndMovedLive)
{
    PinConfigRig rig;
    enter(rig.page->TextPCFGPin, "8");
    const PinConfigPage& pg = *rig.page;
    EXPECT_EQ(std::tuple(rig.session->config.CurrentPin, pg.SSTabPCFG->currentIndex()), std::tuple(8, 0));
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    EXPECT_TRUE(hasMode(rig.pin(8), PinMode::Servo));
    // The demonstration servo; its group 1 has no driver set: no warning.
    EXPECT_EQ(std::tuple(pg.SSTabPCFG->currentIndex(), pg.TextSrvInitPos->isVisible(),
                         pg.TextSrvInitPos->text(), pg.OptionServoRange[1]->isChecked(),
                         pg.ChkSrvAutoSuspend->isChecked(), pg.ChkSrvSuspended->isChecked(),
                         pg.TextMidpoint->text(), pg.TextSrvAntiMass->text(), pg.TextSrvFriction->text(),
                         pg.TextSrvMaxSpd->text(), pg.TextSrvMaxAccel->text(), pg.TextBounceDown->text(),
                         pg.TextBounceUp->text(), pg.LabelSrvHWCWarn->isHidden()),
              std::tuple(1, true, "-25", true, true, false, "0", "60", "40", "20", "10", "0", "0", true));

    // Clamped as typed; bounce -63..0 and the position are stored + 64.
    enter(rig.page->TextSrvMaxSpd, "200");
    enter(rig.page->TextBounceUp, "5");
    enter(rig.page->TextSrvInitPos, "-80");
    EXPECT_EQ(std::tuple(pg.TextSrvMaxSpd->text(), pg.TextBounceUp->text(), pg.TextSrvInitPos->text(),
                         rig.pin(8).P(6), rig.pin(8).P(10), rig.pin(8).P(1)),
              std::tuple("127", "0", "-64", 127, 64, 0));
    // A box typed but not left is taken by the button itself.
    rig.page->TextMidpoint->setText("12");
    rig.page->OptionServoRange[3]->click();
    rig.page->ChkSrvSuspended->click();
    EXPECT_EQ(rig.pin(8).P(2) & (32 + 7), 32 + 3);

    QTest::mouseClick(rig.page->CommandPCFGSetParam[1], Qt::LeftButton);
    EXPECT_EQ(rig.pin(8).P(3), 64 + 12);
    const PinRecord written = rig.pin(8);

    // Forget the pin and read it back from flash.
    rig.pin(8) = PinRecord{};
    rig.page->refresh();
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 0);
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    EXPECT_EQ(std::tuple(rig.pin(8).ConfigMode, rig.pin(8).ConfigParams),
              std::tuple(written.ConfigMode, written.ConfigParams));
    EXPECT_EQ(std::tuple(pg.SSTabPCFG->currentIndex(), pg.TextSrvMaxSpd->text(), pg.TextSrvInitPos->text(),
                         pg.TextMidpoint->text(), pg.OptionServoRange[3]->isChecked(),
                         pg.ChkSrvSuspended->isChecked()),
              std::tuple(1, "127", "-64", "12", true, true));

    // The active parameters start empty: set them, then a live position is clamped and sent.
    QTest::mouseClick(rig.page->CommandPCFGSetParam[0], Qt::LeftButton);
    rig.page->TextPosition->setText("-70");
    QTest::mouseClick(rig.page->CommandSrvLevel, Qt::LeftButton);
    EXPECT_EQ(std::tuple(pg.TextPosition->text(), pg.SliderServo->value(), rig.pin(8).OutputValue),
              std::tuple("-64", -64, 0));

    // Jump does not change the record; the module's active position does change.
    rig.page->TextPosition->setText("30");
    QTest::mouseClick(rig.page->CommandStopSrv, Qt::LeftButton);
    EXPECT_EQ(rig.pin(8).OutputValue, 0);
    QTest::mouseClick(rig.page->CommandPCFGGetParam[0], Qt::LeftButton);
    EXPECT_EQ(std::tuple(rig.pin(8).OutputValue, pg.TextPosition->text(), pg.SliderServo->value()),
              std::tuple(64 + 30, "30", 30));
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
}

TEST(PinConfigPage, PwmAndInputPagesWithTheHardwareWarning)
{
    PinConfigRig rig;
    enter(rig.page->TextPCFGPin, "12");
    const PinConfigPage& pg = *rig.page;
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    EXPECT_EQ(std::tuple(pg.SSTabPCFG->currentIndex(), pg.CheckPWMInverted->isChecked()),
              std::tuple(2, false));
    rig.page->CheckPWMInverted->click();
    EXPECT_EQ(rig.pin(12).ConfigMode, 3);

    // Picking another mode's page by hand asks first: Cancel keeps the pin and its page.
    const PinRecord pwm = rig.pin(12);
    rig.dialogs.answers = {Answer::Cancel, Answer::Ok};
    QTabBar* modes = rig.page->SSTabPCFG->tabBar();
    QTest::mouseClick(modes, Qt::LeftButton, {}, modes->tabRect(1).center());
    EXPECT_EQ(std::tuple(rig.pin(12), rig.page->SSTabPCFG->currentIndex()), std::tuple(pwm, 2));
    EXPECT_EQ(rig.dialogs.questions.back().text,
              "Pin 12 becomes Servo: its PWM parameters are replaced by cleared "
              "ones.\r\nChange the pin's mode?");
    QTest::mouseClick(modes, Qt::LeftButton, {}, modes->tabRect(1).center());
    EXPECT_EQ(std::tuple(int(rig.pin(12).ConfigMode), rig.page->SSTabPCFG->currentIndex()),
              std::tuple(int(PinMode::Servo), 1));

    // Pin 5 is not configured; choosing the input page makes it an input.
    rig.session->general.ChkGenHWCSource[0] = 1;
    enter(rig.page->TextPCFGPin, "5");
    EXPECT_EQ(std::tuple(pg.SSTabPCFG->currentIndex(), pg.LabelPCFGClear->text()),
              std::tuple(0, "Pin is not configured"));
    rig.page->SSTabPCFG->setCurrentIndex(3);
    enter(rig.page->TextInputDelay[1], "40");
    EXPECT_EQ(std::tuple(int(rig.pin(5).ConfigMode), pg.LabelInpHWCWarn->isHidden(),
                         pg.LabelInpHWCWarn->text(), pg.TextInputDelay[1]->text(), rig.pin(5).P(4)),
              std::tuple(int(PinMode::Input), false, "Warning: Hardware Configuration Mismatch", "31", 31));
}

TEST(PinConfigPage, AnUnknownModeIsReportedAndLeavesThePage)
{
    PinConfigRig rig;
    rig.pin(20).ConfigMode = modeByte(PinMode::Servo);
    rig.session->config.CurrentPin = 20;
    rig.page->refresh();
    ASSERT_EQ(rig.page->SSTabPCFG->currentIndex(), 1);
    rig.pin(21).ConfigMode = 7;
    rig.session->config.NumberingBase = 1;
    enter(rig.page->TextPCFGPin, "22"); // pin 21 shown from 1
    EXPECT_EQ(std::tuple(rig.session->config.CurrentPin, rig.dialogs.texts(),
                         rig.page->SSTabPCFG->currentIndex(), rig.pin(21).ConfigMode),
              std::tuple(21, std::vector<std::string>{"Unknown configuration: 7"}, 1, 7));
    rig.page->refresh(); // shown again (a change of tab): not told again; shown anew it is
    EXPECT_EQ(rig.dialogs.texts().size(), 1u);
    enter(rig.page->TextPCFGPin, "1");
    enter(rig.page->TextPCFGPin, "22");
    EXPECT_EQ(rig.dialogs.texts().size(), 2u);
}
