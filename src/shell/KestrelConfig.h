#pragma once
#include "files/DeviceDefinitions.h"
#include "forms/WorkState.h"
#include "link/CorvidControl.h"
#include "ops/Estimate.h"
#include "ops/JobDispatcher.h"
#include "session/Session.h"
#include "shell/Guard.h"
#include "shell/PortRouter.h"
#include "shell/QtDialogs.h"
#include "shell/RememberedSettings.h"

#include <QMainWindow>
#include <QPointer>
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
class QAbstractButton;
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
class CompareDialog;
class EditHistory;
class LinkArea;
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

    // Link area (shell/LinkArea; these name its controls)
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
    DeviceList devices;

    // The differences of the last "Compare with Module", made on first use and kept.
    CompareDialog* frmCompare = nullptr;

    // The verification report window
    QDialog* frmKestrelVerification = nullptr;
    QPlainTextEdit* txtVerification = nullptr;

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
    QWidget* buildGeneralPage();
    void refreshLinkDisplays();
    void addJobs();
    // Runs one job behind the progress dialog, inside the guard, and tells its outcome in
    // the status bar. `reads` jobs fill the pages; `verifies` jobs compare the module with
    // the configuration in the report. A long job's progress shows its `estimate`.
    void runJob(const QString& title, const std::function<bool()>& operation, bool reads = false,
                bool verifies = false, std::optional<LongJob> estimate = std::nullopt);
    // Takes every typed entry of every page that editing has not yet finished.
    void commitAll();
    // Shows the model on every page.
    void refreshAll();
    // The title (file name, "*" for unsaved changes) and the port's state.
    void updateWindowState();
    // Whether the module's job buttons are pressed from the keyboard (a mnemonic) and
    // the button writes to the module: a question first. True when it may go on.
    bool confirmKeyboardWrite(QAbstractButton* button);
    // From a job's button press to the job's end the window takes no input but the
    // progress dialog's (and its boxes'); a job button pressed before the job began
    // replaces the job asked for.
    bool blocksInput(QObject* target, QEvent* event) const;
    // Over unsaved changes: Save / Discard / Cancel. True when the caller may go on.
    bool keepChangesSafe(const char* doing);
    void startJob(JobName name);
    void showComparison(const Configuration& module, const GeneralSettings& gmodule);
    void ensureVerificationWindow();
    void ensureCorvidWindow();
    void buildMenus();
    // What the program remembers between runs (QSettings): the port, bit rate, module and
    // eXtended address, numbering, window geometry, the last folder and the last files.
    void loadSettings();
    // A first start: as large as the screen allows, up to what shows every page whole.
    void firstSize();
    void saveSettings();
    void remember(const QString& path); // a file loaded or saved joins the recent files
    void showRecent();

    QtDialogs boxes;
    std::unique_ptr<ProgramSession> program;
    Session* core = nullptr;         // program's session
    CorvidControl* corvid = nullptr; // program's Corvid controls
    std::unique_ptr<Guard> guard;
    WorkState work;          // which file, and whether it holds what is shown
    RememberedSettings kept; // what the program remembers between runs
    bool forgetSettings = false;
    bool corvidLogDismissed = false;    // closed by the user: new lines do not force it open
    bool jobAsked = false;              // a job's button was pressed: input waits for its end
    QList<QAbstractButton*> jobButtons; // the buttons that start jobs
    QList<QAbstractButton*> writers;    // the buttons that write to the module
    bool pinConfigWritten = true;       // the last write sent the pins' configurations too
    std::vector<std::string> jobReport; // the report's lines written since the job began
    QPointer<QWidget> focusBeforeJob;   // where the keyboard goes back to when the job ends
    QObject* gate = nullptr;            // sees every event of the program first
    EditHistory* history = nullptr;     // the undo steps
};

} // namespace kestrel
