// The aspect page's modal tools through their windows, driven as a user drives them while
// their modal loop runs.
#include "base/ProgramFault.h"
#include "gui/GuiRig.h"
#include "shell/EditTools.h"
#include "shell/HelpToolDialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include <functional>

using namespace kestrel;
using namespace kestrel::test;

namespace {
// Runs a tool's modal `run` while `user` acts on its open window. Whatever the user leaves
// open is cancelled, so a failed expectation cannot leave the test waiting.
template <typename Run> auto whileOpen(QDialog& dialog, const std::function<void()>& user, Run run)
{
    QTimer::singleShot(0, &dialog, [&dialog, user] {
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
        user();
        if (dialog.isVisible())
            dialog.reject();
    });
    return run();
}

void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }

// The edit tools on one session; the pin tool is the rig's page.
struct EditRig : PageRig<EditPinDialog> {
    EditAspectDialog aspectTool{*session};
    EditStepDialog stepTool{*session};
    Configuration& config = session->config;
    EditRig() { page->hide(); }
};
} // namespace

TEST(EditTools, PinToolPastesOnlyWhatWasCopiedAndKeepsTheDeviceHead)
{
    EditRig rig;
    EditPinDialog& tool = *rig.page;
    Configuration& c = rig.config;
    c.pin(3).DeviceOffset = -3; // its device head is pin 0
    c.pin(3).Description = "Signal B";
    c.CurrentPin = 5;
    c.NumberingBase = 1;
    const auto run = [&] { tool.run(); };
    whileOpen(
        tool,
        [&] {
            EXPECT_EQ(tool.LabelTarget->text(), "Pin 6");
            click(tool.CommandPastePin);
            EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{"Nothing to Paste"});
            EXPECT_TRUE(tool.isVisible());
            click(tool.commandCancel);
        },
        run);
    EXPECT_EQ(c.pin(5), PinRecord{});

    c.CurrentPin = 3;
    whileOpen(
        tool, [&] { click(tool.CommandCopyPin); }, run);
    c.CurrentPin = 5;
    whileOpen(
        tool, [&] { click(tool.CommandPastePin); }, run);
    EXPECT_EQ(std::tuple(c.pin(5).DeviceOffset, c.pin(5).Description), std::tuple(-5, "Signal B"));

    // A fault inside the modal loop closes the tool and reaches the caller's guard.
    c.CurrentPin = 99;
    EXPECT_THROW(whileOpen(
                     tool, [&] { click(tool.CommandClearPin); }, run),
                 ProgramFault);
    EXPECT_FALSE(tool.isVisible());
}

TEST(EditTools, AspectToolCleansAfterTheFirstEmptyStepAndStepToolInsertsAtRowZero)
{
    EditRig rig;
    Configuration& c = rig.config;
    c.CurrentPin = 4;
    c.CurrentAspect = 2;
    AspectRecord& aspect = c.pin(4).Aspects[2];
    aspect.Description = "Route";
    const StepRecord on{9, 1, 0, 5, 0, 0}, emptyWithParameters{0, 1, 1, 2, 3, 4}, off{8, 0, 1, 7, 0, 0};
    aspect.Steps[0] = on;
    aspect.Steps[1] = emptyWithParameters;
    aspect.Steps[2] = off;
    whileOpen(
        rig.aspectTool,
        [&] {
            EXPECT_EQ(rig.aspectTool.LabelTarget->text(), "Pin 4, aspect 2");
            click(rig.aspectTool.CommandClean);
        },
        [&] { rig.aspectTool.run(); });
    EXPECT_EQ(
        std::tuple(aspect.Description, aspect.AspectMark, aspect.Steps[0], aspect.Steps[1], aspect.Steps[2]),
        std::tuple("", kAllOnes, on, StepRecord{}, StepRecord{}));

    // Layout "12": rows 0 and 1 move down, the old row 2 is lost, row 3 is not touched.
    c.pin(4).AspectLayout = 2;
    const StepRecord a{9, 0, 0, 1, 0, 0}, b{8, 0, 0, 2, 0, 0}, lost{10, 0, 0, 3, 0, 0}, d{11, 0, 0, 4, 0, 0};
    aspect.Steps[0] = a;
    aspect.Steps[1] = b;
    aspect.Steps[2] = lost;
    aspect.Steps[3] = d;
    selectStepRow(c, 0);
    whileOpen(
        rig.stepTool,
        [&] {
            EXPECT_EQ(rig.stepTool.LabelTarget->text(), "Pin 4, aspect 2, step 0");
            click(rig.stepTool.commandInsert);
        },
        [&] { rig.stepTool.run(); });
    EXPECT_EQ(std::tuple(aspect.Steps[0], aspect.Steps[1], aspect.Steps[2], aspect.Steps[3]),
              std::tuple(StepRecord{}, a, b, d));
}

TEST(HelpTools, PatternToolComposesTheParameterFromItsBoxes)
{
    PatternToolDialog tool;
    StepRecord step{15, 0, 0, 0, 0, 0}; // "Multibit 5"
    const bool ok = whileOpen(
        tool,
        [&] {
            EXPECT_EQ(std::tuple(tool.chkUitgang[4]->isHidden(), tool.chkUitgang[5]->isHidden()),
                      std::tuple(false, true));
            tool.chkUitgang[0]->click();
            tool.chkUitgang[2]->click();
            tool.chkAllDark->click();
            EXPECT_EQ(tool.txtParameter->text(), "37");
            tool.chkNoDark->click();
            EXPECT_EQ(
                std::tuple(tool.chkAllDark->isChecked(), tool.txtParameter->text(), tool.txtOriginal->text()),
                std::tuple(false, "69", "0"));
            click(tool.OKButton);
        },
        [&] { return tool.run(step); });
    EXPECT_EQ(std::tuple(ok, step.Par1), std::tuple(true, 69));
}

TEST(HelpTools, TimeToolShowsTheDurationsAndOkSetsTimeAndBase)
{
    TimeToolDialog tool;
    struct Case {
        QString typed, base;
        int slider;
        QString maxTime, time;
    };
    for (const Case& k :
         {Case{"3", "3", 63, "10:45.12", "10:45.12"}, Case{"0", "0", 50, "00:01.26", "00:01.00"},
          Case{"7", "3", 1, "10:45.12", "00:10.24"}}) {
        StepRecord step{102, 0, 0, 0, 5, 1}; // "Wait"
        const bool ok = whileOpen(
            tool,
            [&] {
                enter(tool.TextCTBase, k.typed);
                tool.SliderCTTime->setValue(k.slider);
                EXPECT_EQ(std::tuple(tool.TextCTBase->text(), tool.UpDownCTBase->value(),
                                     tool.LabelCTMaxTimeValue->text(), tool.LabelCTTimeValue->text()),
                          std::tuple(k.base, k.base.toInt(), k.maxTime, k.time))
                    << k.typed.toStdString();
                click(tool.OKButton);
            },
            [&] { return tool.run(step); });
        EXPECT_EQ(std::tuple(ok, step.Par2, step.Par3), std::tuple(true, k.slider, k.base.toInt()));
    }
}

TEST(HelpTools, CancelOrClosingLeavesTheStepAsItWas)
{
    TimeToolDialog time;
    PatternToolDialog pattern;
    EventPatternToolDialog event;
    LevelToolDialog level;
    struct Case {
        QDialog* dialog;
        QAbstractButton* cancel;
        StepRecord step;
        std::function<void()> edit;
        std::function<bool(StepRecord&)> run;
    };
    const Case cases[] = {
        {&time,
         time.CancelButton,
         {102, 1, 2, 3, 40, 2},
         [&] {
             enter(time.TextCTBase, "0");
             time.SliderCTTime->setValue(10);
         },
         [&](StepRecord& s) { return time.run(s); }},
        {&pattern,
         pattern.CancelButton,
         {13, 1, 2, 5, 6, 7},
         [&] {
             pattern.chkUitgang[1]->click();
             pattern.chkNoDark->click();
         },
         [&](StepRecord& s) { return pattern.run(s); }},
        {&event,
         event.CancelButton,
         {16, 0, 3, 101, 9, 9},
         [&] {
             event.optEvent[0]->click();
             event.chkEvent[3]->click();
         },
         [&](StepRecord& s) { return event.run(s); }},
        {&level,
         level.CancelButton,
         {18, 0, 3, 100, 0, 0},
         [&] { enter(level.txtLevel, "3"); },
         [&](StepRecord& s) {
             int parameter = s.Par1;
             const bool ok = level.run(parameter);
             s.Par1 = static_cast<std::uint8_t>(parameter);
             return ok;
         }},
    };
    for (const Case& k : cases) {
        for (bool byButton : {true, false}) {
            StepRecord step = k.step;
            const bool ok = whileOpen(
                *k.dialog,
                [&] {
                    k.edit();
                    byButton ? click(k.cancel) : (void)k.dialog->close();
                },
                [&] { return k.run(step); });
            EXPECT_EQ(std::tuple(ok, step), std::tuple(false, k.step))
                << k.dialog->objectName().toStdString();
        }
    }
}

TEST(HelpTools, EventPatternToolShowsEveryChoiceItComposedWhenOpenedOnIt)
{
    EventPatternToolDialog tool;
    for (int option = EventPatternTool::kNoOption; option < 6; ++option) {
        const EventPatternTool::Choice choice{{true, false, true, false}, option};
        StepRecord step{16, 0, 0, 0, 0, 0};
        // Composed by clicking the boxes from an empty value ...
        whileOpen(
            tool,
            [&] {
                tool.chkEvent[0]->click();
                tool.chkEvent[2]->click();
                (option < 0 ? tool.optNoEvent : tool.optEvent[option])->click();
                click(tool.OKButton);
            },
            [&] { return tool.run(step); });
        EXPECT_EQ(step.Par1, EventPatternTool::encode(choice));
        // ... and shown the same way when opened on it.
        whileOpen(
            tool,
            [&] {
                QAbstractButton* chosen = option < 0 ? tool.optNoEvent : tool.optEvent[option];
                EXPECT_EQ(std::tuple(chosen->isChecked(), tool.chkEvent[0]->isChecked(),
                                     tool.chkEvent[1]->isChecked(), tool.chkEvent[2]->isChecked(),
                                     tool.txtOriginal->text().toInt()),
                          std::tuple(true, true, false, true, step.Par1))
                    << option;
            },
            [&] { return tool.run(step); });
    }
}

TEST(HelpTools, LevelToolClampsEachBoxAndTheOthersFollow)
{
    LevelToolDialog tool;
    int parameter = 100; // level 6, time index 4
    const bool ok = whileOpen(
        tool,
        [&] {
            enter(tool.txtLevel, "9"); // 9 x 16 + 4 is above 127
            EXPECT_EQ(std::tuple(tool.txtLevel->text(), tool.txtParameter->text(), tool.txtDelay->text()),
                      std::tuple("7", "116", "00:00.08"));
            enter(tool.txtTimeIndex, "15");
            EXPECT_EQ(std::tuple(tool.txtParameter->text(), tool.txtDelay->text()),
                      std::tuple("127", "00:03.84"));
            tool.txtParameter->setText("20"); // typed, OK pressed without leaving the box
            click(tool.OKButton);
        },
        [&] { return tool.run(parameter); });
    EXPECT_EQ(std::tuple(ok, parameter), std::tuple(true, 20));
}

TEST(Tools, EveryInputIsNamedAfterItsLabelAndEveryButtonHasAMnemonic)
{
    EditRig rig;
    TimeToolDialog time;
    PatternToolDialog pattern;
    EventPatternToolDialog event;
    LevelToolDialog level;
    for (QDialog* d : std::initializer_list<QDialog*>{rig.page.get(), &rig.aspectTool, &rig.stepTool, &time,
                                                      &pattern, &event, &level}) {
        for (QLabel* label : d->findChildren<QLabel*>())
            if (label->buddy())
                EXPECT_EQ(label->buddy()->accessibleName(), label->text().remove('&'))
                    << label->text().toStdString();
        for (QWidget* input : d->findChildren<QWidget*>())
            if (input->inherits("QAbstractSpinBox") || input->inherits("QAbstractSlider") ||
                (input->inherits("QLineEdit") && !input->objectName().startsWith("qt_")))
                EXPECT_FALSE(input->accessibleName().isEmpty()) << input->objectName().toStdString();
        for (QAbstractButton* b : d->findChildren<QAbstractButton*>())
            EXPECT_TRUE(b->text().contains('&')) << b->objectName().toStdString();
        if (auto* ok = d->findChild<QPushButton*>("OKButton"))
            EXPECT_TRUE(ok->isDefault()) << d->objectName().toStdString();
    }
}
