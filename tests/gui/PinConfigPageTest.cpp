// The pin-configuration page bound to a session on the built-in simulated module.
#include "link/Clock.h"
#include "session/Session.h"
#include "ops/PinConfigTransfer.h"
#include "shell/BuiltInSim.h"
#include "shell/PinConfigPage.h"
#include "support/RecordingDialogs.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

using namespace kestrel;

namespace {
// A session on the demonstration module at bus address 0, and the page on it.
struct PinConfigRig {
    std::unique_ptr<SerialPort> port = makeBuiltInSimPort();
    SystemClock clock;
    test::RecordingDialogs dialogs;
    std::unique_ptr<Session> session;
    std::unique_ptr<PinConfigPage> page;

    PinConfigRig()
    {
        port->select("sim");
        port->open();
        session = std::make_unique<Session>(*port, clock, dialogs);
        page = std::make_unique<PinConfigPage>(*session);
        page->show();
    }

    PinRecord& pin(int p) { return session->config.pin(p); }

    static void type(QLineEdit* box, const char* text)
    {
        box->setText(text);
        emit box->editingFinished();
    }
};
} // namespace

TEST(PinConfigPage, ReadPinConfigOfTheServoShowsItsPage)
{
    PinConfigRig rig;
    PinConfigRig::type(rig.page->TextPCFGPin, "8");
    EXPECT_EQ(rig.session->config.CurrentPin, 8);
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 0); // nothing read yet

    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    EXPECT_EQ(rig.pin(8).ConfigMode, kModeServo);
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 1);
    // The demonstration servo: initial position -25, range 1 with auto suspend, midpoint 0,
    // 1/mass 60, damping 40, max speed 20, max acceleration 10, no bounce.
    EXPECT_EQ(rig.page->TextSrvInitPos->text(), "-25");
    EXPECT_TRUE(rig.page->OptionServoRange[1]->isChecked());
    EXPECT_TRUE(rig.page->ChkSrvAutoSuspend->isChecked());
    EXPECT_FALSE(rig.page->ChkSrvSuspended->isChecked());
    EXPECT_EQ(rig.page->TextMidpoint->text(), "0");
    EXPECT_EQ(rig.page->TextSrvAntiMass->text(), "60");
    EXPECT_EQ(rig.page->TextSrvFriction->text(), "40");
    EXPECT_EQ(rig.page->TextSrvMaxSpd->text(), "20");
    EXPECT_EQ(rig.page->TextSrvMaxAccel->text(), "10");
    EXPECT_EQ(rig.page->TextBounceDown->text(), "0");
    EXPECT_EQ(rig.page->TextBounceUp->text(), "0");
    EXPECT_TRUE(rig.page->LabelSrvHWCWarn->isHidden()); // the demonstration's group 1 has no driver set
}

TEST(PinConfigPage, ClampedEditsAreWrittenToFlashAndReadBack)
{
    PinConfigRig rig;
    PinConfigRig::type(rig.page->TextPCFGPin, "8");
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);

    PinConfigRig::type(rig.page->TextSrvMaxSpd, "200");
    EXPECT_EQ(rig.page->TextSrvMaxSpd->text(), "127");
    EXPECT_EQ(rig.pin(8).P(6), 127);
    PinConfigRig::type(rig.page->TextBounceUp, "5"); // -63..0, stored + 64
    EXPECT_EQ(rig.page->TextBounceUp->text(), "0");
    EXPECT_EQ(rig.pin(8).P(10), 64);
    PinConfigRig::type(rig.page->TextSrvInitPos, "-80");
    EXPECT_EQ(rig.page->TextSrvInitPos->text(), "-64");
    EXPECT_EQ(rig.pin(8).P(1), 0);
    // A box typed but not left is taken by the button itself.
    rig.page->TextMidpoint->setText("12");
    rig.page->OptionServoRange[3]->click();
    rig.page->ChkSrvSuspended->click();
    const std::uint8_t p2 = rig.pin(8).P(2);
    EXPECT_EQ(p2 & 7, 3);
    EXPECT_NE(p2 & 32, 0);

    QTest::mouseClick(rig.page->CommandPCFGSetParam[1], Qt::LeftButton);
    EXPECT_EQ(rig.pin(8).P(3), 64 + 12);
    const PinRecord written = rig.pin(8);

    // Forget the pin and read it back from flash.
    rig.pin(8) = PinRecord{};
    rig.page->refresh();
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 0);
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    EXPECT_EQ(rig.pin(8).ConfigMode, written.ConfigMode);
    EXPECT_EQ(rig.pin(8).ConfigParams, written.ConfigParams);
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 1);
    EXPECT_EQ(rig.page->TextSrvMaxSpd->text(), "127");
    EXPECT_EQ(rig.page->TextSrvInitPos->text(), "-64");
    EXPECT_EQ(rig.page->TextMidpoint->text(), "12");
    EXPECT_TRUE(rig.page->OptionServoRange[3]->isChecked());
    EXPECT_TRUE(rig.page->ChkSrvSuspended->isChecked());
}

TEST(PinConfigPage, LivePositionIsClampedSentAndReadBackAsTheActivePosition)
{
    PinConfigRig rig;
    PinConfigRig::type(rig.page->TextPCFGPin, "8");
    // The module's active parameters start empty: read flash, then set them active.
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    ASSERT_EQ(rig.page->SSTabPCFG->currentIndex(), 1);
    QTest::mouseClick(rig.page->CommandPCFGSetParam[0], Qt::LeftButton);

    rig.page->TextPosition->setText("-70");
    QTest::mouseClick(rig.page->CommandSrvLevel, Qt::LeftButton);
    EXPECT_EQ(rig.page->TextPosition->text(), "-64");
    EXPECT_EQ(rig.page->SliderServo->value(), -64);
    EXPECT_EQ(rig.pin(8).OutputValue, 0);

    // Jump does not change the record; the module's active position does change.
    rig.page->TextPosition->setText("30");
    QTest::mouseClick(rig.page->CommandStopSrv, Qt::LeftButton);
    EXPECT_EQ(rig.pin(8).OutputValue, 0);
    QTest::mouseClick(rig.page->CommandPCFGGetParam[0], Qt::LeftButton);
    EXPECT_EQ(rig.pin(8).OutputValue, 64 + 30);
    EXPECT_EQ(rig.page->TextPosition->text(), "30");
    EXPECT_EQ(rig.page->SliderServo->value(), 30);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
}

TEST(PinConfigPage, PwmAndInputPagesWithTheHardwareWarning)
{
    PinConfigRig rig;
    PinConfigRig::type(rig.page->TextPCFGPin, "12");
    QTest::mouseClick(rig.page->CommandPCFGGetParam[1], Qt::LeftButton);
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 2);
    EXPECT_FALSE(rig.page->CheckPWMInverted->isChecked());
    rig.page->CheckPWMInverted->click();
    EXPECT_EQ(rig.pin(12).ConfigMode, 3);

    // Pin 5 is not configured; choosing the input page makes it an input.
    rig.session->general.ChkGenHWCSource[0] = 1;
    PinConfigRig::type(rig.page->TextPCFGPin, "5");
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 0);
    EXPECT_EQ(rig.page->LabelPCFGClear->text(), "Pin is not configured");
    rig.page->SSTabPCFG->setCurrentIndex(3);
    EXPECT_EQ(rig.pin(5).ConfigMode, kModeInput);
    EXPECT_FALSE(rig.page->LabelInpHWCWarn->isHidden());
    EXPECT_EQ(rig.page->LabelInpHWCWarn->text(), "Warning: Hardware Configuration Mismatch");
    PinConfigRig::type(rig.page->TextInputDelay[1], "40");
    EXPECT_EQ(rig.page->TextInputDelay[1]->text(), "31");
    EXPECT_EQ(rig.pin(5).P(4), 31);
}

TEST(PinConfigPage, AnUnknownModeIsReportedAndLeavesThePage)
{
    PinConfigRig rig;
    rig.pin(20).ConfigMode = kModeServo;
    rig.session->config.CurrentPin = 20;
    rig.page->refresh();
    ASSERT_EQ(rig.page->SSTabPCFG->currentIndex(), 1);
    rig.pin(21).ConfigMode = 7;
    rig.session->config.NumberingBase = 1;
    PinConfigRig::type(rig.page->TextPCFGPin, "22"); // pin 21 shown from 1
    EXPECT_EQ(rig.session->config.CurrentPin, 21);
    ASSERT_EQ(rig.dialogs.messages.size(), 1u);
    EXPECT_EQ(rig.dialogs.messages[0].text, "Unknown configuration: 7");
    EXPECT_EQ(rig.page->SSTabPCFG->currentIndex(), 1);
    EXPECT_EQ(rig.pin(21).ConfigMode, 7);
}

TEST(PinConfigPage, ButtonCaptionsAndTips)
{
    PinConfigRig rig;
    EXPECT_EQ(rig.page->CommandPCFGGetParam[0]->text(), "Get Pin Config");
    EXPECT_EQ(rig.page->CommandPCFGGetParam[1]->text(), "Read Pin Config");
    EXPECT_EQ(rig.page->CommandPCFGSetParam[0]->toolTip(), "Sets Active Servo parameters (not permanent)");
    EXPECT_EQ(rig.page->CommandPCFGSetParam[1]->toolTip(), "Writes Servo Parameters to Flash memory");
    EXPECT_EQ(rig.page->CommandStopSrv->toolTip(), "Jump to target position immediately, override dynamic parameters");
    EXPECT_EQ(rig.page->CheckPWMSlow->toolTip(), rig.page->CheckSrvDynamic->toolTip());
    EXPECT_NE(rig.page->findChild<QLineEdit*>("TextInputDelay_1"), nullptr);
    EXPECT_NE(rig.page->findChild<QPushButton*>("CommandPCFGSetParam_1"), nullptr);
}
