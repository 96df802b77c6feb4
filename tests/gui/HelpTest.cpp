// The user guide at the section of the page shown, and the verification report's way to
// the differences.
#include "gui/GuiRig.h"
#include "window/CompareDialog.h"
#include "window/GeneralPage.h"
#include "window/UserGuide.h"

#include <QTabWidget>
#include <QTextBrowser>

using namespace kestrel;
using namespace kestrel::test;

TEST(Help, F1OpensTheGuideAtTheSectionOfThePageShown)
{
    Window m(false);
    const char* sections[] = {"The General page", "The Event Control page", "The Pin Configuration page",
                              "The Aspects page", "The Pin Overview page",  "The Layout page"};
    ASSERT_EQ(m.w.tabs->count(), 6);
    for (int page = 0; page < 6; ++page) {
        m.w.tabs->setCurrentIndex(page);
        m.activate();
        QTest::keyClick(&m.w, Qt::Key_F1);
        auto* guide = child<UserGuide>(m.w, "frmUserGuide");
        ASSERT_NE(guide, nullptr);
        EXPECT_TRUE(guide->isVisible());
        EXPECT_EQ(guide->shownSection(), sections[page]) << page;
    }
    // The guide is the README's, whole: the sections for users, up to the data-file items.
    const QString text = m.w.frmUserGuide->TextUserGuide->toPlainText();
    EXPECT_TRUE(text.contains("The first ten minutes") && text.contains("pin <p> events on input <i>"));
    EXPECT_FALSE(text.contains("Layout of the source"));
}

TEST(Help, ShowDifferencesInTheReportComparesWithTheModule)
{
    Window m;
    m.job(m.w.CommandReadAll);
    type(m.w.generalPage->TextGenIDString, "Up Yard");
    m.job(m.w.CommandVerifyAll);
    const QString report = m.report();
    ASSERT_TRUE(m.w.frmKestrelVerification->isVisible());
    QPushButton* show = child<QPushButton>(*m.w.frmKestrelVerification, "CommandShowDifferences");
    EXPECT_EQ(show->accessibleName(), show->text());
    m.job(show);
    ASSERT_NE(m.w.frmCompare, nullptr);
    EXPECT_EQ(std::tuple(m.w.frmCompare->isVisible(), m.w.frmCompare->choices.size(), m.report()),
              std::tuple(true, 1u, report));
}
