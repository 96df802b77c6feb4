#pragma once
#include "files/DeviceDefinitions.h"
#include "forms/WorkState.h"
#include "link/CorvidControl.h"
#include "ops/Estimate.h"
#include "ops/JobDispatcher.h"
#include "platform/PortRouter.h"
#include "session/Session.h"
#include "window/Guard.h"
#include "window/QtDialogs.h"
#include "window/RememberedSettings.h"

#include <QMainWindow>
#include <memory>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QDialog;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTabWidget;
class QTimer;
class QCloseEvent;
class QAction;
class QMenu;
class QUndoStack;

namespace kestrel {
struct ProgramSession;
class GeneralPage;
class EventPage;
class PinConfigPage;
class AspectsPage;
class PinOverviewPage;
class TrafficMonitor;
class UserGuide;
class CompareDialog;
class EditHistory;
class LinkArea;
class JobRunner;
class FileActions;
class LayoutPage;
struct FoundModule;
} // namespace kestrel

namespace kestrel {

// The main window: the link area and the pages. Widgets carry the names the
// module's tools have always used (objectName = member name; control arrays are
// named Name_index).
class KestrelConfig : public QMainWindow {
    Q_OBJECT
public:
    // `dialogs` replaces the message boxes (tests record them instead); null = real boxes.
    explicit KestrelConfig(QWidget* parent = nullptr, UserDialogs* dialogs = nullptr);
    ~KestrelConfig() override;

    Session& session() { return *core; }

    // The file the configuration was last loaded from or saved to ("" while untitled), and
    // whether it differs from what that file holds (or was never saved). Reading or writing
    // the module changes neither.
    QString currentFile() const { return QString::fromStdString(work.file()); }
    bool unsavedChanges() const;

    // Link area (window/LinkArea; these name its controls)
    LinkArea* linkArea;
    QLabel* LabelPort;
    QComboBox* ComboPort;
    QPushButton* cmdRefreshComm;
    QGroupBox* FrameBitrate;
    QRadioButton* OptionBitRate[3];
    QLabel* LabelAddress;
    QLineEdit* TextAddress;
    QSpinBox* UpDownAddress;
    QCheckBox* CheckXaddress;
    QLabel* LabelXaddress;
    QLineEdit* txtXaddr;
    QSpinBox* UpDownXaddr;
    QCheckBox* CheckKestrelBD;
    QCheckBox* CheckCorvid;
    QCheckBox* CheckKLnumber;
    QLineEdit* TextResponse;
    QLabel* LabelAction;
    QTabWidget* tabs;

    // Whole-module buttons
    QPushButton* CommandReadAll;
    QPushButton* CommandWriteAll;
    QPushButton* CommandVerifyAll;
    QPushButton* CommandWriteChanges; // only what differs from the module's image
    QPushButton* CommandCompare;      // the module beside the configuration, every difference
    QPushButton* CommandReadAllPins;
    QPushButton* CommandWriteAllPins;
    QPushButton* CommandVerifyAllPins;
    QCheckBox* CheckWritePinConfig; // also send each pin's configuration to flash
    QPushButton* CommandSave;
    QPushButton* CommandLoad;
    QPushButton* cmdSetTM;

    // The Corvid log window
    QDialog* frmCorvidComm = nullptr;
    // Every frame on the wire, made on first use and kept (View > Traffic Monitor).
    TrafficMonitor* frmTrafficMonitor = nullptr;
    QPlainTextEdit* txtCorvidCommunication = nullptr;
    QPushButton* cmdClear = nullptr;

    // General page
    GeneralPage* generalPage;
    EventPage* eventPage;
    PinConfigPage* pinConfigPage;
    QPushButton* CommandGenVersion;
    QLabel* LabelGenVersionString;

    // The aspect page, with the device definitions
    AspectsPage* aspectsPage;
    PinOverviewPage* pinOverviewPage; // every pin at a glance, updated with the others
    LayoutPage* layoutPage;           // the modules of the port's layout and the jobs over them
    DeviceList devices;

    // The differences of the last "Compare with Module", made on first use and kept.
    CompareDialog* frmCompare = nullptr;

    // The verification report window; its Show Differences runs Compare with Module.
    QDialog* frmKestrelVerification = nullptr;
    QPlainTextEdit* txtVerification = nullptr;
    QPushButton* CommandShowDifferences = nullptr;

    // The user guide (Help > User Guide, F1), made on first use and kept.
    UserGuide* frmUserGuide = nullptr;

    // The status bar: the port, and what the last job did.
    QLabel* LabelStatusPort;
    QLabel* LabelStatusModule; // whether the module holds what is shown
    QLabel* LabelStatusJob;

    JobDispatcher jobs;
    QTimer* Timer1;

    // The menus: every entry calls the same handler as its button.
    QMenu* menuFile;
    QMenu* menuEdit;
    QMenu* menuModule;
    QMenu* menuView;
    QMenu* menuHelp;
    QAction* actionSave;           // Ctrl+S: the current file, or asks like Save File
    QAction* actionRecent[5];      // the last five files loaded or saved
    QAction* actionForgetSettings; // start afresh next time
    QAction* actionUndo;           // "Undo typing in Description": Ctrl+Z, in an entry box too
    QAction* actionRedo;           // "Redo ...": Ctrl+Shift+Z or Ctrl+Y

    // Every change of the configuration, general settings and event entries, one step for
    // each handler that changed them (at most 100 kept).
    QUndoStack* undoStack;
    QAction* actionRestoreBackup; // File > Restore from backup...

    // The last files, newest first (at most five).
    QStringList recentFiles() const { return kept.recent; }
    // Loads a file already chosen, as Load File does after its dialog. A backup loads as an
    // untitled configuration: Save asks for a name, and it joins no recent files.
    void loadFile(const QString& path, bool backup = false);
    // Saves to a file already chosen; asks for one when path is empty.
    void saveFile(const QString& path, bool compact);
    // Every completed Read All is kept as a backup (backupRoot()); a failure to keep it is
    // told in the status bar. Restore chooses one and loads it as Load File does.
    void saveReadBackup();
    void restoreFromBackup();
    // A module of the layout becomes the target: its route, address and eXtended address are
    // set as the link area sets them (with the question eXtended addressing asks).
    void chooseModule(const FoundModule& module);

public slots:
    void ComboPort_Click();
    void TextAddress_Click();
    void txtXaddr_Click();
    void CommandGenVersion_Click();
    void CheckKLnumber_Click();
    void CommandLoad_Click();
    // Plain click: the full file; Shift: the compact one; other buttons or keys: nothing.
    void CommandSave_MouseDown(int button, int shift);
    void CommandReadAll_Click();
    void CommandWriteAll_Click();
    void CommandVerifyAll_Click();
    void Timer1_Timer();
    void about();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // The parts that build on the window's controls.
    friend void attachLogWindows(KestrelConfig&);
    friend void ensureVerificationWindow(KestrelConfig&);
    friend void ensureCorvidWindow(KestrelConfig&);
    friend class MainMenus;
    friend class ModuleJobs;
    friend class WindowSettings;

    QWidget* buildGeneralPage();
    void refreshLinkDisplays();
    // Takes every typed entry of every page that editing has not yet finished.
    void commitAll();
    // Shows the model on every page.
    void refreshAll();
    // The title (file name, "*" for unsaved changes), the port's and the module's state.
    void updateWindowState();
    // Over unsaved changes: Save / Discard / Cancel. True when the caller may go on.
    bool keepChangesSafe(const char* doing);
    void startJob(JobName name);

    QtDialogs boxes;
    std::unique_ptr<ProgramSession> program;
    Session* core = nullptr;         // program's session
    CorvidControl* corvid = nullptr; // program's Corvid controls
    std::unique_ptr<Guard> guard;
    WorkState work;          // which file, and whether it holds what is shown
    RememberedSettings kept; // what the program remembers between runs
    bool forgetSettings = false;
    bool corvidLogDismissed = false;    // closed by the user: new lines do not force it open
    JobRunner* runner = nullptr;        // runs the jobs; sees every event of the program first
    EditHistory* history = nullptr;     // the undo steps
    std::unique_ptr<FileActions> files; // load, save, the recent files and the backups
};

} // namespace kestrel
