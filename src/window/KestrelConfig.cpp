#include "window/KestrelConfig.h"
#include "forms/DevicesForm.h"
#include "forms/MainWindowForm.h"

#include "files/Backups.h"
#include "files/ConfigurationFile.h"
#include "forms/AspectEditor.h"
#include "model/AddressIndex.h"
#include "model/PinTools.h"
#include "ops/Bulk.h"
#include "ops/EventControl.h"
#include "ops/PinTransfer.h"
#include "platform/BuiltInSim.h"
#include "platform/ProgramSession.h"
#include "window/AspectsPage.h"
#include "window/BackupDialog.h"
#include "window/Bindings.h"
#include "window/CompareDialog.h"
#include "window/EditHistory.h"
#include "window/EventPage.h"
#include "window/GeneralPage.h"
#include "window/JobRunner.h"
#include "window/LinkArea.h"
#include "window/PinConfigPage.h"
#include "window/PinOverview.h"
#include "window/QtProgress.h"
#include "window/RememberedSettings.h"
#include "window/TrafficMonitor.h"
#include "window/Widgets.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>
#include <chrono>

namespace kestrel {

namespace {
// Whether a path lies in the program's backups folder, which is never the user's file.
bool inBackups(const QString& path)
{
    const QString root = QDir(backupRoot()).canonicalPath();
    const QString folder = QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath();
    return !root.isEmpty() && !folder.isEmpty() && (folder == root || folder.startsWith(root + '/'));
}

} // namespace

KestrelConfig::KestrelConfig(QWidget* parent, UserDialogs* dialogs) : QMainWindow(parent), boxes(this)
{
    setObjectName("KestrelConfig");
    setWindowTitle("Kestrel Config");
    program = std::make_unique<ProgramSession>(dialogs ? *dialogs : static_cast<UserDialogs&>(boxes));
    core = program->session.get();
    corvid = program->corvid.get();
    guard = std::make_unique<Guard>(*core);
    history = new EditHistory(
        *core, [this] { commitAll(); }, [this] { refreshAll(); }, this);
    undoStack = history->stack();
    guard->done = [this](const EditState& before, const std::string& name, const void* control) {
        history->record(before, name, control);
    };

    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    linkArea = new LinkArea(*core, *corvid, *guard, kept);
    linkArea->onChanged = [this] { updateWindowState(); };
    linkArea->onNumbering = [this](bool) { CheckKLnumber_Click(); };
    LabelPort = linkArea->LabelPort;
    ComboPort = linkArea->ComboPort;
    cmdRefreshComm = linkArea->cmdRefreshComm;
    FrameBitrate = linkArea->FrameBitrate;
    std::copy(std::begin(linkArea->OptionBitRate), std::end(linkArea->OptionBitRate), OptionBitRate);
    LabelAddress = linkArea->LabelAddress;
    TextAddress = linkArea->TextAddress;
    UpDownAddress = linkArea->UpDownAddress;
    CheckXaddress = linkArea->CheckXaddress;
    LabelXaddress = linkArea->LabelXaddress;
    txtXaddr = linkArea->txtXaddr;
    UpDownXaddr = linkArea->UpDownXaddr;
    CheckKestrelBD = linkArea->CheckKestrelBD;
    CheckCorvid = linkArea->CheckCorvid;
    CheckKLnumber = linkArea->CheckKLnumber;
    TextResponse = linkArea->TextResponse;
    cmdSetTM = linkArea->cmdSetTM;
    layout->addWidget(linkArea);

    auto* bulk = new QHBoxLayout;
    CommandReadAll = named(new QPushButton("Read A&ll"), "CommandReadAll");
    CommandWriteAll = named(new QPushButton("&Write All"), "CommandWriteAll");
    CommandVerifyAll = named(new QPushButton("Verif&y All"), "CommandVerifyAll");
    CommandWriteChanges = named(new QPushButton("Write Chan&ges"), "CommandWriteChanges");
    CommandWriteChanges->setToolTip(
        "Writes only what differs from the module as it was last read, written or verified");
    CommandCompare = named(new QPushButton("Compare wi&th Module"), "CommandCompare");
    CommandCompare->setToolTip("Reads the module beside the configuration and lists every difference");
    CheckWritePinConfig = named(new QCheckBox("Write pin configurations too"), "CheckWritePinConfig");
    CheckWritePinConfig->setToolTip("Also writes each pin's servo, PWM or input parameters to flash");
    CheckWritePinConfig->setChecked(true); // so that what is written verifies
    CommandSave = named(new QPushButton("&Save File"), "CommandSave");
    CommandSave->setToolTip("Shift+Save File to save compact");
    CommandSave->installEventFilter(this);
    // From the keyboard (Space, Return, Alt+S) the keys held decide as a mouse press's do:
    // with Shift the compact file. A mouse press has saved at the press already.
    CommandSave->setAutoDefault(true); // Return presses it as Space does
    connect(CommandSave, &QPushButton::clicked, this, [this] {
        const bool shift = QApplication::keyboardModifiers() & Qt::ShiftModifier;
        CommandSave_MouseDown(1, shift ? 1 : 0);
    });
    // Alt+Shift+S is not the button's own letter: it saves compact as Shift+click does.
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::SHIFT | Qt::Key_S), this), &QShortcut::activated, this,
            [this] { CommandSave_MouseDown(1, 1); });
    CommandLoad = named(new QPushButton("L&oad File"), "CommandLoad");
    CommandReadAllPins = named(new QPushButton("Read All &Pins"), "CommandReadAllPins");
    CommandReadAllPins->setToolTip(
        "Reads the 32 pins from the module, without the general settings and events");
    CommandWriteAllPins = named(new QPushButton("Write All Pi&ns"), "CommandWriteAllPins");
    CommandWriteAllPins->setToolTip(
        "Writes the 32 pins to the module, without the general settings and events");
    CommandVerifyAllPins = named(new QPushButton("Ver&ify All Pins"), "CommandVerifyAllPins");
    CommandVerifyAllPins->setToolTip("Compares the 32 pins of the module with the configuration");
    // Two rows, so that the window still fits a small screen: the whole module and its file,
    // then the pins.
    for (QWidget* w :
         std::initializer_list<QWidget*>{CommandReadAll, CommandWriteAll, CommandWriteChanges,
                                         CommandVerifyAll, CommandCompare, CommandSave, CommandLoad})
        bulk->addWidget(w);
    auto* pinsRow = new QHBoxLayout;
    for (QWidget* w : std::initializer_list<QWidget*>{CommandReadAllPins, CommandWriteAllPins,
                                                      CommandVerifyAllPins, CheckWritePinConfig})
        pinsRow->addWidget(w);
    pinsRow->addStretch();
    connect(CommandReadAllPins, &QPushButton::clicked, this, [this] { startJob(Jobs::ReadAllPins); });
    connect(CommandWriteAllPins, &QPushButton::clicked, this, [this] { startJob(Jobs::WriteAllPins); });
    connect(CommandVerifyAllPins, &QPushButton::clicked, this, [this] { startJob(Jobs::VerifyAllPins); });
    connect(CommandWriteChanges, &QPushButton::clicked, this, [this] { startJob(Jobs::WriteChanges); });
    connect(CommandCompare, &QPushButton::clicked, this, [this] { startJob(Jobs::CompareModule); });
    connect(CommandLoad, &QPushButton::clicked, this,
            [this] { guard->operator()([this] { CommandLoad_Click(); }); });
    bulk->addStretch();
    layout->addLayout(bulk);
    layout->addLayout(pinsRow);
    connect(CommandReadAll, &QPushButton::clicked, this, &KestrelConfig::CommandReadAll_Click);
    connect(CommandWriteAll, &QPushButton::clicked, this, &KestrelConfig::CommandWriteAll_Click);
    connect(CommandVerifyAll, &QPushButton::clicked, this, &KestrelConfig::CommandVerifyAll_Click);

    tabs = named(new QTabWidget, "SSTab1");
    tabs->addTab(buildGeneralPage(), "General");
    eventPage = new EventPage(
        *core, [this](JobName job) { startJob(job); }, guard.get());
    tabs->addTab(eventPage, "Event Control");
    pinConfigPage = new PinConfigPage(*core, guard.get());
    tabs->addTab(pinConfigPage, "Pin Configuration");
    aspectsPage = new AspectsPage(
        *core, devices, [this](JobName job) { startJob(job); }, guard.get());
    tabs->addTab(aspectsPage, "Aspects");
    pinOverviewPage = new PinOverviewPage(*core);
    tabs->addTab(pinOverviewPage, "Pin Overview");
    layout->addWidget(tabs, 1);
    // One pin selection for the whole window: a pin chosen on one page is shown on all.
    eventPage->onPinChosen = [this] { refreshAll(); };
    pinConfigPage->onPinChosen = [this] { refreshAll(); };
    aspectsPage->onPinChosen = [this] { refreshAll(); };
    pinOverviewPage->onPinChosen = [this] {
        refreshAll();
        tabs->setCurrentWidget(aspectsPage); // a pin picked from the overview is shown with its aspects
    };
    aspectsPage->onDetailsChanged = [this](bool shown) {
        for (QPushButton* b : {pinConfigPage->CommandPCFGGetParam[0], pinConfigPage->CommandPCFGGetParam[1],
                               pinConfigPage->CommandPCFGSetParam[0], pinConfigPage->CommandPCFGSetParam[1]})
            b->setVisible(shown);
    };
    connect(tabs, &QTabWidget::currentChanged, this, [this] { refreshAll(); });

    LabelAction = named(new QLabel("Working ... Please WAIT"), "LabelAction");
    LabelAction->setStyleSheet("color: #b00000; font-weight: bold;");
    QSizePolicy keepRoom = LabelAction->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true); // the notice does not resize the window
    LabelAction->setSizePolicy(keepRoom);
    LabelAction->hide();
    layout->addWidget(LabelAction);
    setCentralWidget(central);

    LabelStatusPort = named(new QLabel, "LabelStatusPort");
    LabelStatusModule = named(new QLabel, "LabelStatusModule");
    LabelStatusJob = named(new QLabel, "LabelStatusJob");
    for (QLabel* field : {LabelStatusPort, LabelStatusModule, LabelStatusJob}) {
        if (field != LabelStatusPort) { // a line between the fields
            auto* line = new QFrame;
            line->setFrameStyle(QFrame::VLine | QFrame::Sunken);
            statusBar()->addWidget(line);
        }
        field->setContentsMargins(4, 0, 4, 0);
        statusBar()->addWidget(field, field == LabelStatusJob ? 1 : 0);
    }
    guard->after = [this] { updateWindowState(); };
    guard->afterFault = [this] { refreshAll(); };

    core->link.onTextResponse = [this](const std::string& t) { TextResponse->setText(latin1(t)); };
    core->link.onSettingsChanged = [this] { refreshLinkDisplays(); };
    core->link.onCorvidLog = [this](const std::string& line) {
        ensureCorvidWindow();
        txtCorvidCommunication->appendPlainText(latin1(line));
        // Shown when first written to; once the user has closed it, it stays closed
        // until View > Corvid Log opens it again.
        if (!frmCorvidComm->isVisible() && !corvidLogDismissed)
            frmCorvidComm->show();
    };

    core->report.onClear = [this] {
        ensureVerificationWindow();
        txtVerification->clear();
    };
    core->report.onLine = [this](const std::string& line) {
        ensureVerificationWindow();
        txtVerification->appendPlainText(latin1(line));
        runner->reportLine(line);
    };
    core->onShowVerification = [this] {
        ensureVerificationWindow();
        frmKestrelVerification->show();
        frmKestrelVerification->raise();
    };
    core->onConfigurationChanged = [this] {
        LabelGenVersionString->setText(latin1(core->link.VersionText));
        refreshAll();
    };

    runner =
        new JobRunner(*core, *guard, jobs,
                      {this, LabelAction, LabelStatusJob, CheckWritePinConfig, [this] { commitAll(); },
                       [this] { refreshAll(); },
                       [this](const QWidget* w) {
                           return w == frmTrafficMonitor || w == frmKestrelVerification || w == frmCorvidComm;
                       }});
    addJobs();
    Timer1 = new QTimer(this);
    Timer1->setObjectName("Timer1");
    Timer1->setInterval(200);
    connect(Timer1, &QTimer::timeout, this, &KestrelConfig::Timer1_Timer);
    Timer1->start();

    linkArea->fillPortList();
    refreshLinkDisplays();

    // The standard device definitions beside the program.
    boxes.definitionsFolder = QApplication::applicationDirPath();
    (*guard)([this] {
        loadStandardDeviceList(devices, QApplication::applicationDirPath().toStdString(), core->dialogs());
    });
    buildMenus();
    loadSettings();
    work.untitled(&core->config, &core->general); // nothing of the user's yet
    refreshAll();
    undoStack->clear(); // what the start-up did is not the user's

    runner->setButtons(
        {CommandReadAll, CommandWriteAll, CommandVerifyAll, CommandWriteChanges, CommandCompare,
         CommandReadAllPins, CommandWriteAllPins, CommandVerifyAllPins, aspectsPage->CommandReadPin,
         aspectsPage->CommandWritePin, aspectsPage->CommandReadDevice, aspectsPage->CommandWriteDevice,
         aspectsPage->CommandPAspReadPin, aspectsPage->CommandPAspWritePin,
         aspectsPage->CommandPAspWriteAspect, eventPage->CommandECRead, eventPage->CommandECWrite,
         eventPage->CommandECVerify},
        {CommandWriteAll, CommandWriteChanges, CommandWriteAllPins, aspectsPage->CommandWritePin,
         aspectsPage->CommandWriteDevice, aspectsPage->CommandPAspWritePin,
         aspectsPage->CommandPAspWriteAspect, eventPage->CommandECWrite, eventPage->CommandECWriteSingle,
         eventPage->CommandECInitWrite, generalPage->CommandGenIDWrite, generalPage->CommandGenDCCWrite,
         generalPage->CommandGenAddrWrite, generalPage->CommandGenHWCWrite, generalPage->CommandLCWrite,
         generalPage->CommandGenSerialWrite, generalPage->CommandGenEraseFlash,
         pinConfigPage->CommandPCFGSetParam[1]});
    // Every event of the program passes the job runner first: input waits while a job is
    // asked for or runs, and a mnemonic on a button that writes asks first.
    qApp->installEventFilter(runner);

    // A push button names the change its handler makes ("Read Pin", "Copy to All"; a lone
    // word with its frame: "Read (DCC)"); a press that ends without a click names nothing.
    for (QPushButton* b : findChildren<QPushButton*>()) {
        QString name = spoken(b->text());
        for (QWidget* p = b->parentWidget(); p && !name.contains(' '); p = p->parentWidget())
            if (auto* frame = qobject_cast<QGroupBox*>(p)) {
                name += " (" + spoken(frame->title()) + ")";
                break;
            }
        connect(b, &QAbstractButton::pressed, this, [this, name] { guard->nextName = name.toStdString(); });
        connect(b, &QAbstractButton::released, this,
                [this] { QTimer::singleShot(0, this, [this] { guard->nextName.clear(); }); });
    }
    // Ctrl+Z in a box undoes the configuration, not only the box's own typing.
    for (QLineEdit* box : findChildren<QLineEdit*>())
        box->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this] { history->newRun(); });
}

void KestrelConfig::addJobs()
{
    Session& s = *core;
    auto pinConfigToo = [this] { return CheckWritePinConfig->isChecked(); };
    // A verification of a part adds its lines to the report; only Verify All starts it afresh.
    auto verify = [&s](bool (*run)(Session&)) {
        return [&s, run] {
            const bool ok = run(s);
            if (s.onShowVerification)
                s.onShowVerification();
            return ok;
        };
    };
    jobs.add(Jobs::ReadAll, [this, &s] {
        bool completed = false;
        runner->run(
            "Read All", [&s, &completed] { return completed = ReadAll(s); }, true, false, LongJob::ReadAll);
        if (!completed)
            return;
        saveReadBackup();
        if (work.readFromModule(s.general)) {
            LabelStatusJob->setText(LabelStatusJob->text() + "; the file held another module, so the "
                                                             "configuration is now untitled");
            updateWindowState();
        }
    });
    jobs.add(Jobs::WriteAll, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner->writes(withConfig);
        runner->run(
            "Write All", [&s, withConfig] { return WriteAll(s, withConfig); }, false, false,
            LongJob::WriteAll);
    });
    jobs.add(Jobs::VerifyAll, [this, &s] {
        runner->run(
            "Verify All", [&s] { return VerifyAll(s); }, false, true, LongJob::VerifyAll);
    });
    jobs.add(Jobs::ReadPin, [this, &s] {
        runner->run(
            "Read Pin", [&s] { return ReadPin(s, s.config.CurrentPin); }, true);
    });
    jobs.add(Jobs::WritePin, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner->writes(withConfig);
        runner->run("Write Pin", [&s, withConfig] { return WritePin(s, s.config.CurrentPin, withConfig); });
    });
    jobs.add(Jobs::ReadDevice, [this, &s] {
        runner->run(
            "Read Device", [&s] { return ReadDevice(s); }, true);
    });
    jobs.add(Jobs::WriteDevice, [this, &s] { runner->run("Write Device", [&s] { return WriteDevice(s); }); });
    jobs.add(Jobs::ReadAllPins, [this, &s] {
        runner->run(
            "Read All Pins", [&s] { return ReadAllPins(s); }, true, false, LongJob::ReadAllPins);
    });
    jobs.add(Jobs::WriteAllPins, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner->writes(withConfig);
        runner->run(
            "Write All Pins", [&s, withConfig] { return WriteAllPins(s, withConfig); }, false, false,
            LongJob::WriteAllPins);
    });
    jobs.add(Jobs::PAspReadPin, [this, &s] {
        runner->run(
            "Read Pin", [&s] { return PAspReadPin(s, s.config.CurrentPin); }, true);
    });
    jobs.add(Jobs::PAspWritePin,
             [this, &s] { runner->run("Write Pin", [&s] { return WritePin(s, s.config.CurrentPin); }); });
    jobs.add(Jobs::VerifyAllPins, [this, verify] {
        runner->run("Verify All Pins", verify(&VerifyAllPins), false, true, LongJob::VerifyAllPins);
    });
    jobs.add(Jobs::ECWriteAll,
             [this, &s] { runner->run("Write All Events", [&s] { return WriteAllEvents(s); }); });
    jobs.add(Jobs::ECReadAll, [this, &s] {
        runner->run(
            "Read All Events", [&s] { return ReadAllEvents(s); }, true);
    });
    jobs.add(Jobs::ECVerify, [this, verify] {
        runner->run("Verify Event Control", verify(&VerifyEventControl), false, true);
    });
    jobs.add(Jobs::WriteChanges, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner->writes(withConfig);
        runner->run("Write Changes", [&s, withConfig] { return WriteChanges(s, withConfig); });
    });
    jobs.add(Jobs::CompareModule, [this, &s] {
        Configuration module;
        GeneralSettings gmodule;
        bool read = false;
        runner->run("Compare with Module", [&] { return read = ReadAllInto(s, module, gmodule); });
        if (!read)
            return;
        (*guard)([&] { showComparison(module, gmodule); });
    });
    jobs.add(Jobs::PAspWriteAspect, [this, &s] {
        runner->run("Write Aspect",
                    [&s] { return WriteAspect(s, s.config.CurrentPin, s.config.CurrentAspect); });
    });
}

void KestrelConfig::showComparison(const Configuration& module, const GeneralSettings& gmodule)
{
    if (!frmCompare) {
        frmCompare = new CompareDialog(this);
        connect(frmCompare, &CompareDialog::applyChosen, this, [this](bool thenWrite) {
            if (frmCompare->chosenCount() > 0)
                (*guard)("Take from Module", [this] {
                    frmCompare->takeChosen(core->config, core->general);
                    RecalcAddressIndex(core->config);
                });
            frmCompare->accept();
            refreshAll();
            if (thenWrite)
                startJob(Jobs::WriteChanges);
        });
    }
    const int base = core->config.NumberingBase;
    frmCompare->showDifferences(differences(module, gmodule, core->config, core->general, base), module,
                                gmodule, base);
    frmCompare->show();
    frmCompare->raise();
}

void KestrelConfig::startJob(JobName name) { runner->ask(name); }

void KestrelConfig::Timer1_Timer() { runner->tick(); }

void KestrelConfig::commitAll()
{
    generalPage->commit();
    eventPage->commitPending();
    pinConfigPage->commitPending();
    aspectsPage->commitPending();
    for (QLineEdit* box : {TextAddress, txtXaddr})
        if (box->isModified())
            emit box->editingFinished();
}

void KestrelConfig::refreshAll()
{
    commitAll();
    refreshLinkDisplays();
    generalPage->refresh();
    eventPage->refresh();
    pinConfigPage->refresh();
    aspectsPage->refresh();
    (*guard)([this] { pinOverviewPage->refresh(); });
    updateWindowState();
}

bool KestrelConfig::unsavedChanges() const { return work.unsaved(core->config, core->general); }

void KestrelConfig::updateWindowState()
{
    const QString name = currentFile().isEmpty() ? QString() : QFileInfo(currentFile()).fileName();
    const bool changed = unsavedChanges();
    LabelStatusModule->setText(
        QString::fromStdString(work.moduleState(core->moduleImage(), core->config, core->general)));
    // "Kestrel Config" while nothing is changed; "mylayout.dat* - Kestrel Config" (or
    // "untitled*") while the configuration differs from its file or was never saved.
    if (name.isEmpty() && !changed)
        setWindowTitle("Kestrel Config");
    else
        setWindowTitle((name.isEmpty() ? QString("untitled") : name) + (changed ? "*" : "") +
                       " - Kestrel Config");
    SerialPort& port = core->link.port();
    const int rate = core->linkControl.OptionBitRate;
    static const char* rates[3] = {"9600", "19200", "38400"};
    LabelStatusPort->setText(port.isOpen() ? QString("Port %1 open at %2 bit/s")
                                                 .arg(QString::fromStdString(core->linkControl.ComboPortText))
                                                 .arg(rates[std::clamp(rate, 0, 2)])
                                           : QString("Port closed"));
}

bool KestrelConfig::keepChangesSafe(const char* doing)
{
    commitAll();
    if (!unsavedChanges())
        return true;
    const Answer a =
        core->dialogs().ask(std::string("The configuration has changes that are not saved.\r\n") + doing +
                                " would lose them. Save them first?",
                            Buttons::SaveDiscardCancel, Icon::Warning);
    if (a == Answer::Discard)
        return true;
    if (a != Answer::Save)
        return false;
    CommandSave_MouseDown(1, 0);
    return !unsavedChanges(); // a cancelled or failed save keeps the changes and stops here
}

void KestrelConfig::closeEvent(QCloseEvent* event)
{
    if (runner->busy()) { // the job ends first
        event->ignore();
        return;
    }
    bool leave = false;
    (*guard)([&] { leave = keepChangesSafe("Closing the window"); });
    if (leave) {
        saveSettings();
        event->accept();
    } else
        event->ignore();
}

void KestrelConfig::CommandSave_MouseDown(int button, int shift)
{
    if (button == 1 && (shift == 0 || shift == 1))
        saveFile(QString(), shift == 1);
}

void KestrelConfig::saveFile(const QString& path, bool compact)
{
    commitAll();
    (*guard)([&] {
        std::string written = path.toStdString();
        if (!written.empty() && written == work.file() && work.changedOnDisk() &&
            core->dialogs().ask(QFileInfo(path).fileName().toStdString() +
                                    " has changed on disk since it was loaded or saved here.\r\n"
                                    "Replace it with the configuration shown?",
                                Buttons::YesNo, Icon::Warning) != Answer::Yes)
            return;
        // The backups folder is never the user's file.
        const auto backups = [this](const std::string& chosen) {
            if (!inBackups(QString::fromStdString(chosen)))
                return false;
            core->dialogs().message(
                "The backups folder is the program's own: choose another folder for the file.",
                Icon::Warning);
            return true;
        };
        if (written.empty())
            written = kestrel::CommandSave_MouseDown(*core, 1, compact ? 1 : 0, backups);
        else if (!saveConfigurationTo(*core, written, compact ? SaveForm::Compact : SaveForm::Full))
            written.clear();
        if (written.empty())
            return;
        const QString name = QString::fromStdString(written);
        if (compact)
            work.compactSaved(written); // saved only when it loads back to all that is shown
        else
            work.fileHolds(written, core->config, core->general);
        remember(name);
        LabelStatusJob->setText(QString("Saved %1%2").arg(name, compact ? " (compact)" : ""));
        if (compact && unsavedChanges())
            LabelStatusJob->setText(LabelStatusJob->text() +
                                    "; it does not hold everything shown, so the work is still unsaved");
    });
    updateWindowState();
}

void KestrelConfig::buildMenus()
{
    menuFile = menuBar()->addMenu("&File");
    auto add = [this](QMenu* menu, const QString& text, auto handler, QKeySequence keys = {}) {
        QAction* action = menu->addAction(text, this, handler);
        action->setShortcut(keys);
        return action;
    };
    add(
        menuFile, "&Load File...", [this] { loadFile(QString()); }, QKeySequence::Open);
    actionSave = add(
        menuFile, "&Save", [this] { saveFile(currentFile(), false); }, QKeySequence::Save);
    add(menuFile, "Save &Compact...", [this] { saveFile(QString(), true); });
    add(
        menuFile, "Save &As...", [this] { saveFile(QString(), false); }, QKeySequence::SaveAs);
    menuFile->addSeparator();
    for (int i = 0; i < 5; ++i) {
        actionRecent[i] = menuFile->addAction(QString(), this, [this, i] {
            if (i < kept.recent.size())
                loadFile(kept.recent[i]);
        });
        actionRecent[i]->setVisible(false);
    }
    actionRestoreBackup = add(menuFile, "&Restore from backup...", [this] { restoreFromBackup(); });
    menuFile->addSeparator();
    add(menuFile, "Reload &Device Definitions...", [this] { aspectsPage->reloadDeviceDefinitions(false); });
    add(menuFile, "A&ppend Device Definitions...", [this] { aspectsPage->reloadDeviceDefinitions(true); });
    menuFile->addSeparator();
    actionForgetSettings = add(menuFile, "&Forget Remembered Settings", [this] {
        forgetSettings = true;
        RememberedSettings::forget();
        kept.recent.clear();
        showRecent();
        LabelStatusJob->setText("The program starts afresh next time: port, addresses, window and files "
                                "are forgotten");
    });
    add(
        menuFile, "E&xit", [this] { close(); }, QKeySequence::Quit);

    menuEdit = menuBar()->addMenu("&Edit");
    actionUndo = history->undoAction();
    actionRedo = history->redoAction();
    menuEdit->addAction(actionUndo);
    menuEdit->addAction(actionRedo);
    // The menu names the step a typed but unfinished entry makes.
    connect(menuEdit, &QMenu::aboutToShow, this, &KestrelConfig::commitAll);
    // The copy, paste, clear, insert and delete tools of the Aspects page, from the keyboard.
    menuEdit->addSeparator();
    for (QAction* tool :
         {aspectsPage->actionPinTool, aspectsPage->actionAspectTool, aspectsPage->actionStepTool})
        menuEdit->addAction(tool);

    menuModule = menuBar()->addMenu("&Module");
    auto press = [](QAbstractButton* b) { return [b] { b->click(); }; };
    add(menuModule, "Request &Version", press(CommandGenVersion));
    add(menuModule, "&Read All", press(CommandReadAll), QKeySequence("Ctrl+R"));
    add(menuModule, "&Write All", press(CommandWriteAll)); // no key: a write starts only from a choice
    add(menuModule, "Write Chan&ges", press(CommandWriteChanges));
    add(menuModule, "Verify &All", press(CommandVerifyAll));
    add(menuModule, "Compare wi&th Module...", press(CommandCompare));
    add(menuModule, "&Erase Flash...", press(generalPage->CommandGenEraseFlash));
    menuModule->addSeparator();
    add(menuModule, "Read &Pin", press(aspectsPage->CommandReadPin));
    add(menuModule, "Write P&in", press(aspectsPage->CommandWritePin));
    add(menuModule, "Read &Device", press(aspectsPage->CommandReadDevice));
    add(menuModule, "Write Devi&ce", press(aspectsPage->CommandWriteDevice));
    add(menuModule, "Read Aspe&cts of the Pin", press(aspectsPage->CommandPAspReadPin));
    add(menuModule, "Write Aspects o&f the Pin", press(aspectsPage->CommandPAspWritePin));
    add(menuModule, "Write the Selected Asp&ect", press(aspectsPage->CommandPAspWriteAspect));
    add(menuModule, "Read All Pi&ns", press(CommandReadAllPins));
    add(menuModule, "Write All Pin&s", press(CommandWriteAllPins));
    add(menuModule, "Verify All Pins", press(CommandVerifyAllPins));
    menuModule->addSeparator();
    add(menuModule, "Read Event Control", press(eventPage->CommandECRead));
    add(menuModule, "Write Event Control", press(eventPage->CommandECWrite));
    add(menuModule, "Verify Event Control", press(eventPage->CommandECVerify));

    menuView = menuBar()->addMenu("&View");
    add(menuView, "&Corvid Log", [this] {
        ensureCorvidWindow();
        corvidLogDismissed = false;
        frmCorvidComm->show();
        frmCorvidComm->raise();
    });
    add(menuView, "&Traffic Monitor", [this] {
        if (!frmTrafficMonitor)
            frmTrafficMonitor = new TrafficMonitor(core->link, this);
        frmTrafficMonitor->show();
        frmTrafficMonitor->raise();
    });
    add(menuView, "&Pin Overview", [this] { tabs->setCurrentWidget(pinOverviewPage); });

    menuHelp = menuBar()->addMenu("&Help");
    add(
        menuHelp, "&About Kestrel Config", [this] { about(); }, QKeySequence::HelpContents);
}

void KestrelConfig::about()
{
    QMessageBox box(this);
    box.setObjectName("dlgAbout");
    box.setWindowTitle("About Kestrel Config");
    box.setIconPixmap(windowIcon().pixmap(64, 64));
    box.setText(QString("<b>Kestrel Config %1</b>").arg(KESTREL_VERSION));
    box.setInformativeText(
        QString("Reads, edits, writes back and verifies what a Kestrel accessory module stores.<br><br>"
                "Build: %1, Qt %2<br><br>"
                "The README (how to start, the command-line tool, the data-file format and the "
                "Aspects page) lies in the program's source folder, README.md; the data-file "
                "keywords are described in its section \"kestrel-cli\".")
            .arg(QString(KESTREL_BUILD_TYPE).isEmpty() ? QString("default") : QString(KESTREL_BUILD_TYPE),
                 qVersion()));
    box.exec();
}

void KestrelConfig::remember(const QString& path)
{
    if (inBackups(path))
        return;
    kept.remember(path);
    showRecent();
}

void KestrelConfig::showRecent()
{
    for (int i = 0; i < 5; ++i) {
        const bool used = i < kept.recent.size();
        actionRecent[i]->setVisible(used);
        if (used)
            actionRecent[i]->setText(QString("&%1 %2").arg(i + 1).arg(QFileInfo(kept.recent[i]).fileName()));
    }
}

void KestrelConfig::loadSettings()
{
    auto& lc = core->linkControl;
    auto& link = core->link.settings;
    kept = RememberedSettings::load(lc.OptionBitRate);
    if (!restoreGeometry(kept.geometry))
        firstSize();
    (*guard)([&] { lc.OptionBitRate_Click(kept.bitRate); });
    OptionBitRate[kept.bitRate]->setChecked(true);
    if (kept.numbering == 1) {
        CheckKLnumber->setChecked(true);
        CheckKLnumber_Click();
    }
    link.TargetAddress = kept.address;
    link.TargetXAddress = kept.extendedAddress;
    if (kept.extended) // asked about again, as when it was set
        (*guard)([&] { lc.CheckXaddress_Click(true); });
    CheckWritePinConfig->setChecked(kept.writePinConfigurations);
    boxes.setFolder(kept.folder);
    kept.recent.erase(std::remove_if(kept.recent.begin(), kept.recent.end(), inBackups), kept.recent.end());
    linkArea->fillPortList();
    showRecent();
    refreshLinkDisplays();
    // The last port (or, on a first start, the simulated module), shown but not yet opened.
    ComboPort->setEditText(kept.port);
    ComboPort->setToolTip("The serial port; \"sim\" is a simulated module built into the program. "
                          "Return or a choice from the list opens it.");
}

void KestrelConfig::firstSize()
{
    // Each page scrolls inside its own area; the whole layout is the window with the
    // largest page's content shown without scrolling.
    QSize content;
    for (const QScrollArea* area : tabs->findChildren<QScrollArea*>())
        if (area->widget())
            content = content.expandedTo(area->widget()->sizeHint());
    QSize whole = sizeHint();
    const QSize page = tabs->currentWidget() ? tabs->currentWidget()->sizeHint() : QSize();
    whole.rwidth() = std::max(whole.width(), content.width() + whole.width() - page.width() + 40);
    whole.rheight() += std::max(0, content.height() - page.height()) + 40;
    const QScreen* screen = QApplication::primaryScreen();
    const QSize room =
        screen ? screen->availableSize() - (frameGeometry().size() - geometry().size()) : whole;
    resize(whole.boundedTo(room));
}

void KestrelConfig::saveSettings()
{
    if (forgetSettings)
        return;
    const auto& lc = core->linkControl;
    const auto& link = core->link.settings;
    kept.geometry = saveGeometry();
    kept.port =
        lc.ComboPortText.empty() ? ComboPort->currentText() : QString::fromStdString(lc.ComboPortText);
    kept.bitRate = lc.OptionBitRate;
    kept.numbering = core->config.NumberingBase;
    kept.address = link.TargetAddress;
    kept.extended = link.CheckXaddress;
    kept.extendedAddress = link.TargetXAddress;
    kept.writePinConfigurations = CheckWritePinConfig->isChecked();
    kept.folder = boxes.folder();
    kept.save();
}

void KestrelConfig::ensureVerificationWindow()
{
    if (frmKestrelVerification)
        return;
    frmKestrelVerification = named(new QDialog(this), "frmKestrelVerification");
    frmKestrelVerification->setWindowTitle("Kestrel Verification");
    auto* l = new QVBoxLayout(frmKestrelVerification);
    txtVerification = named(new QPlainTextEdit, "txtVerification");
    txtVerification->setReadOnly(true);
    txtVerification->setAccessibleName("Verification report");
    l->addWidget(txtVerification);
    frmKestrelVerification->resize(560, 420);
}

void KestrelConfig::ensureCorvidWindow()
{
    if (frmCorvidComm)
        return;
    frmCorvidComm = named(new QDialog(this), "frmCorvidComm");
    frmCorvidComm->setWindowTitle("Corvid Communication");
    auto* l = new QVBoxLayout(frmCorvidComm);
    txtCorvidCommunication = named(new QPlainTextEdit, "txtCorvidCommunication");
    txtCorvidCommunication->setReadOnly(true);
    txtCorvidCommunication->setAccessibleName("Corvid communication");
    txtCorvidCommunication->setFont(QFont("monospace"));
    cmdClear = named(new QPushButton("&Clear"), "cmdClear");
    l->addWidget(txtCorvidCommunication);
    l->addWidget(cmdClear);
    connect(cmdClear, &QPushButton::clicked, this, [this] {
        txtCorvidCommunication->clear();
        core->link.txtCorvidCommunication.clear();
    });
    frmCorvidComm->resize(480, 360);
    connect(frmCorvidComm, &QDialog::finished, this, [this] { corvidLogDismissed = true; });
}

void KestrelConfig::refreshLinkDisplays() { linkArea->refresh(); }

void KestrelConfig::ComboPort_Click() { linkArea->ComboPort_Click(); }

void KestrelConfig::TextAddress_Click() { linkArea->TextAddress_Click(); }

void KestrelConfig::txtXaddr_Click() { linkArea->txtXaddr_Click(); }

void KestrelConfig::CheckKLnumber_Click()
{
    // Shown numbers move with the base; what is stored stays numbered from 0.
    commitAll(); // a typed number is taken with the base it was typed for
    core->config.NumberingBase = CheckKLnumber->isChecked() ? 1 : 0;
    refreshAll();
}

void KestrelConfig::CommandLoad_Click() { loadFile(QString()); }

void KestrelConfig::loadFile(const QString& path, bool backup)
{
    if (!keepChangesSafe(backup ? "Restoring a backup" : "Loading a file"))
        return;
    (*guard)(backup ? "Restore from Backup" : "Load File", [this, &path, backup] {
        const LoadOutcome loaded = path.isEmpty() ? kestrel::CommandLoad_Click(*core)
                                                  : loadConfigurationFrom(*core, path.toStdString());
        if (loaded.path.empty())
            return;
        const QString name = QString::fromStdString(loaded.path);
        switch (loaded.result) {
        case LoadResult::Loaded:
            // A backup stays the program's: the configuration from it is untitled.
            if (backup || inBackups(name)) {
                work.untitled(&core->config, &core->general);
                LabelStatusJob->setText("Restored the backup " + name + " as an untitled configuration");
                break;
            }
            work.fileHolds(loaded.path, core->config, core->general);
            remember(name);
            LabelStatusJob->setText("Loaded " + name);
            break;
        case LoadResult::FormatError:
            work.untitled(); // what was read is not what the file holds
            LabelStatusJob->setText("Load stopped at a fault in " + name +
                                    ": the pages show what was read before it");
            break;
        default:
            LabelStatusJob->setText("Nothing was loaded from " + name);
            break;
        }
    });
    refreshAll();
}

void KestrelConfig::saveReadBackup()
{
    std::string error;
    std::string saved;
    (*guard)([&] {
        saved = saveBackup(backupRoot().toStdString(), core->config, core->general,
                           std::chrono::system_clock::now(), error,
                           core->lastJob().incomplete() ? BackupKind::Incomplete : BackupKind::Complete);
    });
    if (saved.empty())
        LabelStatusJob->setText(LabelStatusJob->text() +
                                "; the backup was not saved: " + QString::fromStdString(error));
}

void KestrelConfig::restoreFromBackup()
{
    BackupDialog dialog(listBackups(backupRoot().toStdString()), this);
    if (dialog.exec() == QDialog::Accepted && !dialog.chosenPath().isEmpty())
        loadFile(dialog.chosenPath(), true);
}

void KestrelConfig::CommandReadAll_Click()
{
    if (keepChangesSafe("Reading the module"))
        startJob(Jobs::ReadAll);
}

void KestrelConfig::CommandWriteAll_Click() { startJob(Jobs::WriteAll); }

void KestrelConfig::CommandVerifyAll_Click() { startJob(Jobs::VerifyAll); }

KestrelConfig::~KestrelConfig()
{
    // The window is no longer here to answer its widgets' signals while they go (a log
    // window that is still open reports itself closed).
    for (QObject* child : findChildren<QObject*>()) {
        QObject::disconnect(child, nullptr, this, nullptr);
        QObject::disconnect(child, nullptr, linkArea, nullptr); // its handlers use the guard
    }
    QObject::disconnect(qApp, nullptr, this, nullptr);
    qApp->removeEventFilter(runner);
    // The session refers to the dialogs of the window: it goes first.
    guard.reset();
    program.reset();
}

QWidget* KestrelConfig::buildGeneralPage()
{
    generalPage = new GeneralPage(*core, guard.get());
    CommandGenVersion = generalPage->CommandGenVersion;
    LabelGenVersionString = generalPage->LabelGenVersionString;
    return generalPage;
}

void KestrelConfig::CommandGenVersion_Click() { generalPage->CommandGenVersion_Click(); }

bool KestrelConfig::eventFilter(QObject* watched, QEvent* event)
{
    // A box's own undo would only take back its typing: Ctrl+Z and Ctrl+Shift+Z (Ctrl+Y)
    // there are the window's undo and redo.
    if ((event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) &&
        qobject_cast<QLineEdit*>(watched)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QKeyCombination keys = key->keyCombination();
        const bool back = key->matches(QKeySequence::Undo);
        const bool forth = key->matches(QKeySequence::Redo) ||
                           keys == QKeyCombination(Qt::CTRL | Qt::SHIFT, Qt::Key_Z) ||
                           keys == QKeyCombination(Qt::CTRL, Qt::Key_Y);
        if (back || forth) {
            if (event->type() == QEvent::ShortcutOverride)
                event->accept(); // the key comes to the box, and so here
            else if (back)
                history->undo();
            else
                history->redo();
            return true;
        }
    }
    // Save acts on the press, where the keys held decide: Shift alone saves the compact file.
    if (watched == CommandSave && event->type() == QEvent::MouseButtonPress) {
        const auto [button, shift] = pressOf(static_cast<QMouseEvent*>(event));
        CommandSave_MouseDown(button, shift);
        return true; // done: no click follows
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace kestrel
