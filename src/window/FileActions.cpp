#include "window/FileActions.h"
#include "forms/MainWindowForm.h"
#include "window/Language.h"

#include "files/Backups.h"
#include "files/ConfigurationFile.h"
#include "window/BackupDialog.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <chrono>

namespace kestrel {

FileActions::FileActions(Session& session, Guard& guard, WorkState& work, RememberedSettings& kept,
                         Window window)
    : core(session), guard(guard), work(work), kept(kept), window(std::move(window))
{
}

bool FileActions::inBackups(const QString& path)
{
    const QString root = QDir(backupRoot()).canonicalPath();
    const QString folder = QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath();
    return !root.isEmpty() && !folder.isEmpty() && (folder == root || folder.startsWith(root + '/'));
}

bool FileActions::keepChangesSafe(const char* doing)
{
    window.commitAll();
    if (!unsaved())
        return true;
    const Answer a = core.dialogs().ask(
        Lang::tr("The configuration has changes that are not saved.\r\n%1 would lose them. Save them first?")
            .arg(Lang::tr(doing))
            .toLatin1()
            .toStdString(),
        Buttons::SaveDiscardCancel, Icon::Warning);
    if (a == Answer::Discard)
        return true;
    if (a != Answer::Save)
        return false;
    save(QString(), false);
    return !unsaved(); // a cancelled or failed save keeps the changes and stops here
}

void FileActions::save(const QString& path, bool compact)
{
    window.commitAll();
    guard([&] {
        std::string written = path.toStdString();
        if (!written.empty() && written == work.file() && work.changedOnDisk() &&
            core.dialogs().ask(QFileInfo(path).fileName().toStdString() +
                                   Lang::tr(" has changed on disk since it was loaded or saved here.\r\n"
                                            "Replace it with the configuration shown?")
                                       .toLatin1()
                                       .toStdString(),
                               Buttons::YesNo, Icon::Warning) != Answer::Yes)
            return;
        // The backups folder is never the user's file.
        const auto backups = [this](const std::string& chosen) {
            if (!inBackups(QString::fromStdString(chosen)))
                return false;
            core.dialogs().message(
                Lang::tr("The backups folder is the program's own: choose another folder for the file.")
                    .toLatin1()
                    .toStdString(),
                Icon::Warning);
            return true;
        };
        if (written.empty())
            written = CommandSave_MouseDown(core, 1, compact ? 1 : 0, backups);
        else if (!saveConfigurationTo(core, written, compact ? SaveForm::Compact : SaveForm::Full))
            written.clear();
        if (written.empty())
            return;
        const QString name = QString::fromStdString(written);
        if (compact)
            work.compactSaved(written); // saved only when it loads back to all that is shown
        else
            work.fileHolds(written, core.config, core.general);
        remember(name);
        window.status->setText(
            Lang::tr("Saved %1%2").arg(name, compact ? Lang::tr(" (compact)") : QString()));
        if (compact && unsaved())
            window.status->setText(
                window.status->text() +
                Lang::tr("; it does not hold everything shown, so the work is still unsaved"));
    });
    window.updateState();
}

void FileActions::load(const QString& path, bool backup)
{
    if (!keepChangesSafe(backup ? QT_TRANSLATE_NOOP("Lang", "Restoring a backup")
                                : QT_TRANSLATE_NOOP("Lang", "Loading a file")))
        return;
    guard((backup ? Lang::tr("Restore from Backup") : Lang::tr("Load File")).toStdString(), [this, &path,
                                                                                             backup] {
        const LoadOutcome loaded =
            path.isEmpty() ? CommandLoad_Click(core) : loadConfigurationFrom(core, path.toStdString());
        if (loaded.path.empty())
            return;
        const QString name = QString::fromStdString(loaded.path);
        switch (loaded.result) {
        case LoadResult::Loaded:
            // A backup stays the program's: the configuration from it is untitled.
            if (backup || inBackups(name)) {
                work.untitled(&core.config, &core.general);
                window.status->setText(
                    Lang::tr("Restored the backup %1 as an untitled configuration").arg(name));
                break;
            }
            work.fileHolds(loaded.path, core.config, core.general);
            remember(name);
            window.status->setText(Lang::tr("Loaded %1").arg(name));
            break;
        case LoadResult::FormatError:
            work.untitled(); // what was read is not what the file holds
            window.status->setText(
                Lang::tr("Load stopped at a fault in %1: the pages show what was read before it").arg(name));
            break;
        default:
            window.status->setText(Lang::tr("Nothing was loaded from %1").arg(name));
            break;
        }
    });
    window.refreshAll();
}

void FileActions::saveReadBackup()
{
    std::string error;
    std::string saved;
    guard([&] {
        saved = saveBackup(backupRoot().toStdString(), core.config, core.general,
                           std::chrono::system_clock::now(), error,
                           core.lastJob().incomplete() ? BackupKind::Incomplete : BackupKind::Complete);
    });
    if (saved.empty())
        window.status->setText(window.status->text() +
                               Lang::tr("; the backup was not saved: %1").arg(QString::fromStdString(error)));
}

void FileActions::restoreFromBackup()
{
    BackupDialog dialog(listBackups(backupRoot().toStdString()), window.parent);
    if (dialog.exec() == QDialog::Accepted && !dialog.chosenPath().isEmpty())
        load(dialog.chosenPath(), true);
}

void FileActions::remember(const QString& path)
{
    if (inBackups(path))
        return;
    kept.remember(path);
    showRecent();
}

void FileActions::showRecent()
{
    for (int i = 0; i < RememberedSettings::kRecentFiles; ++i) {
        const bool used = i < kept.recent.size();
        recentActions[i]->setVisible(used);
        if (used)
            recentActions[i]->setText(QString("&%1 %2").arg(i + 1).arg(QFileInfo(kept.recent[i]).fileName()));
    }
}

} // namespace kestrel
