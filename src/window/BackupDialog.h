#pragma once
#include "files/Backups.h"
#include "platform/BackupFolder.h"

#include <QDialog>
#include <QString>

#include <vector>

class QPushButton;
class QTableWidget;

namespace kestrel {

// File > Restore from backup...: the backups as listBackups() orders them (the complete
// ones newest first, then those of incomplete reads, their date marked "(incomplete)"),
// with their date, ID and version. Load (or a double-click on a row) accepts the chosen one; Cancel chooses
// none.
class BackupDialog : public QDialog {
    Q_OBJECT
public:
    BackupDialog(std::vector<BackupEntry> entries, QWidget* parent = nullptr);
    // The data file of the chosen backup, "" when none is chosen.
    QString chosenPath() const;

    QTableWidget* tableBackups;
    QPushButton* CommandLoad;
    QPushButton* CommandCancel;

private:
    std::vector<BackupEntry> backups;
};

} // namespace kestrel
