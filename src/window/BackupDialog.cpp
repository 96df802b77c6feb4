#include "window/BackupDialog.h"
#include "window/Language.h"

#include "window/Bindings.h"
#include "window/Widgets.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace kestrel {

BackupDialog::BackupDialog(std::vector<BackupEntry> entries, QWidget* parent)
    : QDialog(parent), backups(std::move(entries))
{
    setObjectName("dlgBackups");
    setWindowTitle(Lang::tr("Restore from backup"));
    auto* layout = new QVBoxLayout(this);

    tableBackups = named(new QTableWidget(static_cast<int>(backups.size()), 3), "tableBackups");
    tableBackups->setHorizontalHeaderLabels({Lang::tr("Date"), Lang::tr("ID"), Lang::tr("Version")});
    tableBackups->setSelectionBehavior(QAbstractItemView::SelectRows);
    tableBackups->setSelectionMode(QAbstractItemView::SingleSelection);
    tableBackups->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tableBackups->verticalHeader()->hide();
    tableBackups->horizontalHeader()->setStretchLastSection(true);
    for (int row = 0; row < tableBackups->rowCount(); ++row) {
        const BackupEntry& e = backups[static_cast<std::size_t>(row)];
        int column = 0;
        for (const std::string& text :
             {e.incomplete ? e.when + Lang::tr(" (incomplete)").toLatin1().toStdString() : e.when, e.id,
              e.version}) {
            auto* item = new QTableWidgetItem(QString::fromLatin1(text.c_str()));
            if (e.incomplete)
                item->setToolTip(Lang::tr(
                    "The read reported problems: this backup may hold values the module never sent"));
            tableBackups->setItem(row, column++, item);
        }
    }
    tableBackups->resizeColumnsToContents();
    if (!backups.empty())
        tableBackups->selectRow(0);
    layout->addWidget(captionFor(Lang::tr("&Backups"), tableBackups));
    layout->addWidget(tableBackups);

    CommandLoad = named(new QPushButton(Lang::tr("&Load")), "CommandLoad");
    CommandCancel = named(new QPushButton(Lang::tr("&Cancel")), "CommandCancel");
    CommandLoad->setAccessibleName(Lang::tr("Load"));
    CommandCancel->setAccessibleName(Lang::tr("Cancel"));
    CommandLoad->setDefault(true);
    CommandLoad->setEnabled(!backups.empty());
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(CommandLoad, QDialogButtonBox::AcceptRole);
    buttons->addButton(CommandCancel, QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(tableBackups, &QTableWidget::cellDoubleClicked, this, &QDialog::accept);
    resize(520, 360);
}

QString BackupDialog::chosenPath() const
{
    const int row = tableBackups->currentRow();
    if (row < 0 || row >= static_cast<int>(backups.size()))
        return {};
    return QString::fromStdString(backups[static_cast<std::size_t>(row)].path);
}

} // namespace kestrel
