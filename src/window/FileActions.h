#pragma once
#include "forms/WorkState.h"
#include "session/Session.h"
#include "window/Guard.h"
#include "window/RememberedSettings.h"

#include <QString>
#include <functional>

class QAction;
class QLabel;
class QWidget;

namespace kestrel {

// What the window does with files: Load and Save (the full file or the compact one), the
// question before unsaved changes would be lost, the recent files of the File menu, and
// the automatic backups (one kept after every completed Read All, File > Restore from
// backup... loads one as an untitled configuration). The status bar says what was done.
class FileActions {
public:
    struct Window {
        QWidget* parent;                   // of the backup dialog
        QLabel* status;                    // the status bar's field of the last job
        std::function<void()> commitAll;   // takes every typed entry
        std::function<void()> refreshAll;  // shows the model on every page
        std::function<void()> updateState; // the title and the status bar
    };
    FileActions(Session& session, Guard& guard, WorkState& work, RememberedSettings& kept, Window window);

    // Loads a file already chosen, or asks for one when path is empty. A backup loads as an
    // untitled configuration: Save asks for a name, and it joins no recent files.
    void load(const QString& path, bool backup = false);
    // Saves to a file already chosen; asks for one when path is empty.
    void save(const QString& path, bool compact);
    // Over unsaved changes: Save / Discard / Cancel. True when the caller may go on.
    bool keepChangesSafe(const char* doing);
    bool unsaved() const { return work.unsaved(core.config, core.general); }

    // Keeps the configuration just read as a backup; a failure is told in the status bar.
    void saveReadBackup();
    // Lets the user choose a backup and loads it.
    void restoreFromBackup();

    // A file loaded or saved joins the recent files (a backup never does).
    void remember(const QString& path);
    // The File menu's entries of the recent files, as many as there are files.
    void showRecent();
    QAction* recentActions[RememberedSettings::kRecentFiles] = {};

    // Whether a path lies in the program's backups folder, which is never the user's file.
    static bool inBackups(const QString& path);

private:
    Session& core;
    Guard& guard;
    WorkState& work;
    RememberedSettings& kept;
    Window window;
};

} // namespace kestrel
