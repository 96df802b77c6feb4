// The Event Control page on the built-in simulated module.
#include "window/EventPage.h"
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
    const auto shown = [&](QLineEdit* const(&boxes)[4]) {
        QStringList texts;
        for (QLineEdit* box : boxes)
            texts << box->text();
        return texts.join(" ");
    };
    rig.showPin("8");
    EXPECT_EQ(shown(rig.page->TextECon), "0 0 0 0"); // nothing read yet: the program's own table

    // The demonstration module: input 2 runs action 1 on, action 0 off; the others nothing.
    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    EXPECT_EQ(std::tuple(shown(rig.page->TextECon), shown(rig.page->TextECoff),
                         rig.page->UpDownECon[1]->value(), rig.session->config.events(8).OnEvent[1],
                         rig.session->config.events(8).OffEvent[0]),
              std::tuple("-1 1 -1 -1", "-1 0 -1 -1", 1, 1, -1));

    // Another pin shows its own entries, the spinner following the box.
    rig.showPin("12");
    EXPECT_EQ(std::tuple(rig.page->UpDownECpin->value(), rig.page->TextECon[0]->text()), std::tuple(12, "0"));
    QTest::mouseClick(rig.page->CommandECReadSingle, Qt::LeftButton);
    EXPECT_EQ(std::tuple(shown(rig.page->TextECon), shown(rig.page->TextECoff)),
              std::tuple("1 -1 -1 -1", "0 -1 -1 -1"));

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
    EXPECT_EQ(std::tuple(rig.page->TextECpin->text(), rig.page->UpDownECpin->minimum(),
                         rig.page->UpDownECpin->maximum()),
              std::tuple("1", 1, 32));
    rig.showPin("40");
    EXPECT_EQ(std::tuple(rig.page->TextECpin->text(), shownEventPin(*rig.session)), std::tuple("32", 31));
    rig.session->config.NumberingBase = 0;
    rig.page->refresh();

    rig.showPin("5");
    enter(rig.page->TextECoff[2], "15");
    enter(rig.page->TextECon[3], "-4");
    EXPECT_EQ(std::tuple(rig.page->TextECoff[2]->text(), rig.page->UpDownECoff[2]->value(),
                         rig.session->config.events(5).OffEvent[2], rig.page->TextECon[3]->text(),
                         rig.session->config.events(5).OnEvent[3]),
              std::tuple("11", 11, 11, "-1", -1));

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
    const auto boxes = [&] {
        QString ticks;
        for (QCheckBox* box : rig.page->CheckInitEE)
            ticks += box->isChecked() ? '1' : '0';
        return ticks;
    };
    // Every box starts checked; uncheck two, write the maps, forget them, read them back.
    EXPECT_EQ(boxes(), "11111111");
    rig.page->CheckInitEE[1]->click();
    rig.page->CheckInitEE[6]->click();
    EXPECT_EQ(rig.session->general.CheckInitEE, (std::array<int, 8>{1, 0, 1, 1, 1, 1, 0, 1}));
    QTest::mouseClick(rig.page->CommandECInitWrite, Qt::LeftButton);
    rig.session->general.CheckInitEE = {1, 1, 1, 1, 1, 1, 1, 1};
    rig.page->refresh();
    EXPECT_EQ(boxes(), "11111111");
    QTest::mouseClick(rig.page->CommandECInitRead, Qt::LeftButton);
    EXPECT_TRUE(rig.dialogs.messages.empty()) << rig.dialogs.messages[0].text;
    EXPECT_EQ(boxes(), "10111101");
}
