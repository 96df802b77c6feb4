// Whole-module jobs started from their buttons run on the timer behind the busy notice.
#include "shell/EventPage.h"
#include "shell/KestrelConfig.h"
#include "support/RecordingDialogs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QTabWidget>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace kestrel;

namespace {
void openSim(KestrelConfig& w)
{
    w.ComboPort->setCurrentIndex(w.ComboPort->findText("sim"));
    w.ComboPort_Click();
}

// Waits (processing events) until the busy notice is hidden again.
bool waitIdle(KestrelConfig& w)
{
    return QTest::qWaitFor([&] { return !w.LabelAction->isVisible() && w.jobs.PendingJob.empty(); }, 20000);
}
} // namespace

TEST(MainWindowJobs, ReadAllThenVerifyAllReportsOk)
{
    test::RecordingDialogs dialogs;
    KestrelConfig window(nullptr, &dialogs);
    window.show();
    openSim(window);

    QTest::mouseClick(window.CommandReadAll, Qt::LeftButton);
    EXPECT_TRUE(window.LabelAction->isVisible());
    EXPECT_EQ(window.LabelAction->text(), "Working ... Please WAIT");
    EXPECT_EQ(window.jobs.PendingJob, "ReadAll");
    ASSERT_TRUE(waitIdle(window));
    EXPECT_EQ(window.LabelGenVersionString->text(), "1.2.3.4");
    EXPECT_TRUE(dialogs.messages.empty()) << dialogs.messages[0].text;

    QTest::mouseClick(window.CommandVerifyAll, Qt::LeftButton);
    ASSERT_TRUE(waitIdle(window));
    ASSERT_NE(window.txtVerification, nullptr);
    EXPECT_TRUE(window.frmKestrelVerification->isVisible());
    const QString report = window.txtVerification->toPlainText();
    EXPECT_TRUE(report.startsWith("Start General Settings Verification")) << report.toStdString();
    EXPECT_TRUE(report.endsWith("Verify OK")) << report.toStdString();
}

TEST(MainWindowJobs, WithoutAPortTheJobFailsWithOneMessage)
{
    test::RecordingDialogs dialogs;
    KestrelConfig window(nullptr, &dialogs);
    window.show();
    QTest::mouseClick(window.CommandWriteAll, Qt::LeftButton);
    ASSERT_TRUE(waitIdle(window));
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].text, "Select communications port");
}

TEST(MainWindowDevices, StandardDevicesAreListedAndLoadOntoTheChosenPin)
{
    test::RecordingDialogs dialogs;
    KestrelConfig window(nullptr, &dialogs);
    window.show();
    EXPECT_TRUE(dialogs.messages.empty()); // KestrelDevices.def lies beside the program
    ASSERT_GE(window.cboDevice->count(), 5);
    EXPECT_EQ(window.lblDDVersion->text(), "Kestrel standard devices 2026-11-21");

    // A three-pin signal placed on pin 31 wraps round to pins 0 and 1.
    window.TextPAspOutput->setText("31");
    window.TextPAspOutput_Click();
    window.cboDevice->setCurrentIndex(window.cboDevice->findText("Colour light signal, 3 aspects"));
    QTest::mouseClick(window.CommandPAspPreLoad, Qt::LeftButton);
    const auto& pins = window.session().config.Pins;
    EXPECT_EQ(pins[31].DeviceOffset, 0);
    EXPECT_EQ(pins[0].DeviceOffset, 31);
    EXPECT_EQ(pins[1].DeviceOffset, 30);
    EXPECT_EQ(pins[31].DeviceDescription, "Colour light signal, 3 aspects");
    EXPECT_EQ(window.TextDeviceDescription->text(), "Colour light signal, 3 aspects");

    window.TextPAspOutput->setText("1");
    window.TextPAspOutput_Click();
    EXPECT_EQ(window.TextDevicePin->text(), "31");
    EXPECT_TRUE(window.TextDeviceDescription->isReadOnly()); // a member: the name is its head's

    // One pin selection for the window: the pin chosen on the Event Control page is the one
    // the device goes onto, and its head's name can be typed.
    window.tabs->setCurrentWidget(window.eventPage);
    window.eventPage->TextECpin->setText("7");
    emit window.eventPage->TextECpin->editingFinished();
    window.tabs->setCurrentIndex(window.tabs->count() - 1);
    EXPECT_EQ(window.TextPAspOutput->text(), "7");
    QTest::mouseClick(window.CommandPAspPreLoad, Qt::LeftButton);
    EXPECT_EQ(pins[7].DeviceDescription, "Colour light signal, 3 aspects");
    ASSERT_FALSE(window.TextDeviceDescription->isReadOnly());
    window.TextDeviceDescription->selectAll();
    QTest::keyClicks(window.TextDeviceDescription, "Home");
    EXPECT_EQ(pins[7].DeviceDescription, "Home");

    // Shift alone appends the chosen definitions; Shift with Ctrl replaces.
    EXPECT_EQ(window.CommandReloadDD->toolTip(), "Reload DD to load new file, Shift + Reload DD to append");
    const int count = window.cboDevice->count();
    const std::string standard = QCoreApplication::applicationDirPath().toStdString() + "/KestrelDevices.def";
    dialogs.fileNames = {standard, standard};
    QTest::mousePress(window.CommandReloadDD, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(window.cboDevice->count(), 2 * count);
    QTest::mousePress(window.CommandReloadDD, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(window.cboDevice->count(), count);
}
