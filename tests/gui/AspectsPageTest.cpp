// The aspect page as a user drives it, against the built-in simulated module.
#include "window/AspectsPage.h"
#include "gui/GuiRig.h"
#include "model/PinTools.h"
#include "window/AspectTimeline.h"
#include "window/EventPage.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>

using namespace kestrel;
using namespace kestrel::test;

namespace {

struct AspectsRig : Window {
    AspectsPage& page = *w.aspectsPage;
    Configuration& config = w.session().config;
    AspectsRig()
    {
        w.tabs->setCurrentWidget(&page);
        pickPin(1);
    }
    void pickPin(int pin) { type(page.TextPAspOutput, QString::number(pin + config.NumberingBase)); }
    StepRecord& step(int row) { return config.step(config.CurrentPin, config.CurrentAspect, row); }
    // Chooses an instruction from a row's list with the keyboard: the list opened, the name typed, Return.
    void choose(int row, const QString& name)
    {
        QComboBox* list = page.ComboPAspInst[row];
        list->setFocus();
        list->showPopup();
        QWidget* popup = list->view();
        const int index = list->findText(name);
        ASSERT_GE(index, 0) << name.toStdString();
        list->view()->setCurrentIndex(list->model()->index(index, 0));
        QTest::keyClick(popup, Qt::Key_Return);
    }
    void doubleClick(QWidget* box) { QTest::mouseDClick(box, Qt::LeftButton); }
};

} // namespace

TEST(AspectsPage, StepRowsFollowTheirInstructionAndClampWhatIsTyped)
{
    AspectsRig m;
    QTest::mouseClick(m.page.OptionPAspConf[1], Qt::LeftButton); // "4": aspects 0..3 of nine steps
    EXPECT_EQ(std::tuple(int(m.config.pin(1).AspectLayout), m.page.ComboPAspInst[8]->isVisible()),
              std::tuple(3, true));

    m.choose(0, "On");
    EXPECT_EQ(std::tuple(int(m.step(0).Instruction), m.page.LabelPAspOffset->text(),
                         m.page.LabelPAspHParam1->text(), m.page.TextPAspPar2[0]->isEnabled(),
                         m.page.CheckPAspFade[0]->isVisible(), m.page.CheckPAspFade[0]->text(),
                         m.page.TextPAspPar3[0]->toolTip()),
              std::tuple(9, "P.O.", "T(/60)", false, true, "Fade", "Not used by this instruction."));
    // Tab goes through a row left to right, then to the next row.
    QWidget* at = m.page.ComboPAspInst[0];
    for (QWidget* next : std::initializer_list<QWidget*>{m.page.CheckPAspFade[0], m.page.TextPAspOffset[0],
                                                         m.page.TextPAspPar1[0], m.page.ComboPAspInst[1]}) {
        do
            at = at->nextInFocusChain();
        while (!(at->focusPolicy() & Qt::TabFocus) || !at->isVisible() || !at->isEnabled());
        EXPECT_EQ(at, next) << at->objectName().toStdString();
    }
    type(m.page.TextPAspOffset[0], "-3"); // pin 1 has no pin three below it
    type(m.page.TextPAspPar1[0], "200");
    QTest::mouseClick(m.page.CheckPAspFade[0], Qt::LeftButton);
    EXPECT_EQ(
        std::tuple(m.page.TextPAspOffset[0]->text(), m.page.TextPAspPar1[0]->text(), int(m.step(0).Fade)),
        std::tuple("-1", "127", 1));

    // A time instruction shows its duration; the headings follow the row changed last.
    m.choose(1, "Wait");
    type(m.page.TextPAspPar2[1], "50");
    EXPECT_EQ(std::tuple(m.page.LabelPAspTime[1]->text(), m.page.LabelPASpHParam2->text()),
              std::tuple("00:01.00", "Time"));

    // What was typed is what the model holds when the pin is shown again.
    m.pickPin(2);
    m.pickPin(1);
    EXPECT_EQ(std::tuple(m.page.TextPAspOffset[0]->text(), m.page.TextPAspPar1[0]->text(),
                         m.page.ComboPAspInst[1]->currentText()),
              std::tuple("-1", "127", "Wait"));

    // Descriptions are typed into the pin and the aspect.
    QTest::keyClicks(m.page.TextPAspDesc, "Home signal");
    QTest::keyClicks(m.page.TextPAspAspDesc, "Stop");
    EXPECT_EQ(std::tuple(m.config.pin(1).Description, m.config.aspect(1, 0).Description),
              std::tuple("Home signal", "Stop"));
}

TEST(AspectsPage, EachParameterSaysWhatItDoesForItsInstructionAndTheHeadingsFollowTheFocus)
{
    AspectsRig m; // pin 1
    QTest::mouseClick(m.page.OptionPAspConf[1], Qt::LeftButton);
    // Instruction, parameter, what its tip says (the range as the box clamps on pin 1).
    const std::tuple<const char*, int, const char*> tips[] = {
        {"On", 0,
         "Pin offset: the pin that this step acts on, counted from this pin (0 is this pin, -1 the pin "
         "before it).\nRange: -1 to 30."},
        {"Jump", 1, "The aspect to jump to.\nRange: 0 to 11."},
        {"Set Servo", 1, "The servo position; 0 is the midpoint.\nRange: -64 to 63."},
        {"Multibit 3", 1, "...).\nRange: 0 to 127.\nDouble-click or F2 opens the help tool."},
        {"Event Input", 1, "(Input 1 to Input 4 on the Event Control page)"},
        {"SetLevel & Wait", 0, "-1 is kept as 127.\nRange: -1 to 31."},
        {"Wait Random", 2, "random time up to it.\nRange: 0 to 63.\nDouble-click or F2 opens the help tool."},
        {"If Less", 1, "compared with.\nRange: -64 to 63."},
        {"SendSerial 2", 2,
         "The second byte that the module sends on its own serial port.\nRange: 0 to 255."},
    };
    for (const auto& [name, p, tip] : tips) {
        m.choose(0, name);
        QLineEdit* box = m.page.findChild<QLineEdit*>(
            QString("%1_0").arg(p == 0 ? "TextPAspOffset" : QString("TextPAspPar%1").arg(p)));
        EXPECT_TRUE(box->toolTip().contains(tip)) << name << ": " << box->toolTip().toStdString();
        EXPECT_EQ(box->accessibleDescription(), box->toolTip()) << name;
    }
    // Two rows of different instructions: the headings are the focused row's, also after the
    // page is shown afresh (as after a read or a load).
    m.choose(0, "On");
    m.choose(1, "Wait");
    const auto headings = [&] {
        return QStringList{m.page.LabelPAspOffset->text(), m.page.LabelPAspHParam1->text(),
                           m.page.LabelPASpHParam2->text(), m.page.LabelPAspHParam3->text()}
            .join("|")
            .toStdString();
    };
    m.activate();
    m.page.TextPAspOffset[0]->setFocus();
    EXPECT_EQ(headings(), "P.O.|T(/60)||");
    m.page.TextPAspPar2[1]->setFocus();
    m.page.refresh();
    EXPECT_EQ(headings(), "||Time|Base");
}

TEST(AspectsPage, LayoutOptionsClampTheSelectionAndShowTheirRows)
{
    AspectsRig m;
    QTest::mouseClick(m.page.OptionPAspConf[2], Qt::LeftButton); // "12"
    EXPECT_FALSE(m.page.ComboPAspInst[3]->isVisible());
    type(m.page.TextPAspAspect, "7");
    type(m.page.TextPAspInit, "9");
    QTest::mouseClick(m.page.OptionPAspConf[1], Qt::LeftButton); // "4"
    EXPECT_EQ(std::tuple(m.page.TextPAspAspect->text(), m.page.TextPAspInit->text(), m.config.CurrentAspect,
                         int(m.config.pin(1).InitAspect), m.page.ComboPAspInst[3]->isVisible()),
              std::tuple("3", "-1", 3, 0, true));

    QTest::mouseClick(m.page.OptionPAspConf[0], Qt::LeftButton); // "0": no aspects
    EXPECT_FALSE(m.page.TextPAspAspect->isVisible() || m.page.ComboPAspInst[0]->isVisible());
    m.config.pin(1).AspectLayout = 1; // a layout the page does not offer shows as "0" and is stored so
    m.pickPin(1);
    EXPECT_EQ(std::tuple(m.page.OptionPAspConf[0]->isChecked(), int(m.config.pin(1).AspectLayout)),
              std::tuple(true, 0));

    // Address counts clamp to what the module takes.
    type(m.page.TextPaspDCCn, "9");
    type(m.page.TextPAspXDCCn, "3");
    EXPECT_EQ(std::tuple(m.page.TextPaspDCCn->text(), m.page.TextPAspXDCCn->text()), std::tuple("7", "1"));
}

TEST(AspectsPage, EditToolsBehindTheLabelsInTheRowsMenusAndInTheEditMenu)
{
    AspectsRig m;
    QTest::mouseClick(m.page.OptionPAspConf[2], Qt::LeftButton); // "12": three steps an aspect
    const StepRecord on{9, 0, 0, 5, 0, 0}, off{8, 0, 0, 6, 0, 0}, invert{10, 0, 0, 7, 0, 0};
    m.step(0) = on;
    m.step(1) = off;
    m.step(2) = invert;
    m.step(3) = on; // beyond the layout: never touched
    clickInModal("dlgEditStep", "commandInsert");
    QTest::mouseClick(m.page.LabelPAspStep[0], Qt::LeftButton);
    EXPECT_EQ(std::tuple(m.step(0), m.step(1), m.step(2), m.step(3)), std::tuple(StepRecord{}, on, off, on));
    EXPECT_EQ(m.page.ComboPAspInst[1]->currentText(), "On");
    // A row's context menu (Shift+F10 or the Menu key) offers its tool's commands, chosen with the keys.
    const auto choose = [](QWidget* row, Qt::Key key, const QString& command) {
        QTest::keyClick(row, key, key == Qt::Key_F10 ? Qt::ShiftModifier : Qt::NoModifier);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << command.toStdString();
        for (QAction* a : menu->actions())
            if (a->text() == command)
                menu->setActiveAction(a);
        QTest::keyClick(menu, Qt::Key_Return);
    };
    choose(m.page.ComboPAspInst[0], Qt::Key_F10, "&Delete Step");
    EXPECT_EQ(std::tuple(m.step(0), m.step(1), m.step(2), m.page.ComboPAspInst[0]->currentText()),
              std::tuple(on, off, StepRecord{}, "On"));

    // Clean keeps the steps before the first empty one and clears the rest.
    m.step(1) = StepRecord{0, 1, 2, 3, 4, 5};
    m.step(2) = off;
    m.config.aspect(1, 0).Description = "Clear";
    clickInModal("dlgEditAspect", "CommandClean");
    QTest::mouseClick(m.page.LabelPAspAspect, Qt::LeftButton);
    EXPECT_EQ(std::tuple(m.step(0), m.step(1), m.step(2), m.config.aspect(1, 0).Description),
              std::tuple(on, StepRecord{}, StepRecord{}, ""));
    choose(m.page.TextPAspAspect, Qt::Key_Menu, "&Copy Aspect");
    type(m.page.TextPAspAspect, "2");
    choose(m.page.TextPAspAspect, Qt::Key_Menu, "&Paste Aspect");
    EXPECT_EQ(m.step(0), on);

    // A pin of a device copied onto another pin still refers to the same head.
    m.config.pin(3).DeviceOffset = -3;
    m.pickPin(3);
    choose(m.page.TextPAspOutput, Qt::Key_F10, "&Copy Pin");
    m.pickPin(5);
    clickInModal("dlgEditPin", "CommandPastePin");
    QTest::mouseClick(m.page.LabelPAspOutput, Qt::LeftButton);
    EXPECT_EQ(std::tuple(int(m.config.pin(5).DeviceOffset), m.page.TextDevicePin->text()),
              std::tuple(-5, "0"));

    // The Edit menu's step tool acts on the row that has the focus; without aspects there is none.
    QTest::mouseClick(m.page.OptionPAspConf[2], Qt::LeftButton);
    m.page.ComboPAspInst[1]->setFocus();
    clickInModal("dlgEditStep", "commandInsert");
    m.page.actionStepTool->trigger();
    QTest::mouseClick(m.page.OptionPAspConf[0], Qt::LeftButton);
    EXPECT_EQ(std::tuple(m.config.CurrentStep, m.page.actionPinTool->isEnabled(),
                         m.page.actionAspectTool->isEnabled(), m.page.actionStepTool->isEnabled()),
              std::tuple(1, true, false, false));
}

TEST(AspectsPage, HelpToolsFromTheParameterBoxes)
{
    AspectsRig m;
    QTest::mouseClick(m.page.OptionPAspConf[1], Qt::LeftButton);
    m.choose(0, "Multibit 5");
    onModal("dlgKestrelCalcPattern", [](QDialog& d) {
        for (const char* box : {"chkUitgang_0", "chkUitgang_2", "chkAllDark"})
            QTest::mouseClick(d.findChild<QCheckBox*>(box), Qt::LeftButton);
        QTest::mouseClick(d.findChild<QAbstractButton*>("OKButton"), Qt::LeftButton);
    });
    m.doubleClick(m.page.TextPAspPar1[0]);
    EXPECT_EQ(std::tuple(int(m.step(0).Par1), m.page.TextPAspPar1[0]->text()), std::tuple(37, "37"));

    // The time tool from the keyboard: Cancel leaves the step as it was, OK hands Time and Base back.
    m.choose(1, "Wait");
    type(m.page.TextPAspPar2[1], "10");
    const StepRecord before = m.step(1);
    for (const char* button : {"CancelButton", "OKButton"}) {
        onModal("dlgCT", [button](QDialog& d) {
            d.findChild<QSlider*>("SliderCTTime")->setValue(63);
            QTest::mouseClick(d.findChild<QAbstractButton*>(button), Qt::LeftButton);
        });
        QTest::keyClick(m.page.TextPAspPar2[1], Qt::Key_F2);
        EXPECT_TRUE(std::string(button) != "CancelButton" || m.step(1) == before);
    }
    EXPECT_EQ(std::tuple(int(m.step(1).Par2), m.page.TextPAspPar2[1]->text()), std::tuple(63, "63"));

    // A box whose instruction has no tool says so; a "Level" of 0..31 has no room for the level tool.
    m.choose(2, "Set Level");
    m.doubleClick(m.page.TextPAspPar1[2]);
    EXPECT_EQ(m.dialogs.texts().back(), "Help tool not available for this box with the selected command");
}

TEST(AspectsPage, DevicesAreListedAndLoadOntoTheChosenPin)
{
    AspectsRig m;
    AspectsPage& page = m.page;
    EXPECT_TRUE(m.dialogs.messages.empty()); // KestrelDevices.def lies beside the program
    ASSERT_GE(page.cboDevice->count(), 5);
    EXPECT_EQ(page.lblDDVersion->text(), "Kestrel standard devices 2026-11-21");

    // A three-pin signal placed on pin 31 wraps round to pins 0 and 1.
    m.pickPin(31);
    page.cboDevice->setCurrentIndex(page.cboDevice->findText("Colour light signal, 3 aspects"));
    QTest::mouseClick(page.CommandPAspPreLoad, Qt::LeftButton);
    const auto& pins = m.config.Pins;
    EXPECT_EQ(std::tuple(pins[31].DeviceOffset, pins[0].DeviceOffset, pins[1].DeviceOffset,
                         pins[31].DeviceDescription, page.TextDeviceDescription->text().toStdString()),
              std::tuple(0, 31, 30, "Colour light signal, 3 aspects", "Colour light signal, 3 aspects"));
    m.pickPin(1); // a member: the name is its head's
    EXPECT_EQ(std::tuple(page.TextDevicePin->text(), page.TextDeviceDescription->isEnabled()),
              std::tuple("31", false));

    // The pin chosen on the Event Control page is the one the device goes onto.
    m.w.tabs->setCurrentWidget(m.w.eventPage);
    type(m.w.eventPage->TextECpin, "7");
    m.w.tabs->setCurrentWidget(&page);
    EXPECT_EQ(page.TextPAspOutput->text(), "7");
    QTest::mouseClick(page.CommandPAspPreLoad, Qt::LeftButton);
    ASSERT_TRUE(page.TextDeviceDescription->isEnabled());
    page.TextDeviceDescription->selectAll();
    QTest::keyClicks(page.TextDeviceDescription, "Home");
    EXPECT_EQ(pins[7].DeviceDescription, "Home");

    // Reload DD by mouse, Alt+D, Return and Space: Shift alone appends, anything else replaces.
    const int count = page.cboDevice->count();
    m.dialogs.fileNames.assign(5,
                               QCoreApplication::applicationDirPath().toStdString() + "/KestrelDevices.def");
    m.activate(); // for the mnemonic
    page.CommandReloadDD->setFocus();
    const auto shift = Qt::ShiftModifier;
    const std::tuple<QWidget*, Qt::Key, Qt::KeyboardModifiers, int> presses[] = {
        {page.CommandReloadDD, Qt::Key_unknown, shift, 2}, // the mouse
        {page.CommandReloadDD, Qt::Key_unknown, shift | Qt::ControlModifier, 1},
        {&page, Qt::Key_D, shift | Qt::AltModifier, 2},
        {page.CommandReloadDD, Qt::Key_Return, {}, 1},
        {page.CommandReloadDD, Qt::Key_Space, shift, 2}};
    for (const auto& [to, key, keys, times] : presses) {
        key == Qt::Key_unknown ? QTest::mouseClick(to, Qt::LeftButton, keys) : QTest::keyClick(to, key, keys);
        EXPECT_TRUE(QTest::qWaitFor([&] { return page.cboDevice->count() == times * count; }, 1000)) << key;
    }
}

TEST(AspectsPage, EveryPinJobRunsFromItsButton)
{
    AspectsRig m;
    QTest::mouseClick(m.page.OptionPAspConf[1], Qt::LeftButton);
    m.choose(0, "On");
    type(m.page.TextPAspPar1[0], "25");
    type(m.page.TextPAspAspect, "3");
    m.choose(8, "Wait");
    m.step(8).Par2 = 100; // with Base 3 more ticks than 16 bits hold (as a data file may give)
    m.step(8).Par3 = 3;
    const PinRecord written = m.config.pin(1);

    // Written, cleared here, read: the module gave it all back.
    m.job(m.page.CommandPAspWritePin);
    EXPECT_TRUE(m.status().startsWith("Write Pin done")) << m.status().toStdString();
    clearPin(m.config, 1);
    m.job(m.page.CommandPAspReadPin);
    const auto sameSteps = [&] {
        for (int a = 0; a < 4; ++a)
            EXPECT_EQ(m.config.pin(1).Aspects[a].Steps, written.Aspects[a].Steps) << "aspect " << a;
    };
    sameSteps();
    EXPECT_EQ(std::tuple(m.page.ComboPAspInst[8]->currentText(), m.page.LabelPAspTime[8]->text()),
              std::tuple("Wait", "OVFLOW"));

    const std::pair<QPushButton*, const char*> cases[] = {
        {m.page.CommandPAspWriteAspect, "Write Aspect done"},
        {m.page.CommandReadPin, "Read Pin done"},
        {m.page.CommandWritePin, "Write Pin done"},
        {m.page.CommandReadDevice, "Read Device done"},
        {m.page.CommandWriteDevice, "Write Device done"},
        {m.w.CommandWriteAllPins, "Write All Pins done"},
        {m.w.CommandReadAllPins, "Read All Pins done"},
        {m.w.CommandVerifyAllPins, "Verify All Pins: the module holds the configuration"},
    };
    for (const auto& [button, outcome] : cases) {
        m.job(button);
        EXPECT_TRUE(m.status().startsWith(outcome)) << outcome << ": " << m.status().toStdString();
    }
    sameSteps();
    EXPECT_FALSE(m.page.CommandPAspTestAspect->isEnabled()); // the module has no test command
    EXPECT_TRUE(m.dialogs.texts().empty());

    m.config.CurrentAspect = 40; // a refresh that faults again after a fault: told once, and it ends
    m.page.refresh();
    EXPECT_EQ(m.dialogs.texts().size(), 1u);
    m.config.CurrentAspect = 0;
}

TEST(AspectsPage, TheTimelineFollowsEditsAndAClickSelectsItsStep)
{
    AspectsRig m;
    QTest::mouseClick(m.page.OptionPAspConf[1], Qt::LeftButton); // "4"
    m.choose(0, "Wait");
    type(m.page.TextPAspPar2[0], "50");
    const Timeline& shown = m.page.TimelinePAsp->timeline();
    ASSERT_EQ(shown.rows[0].blocks.size(), 1u);
    EXPECT_EQ(shown.rows[0].blocks[0].width, 50);

    m.config.step(1, 2, 0) = {9, 0, 0, 0, 0, 0};
    m.config.step(1, 2, 1) = {102, 0, 0, 0, 10, 1};
    m.page.refresh();
    m.activate();
    QTest::mouseClick(m.page.TimelinePAsp, Qt::LeftButton, {}, m.page.TimelinePAsp->blockRect(2, 1).center());
    EXPECT_EQ(std::tuple(m.config.CurrentAspect, m.config.CurrentStep, m.page.TextPAspAspect->text(),
                         QApplication::focusWidget() == m.page.ComboPAspInst[1]),
              std::tuple(2, 1, "2", true));
}
