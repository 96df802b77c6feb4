// The aspect page's modal tools, driven as a user drives them while their modal loop runs.
#include "base/ProgramFault.h"
#include "gui/GuiRig.h"
#include "window/EditTools.h"
#include "window/HelpToolDialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>

#include <functional>

using namespace kestrel;
using namespace kestrel::test;

namespace {
// Lets `user` act on the window once the tool's modal run (called next) has opened it; what
// the user leaves open is cancelled, so a failed expectation cannot leave the test waiting.
void onOpen(QDialog& dialog, const std::function<void()>& user)
{
    QTimer::singleShot(0, &dialog, [&dialog, user] {
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        user();
        if (dialog.isVisible())
            dialog.reject();
    });
}

void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

// The pin tool (the rig's page) and the help tools; copy and paste: AspectsPageTest.
struct ToolRig : PageRig<EditPinDialog> {
    EditAspectDialog aspectTool{*session};
    EditStepDialog stepTool{*session};
    TimeToolDialog time;
    PatternToolDialog pattern;
    EventPatternToolDialog event;
    LevelToolDialog level;
    Configuration& config = session->config;
    ToolRig() { page->hide(); }
};
} // namespace

TEST(EditTools, PinToolHasNothingToPasteBeforeACopyAndPassesFaultsOn)
{
    ToolRig rig;
    EditPinDialog& tool = *rig.page;
    Configuration& c = rig.config;
    c.pin(3).DeviceOffset = -3; // its device head is pin 0
    c.pin(3).Description = "Signal B";
    c.CurrentPin = 5;
    c.NumberingBase = 1;
    onOpen(tool, [&] {
        EXPECT_EQ(tool.LabelTarget->text(), "Pin 6");
        click(tool.CommandPastePin);
        EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{"Nothing to Paste"});
        EXPECT_TRUE(tool.isVisible());
        click(tool.commandCancel);
    });
    tool.run();
    EXPECT_EQ(c.pin(5), PinRecord{});

    // A fault inside the modal loop closes the tool and reaches the caller's guard.
    c.CurrentPin = 99;
    onOpen(tool, [&] { click(tool.CommandClearPin); });
    EXPECT_THROW(tool.run(), ProgramFault);
    EXPECT_FALSE(tool.isVisible());
}

TEST(HelpTools, PatternToolComposesTheParameterFromItsBoxes)
{
    PatternToolDialog tool;
    StepRecord step{15, 0, 0, 0, 0, 0}; // "Multibit 5"
    onOpen(tool, [&] {
        EXPECT_TRUE(tool.chkUitgang[5]->isHidden());
        tool.chkUitgang[0]->click();
        tool.chkUitgang[2]->click();
        tool.chkAllDark->click();
        EXPECT_EQ(tool.txtParameter->text(), "37");
        tool.chkNoDark->click();
        EXPECT_EQ(
            std::tuple(tool.chkAllDark->isChecked(), tool.txtParameter->text(), tool.txtOriginal->text()),
            std::tuple(false, "69", "0"));
        click(tool.OKButton);
    });
    EXPECT_TRUE(tool.run(step));
    EXPECT_EQ(step.Par1, 69);

    // With six outputs bit 5 is output +5, so "All Dark" cannot be chosen.
    step = {32, 0, 0, 0, 0, 0}; // "Multibit 6"
    onOpen(tool, [&] {
        EXPECT_EQ(std::tuple(tool.chkUitgang[5]->isHidden(), tool.chkAllDark->isEnabled(),
                             tool.chkNoDark->isEnabled()),
                  std::tuple(false, false, true));
    });
    tool.run(step);
}

TEST(HelpTools, TimeToolShowsTheDurationsAndOkSetsTimeAndBase)
{
    TimeToolDialog tool;
    // The base typed, the base taken, the slider, the longest time and the time shown.
    const std::tuple<QString, QString, int, QString, QString> cases[] = {
        {"3", "3", 63, "10:45.12", "10:45.12"},
        {"0", "0", 50, "00:01.26", "00:01.00"},
        {"7", "3", 1, "10:45.12", "00:10.24"}};
    for (const auto& [typed, base, slider, maxTime, time] : cases) {
        StepRecord step{102, 0, 0, 0, 5, 1}; // "Wait"
        onOpen(tool, [&] {
            tool.TextCTBase->clear();
            QTest::keyClicks(tool.TextCTBase, typed); // taken as typed, no Return
            tool.SliderCTTime->setValue(slider);
            EXPECT_EQ(std::tuple(tool.TextCTBase->text(), tool.UpDownCTBase->value(),
                                 tool.LabelCTMaxTimeValue->text(), tool.LabelCTTimeValue->text()),
                      std::tuple(base, base.toInt(), maxTime, time))
                << typed.toStdString();
            click(tool.OKButton);
        });
        EXPECT_TRUE(tool.run(step));
        EXPECT_EQ(std::tuple(step.Par2, step.Par3), std::tuple(slider, base.toInt()));
    }
    // The base box is taken when it is clicked as well.
    StepRecord step{102, 0, 0, 0, 63, 0};
    onOpen(tool, [&] {
        tool.TextCTBase->setText("1");
        QTest::mouseClick(tool.TextCTBase, Qt::LeftButton);
        EXPECT_EQ(tool.LabelCTTimeValue->text(), "00:10.08");
    });
    tool.run(step);
}

namespace {
template <typename Tool> bool runOn(Tool& tool, StepRecord& step) { return tool.run(step); }
bool runOn(LevelToolDialog& tool, StepRecord& step)
{
    int parameter = step.Par1;
    const bool ok = tool.run(parameter);
    step.Par1 = static_cast<std::uint8_t>(parameter);
    return ok;
}

// Edits everything, then Cancel or the window's close: false, and the step as it was.
template <typename Tool>
void expectCancelKeeps(Tool& tool, const StepRecord& original, std::function<void()> edit)
{
    for (bool byButton : {true, false}) {
        StepRecord step = original;
        onOpen(tool, [&] {
            edit();
            byButton ? click(tool.CancelButton) : (void)tool.close();
        });
        const bool ok = runOn(tool, step);
        EXPECT_EQ(std::tuple(ok, step), std::tuple(false, original)) << tool.objectName().toStdString();
    }
}
} // namespace

TEST(HelpTools, CancelOrClosingLeavesTheStepAsItWas)
{
    ToolRig rig;
    // Time and Base out of their ranges, which the tool brings into them while it is open.
    expectCancelKeeps(rig.time, {102, 1, 2, 3, 70, 9}, [&] {
        enter(rig.time.TextCTBase, "0");
        rig.time.SliderCTTime->setValue(10);
    });
    expectCancelKeeps(rig.pattern, {13, 1, 2, 5, 6, 7}, [&] {
        rig.pattern.chkUitgang[1]->click();
        rig.pattern.chkNoDark->click();
    });
    expectCancelKeeps(rig.event, {16, 0, 3, 101, 9, 9}, [&] {
        rig.event.optEvent[0]->click();
        rig.event.chkEvent[3]->click();
    });
    expectCancelKeeps(rig.level, {18, 0, 3, 100, 0, 0}, [&] { enter(rig.level.txtLevel, "3"); });
}

TEST(HelpTools, EventPatternToolShowsEveryChoiceItComposedWhenOpenedOnIt)
{
    EventPatternToolDialog tool;
    for (int option = EventPatternTool::kNoOption; option < 6; ++option) {
        QAbstractButton* chosen = option < 0 ? tool.optNoEvent : tool.optEvent[option];
        StepRecord step{16, 0, 0, 0, 0, 0};
        // Composed by clicking from an empty value ...
        onOpen(tool, [&] {
            tool.chkEvent[0]->click();
            tool.chkEvent[2]->click();
            chosen->click();
            click(tool.OKButton);
        });
        tool.run(step);
        EXPECT_EQ(step.Par1, EventPatternTool::encode({{true, false, true, false}, option}));
        // ... and shown the same way when opened on it.
        onOpen(tool, [&] {
            EXPECT_EQ(std::tuple(chosen->isChecked(), tool.chkEvent[0]->isChecked(),
                                 tool.chkEvent[1]->isChecked(), tool.chkEvent[2]->isChecked(),
                                 tool.txtParameter->text().toInt()),
                      std::tuple(true, true, false, true, step.Par1))
                << option;
        });
        tool.run(step);
    }
}

TEST(HelpTools, LevelToolClampsEachBoxAndTheOthersFollow)
{
    LevelToolDialog tool;
    int parameter = 100; // level 6, time index 4
    onOpen(tool, [&] {
        enter(tool.txtLevel, "9"); // 9 x 16 + 4 is above 127
        EXPECT_EQ(std::tuple(tool.txtLevel->text(), tool.txtParameter->text(), tool.txtDelay->text()),
                  std::tuple("7", "116", "00:00.08"));
        enter(tool.txtTimeIndex, "15");
        EXPECT_EQ(std::tuple(tool.txtParameter->text(), tool.txtDelay->text()),
                  std::tuple("127", "00:03.84"));
        tool.txtParameter->setText("20"); // typed, and OK pressed without leaving the box
        click(tool.OKButton);
    });
    EXPECT_TRUE(tool.run(parameter));
    EXPECT_EQ(parameter, 20);
}
