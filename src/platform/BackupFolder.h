#pragma once
#include <QString>

namespace kestrel {

// Where the window and kestrel-cli keep the automatic backups: "backups" in the program's
// data folder (~/.local/share/Kestrel/Kestrel Config/backups).
QString backupRoot();

} // namespace kestrel
