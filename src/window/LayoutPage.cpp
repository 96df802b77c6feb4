#include "window/LayoutPage.h"
#include "window/Language.h"

#include "files/Backups.h"
#include "platform/BackupFolder.h"
#include "window/Bindings.h"
#include "window/RememberedSettings.h"
#include "window/Widgets.h"

#include <QCheckBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrel {

namespace {

enum Column { Route, Address, XAddress, Version, Id, Backup, State, Columns };

// A button (or box) whose accessible name is its caption.
template <typename B> B* captioned(B* b, const QString& name)
{
    b->setObjectName(name);
    b->setAccessibleName(b->text());
    return b;
}

} // namespace

LayoutPage::LayoutPage(Session& s, RememberedSettings& k, QWidget* parent)
    : QWidget(parent), session(s), kept(k)
{
    setObjectName("PageLayout");
    QWidget* content = scrolledContent(this);
    CommandFindModules = captioned(new QPushButton(Lang::tr("Find Modules")), "CommandFindModules");
    CommandFindModules->setToolTip(
        Lang::tr("Asks every bus address of the route in use (0..15 directly, 0..31 through "
                 "the Corvid system) for its version and ID string; each address is given "
                 "500 ms to answer"));
    CheckXaddressRange =
        captioned(new QCheckBox(Lang::tr("Also every eXtended address")), "CheckXaddressRange");
    CheckXaddressRange->setToolTip(
        Lang::tr("Find Modules also asks eXtended addresses 0..95 on each address that "
                 "answered (about 48 s an address)"));
    CommandBackUpAll = captioned(new QPushButton(Lang::tr("Back Up All")), "CommandBackUpAll");
    CommandBackUpAll->setToolTip(Lang::tr("Read All of each module in the list, kept with its backups"));
    CommandCheckAll = captioned(new QPushButton(Lang::tr("Check All")), "CommandCheckAll");
    CommandCheckAll->setToolTip(Lang::tr("Compares each module in the list with its newest backup"));

    auto* caption = named(new QLabel(Lang::tr("Modules of the layout:")), "LabelLayout");
    TableLayout = named(new QTableWidget(0, Columns), "TableLayout");
    TableLayout->setAccessibleName(Lang::tr("Modules of the layout"));
    caption->setBuddy(TableLayout);
    TableLayout->setHorizontalHeaderLabels({Lang::tr("Route"), Lang::tr("Address"), Lang::tr("eXtended"),
                                            Lang::tr("Version"), Lang::tr("ID String"),
                                            Lang::tr("Newest Backup"), Lang::tr("State")});
    TableLayout->verticalHeader()->hide();
    TableLayout->setEditTriggers(QAbstractItemView::NoEditTriggers);
    TableLayout->setSelectionBehavior(QAbstractItemView::SelectRows);
    TableLayout->setSelectionMode(QAbstractItemView::SingleSelection);
    TableLayout->setAlternatingRowColors(true);
    TableLayout->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    TableLayout->horizontalHeader()->setStretchLastSection(true);
    TableLayout->setToolTip(Lang::tr("Double-click a module (or press Return) to make it the target"));
    TableLayout->installEventFilter(this);
    connect(TableLayout, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
        if (onModuleChosen && row >= 0 && row < int(list.size()))
            onModuleChosen(list[std::size_t(row)].module);
    });

    auto* buttons = new QHBoxLayout;
    for (QWidget* w : std::initializer_list<QWidget*>{CommandFindModules, CheckXaddressRange,
                                                      CommandBackUpAll, CommandCheckAll})
        buttons->addWidget(w);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(content);
    layout->addLayout(buttons);
    layout->addWidget(caption);
    layout->addWidget(TableLayout, 1);
}

void LayoutPage::followPort()
{
    const QString now = QString::fromStdString(session.linkControl.ComboPortText);
    if (now == port)
        return;
    keep();
    port = now;
    std::vector<std::string> lines;
    for (const QString& line : kept.layouts.value(port))
        lines.push_back(line.toStdString());
    list = decodeLayout(lines);
}

void LayoutPage::keep()
{
    if (port.isEmpty())
        return;
    QStringList lines;
    for (const std::string& line : encodeLayout(list))
        lines << QString::fromStdString(line);
    if (lines.isEmpty())
        kept.layouts.remove(port);
    else
        kept.layouts[port] = lines;
}

const std::vector<LayoutEntry>& LayoutPage::entries()
{
    followPort();
    return list;
}

std::vector<FoundModule> LayoutPage::modules()
{
    std::vector<FoundModule> all;
    for (const LayoutEntry& e : entries())
        all.push_back(e.module);
    return all;
}

void LayoutPage::found(const std::vector<FoundModule>& modules, bool corvid)
{
    list = afterScan(entries(), modules, corvid);
    keep();
    refresh();
}

void LayoutPage::backedUp(const std::vector<ModuleBackup>& results)
{
    followPort();
    noteResults(list, results);
    keep();
    refresh();
}

void LayoutPage::checked(const std::vector<ModuleCheck>& results)
{
    followPort();
    noteResults(list, results);
    keep();
    refresh();
}

void LayoutPage::refresh()
{
    followPort();
    std::vector<BackupEntry> backups;
    try {
        backups = listBackups(backupRoot().toStdString());
    } catch (const std::exception&) {
        // A backup folder that cannot be read shows no times.
    }
    const int base = session.config.NumberingBase;
    TableLayout->setRowCount(int(list.size()));
    for (int row = 0; row < int(list.size()); ++row) {
        const LayoutEntry& e = list[std::size_t(row)];
        std::string newest = Lang::tr("none").toLatin1().toStdString();
        for (const BackupEntry& b : backups) // the complete ones first, newest first
            if (b.id == e.module.id) {
                newest = b.incomplete ? b.when + Lang::tr(" (incomplete)").toLatin1().toStdString() : b.when;
                break;
            }
        const std::string cells[Columns] = {
            e.module.corvid ? std::string("Corvid") : Lang::tr("direct").toLatin1().toStdString(),
            std::to_string(e.module.address + base),
            e.module.xaddress ? std::to_string(*e.module.xaddress + base) : "",
            e.module.version,
            e.module.id,
            newest,
            stateText(e)};
        for (int c = 0; c < Columns; ++c) {
            QTableWidgetItem* item = TableLayout->item(row, c);
            if (!item)
                TableLayout->setItem(row, c, item = new QTableWidgetItem);
            item->setText(c == State ? translatedMessage(cells[c]) : latin1(cells[c]));
        }
    }
}

void LayoutPage::showSummary(const QString& title, const QString& summary)
{
    if (!frmLayoutSummary) {
        frmLayoutSummary = named(new QDialog(window()), "frmLayoutSummary");
        auto* l = new QVBoxLayout(frmLayoutSummary);
        auto* caption = named(new QLabel(Lang::tr("Summary:")), "LabelLayoutSummary");
        txtLayoutSummary = named(new QPlainTextEdit, "txtLayoutSummary");
        txtLayoutSummary->setReadOnly(true);
        txtLayoutSummary->setAccessibleName(Lang::tr("Summary"));
        txtLayoutSummary->setFont(QFont("monospace"));
        txtLayoutSummary->setLineWrapMode(QPlainTextEdit::NoWrap);
        caption->setBuddy(txtLayoutSummary);
        auto* close = captioned(new QPushButton(Lang::tr("Close")), "CommandLayoutSummaryClose");
        connect(close, &QPushButton::clicked, frmLayoutSummary, &QDialog::accept);
        l->addWidget(caption);
        l->addWidget(txtLayoutSummary);
        l->addWidget(close, 0, Qt::AlignRight);
        frmLayoutSummary->resize(720, 360);
    }
    frmLayoutSummary->setWindowTitle(title);
    txtLayoutSummary->setPlainText(summary);
    frmLayoutSummary->show();
    frmLayoutSummary->raise();
}

bool LayoutPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == TableLayout && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int row = TableLayout->currentRow();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && onModuleChosen && row >= 0 &&
            row < int(list.size())) {
            onModuleChosen(list[std::size_t(row)].module);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kestrel
