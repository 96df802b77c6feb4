// The Event Control page bound to a session on the built-in simulated module.
#include "shell/EventPage.h"
#include "forms/EventControlForm.h"
#include "gui/GuiRig.h"

#include <QCheckBox>
#include <QSpinBox>

#include <string>
#include <vector>

using namespace kestrel;
using namespace kestrel::test;

namespace {
struct EventPageRig : PageRig<EventPage> {
    std::vector<std::string> jobs;
    EventPageRig() : PageRig<EventPage>([this](JobName job) { jobs.emplace_back(job.text()); }) {}
    void showPin(const char* text) { enter(page->TextECpin, text); }
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
    EXPECT_EQ(std::tuple(rig.session->config.events(8).OnEvent[1], rig.session->config.events(8).OffEvent[0]),
              std::tuple(1, -1));

    // Another pin shows its own entries, the spinner following the box.
    rig.showPin("12");
    EXPECT_EQ(rig.page->UpDownECpin->value(), 12);
    EXPECT_EQ(rig.page->TextECon[0]->text(), "0"); // not read yet
    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_EQ(std::tuple(rig.page->TextECon[0]->text(), rig.page->TextECoff[0]->text(),
                         rig.page->TextECon[1]->text()),
              std::tuple("1", "0", "-1"));

    // The whole-module buttons ask the window for their jobs.
    for (QPushButton* b : {rig.page->CommandECRead, rig.page->CommandECWrite, rig.page->CommandECVerify})
        QTest::mouseClick(b, Qt::LeftButton);
    EXPECT_EQ(rig.jobs, (std::vector<std::string>{"ECReadAll", "ECWriteAll", "ECVerify"}));
}

TEST(EventPage, PinBoxAndEntriesAreClampedStoredAndCopiedToAll)
{
    EventPageRig rig;
    rig.session->config.NumberingBase = 1;
    rig.page->refresh();
    EXPECT_EQ(rig.page->TextECpin->text(), "1");
    EXPECT_EQ(std::tuple(rig.page->UpDownECpin->minimum(), rig.page->UpDownECpin->maximum()),
              std::tuple(1, 32));
    rig.showPin("40");
    EXPECT_EQ(rig.page->TextECpin->text(), "32");
    EXPECT_EQ(shownEventPin(*rig.session), 31);
    rig.session->config.NumberingBase = 0;
    rig.page->refresh();

    rig.showPin("5");
    enter(rig.page->TextECoff[2], "15");
    EXPECT_EQ(rig.page->TextECoff[2]->text(), "11");
    EXPECT_EQ(std::tuple(rig.page->UpDownECoff[2]->value(), rig.session->config.events(5).OffEvent[2]),
              std::tuple(11, 11));
    enter(rig.page->TextECon[3], "-4");
    EXPECT_EQ(rig.page->TextECon[3]->text(), "-1");
    EXPECT_EQ(rig.session->config.events(5).OnEvent[3], -1);

    // Written to the module and read back, the entries survive (-1 as "none").
    QTest::mouseClick(rig.page->CommandECWriteSingle, Qt::LeftButton);
    rig.session->config.events(5) = EventRecord{};
    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_EQ(std::tuple(rig.page->TextECoff[2]->text(), rig.page->TextECon[3]->text()),
              std::tuple("11", "-1"));
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;

    rig.showPin("3");
    rig.page->UpDownECon[0]->setValue(7); // the spinner writes the box and stores it
    EXPECT_EQ(rig.page->TextECon[0]->text(), "7");
    rig.page->TextECoff[3]->setText("4");
    QTest::mouseClick(rig.page->CommandECcopy, Qt::LeftButton);
    for (int p = 0; p < kPinCount; ++p)
        EXPECT_EQ(
            std::tuple(rig.session->config.events(p).OnEvent[0], rig.session->config.events(p).OffEvent[3]),
            std::tuple(7, 4))
            << p;
}

TEST(EventPage, EnableMapReadShowsTheBoxesAndWriteSendsThem)
{
    EventPageRig rig;
    // Every box starts checked; uncheck two and write the maps.
    for (int i = 0; i < 8; ++i)
        EXPECT_TRUE(rig.page->CheckInitEE[i]->isChecked()) << i;
    rig.page->CheckInitEE[1]->click();
    rig.page->CheckInitEE[6]->click();
    EXPECT_EQ(std::tuple(rig.session->general.CheckInitEE[1], rig.session->general.CheckInitEE[6]),
              std::tuple(0, 0));
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
