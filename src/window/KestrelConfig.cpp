#include "window/KestrelConfig.h"
#include "window/Language.h"

#include "forms/DevicesForm.h"
#include "platform/ProgramSession.h"
#include "window/AspectsPage.h"
#include "window/Bindings.h"
#include "window/BulkRows.h"
#include "window/EditHistory.h"
#include "window/EventPage.h"
#include "window/FieldHelp.h"
#include "window/FileActions.h"
#include "window/GeneralPage.h"
#include "window/JobRunner.h"
#include "window/LayoutPage.h"
#include "window/LinkArea.h"
#include "window/LogWindows.h"
#include "window/MainMenus.h"
#include "window/ModuleJobs.h"
#include "window/PinConfigPage.h"
#include "window/PinOverview.h"
#include "window/TrafficMonitor.h"
#include "window/UserGuide.h"
#include "window/Widgets.h"
#include "window/WindowSettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>

namespace kestrel {

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

    const BulkRows rows;
    CommandReadAll = rows.CommandReadAll;
    CommandWriteAll = rows.CommandWriteAll;
    CommandVerifyAll = rows.CommandVerifyAll;
    CommandWriteChanges = rows.CommandWriteChanges;
    CommandCompare = rows.CommandCompare;
    CommandSave = rows.CommandSave;
    CommandLoad = rows.CommandLoad;
    CommandReadAllPins = rows.CommandReadAllPins;
    CommandWriteAllPins = rows.CommandWriteAllPins;
    CommandVerifyAllPins = rows.CommandVerifyAllPins;
    CheckWritePinConfig = rows.CheckWritePinConfig;
    layout->addLayout(rows.module);
    layout->addLayout(rows.pins);
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
    connect(CommandLoad, &QPushButton::clicked, this, [this] { (*guard)([this] { CommandLoad_Click(); }); });
    connect(CommandReadAll, &QPushButton::clicked, this, &KestrelConfig::CommandReadAll_Click);
    connect(CommandWriteAll, &QPushButton::clicked, this, &KestrelConfig::CommandWriteAll_Click);
    connect(CommandVerifyAll, &QPushButton::clicked, this, &KestrelConfig::CommandVerifyAll_Click);

    tabs = named(new QTabWidget, "SSTab1");
    tabs->addTab(buildGeneralPage(), Lang::tr("General"));
    eventPage = new EventPage(
        *core, [this](JobName job) { startJob(job); }, guard.get());
    tabs->addTab(eventPage, Lang::tr("Event Control"));
    pinConfigPage = new PinConfigPage(*core, guard.get());
    tabs->addTab(pinConfigPage, Lang::tr("Pin Configuration"));
    aspectsPage = new AspectsPage(
        *core, devices, [this](JobName job) { startJob(job); }, guard.get());
    tabs->addTab(aspectsPage, Lang::tr("Aspects"));
    pinOverviewPage = new PinOverviewPage(*core);
    tabs->addTab(pinOverviewPage, Lang::tr("Pin Overview"));
    layoutPage = new LayoutPage(*core, kept);
    tabs->addTab(layoutPage, Lang::tr("Layout"));
    layoutPage->onModuleChosen = [this](const FoundModule& m) { chooseModule(m); };
    // Each tab keeps its English name, which the user guide's sections are headed by.
    int tab = 0;
    for (const char* english :
         {"General", "Event Control", "Pin Configuration", "Aspects", "Pin Overview", "Layout"})
        tabs->tabBar()->setTabData(tab++, QString(english));
    layout->addWidget(tabs, 1);
    explainFields(tabs);
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

    LabelAction = workingNotice();
    layout->addWidget(LabelAction);
    setCentralWidget(central);

    addStatusFields(statusBar(), {&LabelStatusPort, &LabelStatusModule, &LabelStatusJob},
                    {"LabelStatusPort", "LabelStatusModule", "LabelStatusJob"});
    files = std::make_unique<FileActions>(*core, *guard, work, kept,
                                          FileActions::Window{this, LabelStatusJob, [this] { commitAll(); },
                                                              [this] { refreshAll(); },
                                                              [this] { updateWindowState(); }});
    guard->after = [this] { updateWindowState(); };
    guard->afterFault = [this] { refreshAll(); };

    core->link.onTextResponse = [this](const std::string& t) { TextResponse->setText(latin1(t)); };
    core->link.onSettingsChanged = [this] { refreshLinkDisplays(); };
    attachLogWindows(*this);

    runner = new JobRunner(*core, *guard, jobs,
                           {this, LabelAction, LabelStatusJob, CheckWritePinConfig, [this] { commitAll(); },
                            [this] { refreshAll(); },
                            [this](const QWidget* w) {
                                return w == frmTrafficMonitor || w == frmKestrelVerification ||
                                       w == frmCorvidComm || w == layoutPage->frmLayoutSummary ||
                                       w == frmUserGuide;
                            }});
    ModuleJobs::add(*this);
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
    MainMenus::build(*this);
    WindowSettings::load(*this);
    work.untitled(&core->config, &core->general); // nothing of the user's yet
    refreshAll();
    undoStack->clear(); // what the start-up did is not the user's

    ModuleJobs::setButtons(*this);
    // Every event of the program passes the job runner first: input waits while a job is
    // asked for or runs, and a mnemonic on a button that writes asks first.
    qApp->installEventFilter(runner);

    history->nameStepsAfterButtons(this, *guard);
    history->takeUndoKeysOfBoxes(this); // Ctrl+Z in a box undoes the configuration
    connect(qApp, &QApplication::focusChanged, this, [this] { history->newRun(); });
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

bool KestrelConfig::unsavedChanges() const { return files->unsaved(); }

void KestrelConfig::updateWindowState()
{
    const QString name = currentFile().isEmpty() ? QString() : QFileInfo(currentFile()).fileName();
    const bool changed = unsavedChanges();
    LabelStatusModule->setText(
        translatedMessage(work.moduleState(core->moduleImage(), core->config, core->general)));
    // "Kestrel Config" while nothing is changed; "mylayout.dat* - Kestrel Config" (or
    // "untitled*") while the configuration differs from its file or was never saved.
    if (name.isEmpty() && !changed)
        setWindowTitle("Kestrel Config");
    else
        setWindowTitle((name.isEmpty() ? Lang::tr("untitled") : name) + (changed ? "*" : "") +
                       " - Kestrel Config");
    SerialPort& port = core->link.port();
    const int rate = core->linkControl.OptionBitRate;
    static const char* rates[3] = {"9600", "19200", "38400"};
    LabelStatusPort->setText(port.isOpen() ? Lang::tr("Port %1 open at %2 bit/s")
                                                 .arg(QString::fromStdString(core->linkControl.ComboPortText))
                                                 .arg(rates[std::clamp(rate, 0, 2)])
                                           : Lang::tr("Port closed"));
    if (tabs->currentWidget() == layoutPage) // the port's list, numbered as the window numbers
        layoutPage->refresh();
}

void KestrelConfig::chooseModule(const FoundModule& m)
{
    LinkControl& lc = core->linkControl;
    const LinkSettings& link = core->link.settings;
    const int base = core->config.NumberingBase;
    (*guard)([&] {
        if (link.CheckCorvid != m.corvid && corvid->CheckCorvid_Click(m.corvid) != m.corvid)
            return; // the route cannot be taken: the address stays as it was
        lc.TextAddress_Click(std::to_string(m.address + base));
        if (link.CheckXaddress != m.xaddress.has_value())
            lc.CheckXaddress_Click(m.xaddress.has_value());
        if (m.xaddress && link.CheckXaddress)
            lc.txtXaddr_Click(std::to_string(*m.xaddress + base));
    });
    refreshLinkDisplays();
}

bool KestrelConfig::keepChangesSafe(const char* doing) { return files->keepChangesSafe(doing); }

void KestrelConfig::closeEvent(QCloseEvent* event)
{
    if (runner->busy()) { // the job ends first
        event->ignore();
        return;
    }
    bool leave = false;
    (*guard)([&] { leave = keepChangesSafe(QT_TRANSLATE_NOOP("Lang", "Closing the window")); });
    if (leave) {
        WindowSettings::save(*this);
        event->accept();
    } else
        event->ignore();
}

void KestrelConfig::CommandSave_MouseDown(int button, int shift)
{
    if (button == 1 && (shift == 0 || shift == 1))
        saveFile(QString(), shift == 1);
}

void KestrelConfig::saveFile(const QString& path, bool compact) { files->save(path, compact); }

void KestrelConfig::about() { MainMenus::about(this); }

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

void KestrelConfig::loadFile(const QString& path, bool backup) { files->load(path, backup); }

void KestrelConfig::saveReadBackup() { files->saveReadBackup(); }

void KestrelConfig::restoreFromBackup() { files->restoreFromBackup(); }

void KestrelConfig::CommandReadAll_Click()
{
    if (keepChangesSafe(QT_TRANSLATE_NOOP("Lang", "Reading the module")))
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
        QObject::disconnect(child, nullptr, history, nullptr);
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
    // Save acts on the press, where the keys held decide: Shift alone saves the compact file.
    if (watched == CommandSave && event->type() == QEvent::MouseButtonPress) {
        const auto [button, shift] = pressOf(static_cast<QMouseEvent*>(event));
        CommandSave_MouseDown(button, shift);
        return true; // done: no click follows
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace kestrel
