// The Event Control page bound to a session on the built-in simulated module.
#include "link/Clock.h"
#include "forms/EventControlForm.h"
#include "session/Session.h"
#include "shell/BuiltInSim.h"
#include "shell/EventPage.h"
#include "support/RecordingDialogs.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace kestrel;

namespace {
// A session on the demonstration module at bus address 0, and the page on it.
struct EventPageRig {
    std::unique_ptr<SerialPort> port = makeBuiltInSimPort();
    SystemClock clock;
    test::RecordingDialogs dialogs;
    std::unique_ptr<Session> session;
    std::vector<std::string> jobs;
    std::unique_ptr<EventPage> page;

    EventPageRig()
    {
        port->select("sim");
        port->open();
        session = std::make_unique<Session>(*port, clock, dialogs);
        page = std::make_unique<EventPage>(*session, [this](JobName job) { jobs.emplace_back(job.text()); });
        page->show();
    }

    void showPin(const char* text)
    {
        page->TextECpin->setText(text);
        emit page->TextECpin->editingFinished();
    }
};
} // namespace

TEST(EventPage, ReadOfOnePinShowsTheModulesEntries)
{
    EventPageRig rig;
    rig.showPin("8");
    // Nothing read yet: the program's own table is all zeros.
    EXPECT_EQ(rig.page->TextECon[1]->text(), "0");

    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    // The demonstration module: Event-On input 2 runs action 1, Event-Off input 2 action 0,
    // the other inputs nothing.
    const char* on[4] = {"-1", "1", "-1", "-1"};
    const char* off[4] = {"-1", "0", "-1", "-1"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(rig.page->TextECon[i]->text(), on[i]) << i;
        EXPECT_EQ(rig.page->TextECoff[i]->text(), off[i]) << i;
    }
    EXPECT_EQ(rig.page->UpDownECon[1]->value(), 1);
    EXPECT_EQ(rig.session->config.events(8).OnEvent[1], 1);
    EXPECT_EQ(rig.session->config.events(8).OffEvent[0], -1);

    // Another pin shows its own entries, the spinner following the box.
    rig.showPin("12");
    EXPECT_EQ(rig.page->UpDownECpin->value(), 12);
    EXPECT_EQ(rig.page->TextECon[0]->text(), "0"); // not read yet
    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_EQ(rig.page->TextECon[0]->text(), "1");
    EXPECT_EQ(rig.page->TextECoff[0]->text(), "0");
    EXPECT_EQ(rig.page->TextECon[1]->text(), "-1");
}

TEST(EventPage, PinBoxIsClampedAndFollowsTheNumberingBase)
{
    EventPageRig rig;
    rig.session->config.NumberingBase = 1;
    rig.page->refresh();
    EXPECT_EQ(rig.page->TextECpin->text(), "1");
    EXPECT_EQ(rig.page->UpDownECpin->minimum(), 1);
    EXPECT_EQ(rig.page->UpDownECpin->maximum(), 32);

    rig.showPin("40");
    EXPECT_EQ(rig.page->TextECpin->text(), "32");
    EXPECT_EQ(shownEventPin(*rig.session), 31);
}

TEST(EventPage, AnEntryAboveTheRangeIsClampedAndStored)
{
    EventPageRig rig;
    rig.showPin("5");
    rig.page->TextECoff[2]->setText("15");
    emit rig.page->TextECoff[2]->editingFinished();
    EXPECT_EQ(rig.page->TextECoff[2]->text(), "11");
    EXPECT_EQ(rig.page->UpDownECoff[2]->value(), 11);
    EXPECT_EQ(rig.session->config.events(5).OffEvent[2], 11);

    rig.page->TextECon[3]->setText("-4");
    emit rig.page->TextECon[3]->editingFinished();
    EXPECT_EQ(rig.page->TextECon[3]->text(), "-1");
    EXPECT_EQ(rig.session->config.events(5).OnEvent[3], -1);

    // Written to the module and read back, the entries survive (-1 as "none").
    QTest::mouseClick(rig.page->CommandECWriteSingle, Qt::LeftButton);
    rig.session->config.events(5) = EventRecord{};
    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_EQ(rig.page->TextECoff[2]->text(), "11");
    EXPECT_EQ(rig.page->TextECon[3]->text(), "-1");
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
}

TEST(EventPage, CopyToAllPutsTheShownEntriesIntoEveryPin)
{
    EventPageRig rig;
    rig.showPin("3");
    rig.page->UpDownECon[0]->setValue(7); // the spinner writes the box and stores it
    EXPECT_EQ(rig.page->TextECon[0]->text(), "7");
    rig.page->TextECoff[3]->setText("4");
    QTest::mouseClick(rig.page->CommandECcopy, Qt::LeftButton);
    for (int p = 0; p < kPinCount; ++p) {
        EXPECT_EQ(rig.session->config.events(p).OnEvent[0], 7) << p;
        EXPECT_EQ(rig.session->config.events(p).OffEvent[3], 4) << p;
    }
}

TEST(EventPage, EnableMapReadShowsTheBoxesAndWriteSendsThem)
{
    EventPageRig rig;
    // Every box starts checked; uncheck two and write the maps.
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(rig.page->CheckInitEE[i]->isChecked()) << i;
    rig.page->CheckInitEE[1]->click();
    rig.page->CheckInitEE[6]->click();
    EXPECT_EQ(rig.session->general.CheckInitEE[1], 0);
    EXPECT_EQ(rig.session->general.CheckInitEE[6], 0);
    QTest::mouseClick(rig.page->CommandECInitWrite, Qt::LeftButton);

    // Forget them and read them back from the module.
    rig.session->general.CheckInitEE = {1, 1, 1, 1, 1, 1, 1, 1};
    rig.page->refresh();
    EXPECT_TRUE(rig.page->CheckInitEE[1]->isChecked());
    QTest::mouseClick(rig.page->CommandECInitRead, Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(rig.page->CheckInitEE[i]->isChecked(), i != 1 && i != 6) << i;
}

TEST(EventPage, WholeModuleButtonsAskForTheirJobs)
{
    EventPageRig rig;
    QTest::mouseClick(rig.page->CommandECRead, Qt::LeftButton);
    QTest::mouseClick(rig.page->CommandECWrite, Qt::LeftButton);
    QTest::mouseClick(rig.page->CommandECVerify, Qt::LeftButton);
    EXPECT_EQ(rig.jobs, (std::vector<std::string>{"ECReadAll", "ECWriteAll", "ECVerify"}));
    EXPECT_EQ(rig.page->CommandECRead->text(), "Read All Events");
    EXPECT_EQ(rig.page->CommandECWrite->text(), "Write All Events");
    EXPECT_EQ(rig.page->CommandECVerify->text(), "Verify Event Control");
}
