#include "window/TrafficMonitor.h"
#include "window/Language.h"
#include "window/Widgets.h"

#include "files/TextFile.h"
#include "forms/FrameDecoder.h"
#include "window/Bindings.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTime>
#include <QTimer>
#include <QVBoxLayout>

#include <iterator>

namespace kestrel {

TrafficMonitor::TrafficMonitor(Link& link, QWidget* parent) : QDialog(parent), link(link)
{
    setObjectName("frmTrafficMonitor");
    setWindowTitle(Lang::tr("Traffic Monitor"));

    grdMonitor = named(new QTableWidget(0, 4), "grdMonitor");
    grdMonitor->setHorizontalHeaderLabels(
        {Lang::tr("Time"), Lang::tr("Dir"), Lang::tr("Bytes"), Lang::tr("Decoded")});
    grdMonitor->setAccessibleName(Lang::tr("Frames"));
    grdMonitor->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdMonitor->setSelectionBehavior(QAbstractItemView::SelectRows);
    grdMonitor->setWordWrap(false);
    grdMonitor->verticalHeader()->hide();
    grdMonitor->verticalHeader()->setDefaultSectionSize(grdMonitor->fontMetrics().height() + 4);
    grdMonitor->horizontalHeader()->setStretchLastSection(true);
    grdMonitor->setFont(QFont("monospace"));
    const int digit = grdMonitor->fontMetrics().horizontalAdvance('0');
    grdMonitor->setColumnWidth(0, 14 * digit);
    grdMonitor->setColumnWidth(1, 5 * digit);
    grdMonitor->setColumnWidth(2, 42 * digit);

    cboMonitorFilter = named(new QComboBox, "cboMonitorFilter");
    cboMonitorFilter->addItem(Lang::tr("All commands")); // the first item, every frame
    cboMonitorFilter->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    cboMonitorFilter->setAccessibleName(Lang::tr("Filter"));
    lblMonitorFilter = named(new QLabel(Lang::tr("&Filter:")), "lblMonitorFilter");
    lblMonitorFilter->setBuddy(cboMonitorFilter);
    chkMonitorPause = named(new QCheckBox(Lang::tr("&Pause")), "chkMonitorPause");
    chkMonitorPause->setAccessibleName(Lang::tr("Pause"));
    chkMonitorPause->setToolTip(Lang::tr("Frames that arrive while paused are not kept, only counted"));
    lblMonitorDropped = named(new QLabel, "lblMonitorDropped");
    cmdMonitorClear = named(new QPushButton(Lang::tr("&Clear")), "cmdMonitorClear");
    cmdMonitorSave = named(new QPushButton(Lang::tr("&Save As...")), "cmdMonitorSave");
    cmdMonitorSave->setToolTip(Lang::tr("Saves the frames shown as plain text, one line per frame"));

    auto* bar = new QHBoxLayout;
    bar->addWidget(lblMonitorFilter);
    bar->addWidget(cboMonitorFilter);
    bar->addWidget(chkMonitorPause);
    bar->addWidget(lblMonitorDropped);
    bar->addStretch(1);
    bar->addWidget(cmdMonitorClear);
    bar->addWidget(cmdMonitorSave);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(grdMonitor);
    resize(1000, 560);

    repaint = new QTimer(this);
    repaint->setSingleShot(true);
    repaint->setInterval(100);
    connect(repaint, &QTimer::timeout, this, [this] {
        grdMonitor->setUpdatesEnabled(true);
        grdMonitor->scrollToBottom();
    });
    connect(cboMonitorFilter, &QComboBox::currentTextChanged, this, [this] { refill(); });
    connect(cmdMonitorClear, &QPushButton::clicked, this, [this] { clear(); });
    connect(cmdMonitorSave, &QPushButton::clicked, this, [this] { save(); });
}

void TrafficMonitor::showEvent(QShowEvent* event)
{
    // The link may outlive this window without hearing of its end; the pointer guards it.
    link.onFrame = [self = QPointer<TrafficMonitor>(this)](FrameDirection d, FrameRoute r,
                                                           const std::vector<int>& bytes) {
        if (self)
            self->received(d, r, bytes);
    };
    QDialog::showEvent(event);
}

void TrafficMonitor::hideEvent(QHideEvent* event)
{
    // Minimised with the main window (a hide by the window system) it goes on watching.
    if (!event->spontaneous())
        link.onFrame = nullptr;
    QDialog::hideEvent(event);
}

void TrafficMonitor::closeEvent(QCloseEvent* event)
{
    link.onFrame = nullptr;
    QDialog::closeEvent(event);
}

void TrafficMonitor::received(FrameDirection direction, FrameRoute route, const std::vector<int>& bytes)
{
    if (chkMonitorPause->isChecked()) {
        lblMonitorDropped->setText(Lang::tr("%1 not kept while paused").arg(++dropped));
        return;
    }
    const DecodedFrame decoded = decodeFrame(direction, route, bytes);
    Line line{QTime::currentTime().toString("hh:mm:ss.zzz"), direction == FrameDirection::Out ? "->" : "<-",
              latin1(frameBytesText(bytes)), latin1(decoded.text), latin1(decoded.command)};
    if (commands.insert(line.command).second) {
        // The names stay in alphabetical order after "All commands".
        const int at = static_cast<int>(std::distance(commands.begin(), commands.find(line.command)));
        const QSignalBlocker quiet(cboMonitorFilter);
        cboMonitorFilter->insertItem(at + 1, line.command);
    }
    if (static_cast<int>(lines.size()) >= kMaxFrames) {
        if (passes(lines.front()))
            grdMonitor->removeRow(0);
        lines.pop_front();
    }
    lines.push_back(line);
    if (passes(line)) {
        // A job sends hundreds of frames a second: the table takes them at once but is
        // painted at most every 100 ms, which keeps the link nearly as fast as unwatched.
        if (!repaint->isActive()) {
            grdMonitor->setUpdatesEnabled(false);
            repaint->start();
        }
        addRow(line);
    }
}

bool TrafficMonitor::passes(const Line& line) const
{
    const QString filter = cboMonitorFilter->currentText();
    return cboMonitorFilter->currentIndex() == 0 || filter == line.command;
}

void TrafficMonitor::addRow(const Line& line) const
{
    const int row = grdMonitor->rowCount();
    grdMonitor->insertRow(row);
    int column = 0;
    for (const QString& text : {line.time, line.direction, line.bytes, line.decoded}) {
        auto* item = new QTableWidgetItem(text);
        if (column >= 2) // a long frame is cut at the column's edge
            item->setToolTip(text);
        grdMonitor->setItem(row, column++, item);
    }
}

void TrafficMonitor::refill()
{
    grdMonitor->setUpdatesEnabled(false);
    grdMonitor->setRowCount(0);
    for (const Line& line : lines)
        if (passes(line))
            addRow(line);
    grdMonitor->setUpdatesEnabled(!repaint->isActive());
    grdMonitor->scrollToBottom();
}

void TrafficMonitor::clear()
{
    lines.clear();
    grdMonitor->setRowCount(0);
    dropped = 0;
    lblMonitorDropped->clear();
}

void TrafficMonitor::save()
{
    const std::string path =
        link.dialogs().saveFileName(Lang::tr("Save Traffic").toLatin1().toStdString(),
                                    Lang::tr("Text files").toLatin1().toStdString() + "|*.txt", "");
    if (path.empty())
        return;
    std::string text;
    for (const Line& line : lines)
        if (passes(line))
            text +=
                (line.time + "  " + line.direction + "  " + line.bytes + "  " + line.decoded).toStdString() +
                "\r\n";
    std::string error;
    if (!replaceFile(path, text, error))
        link.dialogs().message(error, Icon::Warning);
}

} // namespace kestrel
