// The Layout page against the built-in simulated layout: Find Modules, Back Up All and
// Check All from their buttons, a module made the target, the list kept for the port.
#include "window/LayoutPage.h"
#include "gui/GuiRig.h"
#include "window/GeneralPage.h"
#include "window/WindowSettings.h"

#include <QCheckBox>
#include <QTabWidget>
#include <QTableWidget>

using namespace kestrel;
using namespace kestrel::test;

namespace {

// Each row's address, ID string and state, and whether a newest backup is shown.
QStringList rows(const LayoutPage& page)
{
    QStringList all;
    const QTableWidget& t = *page.TableLayout;
    for (int r = 0; r < t.rowCount(); ++r)
        all << QString("%1 %2 %3 %4 %5")
                       .arg(t.item(r, 0)->text(), t.item(r, 1)->text(), t.item(r, 2)->text(),
                            t.item(r, 4)->text(), t.item(r, 6)->text()) +
                   (t.item(r, 5)->text() == "none" ? "" : ", backed up");
    return all;
}

} // namespace

TEST(LayoutPage, FindBackUpCheckAndChooseAModuleOfTheSimulatedLayout)
{
    Window m;
    LayoutPage& page = *m.w.layoutPage;
    m.job(page.CommandFindModules);
    EXPECT_EQ(m.w.tabs->currentWidget(), &page);
    EXPECT_EQ(rows(page),
              QStringList({"direct 0  Demo layout not checked", "direct 3  Yard east not checked",
                           "direct 5  Crossing 2 not checked", "direct 15  Station not checked"}));

    m.job(page.CommandBackUpAll);
    ASSERT_TRUE(page.frmLayoutSummary && page.frmLayoutSummary->isVisible());
    EXPECT_EQ(page.txtLayoutSummary->toPlainText().count("  backed up  "), 4);
    EXPECT_EQ(rows(page).filter("holds its newest backup, backed up").size(), 4);

    // The yard module, made the target by a double-click, gets another ID string.
    const QRect yard = page.TableLayout->visualItemRect(page.TableLayout->item(1, 4));
    QTest::mouseClick(page.TableLayout->viewport(), Qt::LeftButton, {}, yard.center());
    QTest::mouseDClick(page.TableLayout->viewport(), Qt::LeftButton, {}, yard.center());
    EXPECT_EQ(std::tuple(m.w.TextAddress->text(), m.w.session().link.settings.TargetAddress),
              std::tuple("3", 3));
    type(m.w.generalPage->TextGenIDString, "Yard west");
    QTest::mouseClick(m.w.generalPage->CommandGenIDWrite, Qt::LeftButton);
    m.waitIdle();

    m.job(page.CommandCheckAll);
    EXPECT_TRUE(page.txtLayoutSummary->toPlainText().contains(
        "general ID String: module \"Yard west\", file \"Yard east\"\n"))
        << page.txtLayoutSummary->toPlainText().toStdString();
    EXPECT_EQ(rows(page).filter("differs (1 item)").size(), 1);
    EXPECT_EQ(rows(page).filter("holds its newest backup").size(), 3);

    // The list is kept for the port: a window opened afterwards shows it on that port.
    WindowSettings::save(m.w);
    KestrelConfig again(nullptr, &m.dialogs);
    again.ComboPort->setEditText("sim");
    QTest::keyClick(again.ComboPort, Qt::Key_Return);
    again.tabs->setCurrentWidget(again.layoutPage);
    EXPECT_EQ(rows(*again.layoutPage), rows(page));
}
