// The traffic monitor on the built-in simulated module, beside the General page.
#include "window/TrafficMonitor.h"
#include "gui/GuiRig.h"
#include "window/GeneralPage.h"

#include <QCheckBox>
#include <QFile>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace kestrel;
using namespace kestrel::test;

TEST(TrafficMonitor, ShowsEveryFrameWhileShownFiltersPausesSavesAndCostsNothingClosed)
{
    PageRig<GeneralPage> m;
    TrafficMonitor monitor(m.session->link);
    monitor.show();
    auto read = [&] { QTest::mouseClick(m.page->CommandGenHWCRead, Qt::LeftButton); };
    QTableWidget* grid = monitor.grdMonitor;
    auto column = [grid](int c) {
        QStringList out;
        for (int r = 0; r < grid->rowCount(); ++r)
            out << grid->item(r, c)->text();
        return out;
    };
    read();
    EXPECT_EQ(column(1), QStringList({"->", "->", "->", "<-"}));
    const QStringList decoded = column(3);
    EXPECT_EQ(decoded.mid(0, 3), QStringList({"wake-up burst", "empty frame",
                                              "read general item, item 1 (hardware configuration)"}));
    EXPECT_TRUE(
        decoded.value(3).startsWith("reply to read general item, item 1 (hardware configuration), data "));

    // The filter keeps the chosen command's frames; paused, frames are counted, not kept.
    monitor.cboMonitorFilter->setCurrentText("read general item");
    read();
    QTest::mouseClick(monitor.chkMonitorPause, Qt::LeftButton);
    read();
    EXPECT_EQ(column(1), QStringList({"->", "<-", "->", "<-"}));
    EXPECT_EQ(monitor.lblMonitorDropped->text(), "2 not kept while paused");

    // Saved: one line per frame shown.
    QTemporaryDir dir;
    m.dialogs.fileNames.push_back(dir.filePath("traffic.txt").toStdString());
    QTest::mouseClick(monitor.cmdMonitorSave, Qt::LeftButton);
    QFile saved(dir.filePath("traffic.txt"));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromLatin1(saved.readAll()).split("\r\n", Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4);
    EXPECT_TRUE(lines[3].endsWith("  <-  " + column(2)[3] + "  " + column(3)[3])) << lines[3].toStdString();

    // Closed, the link reports to no one.
    monitor.close();
    EXPECT_FALSE(m.session->link.onFrame);
    QTest::mouseClick(monitor.chkMonitorPause, Qt::LeftButton);
    read();
    monitor.cboMonitorFilter->setCurrentIndex(0);
    EXPECT_EQ(grid->rowCount(), 6);
}
