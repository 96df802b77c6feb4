// Write Changes and Compare with Module in the window, against the built-in module.
#include "gui/GuiRig.h"
#include "window/AspectsPage.h"
#include "window/CompareDialog.h"
#include "window/GeneralPage.h"

#include <QTreeWidget>

using namespace kestrel;
using namespace kestrel::test;

TEST(Compare, EveryDifferenceListedTheTakenOnesShownAndTheKeptOnesWritten)
{
    Window m;
    m.job(m.w.CommandReadAll);
    Session& s = m.w.session();
    type(m.w.generalPage->TextGenIDString, "Up Yard");
    type(m.w.aspectsPage->TextPAspOffset[0], "1");
    const StepRecord edited = s.config.step(0, 0, 0);

    // Both edits appear, in Write All's order; the module's ID is taken back, the step kept.
    m.job(m.w.CommandCompare);
    CompareDialog& d = *m.w.frmCompare;
    ASSERT_TRUE(d.isVisible());
    ASSERT_EQ(d.choices.size(), 2u);
    const auto row = [&](int group, int column) {
        return d.TreeCompare->topLevelItem(group)->child(0)->text(column);
    };
    EXPECT_EQ(
        std::tuple(row(0, 0), row(0, 1), row(1, 0), s.general.TextGenIDString), // the shown one untouched
        std::tuple("general ID String", "\"Demo layout\"", "pin 0 aspect 0 step 0", "Up Yard"));
    d.choices[0]->setCurrentIndex(1);
    const long before = s.link.stats.exchanges;
    QTest::mouseClick(d.CommandCompareWrite, Qt::LeftButton);
    m.waitIdle();
    // Two exchanges: the ID string request and the one step.
    EXPECT_EQ(std::tuple(d.isVisible(), s.general.TextGenIDString, m.w.generalPage->TextGenIDString->text(),
                         s.link.stats.exchanges - before, m.status().left(18)),
              std::tuple(false, "Demo layout", "Demo layout", 2, "Write Changes done"));

    m.job(m.w.CommandCompare);
    EXPECT_EQ(std::tuple(d.choices.size(), d.LabelCompareSummary->text(), s.config.step(0, 0, 0) == edited),
              std::tuple(0u, "The module holds this configuration: no differences.", true));
    QTest::mouseClick(d.CommandCompareClose, Qt::LeftButton);

    // The image belongs to the module at address 0: for another, Write Changes asks first.
    type(m.w.TextAddress, "1");
    m.dialogs.defaultAnswer = Answer::No;
    m.job(m.w.CommandWriteChanges);
    ASSERT_FALSE(m.dialogs.questions.empty());
    EXPECT_EQ(m.dialogs.questions.back().text.substr(0, 35), "What the module holds is not known:");
}
