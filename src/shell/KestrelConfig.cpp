#include "shell/KestrelConfig.h"
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
#include "shell/AspectsPage.h"
#include "shell/BackupDialog.h"
#include "shell/Bindings.h"
#include "shell/BuiltInSim.h"
#include "shell/CompareDialog.h"
#include "shell/EventPage.h"
#include "shell/GeneralPage.h"
#include "shell/PinConfigPage.h"
#include "shell/PinOverview.h"
#include "shell/ProgramSession.h"
#include "shell/QtProgress.h"
#include "shell/TrafficMonitor.h"
#include "shell/Widgets.h"

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
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
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
// Progress that remembers the last step reported, so the outcome can say where a job stopped.
class JobProgress : public QtProgress {
public:
    using QtProgress::QtProgress;
    void step(int done, int total, const std::string& what) override
    {
        last = what;
        QtProgress::step(done, total, what);
    }
    std::string last;
};

// Where a job stopped, from its last step: "at pin 12 of 32" or "while reading DCC settings".
QString whereStopped(const std::string& step)
{
    const QString what = QString::fromLatin1(step.c_str());
    const auto pin = QRegularExpression(R"(^\w+ pin (\d+)$)").match(what);
    if (pin.hasMatch())
        return QString("at pin %1 of %2").arg(pin.captured(1)).arg(kPinCount);
    if (what.startsWith("Request"))
        return "at the version request";
    if (what.isEmpty())
        return "before its first step";
    return "while " + what.left(1).toLower() + what.mid(1);
}

// What is kept in a data file, without what only shows (labels, the warning flag, and the
// address texts, which follow the numbering base; the file keeps their values).
GeneralSettings filed(GeneralSettings g)
{
    g.LabelGenVersionString.clear();
    g.SuppressAddrWarning = false;
    g.TextGenXaddr.clear();
    g.TextGenLynxaddr.clear();
    return g;
}

// Whether what is kept differs: the selection, the numbering and what only shows do not count.
bool configurationDiffers(const Configuration& x, const GeneralSettings& g, const Configuration& y,
                          const GeneralSettings& h)
{
    return x.Pins != y.Pins || x.EventMap != y.EventMap || x.DccFirstIndex != y.DccFirstIndex ||
           x.XDccFirstIndex != y.XDccFirstIndex || x.LynxFirstIndex != y.LynxFirstIndex ||
           x.DccTotal != y.DccTotal || x.XDccTotal != y.XDccTotal || x.LynxTotal != y.LynxTotal ||
           filed(g) != filed(h);
}

// Hands every event of the program to a test of the window's before it is delivered.
class EventGate : public QObject {
public:
    EventGate(std::function<bool(QObject*, QEvent*)> test, QObject* parent)
        : QObject(parent), test(std::move(test))
    {
    }
    bool eventFilter(QObject* watched, QEvent* event) override { return test(watched, event); }

private:
    std::function<bool(QObject*, QEvent*)> test;
};

// Whether every difference a verification reported is a pin's configuration (and there is one).
bool onlyPinConfigurationsDiffer(const std::vector<std::string>& lines)
{
    bool any = false;
    for (const std::string& line : lines)
        if (line.find("does not compare") != std::string::npos) {
            if (line.find("Pinconfig") == std::string::npos)
                return false;
            any = true;
        }
    return any;
}

// Whether a path lies in the program's backups folder, which is never the user's file.
bool inBackups(const QString& path)
{
    const QString root = QDir(backupRoot()).canonicalPath();
    const QString folder = QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath();
    return !root.isEmpty() && !folder.isEmpty() && (folder == root || folder.startsWith(root + '/'));
}

// One undo step: the states before and after what the user did. Typing on in the same box
// (same control, the focus not moved, nothing else changed between) joins the step.
class ConfigurationStep : public QUndoCommand {
public:
    using State = std::shared_ptr<const EditState>;
    ConfigurationStep(const QString& name, State before, State after, const void* control, int run,
                      std::function<void(const State&)> restore)
        : QUndoCommand(name), before(std::move(before)), after(std::move(after)), control(control), run(run),
          restore(std::move(restore))
    {
    }
    void undo() override { restore(before); }
    void redo() override
    {
        if (pushed) // the first redo is the push: the change is made already
            restore(after);
        pushed = true;
    }
    int id() const override { return control ? 1 : -1; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = static_cast<const ConfigurationStep*>(other);
        if (next->control != control || next->run != run || *next->before != *after)
            return false;
        after = next->after;
        setObsolete(!configurationDiffers(before->config, before->general, after->config, after->general));
        return true;
    }

private:
    State before;
    State after;
    const void* control;
    int run;
    std::function<void(const State&)> restore;
    bool pushed = false;
};

} // namespace

KestrelConfig::KestrelConfig(QWidget* parent, UserDialogs* dialogs) : QMainWindow(parent), boxes(this)
{
    setObjectName("KestrelConfig");
    setWindowTitle("Kestrel Config");
    program = std::make_unique<ProgramSession>(dialogs ? *dialogs : static_cast<UserDialogs&>(boxes));
    core = program->session.get();
    corvid = program->corvid.get();
    guard = std::make_unique<Guard>(*core);
    undoStack = new QUndoStack(this);
    undoStack->setUndoLimit(100);
    guard->done = [this](const EditState& before, const std::string& name, const void* control) {
        record(before, name, control);
    };

    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    buildLinkArea(central);
    layout->addWidget(linkFrame);

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
        jobReport.push_back(line);
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

    addJobs();
    Timer1 = new QTimer(this);
    Timer1->setObjectName("Timer1");
    Timer1->setInterval(200);
    connect(Timer1, &QTimer::timeout, this, &KestrelConfig::Timer1_Timer);
    Timer1->start();

    fillPortList();
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

    jobButtons = {CommandReadAll,
                  CommandWriteAll,
                  CommandVerifyAll,
                  CommandWriteChanges,
                  CommandCompare,
                  CommandReadAllPins,
                  CommandWriteAllPins,
                  CommandVerifyAllPins,
                  aspectsPage->CommandReadPin,
                  aspectsPage->CommandWritePin,
                  aspectsPage->CommandReadDevice,
                  aspectsPage->CommandWriteDevice,
                  aspectsPage->CommandPAspReadPin,
                  aspectsPage->CommandPAspWritePin,
                  aspectsPage->CommandPAspWriteAspect,
                  eventPage->CommandECRead,
                  eventPage->CommandECWrite,
                  eventPage->CommandECVerify};
    writers = {CommandWriteAll,
               CommandWriteChanges,
               CommandWriteAllPins,
               aspectsPage->CommandWritePin,
               aspectsPage->CommandWriteDevice,
               aspectsPage->CommandPAspWritePin,
               aspectsPage->CommandPAspWriteAspect,
               eventPage->CommandECWrite,
               eventPage->CommandECWriteSingle,
               eventPage->CommandECInitWrite,
               generalPage->CommandGenIDWrite,
               generalPage->CommandGenDCCWrite,
               generalPage->CommandGenAddrWrite,
               generalPage->CommandGenHWCWrite,
               generalPage->CommandLCWrite,
               generalPage->CommandGenSerialWrite,
               generalPage->CommandGenEraseFlash,
               pinConfigPage->CommandPCFGSetParam[1]};
    // Every event of the program passes here first: input waits while a job is asked for or
    // runs, and a mnemonic (Alt+letter, one key) on a button that writes asks first.
    gate = new EventGate(
        [this](QObject* watched, QEvent* event) {
            if (blocksInput(watched, event))
                return true;
            auto* button = qobject_cast<QAbstractButton*>(watched);
            return event->type() == QEvent::Shortcut && button && writers.contains(button) &&
                   !confirmKeyboardWrite(button);
        },
        this);
    qApp->installEventFilter(gate);

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
    connect(qApp, &QApplication::focusChanged, this, [this] { ++editRun; });
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
        runJob(
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
        const bool withConfig = pinConfigWritten = pinConfigToo();
        runJob(
            "Write All", [&s, withConfig] { return WriteAll(s, withConfig); }, false, false,
            LongJob::WriteAll);
    });
    jobs.add(Jobs::VerifyAll, [this, &s] {
        runJob(
            "Verify All", [&s] { return VerifyAll(s); }, false, true, LongJob::VerifyAll);
    });
    jobs.add(Jobs::ReadPin, [this, &s] {
        runJob(
            "Read Pin", [&s] { return ReadPin(s, s.config.CurrentPin); }, true);
    });
    jobs.add(Jobs::WritePin, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigWritten = pinConfigToo();
        runJob("Write Pin", [&s, withConfig] { return WritePin(s, s.config.CurrentPin, withConfig); });
    });
    jobs.add(Jobs::ReadDevice, [this, &s] {
        runJob(
            "Read Device", [&s] { return ReadDevice(s); }, true);
    });
    jobs.add(Jobs::WriteDevice, [this, &s] { runJob("Write Device", [&s] { return WriteDevice(s); }); });
    jobs.add(Jobs::ReadAllPins, [this, &s] {
        runJob(
            "Read All Pins", [&s] { return ReadAllPins(s); }, true, false, LongJob::ReadAllPins);
    });
    jobs.add(Jobs::WriteAllPins, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigWritten = pinConfigToo();
        runJob(
            "Write All Pins", [&s, withConfig] { return WriteAllPins(s, withConfig); }, false, false,
            LongJob::WriteAllPins);
    });
    jobs.add(Jobs::PAspReadPin, [this, &s] {
        runJob(
            "Read Pin", [&s] { return PAspReadPin(s, s.config.CurrentPin); }, true);
    });
    jobs.add(Jobs::PAspWritePin,
             [this, &s] { runJob("Write Pin", [&s] { return WritePin(s, s.config.CurrentPin); }); });
    jobs.add(Jobs::VerifyAllPins, [this, verify] {
        runJob("Verify All Pins", verify(&VerifyAllPins), false, true, LongJob::VerifyAllPins);
    });
    jobs.add(Jobs::ECWriteAll,
             [this, &s] { runJob("Write All Events", [&s] { return WriteAllEvents(s); }); });
    jobs.add(Jobs::ECReadAll, [this, &s] {
        runJob(
            "Read All Events", [&s] { return ReadAllEvents(s); }, true);
    });
    jobs.add(Jobs::ECVerify,
             [this, verify] { runJob("Verify Event Control", verify(&VerifyEventControl), false, true); });
    jobs.add(Jobs::WriteChanges, [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigWritten = pinConfigToo();
        runJob("Write Changes", [&s, withConfig] { return WriteChanges(s, withConfig); });
    });
    jobs.add(Jobs::CompareModule, [this, &s] {
        Configuration module;
        GeneralSettings gmodule;
        bool read = false;
        runJob("Compare with Module", [&] { return read = ReadAllInto(s, module, gmodule); });
        if (!read)
            return;
        (*guard)([&] { showComparison(module, gmodule); });
    });
    jobs.add(Jobs::PAspWriteAspect, [this, &s] {
        runJob("Write Aspect", [&s] { return WriteAspect(s, s.config.CurrentPin, s.config.CurrentAspect); });
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

void KestrelConfig::startJob(JobName name)
{
    commitAll();
    if (!jobAsked)
        focusBeforeJob = QApplication::focusWidget();
    jobAsked = true; // from now until the job ends the window waits
    LabelAction->setVisible(true);
    jobs.request(name);
}

void KestrelConfig::Timer1_Timer()
{
    if (jobs.running())
        return;
    jobs.Timer1_Timer();
    if (!jobAsked)
        return;
    jobAsked = false;
    LabelAction->setVisible(false);
    // The keyboard goes back where it was, whatever boxes the job raised.
    activateWindow();
    if (focusBeforeJob && focusBeforeJob->isVisible() && focusBeforeJob->isEnabled())
        focusBeforeJob->setFocus(Qt::OtherFocusReason);
}

bool KestrelConfig::blocksInput(QObject* target, QEvent* event) const
{
    if (!jobAsked && !jobs.running())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        // Before the job begins, another job's button replaces the job asked for.
        if (!jobs.running() && jobButtons.contains(qobject_cast<QAbstractButton*>(target)))
            return false;
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
        break;
    default:
        return false;
    }
    // The progress dialog and the boxes a job raises take their input.
    const auto* widget = qobject_cast<QWidget*>(target);
    const QWidget* modal = QApplication::activeModalWidget();
    return !(widget && modal && widget->window() == modal);
}

bool KestrelConfig::confirmKeyboardWrite(QAbstractButton* button)
{
    return core->dialogs().ask("\"" + spoken(button->text()).toStdString() +
                                   "\" writes to the module. Write now?",
                               Buttons::YesNo, Icon::Question) == Answer::Yes;
}

void KestrelConfig::runJob(const QString& title, const std::function<bool()>& operation, bool reads,
                           bool verifies, std::optional<LongJob> estimate)
{
    commitAll();
    jobReport.clear();
    JobProgress progress(this, title);
    // The estimate counts the direct route's frames; a tunnelled job goes without one.
    if (estimate && !core->link.settings.CheckCorvid)
        progress.setEstimate(jobTraffic(*estimate, core->config, core->general, core->link.settings,
                                        CheckWritePinConfig->isChecked()),
                             9600 << core->linkControl.OptionBitRate);
    core->link.setProgress(&progress);
    QElapsedTimer clock;
    clock.start();
    bool ok = false;
    core->beginJob(title.toStdString()); // the whole-module jobs within count as part of it
    const bool noFault = (*guard)(title.toStdString(), [&] { ok = operation(); });
    // A verification that ran to its end has done its job, whatever it found.
    core->endJob(noFault && (ok || verifies));
    core->link.setProgress(nullptr);
    LabelAction->setVisible(false);

    // What the job left undone, as the core noted it ("... incomplete: 1 problem reported,
    // the first: ...", "... stopped: DCC address 9000 cannot be sent: 0..8191").
    const QString summary = latin1(core->jobSummary());
    const QString partial = reads ? ": the pages show a partial read" : QString();
    QString outcome;
    if (!noFault)
        outcome = title + " stopped by a program error; the configuration is as it was before";
    else if (progress.cancelled())
        outcome = title + " cancelled " + whereStopped(progress.last) + partial;
    else if (verifies && summary.isEmpty())
        outcome = ok ? (title == "Verify All" ? QString("Verify OK")
                                              : title + ": the module holds the configuration")
                     : title + ": the module differs, see the verification report";
    else if (!ok && progress.last.empty() && !summary.isEmpty())
        outcome = summary; // stopped before its first step
    else if (!ok)
        outcome = title + " stopped " + whereStopped(progress.last) + partial;
    else if (!summary.isEmpty())
        outcome = summary + partial;
    else
        outcome = QString("%1 done in %2 s").arg(title).arg(clock.elapsed() / 1000.0, 0, 'f', 1);
    // A write that went wrong on the way leaves the module's content unknown.
    if (!verifies && !reads && !summary.isEmpty() && !core->moduleImage())
        outcome += "; the module may hold only part of it";
    LabelStatusJob->setText(outcome);
    if (verifies && !ok && !pinConfigWritten && onlyPinConfigurationsDiffer(jobReport))
        core->report.line("The pins' configurations were not written: check \"Write pin configurations "
                          "too\" and write again.");
    refreshAll();
}

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
    if (jobAsked || jobs.running()) { // the job ends first
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
        const SaveForm form = compact ? SaveForm::Compact : SaveForm::Full;
        if (!written.empty() && written == work.file() && work.changedOnDisk() &&
            core->dialogs().ask(QFileInfo(path).fileName().toStdString() +
                                    " has changed on disk since it was loaded or saved here.\r\n"
                                    "Replace it with the configuration shown?",
                                Buttons::YesNo, Icon::Warning) != Answer::Yes)
            return;
        if (written.empty()) {
            written = core->dialogs().saveFileName("Save Configuration", kConfigFileFilter, "");
            if (!written.empty() && inBackups(QString::fromStdString(written))) {
                core->dialogs().message("The backups folder is the program's own: choose another folder "
                                        "for the file.",
                                        Icon::Warning);
                return;
            }
        }
        if (written.empty() || !saveConfigurationTo(*core, written, form))
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
            if (i < recent.size())
                loadFile(recent[i]);
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
        QSettings("Kestrel", "Kestrel Config").clear();
        recent.clear();
        showRecent();
        LabelStatusJob->setText("The program starts afresh next time: port, addresses, window and files "
                                "are forgotten");
    });
    add(
        menuFile, "E&xit", [this] { close(); }, QKeySequence::Quit);

    menuEdit = menuBar()->addMenu("&Edit");
    actionUndo = undoStack->createUndoAction(this, "Undo");
    actionRedo = undoStack->createRedoAction(this, "Redo");
    actionUndo->setShortcuts(QKeySequence::Undo);
    actionRedo->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
    for (auto [action, step] :
         {std::pair{actionUndo, &KestrelConfig::undo}, std::pair{actionRedo, &KestrelConfig::redo}}) {
        disconnect(action, &QAction::triggered, undoStack, nullptr); // the window takes pending typing first
        connect(action, &QAction::triggered, this, step);
        menuEdit->addAction(action);
    }
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

void KestrelConfig::undo()
{
    commitAll();
    undoStack->undo();
}

void KestrelConfig::redo()
{
    commitAll();
    undoStack->redo();
}

void KestrelConfig::record(const EditState& before, const std::string& name, const void* control)
{
    if (restoring || !configurationDiffers(before.config, before.general, core->config, core->general))
        return;
    auto was = latest && *latest == before ? latest : std::make_shared<const EditState>(before);
    latest = std::make_shared<const EditState>(EditState{core->config, core->general, core->eventControl});
    undoStack->push(new ConfigurationStep(QString::fromStdString(name.empty() ? "Edit" : name),
                                          std::move(was), latest, control, editRun,
                                          [this](const ConfigurationStep::State& s) { restore(s); }));
}

void KestrelConfig::restore(const std::shared_ptr<const EditState>& state)
{
    restoring = true;
    const int base = core->config.NumberingBase;
    const std::string version = core->general.LabelGenVersionString;
    const bool warned = core->general.SuppressAddrWarning;
    core->config = state->config; // with the selection it had: the change is shown where it was made
    core->config.NumberingBase = base;
    core->general = state->general;
    core->general.LabelGenVersionString = version;
    core->general.SuppressAddrWarning = warned;
    core->eventControl = state->eventControl;
    refreshAll();
    restoring = false;
    latest = state;
    ++editRun;
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
                "Build: %1, Qt %2, %3<br><br>"
                "The README (how to start, the command-line tool, the data-file format and the "
                "Aspects page) lies in the program's source folder, README.md; the data-file "
                "keywords are described in its section \"kestrel-cli\".")
            .arg(QString(KESTREL_BUILD_TYPE).isEmpty() ? QString("default") : QString(KESTREL_BUILD_TYPE),
                 qVersion(), __DATE__));
    box.exec();
}

void KestrelConfig::remember(const QString& path)
{
    if (inBackups(path))
        return;
    const QString full = QFileInfo(path).absoluteFilePath();
    recent.removeAll(full);
    recent.prepend(full);
    while (recent.size() > 5)
        recent.removeLast();
    showRecent();
}

void KestrelConfig::showRecent()
{
    for (int i = 0; i < 5; ++i) {
        const bool used = i < recent.size();
        actionRecent[i]->setVisible(used);
        if (used)
            actionRecent[i]->setText(QString("&%1 %2").arg(i + 1).arg(QFileInfo(recent[i]).fileName()));
    }
}

void KestrelConfig::loadSettings()
{
    QSettings store("Kestrel", "Kestrel Config");
    if (!restoreGeometry(store.value("window/geometry").toByteArray()))
        firstSize();
    auto& lc = core->linkControl;
    auto& link = core->link.settings;
    const int rate = std::clamp(store.value("link/bitRate", lc.OptionBitRate).toInt(), 0, 2);
    (*guard)([&] { lc.OptionBitRate_Click(rate); });
    OptionBitRate[rate]->setChecked(true);
    if (store.value("link/numbering", 0).toInt() == 1) {
        CheckKLnumber->setChecked(true);
        CheckKLnumber_Click();
    }
    link.TargetAddress = std::clamp(store.value("link/address", 0).toInt(), 0, 15);
    link.TargetXAddress = std::clamp(store.value("link/extendedAddress", 0).toInt(), 0, 95);
    if (store.value("link/extended", false).toBool()) // asked about again, as when it was set
        (*guard)([&] { lc.CheckXaddress_Click(true); });
    CheckWritePinConfig->setChecked(store.value("jobs/writePinConfigurations", true).toBool());
    boxes.setFolder(store.value("files/folder").toString());
    recent.clear();
    for (const QString& file : store.value("files/recent").toStringList())
        if (!inBackups(file) && recent.size() < 5)
            recent << file;
    typedPorts = store.value("link/typedPorts").toStringList();
    fillPortList();
    showRecent();
    refreshLinkDisplays();
    // The last port (or, on a first start, the simulated module), shown but not yet opened.
    ComboPort->setEditText(store.value("link/port", "sim").toString());
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
    QSettings store("Kestrel", "Kestrel Config");
    store.setValue("window/geometry", saveGeometry());
    const auto& lc = core->linkControl;
    const auto& link = core->link.settings;
    store.setValue("link/port",
                   QString::fromStdString(lc.ComboPortText.empty() ? ComboPort->currentText().toStdString()
                                                                   : lc.ComboPortText));
    store.setValue("link/bitRate", lc.OptionBitRate);
    store.setValue("link/numbering", core->config.NumberingBase);
    store.setValue("link/address", link.TargetAddress);
    store.setValue("link/extended", link.CheckXaddress);
    store.setValue("link/extendedAddress", link.TargetXAddress);
    store.setValue("jobs/writePinConfigurations", CheckWritePinConfig->isChecked());
    store.setValue("link/typedPorts", typedPorts);
    store.setValue("files/folder", boxes.folder());
    store.setValue("files/recent", recent);
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

void KestrelConfig::CheckCorvid_Click()
{
    (*guard)([this] { corvid->CheckCorvid_Click(CheckCorvid->isChecked()); });
    refreshLinkDisplays();
}

void KestrelConfig::CheckKLnumber_Click()
{
    // Shown numbers move with the base; what is stored stays numbered from 0.
    commitAll(); // a typed number is taken with the base it was typed for
    core->config.NumberingBase = CheckKLnumber->isChecked() ? 1 : 0;
    refreshAll();
}

void KestrelConfig::cmdSetTM_Click()
{
    (*guard)([this] { corvid->cmdSetTM_Click(); });
    refreshLinkDisplays();
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
    for (QObject* child : findChildren<QObject*>())
        QObject::disconnect(child, nullptr, this, nullptr);
    QObject::disconnect(qApp, nullptr, this, nullptr);
    qApp->removeEventFilter(gate);
    // The session refers to the dialogs of the window: it goes first.
    guard.reset();
    program.reset();
}

void KestrelConfig::buildLinkArea(QWidget* host)
{
    linkFrame = named(new QGroupBox("Communication", host), "FrameComm");
    auto* grid = new QGridLayout(linkFrame);

    LabelPort = named(new QLabel("Port:"), "LabelPort");
    LabelPort->installEventFilter(this);
    ComboPort = named(new QComboBox, "ComboPort");
    ComboPort->setEditable(true); // a typed device path is accepted too
    ComboPort->setMinimumWidth(160);
    ComboPort->setInsertPolicy(QComboBox::NoInsert);
    cmdRefreshComm = named(new QPushButton("&Refresh"), "cmdRefreshComm");
    nameAfter(LabelPort, ComboPort);
    ComboPort->lineEdit()->setAccessibleName("Port");
    grid->addWidget(LabelPort, 0, 0);
    grid->addWidget(ComboPort, 0, 1);
    grid->addWidget(cmdRefreshComm, 0, 2);

    FrameBitrate = named(new QGroupBox("Bitrate"), "FrameBitrate");
    auto* rates = new QHBoxLayout(FrameBitrate);
    const char* captions[3] = {"9k6", "19k2", "38k4"};
    for (int i = 0; i < 3; ++i) {
        OptionBitRate[i] = named(new QRadioButton(captions[i]), QString("OptionBitRate_%1").arg(i));
        rates->addWidget(OptionBitRate[i]);
        connect(OptionBitRate[i], &QRadioButton::clicked, this, [this, i] { OptionBitRate_Click(i); });
    }
    OptionBitRate[core->linkControl.OptionBitRate]->setChecked(true);
    grid->addWidget(FrameBitrate, 1, 0, 1, 3);

    LabelAddress = named(new QLabel("Module Address"), "LabelAddress");
    auto* address = new NumberEntry("TextAddress", "UpDownAddress");
    TextAddress = address->text;
    UpDownAddress = address->upDown;
    numericInput(TextAddress, 3);
    nameAfter(LabelAddress, TextAddress);
    grid->addWidget(LabelAddress, 0, 3);
    grid->addWidget(address, 0, 4, Qt::AlignLeft);

    CheckXaddress = named(new QCheckBox("Use eXtended Addr"), "CheckXaddress");
    LabelXaddress = named(new QLabel("eXtended address"), "LabelXaddress");
    auto* xAddress = new NumberEntry("txtXaddr", "UpDownXaddr");
    txtXaddr = xAddress->text;
    UpDownXaddr = xAddress->upDown;
    numericInput(txtXaddr, 3);
    nameAfter(LabelXaddress, txtXaddr);
    UpDownXaddr->setAccessibleName(txtXaddr->accessibleName());
    grid->addWidget(CheckXaddress, 1, 3);
    grid->addWidget(LabelXaddress, 2, 3);
    grid->addWidget(xAddress, 2, 4, Qt::AlignLeft);
    grid->setColumnStretch(4, 1); // room to spare goes beside the addresses

    CheckKestrelBD = named(new QCheckBox("Bidirectional Comm."), "CheckKestrelBD");
    CheckCorvid = named(new QCheckBox("Use Corvid Tunneling"), "CheckCorvid");
    cmdSetTM = named(new QPushButton("A&ctivate Transparent Mode"), "cmdSetTM");
    cmdSetTM->setToolTip("Switch Hub-A or Linkbox in Transparant Mode for Kestrel Configuration");
    grid->addWidget(cmdSetTM, 3, 5);
    CheckKLnumber = named(new QCheckBox("Start numbering at 1"), "CheckKLnumber");
    grid->addWidget(CheckKestrelBD, 0, 5);
    grid->addWidget(CheckCorvid, 1, 5);
    grid->addWidget(CheckKLnumber, 2, 5);

    TextResponse = named(new QLineEdit, "TextResponse");
    TextResponse->setReadOnly(true);
    grid->addWidget(captionFor("Response:", TextResponse), 3, 0);
    grid->addWidget(TextResponse, 3, 1, 1, 4);

    // Tab reads the grid row by row.
    tabOrder({ComboPort, cmdRefreshComm, TextAddress, CheckKestrelBD, OptionBitRate[0], OptionBitRate[1],
              OptionBitRate[2], CheckXaddress, CheckCorvid, txtXaddr, CheckKLnumber, TextResponse, cmdSetTM});

    connect(ComboPort, &QComboBox::activated, this, [this](int) { ComboPort_Click(); });
    connect(ComboPort->lineEdit(), &QLineEdit::returnPressed, this, &KestrelConfig::ComboPort_Click);
    connect(cmdRefreshComm, &QPushButton::clicked, this, &KestrelConfig::cmdRefreshComm_Click);
    connect(TextAddress, &QLineEdit::editingFinished, this, &KestrelConfig::TextAddress_Click);
    connect(UpDownAddress, &QSpinBox::valueChanged, this, &KestrelConfig::UpDownAddress_Change);
    connect(txtXaddr, &QLineEdit::editingFinished, this, &KestrelConfig::txtXaddr_Click);
    connect(UpDownXaddr, &QSpinBox::valueChanged, this, &KestrelConfig::UpDownXaddr_Change);
    connect(CheckXaddress, &QCheckBox::clicked, this, &KestrelConfig::CheckXaddress_Click);
    connect(CheckKestrelBD, &QCheckBox::clicked, this, &KestrelConfig::CheckKestrelBD_Click);
    connect(CheckCorvid, &QCheckBox::clicked, this, &KestrelConfig::CheckCorvid_Click);
    connect(CheckKLnumber, &QCheckBox::clicked, this, &KestrelConfig::CheckKLnumber_Click);
    connect(cmdSetTM, &QPushButton::clicked, this, &KestrelConfig::cmdSetTM_Click);
}

QWidget* KestrelConfig::buildGeneralPage()
{
    generalPage = new GeneralPage(*core, guard.get());
    CommandGenVersion = generalPage->CommandGenVersion;
    LabelGenVersionString = generalPage->LabelGenVersionString;
    return generalPage;
}

void KestrelConfig::fillPortList()
{
    core->linkControl.ScanPorts();
    const QSignalBlocker block(ComboPort);
    ComboPort->clear();
    for (const auto& p : core->linkControl.ComboPort)
        ComboPort->addItem(QString::fromStdString(p));
    for (const QString& typed : typedPorts)
        if (ComboPort->findText(typed) < 0)
            ComboPort->addItem(typed);
    // The port in use stays chosen; with none, the box is empty.
    ComboPort->setCurrentIndex(-1);
    ComboPort->setEditText(
        core->link.port().isOpen() ? QString::fromStdString(core->linkControl.ComboPortText) : QString());
}

void KestrelConfig::refreshLinkDisplays()
{
    auto& lc = core->linkControl;
    auto& s = core->link.settings;
    const int base = core->config.NumberingBase;
    const QSignalBlocker b1(UpDownAddress), b2(TextAddress), b3(UpDownXaddr), b4(txtXaddr), b5(CheckXaddress),
        b6(CheckKestrelBD), b7(CheckCorvid);
    UpDownAddress->setRange(base, lc.addressMaximum());
    UpDownAddress->setValue(s.TargetAddress + base);
    TextAddress->setText(QString::fromStdString(lc.addressText()));
    UpDownXaddr->setRange(base, lc.xAddressMaximum());
    UpDownXaddr->setValue(s.TargetXAddress + base);
    txtXaddr->setText(QString::fromStdString(lc.xAddressText()));
    CheckXaddress->setChecked(s.CheckXaddress);
    LabelAddress->setText(QString::fromStdString(lc.addressLabel()));
    nameAfter(LabelAddress, TextAddress); // the caption names the address of the route in use
    UpDownAddress->setAccessibleName(TextAddress->accessibleName());
    LabelXaddress->setVisible(s.CheckXaddress);
    txtXaddr->setVisible(s.CheckXaddress);
    UpDownXaddr->setVisible(s.CheckXaddress);
    CheckKestrelBD->setChecked(s.CheckKestrelBD);
    CheckCorvid->setChecked(s.CheckCorvid);
    cmdSetTM->setVisible(corvid->cmdSetTMVisible);
    updateWindowState();
}

void KestrelConfig::ComboPort_Click()
{
    const QString typed = ComboPort->currentText().trimmed();
    const std::string chosen = typed.toStdString();
    (*guard)([&] { core->linkControl.ComboPort_Click(chosen); });
    // A path typed by hand that opened joins the list, this time and next.
    if (core->link.port().isOpen() && ComboPort->findText(typed) < 0 && !typed.isEmpty()) {
        typedPorts.removeAll(typed);
        typedPorts.prepend(typed);
        while (typedPorts.size() > 8)
            typedPorts.removeLast();
        const QSignalBlocker block(ComboPort);
        ComboPort->addItem(typed);
        ComboPort->setCurrentIndex(ComboPort->findText(typed));
    }
}

void KestrelConfig::cmdRefreshComm_Click()
{
    (*guard)([this] { core->linkControl.cmdRefreshComm_Click(); });
    fillPortList();
    updateWindowState();
}

void KestrelConfig::OptionBitRate_Click(int index)
{
    (*guard)([&] { core->linkControl.OptionBitRate_Click(index); });
}

void KestrelConfig::TextAddress_Click()
{
    TextAddress->setModified(false);
    (*guard)([this] { core->linkControl.TextAddress_Click(fromLatin1(TextAddress->text())); });
    refreshLinkDisplays();
}

void KestrelConfig::UpDownAddress_Change(int value)
{
    (*guard)([&] { core->linkControl.UpDownAddress_Change(value); });
    refreshLinkDisplays();
}

void KestrelConfig::txtXaddr_Click()
{
    txtXaddr->setModified(false);
    (*guard)([this] { core->linkControl.txtXaddr_Click(fromLatin1(txtXaddr->text())); });
    refreshLinkDisplays();
}

void KestrelConfig::UpDownXaddr_Change(int value)
{
    (*guard)([&] { core->linkControl.UpDownXaddr_Change(value); });
    refreshLinkDisplays();
}

void KestrelConfig::CheckXaddress_Click()
{
    (*guard)([this] { core->linkControl.CheckXaddress_Click(CheckXaddress->isChecked()); });
    refreshLinkDisplays();
}

void KestrelConfig::CheckKestrelBD_Click()
{
    core->link.settings.CheckKestrelBD = CheckKestrelBD->isChecked();
}

void KestrelConfig::LabelPort_DblClick() { FrameBitrate->setVisible(!FrameBitrate->isVisible()); }

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
                undo();
            else
                redo();
            return true;
        }
    }
    if (watched == LabelPort && event->type() == QEvent::MouseButtonDblClick) {
        LabelPort_DblClick();
        return true;
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
