// The pin overview page on a session of its own: it follows the counts and chooses a pin.
#include "window/PinOverview.h"
#include "gui/GuiRig.h"
#include "model/AddressIndex.h"

#include <QTableWidget>

using namespace kestrel;
using namespace kestrel::test;

TEST(PinOverviewPage, ShowsTheNewSumsAfterACountChangesAndChoosesTheRowsPin)
{
    PageRig<PinOverviewPage> rig;
    QTableWidget* table = child<QTableWidget>(*rig.page, "TablePinOverview");
    ASSERT_NE(table, nullptr);
    const auto cell = [table](int row, int column) { return table->item(row, column)->text(); };
    QStringList headings;
    for (int c = 0; c < table->columnCount(); ++c)
        headings << table->horizontalHeaderItem(c)->text();
    EXPECT_EQ(std::tuple(table->accessibleName(), headings.join(",")),
              std::tuple("Pin overview", "Pin,Description,Mode,Layout,Device,DCC,eXtd DCC,Serial"));

    rig.session->general.TextGenDCCAddress = "10";
    rig.pin(0).DccCount = 2;
    rig.pin(3).DccCount = 1;
    RecalcAddressIndex(rig.session->config);
    rig.page->refresh();
    EXPECT_EQ(std::tuple(cell(0, 5), cell(3, 5), cell(4, 5)), std::tuple("10 .. 11", "12", "No addr in use"));
    rig.pin(0).DccCount = 5;
    RecalcAddressIndex(rig.session->config);
    rig.page->refresh();
    EXPECT_EQ(std::tuple(cell(0, 5), cell(3, 5)), std::tuple("10 .. 14", "15"));

    int chosen = 0;
    rig.page->onPinChosen = [&] {
        ++chosen;
        EXPECT_EQ(rig.session->config.CurrentPin, 5); // set before the window is told
    };
    table->scrollToItem(table->item(5, 1));
    const QRect at = table->visualItemRect(table->item(5, 1));
    // A user's double-click: the first click, then the second (all that mouseDClick sends).
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, at.center());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, at.center());
    EXPECT_EQ(std::tuple(rig.session->config.CurrentPin, chosen), std::tuple(5, 1));

    // Return on the current row chooses it too; refresh selects CurrentPin's row.
    rig.page->onPinChosen = nullptr;
    table->setCurrentCell(9, 0);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(rig.session->config.CurrentPin, 9);
    rig.session->config.CurrentPin = 20;
    rig.page->refresh();
    EXPECT_EQ(table->currentRow(), 20);
}
