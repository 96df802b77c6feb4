#include "platform/BackupFolder.h"

#include <QStandardPaths>

namespace kestrel {

QString backupRoot()
{
    // The program's data folder as AppDataLocation names it for "Kestrel" / "Kestrel Config"
    // (the names of its settings), spelled out so that both executables find the same one.
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/Kestrel/Kestrel Config/backups";
}

} // namespace kestrel
