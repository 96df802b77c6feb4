#include "window/PinOverview.h"
#include "window/Language.h"

#include "forms/PinOverview.h"
#include "window/Bindings.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrel {

namespace {
enum Column { Pin, Description, Mode, Layout, Device, Dcc, XDcc, Serial, Columns };
} // namespace

PinOverviewPage::PinOverviewPage(Session& s, QWidget* parent) : QWidget(parent), session(s)
{
    setObjectName("PagePinOverview");
    TablePinOverview = new QTableWidget(kPinCount, Columns, this);
    TablePinOverview->setObjectName("TablePinOverview");
    TablePinOverview->setAccessibleName(Lang::tr("Pin overview"));
    TablePinOverview->setHorizontalHeaderLabels({Lang::tr("Pin"), Lang::tr("Description"), Lang::tr("Mode"),
                                                 Lang::tr("Layout"), Lang::tr("Device"), Lang::tr("DCC"),
                                                 Lang::tr("eXtd DCC"), Lang::tr("Serial")});
    TablePinOverview->verticalHeader()->hide();
    TablePinOverview->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    TablePinOverview->setEditTriggers(QAbstractItemView::NoEditTriggers);
    TablePinOverview->setSelectionBehavior(QAbstractItemView::SelectRows);
    TablePinOverview->setSelectionMode(QAbstractItemView::SingleSelection);
    TablePinOverview->setAlternatingRowColors(true);
    QHeaderView* header = TablePinOverview->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(Description, QHeaderView::Stretch);
    TablePinOverview->installEventFilter(this);
    connect(TablePinOverview, &QTableWidget::cellDoubleClicked, this, [this](int row, int) { choose(row); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(TablePinOverview);
    refresh();
}

void PinOverviewPage::refresh() const
{
    const auto rows = pinOverview(session.config, session.general);
    for (int p = 0; p < kPinCount; ++p) {
        const PinOverviewRow& r = rows[p];
        const std::string* texts[Columns] = {&r.pin,    &r.description, &r.mode, &r.layout,
                                             &r.device, &r.dcc,         &r.xdcc, &r.serial};
        for (int c = 0; c < Columns; ++c) {
            QTableWidgetItem* item = TablePinOverview->item(p, c);
            if (!item) {
                item = new QTableWidgetItem;
                if (c == Pin || c == Layout)
                    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                TablePinOverview->setItem(p, c, item);
            }
            // The mode and "No addr in use" in the user's language; numbers and names as they are.
            item->setText(c == Mode ? translated("PinMode", *texts[c])
                                    : translated("PinOverview", *texts[c]));
        }
    }
    const int current = session.config.CurrentPin;
    if (current >= 0 && current < kPinCount && TablePinOverview->currentRow() != current)
        TablePinOverview->setCurrentCell(
            current, TablePinOverview->currentColumn() < 0 ? 0 : TablePinOverview->currentColumn());
}

void PinOverviewPage::choose(int row)
{
    if (row < 0 || row >= kPinCount)
        return;
    session.config.CurrentPin = row;
    if (onPinChosen)
        onPinChosen();
}

bool PinOverviewPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == TablePinOverview && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            choose(TablePinOverview->currentRow());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kestrel
