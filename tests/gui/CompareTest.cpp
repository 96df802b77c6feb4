// Write Changes and Compare with Module in the window, against the built-in module.
#include "gui/GuiRig.h"
#include "shell/AspectsPage.h"
#include "shell/CompareDialog.h"
#include "shell/GeneralPage.h"

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
    EXPECT_EQ(d.TreeCompare->topLevelItem(0)->child(0)->text(0), "general ID String");
    EXPECT_EQ(d.TreeCompare->topLevelItem(0)->child(0)->text(1), "\"Demo layout\"");
    EXPECT_EQ(d.TreeCompare->topLevelItem(1)->child(0)->text(0), "pin 0 aspect 0 step 0");
    EXPECT_EQ(s.general.TextGenIDString, "Up Yard") << "the shown configuration is untouched by the read";
    d.choices[0]->setCurrentIndex(1);
    const long before = s.link.stats.exchanges;
    QTest::mouseClick(d.CommandCompareWrite, Qt::LeftButton);
    m.waitIdle();
    EXPECT_FALSE(d.isVisible());
    EXPECT_EQ(s.general.TextGenIDString, "Demo layout");
    EXPECT_EQ(m.w.generalPage->TextGenIDString->text(), "Demo layout");
    EXPECT_EQ(s.link.stats.exchanges - before, 2) << "the ID string request and the one step";
    EXPECT_EQ(m.status().left(18), "Write Changes done");

    m.job(m.w.CommandCompare);
    EXPECT_TRUE(d.choices.empty());
    EXPECT_EQ(d.LabelCompareSummary->text(), "The module holds this configuration: no differences.");
    EXPECT_TRUE(s.config.step(0, 0, 0) == edited);
    QTest::mouseClick(d.CommandCompareClose, Qt::LeftButton);

    // The image belongs to the module at address 0: for another, Write Changes asks first.
    type(m.w.TextAddress, "1");
    m.dialogs.defaultAnswer = Answer::No;
    m.job(m.w.CommandWriteChanges);
    ASSERT_FALSE(m.dialogs.questions.empty());
    EXPECT_EQ(m.dialogs.questions.back().text.substr(0, 35), "What the module holds is not known:");
}
