#include "shell/KestrelConfig.h"

#include "files/ConfigurationFile.h"
#include "link/ProgramFault.h"
#include "model/AspectEditor.h"
#include "ops/Bulk.h"
#include "ops/EventControl.h"
#include "ops/PinTransfer.h"
#include "shell/BuiltInSim.h"
#include "shell/EventPage.h"
#include "shell/GeneralPage.h"
#include "shell/PinConfigPage.h"
#include "shell/QtProgress.h"
#include "shell/QtSerialPort.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QDialog>
#include <QPlainTextEdit>
#include <QTimer>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kestrel {

namespace {
template <typename W> W* named(W* w, const QString& name)
{
    w->setObjectName(name);
    return w;
}

QString latin1(const std::string& s)
{
    return QString::fromLatin1(s.c_str());
}

// An up-down control beside its text box: only the arrows show.
QSpinBox* upDown(const QString& name)
{
    auto* s = named(new QSpinBox, name);
    s->setFixedWidth(22);
    s->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    return s;
}
} // namespace

KestrelConfig::KestrelConfig(QWidget* parent, UserDialogs* dialogs) : QMainWindow(parent), boxes(this)
{
    setObjectName("KestrelConfig");
    setWindowTitle("Kestrel Config");
    port = std::make_unique<PortRouter>(std::make_unique<QtSerialPort>(), makeBuiltInSimPort());
    core = std::make_unique<Session>(*port, clock, dialogs ? *dialogs : static_cast<UserDialogs&>(boxes));
    core->linkControl.systemPorts = &QtSerialPort::systemPorts;
    corvid = std::make_unique<CorvidControl>(core->link, core->linkControl);

    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    buildLinkArea(central);
    layout->addWidget(linkFrame);

    auto* bulk = new QHBoxLayout;
    CommandReadAll = named(new QPushButton("Read All"), "CommandReadAll");
    CommandWriteAll = named(new QPushButton("Write All"), "CommandWriteAll");
    CommandVerifyAll = named(new QPushButton("Verify All"), "CommandVerifyAll");
    CheckWritePinConfig = named(new QCheckBox("Write pin configurations too"), "CheckWritePinConfig");
    CheckWritePinConfig->setToolTip("Also writes each pin's servo, PWM or input parameters to flash");
    CommandSave = named(new QPushButton("Save File"), "CommandSave");
    CommandSave->setToolTip("Shift+Save File to save compact");
    CommandSave->installEventFilter(this);
    CommandLoad = named(new QPushButton("Load File"), "CommandLoad");
    for (QWidget* w : {static_cast<QWidget*>(CommandReadAll), static_cast<QWidget*>(CommandWriteAll),
                       static_cast<QWidget*>(CommandVerifyAll), static_cast<QWidget*>(CheckWritePinConfig),
                       static_cast<QWidget*>(CommandSave), static_cast<QWidget*>(CommandLoad)})
        bulk->addWidget(w);
    connect(CommandLoad, &QPushButton::clicked, this, &KestrelConfig::CommandLoad_Click);
    bulk->addStretch();
    layout->addLayout(bulk);
    connect(CommandReadAll, &QPushButton::clicked, this, &KestrelConfig::CommandReadAll_Click);
    connect(CommandWriteAll, &QPushButton::clicked, this, &KestrelConfig::CommandWriteAll_Click);
    connect(CommandVerifyAll, &QPushButton::clicked, this, &KestrelConfig::CommandVerifyAll_Click);

    tabs = named(new QTabWidget, "SSTab1");
    tabs->addTab(buildGeneralPage(), "General");
    eventPage = new EventPage(*core, [this](const char* job) { startJob(job); });
    tabs->addTab(eventPage, "Event Control");
    pinConfigPage = new PinConfigPage(*core);
    tabs->addTab(pinConfigPage, "Pin Configuration");
    tabs->addTab(buildDevicesPage(), "Devices");
    layout->addWidget(tabs, 1);

    LabelAction = named(new QLabel("Working ... Please WAIT"), "LabelAction");
    LabelAction->setStyleSheet("color: #b00000; font-weight: bold;");
    LabelAction->hide();
    layout->addWidget(LabelAction);
    setCentralWidget(central);

    core->link.onTextResponse = [this](const std::string& t) { TextResponse->setText(latin1(t)); };
    core->link.onSettingsChanged = [this] { refreshLinkDisplays(); };
    core->link.onCorvidLog = [this](const std::string& line) {
        ensureCorvidWindow();
        txtCorvidCommunication->appendPlainText(latin1(line));
        if (!frmCorvidComm->isVisible())
            frmCorvidComm->show();
    };

    core->report.onClear = [this] {
        ensureVerificationWindow();
        txtVerification->clear();
    };
    core->report.onLine = [this](const std::string& line) {
        ensureVerificationWindow();
        txtVerification->appendPlainText(latin1(line));
    };
    core->onShowVerification = [this] {
        ensureVerificationWindow();
        frmKestrelVerification->show();
        frmKestrelVerification->raise();
    };
    core->onConfigurationChanged = [this] {
        generalPage->refresh();
        eventPage->refresh();
        pinConfigPage->refresh();
        LabelGenVersionString->setText(latin1(core->link.VersionText));
        refreshLinkDisplays();
        refreshDevices();
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
    loadStandardDeviceList(devices, QApplication::applicationDirPath().toStdString(), core->dialogs());
    refreshDevices();
}

void KestrelConfig::addJobs()
{
    Session& s = *core;
    auto pinConfigToo = [this] { return CheckWritePinConfig->isChecked(); };
    jobs.add("ReadAll", [this, &s] { runJob("Read All", [&s] { ReadAll(s); }); });
    jobs.add("WriteAll", [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runJob("Write All", [&s, withConfig] { WriteAll(s, withConfig); });
    });
    jobs.add("VerifyAll", [this, &s] { runJob("Verify All", [&s] { VerifyAll(s); }); });
    jobs.add("ReadPin", [this, &s] { runJob("Read Pin", [&s] { ReadPin(s, s.config.CurrentPin); }); });
    jobs.add("WritePin", [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runJob("Write Pin", [&s, withConfig] { WritePin(s, s.config.CurrentPin, withConfig); });
    });
    jobs.add("ReadDevice", [this, &s] { runJob("Read Device", [&s] { ReadDevice(s); }); });
    jobs.add("WriteDevice", [this, &s] { runJob("Write Device", [&s] { WriteDevice(s); }); });
    jobs.add("ReadAllPins", [this, &s] { runJob("Read All Pins", [&s] { ReadAllPins(s); }); });
    jobs.add("WriteAllPins", [this, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runJob("Write All Pins", [&s, withConfig] { WriteAllPins(s, withConfig); });
    });
    jobs.add("PAspReadPin", [this, &s] { runJob("Read Pin", [&s] { PAspReadPin(s, s.config.CurrentPin); }); });
    jobs.add("PAspWritePin", [this, &s] { runJob("Write Pin", [&s] { WritePin(s, s.config.CurrentPin); }); });
    jobs.add("VerifyAllPins", [this, &s] {
        runJob("Verify All Pins", [&s] {
            s.report.clear();
            VerifyAllPins(s);
            if (s.onShowVerification)
                s.onShowVerification();
        });
    });
    jobs.add("ECWriteAll", [this, &s] { runJob("Write All Events", [&s] { WriteAllEvents(s); }); });
    jobs.add("ECReadAll", [this, &s] { runJob("Read All Events", [&s] { ReadAllEvents(s); }); });
    jobs.add("ECVerify", [this, &s] {
        runJob("Verify Event Control", [&s] {
            s.report.clear();
            VerifyEventControl(s);
            if (s.onShowVerification)
                s.onShowVerification();
        });
    });
}

void KestrelConfig::startJob(const char* name)
{
    LabelAction->setVisible(true);
    jobs.request(name);
}

void KestrelConfig::Timer1_Timer()
{
    jobs.Timer1_Timer();
}

void KestrelConfig::runJob(const QString& title, const std::function<void()>& operation)
{
    QtProgress progress(this, title);
    core->link.setProgress(&progress);
    try {
        operation();
    } catch (const ProgramFault& fault) {
        core->dialogs().message(std::string("Program error, the operation was stopped: ") + fault.what(),
                                Icon::Warning);
    }
    core->link.setProgress(nullptr);
    LabelAction->setVisible(false);
    refreshLinkDisplays();
    // Whatever the job read is shown on every page.
    generalPage->refresh();
    eventPage->refresh();
    pinConfigPage->refresh();
    refreshDevices();
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
    txtCorvidCommunication->setFont(QFont("monospace"));
    cmdClear = named(new QPushButton("Clear"), "cmdClear");
    l->addWidget(txtCorvidCommunication);
    l->addWidget(cmdClear);
    connect(cmdClear, &QPushButton::clicked, this, [this] {
        txtCorvidCommunication->clear();
        core->link.txtCorvidCommunication.clear();
    });
    frmCorvidComm->resize(480, 360);
}

void KestrelConfig::CheckCorvid_Click()
{
    corvid->CheckCorvid_Click(CheckCorvid->isChecked());
    refreshLinkDisplays();
}

void KestrelConfig::CheckKLnumber_Click()
{
    // Shown numbers move with the base; what is stored stays numbered from 0.
    core->config.NumberingBase = CheckKLnumber->isChecked() ? 1 : 0;
    refreshLinkDisplays();
    generalPage->refresh();
    eventPage->refresh();
    pinConfigPage->refresh();
    refreshDevices();
}

void KestrelConfig::cmdSetTM_Click()
{
    corvid->cmdSetTM_Click();
    refreshLinkDisplays();
}

void KestrelConfig::CommandLoad_Click()
{
    try {
        kestrel::CommandLoad_Click(*core);
    } catch (const ProgramFault& fault) {
        core->dialogs().message(std::string("Program error, the load was stopped: ") + fault.what(), Icon::Warning);
    }
    refreshLinkDisplays();
}

void KestrelConfig::CommandReadAll_Click()
{
    startJob("ReadAll");
}

void KestrelConfig::CommandWriteAll_Click()
{
    startJob("WriteAll");
}

void KestrelConfig::CommandVerifyAll_Click()
{
    startJob("VerifyAll");
}

KestrelConfig::~KestrelConfig()
{
    // The session's link refers to the port and the dialogs: let it go first.
    core.reset();
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
    cmdRefreshComm = named(new QPushButton("Refresh"), "cmdRefreshComm");
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
    TextAddress = named(new QLineEdit("0"), "TextAddress");
    TextAddress->setMaximumWidth(50);
    UpDownAddress = upDown("UpDownAddress");
    auto* addrRow = new QHBoxLayout;
    addrRow->addWidget(TextAddress);
    addrRow->addWidget(UpDownAddress);
    addrRow->addStretch();
    grid->addWidget(LabelAddress, 0, 3);
    grid->addLayout(addrRow, 0, 4);

    CheckXaddress = named(new QCheckBox("Use eXtended Addr"), "CheckXaddress");
    LabelXaddress = named(new QLabel("eXtended address"), "LabelXaddress");
    txtXaddr = named(new QLineEdit("0"), "txtXaddr");
    txtXaddr->setMaximumWidth(50);
    UpDownXaddr = upDown("UpDownXaddr");
    auto* xRow = new QHBoxLayout;
    xRow->addWidget(txtXaddr);
    xRow->addWidget(UpDownXaddr);
    xRow->addStretch();
    grid->addWidget(CheckXaddress, 1, 3);
    grid->addWidget(LabelXaddress, 2, 3);
    grid->addLayout(xRow, 2, 4);

    CheckKestrelBD = named(new QCheckBox("Bidirectional Comm."), "CheckKestrelBD");
    CheckCorvid = named(new QCheckBox("Use Corvid Tunneling"), "CheckCorvid");
    cmdSetTM = named(new QPushButton("Activate Transparent Mode"), "cmdSetTM");
    cmdSetTM->setToolTip("Switch Hub-A or Linkbox in Transparant Mode for Kestrel Configuration");
    grid->addWidget(cmdSetTM, 3, 5);
    CheckKLnumber = named(new QCheckBox("Start numbering at 1"), "CheckKLnumber");
    grid->addWidget(CheckKestrelBD, 0, 5);
    grid->addWidget(CheckCorvid, 1, 5);
    grid->addWidget(CheckKLnumber, 2, 5);

    TextResponse = named(new QLineEdit, "TextResponse");
    TextResponse->setReadOnly(true);
    grid->addWidget(new QLabel("Response:"), 3, 0);
    grid->addWidget(TextResponse, 3, 1, 1, 4);

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
    generalPage = new GeneralPage(*core);
    CommandGenVersion = generalPage->CommandGenVersion;
    LabelGenVersionString = generalPage->LabelGenVersionString;
    return generalPage;
}

QWidget* KestrelConfig::buildDevicesPage()
{
    auto* page = named(new QWidget, "PageDevices");
    auto* grid = new QGridLayout(page);
    TextPAspOutput = named(new QLineEdit("0"), "TextPAspOutput");
    TextPAspOutput->setMaximumWidth(50);
    TextDevicePin = named(new QLineEdit, "TextDevicePin");
    TextDevicePin->setReadOnly(true);
    TextDevicePin->setMaximumWidth(50);
    TextDeviceDescription = named(new QLineEdit, "TextDeviceDescription");
    TextDeviceDescription->setReadOnly(true);
    cboDevice = named(new QComboBox, "cboDevice");
    cboDevice->setMinimumWidth(220);
    lblDDVersion = named(new QLabel, "lblDDVersion");
    CommandReloadDD = named(new QPushButton("Reload DD"), "CommandReloadDD");
    CommandReloadDD->setToolTip("Shift+Reload DD to append a definitions file");
    CommandReloadDD->installEventFilter(this);
    CommandPAspPreLoad = named(new QPushButton("Load Device"), "CommandPAspPreLoad");
    CommandSaveDevice = named(new QPushButton("Save Device"), "CommandSaveDevice");

    grid->addWidget(new QLabel("Pin"), 0, 0);
    grid->addWidget(TextPAspOutput, 0, 1);
    grid->addWidget(new QLabel("Device"), 0, 2);
    grid->addWidget(TextDevicePin, 0, 3);
    grid->addWidget(TextDeviceDescription, 0, 4, 1, 2);
    grid->addWidget(cboDevice, 1, 0, 1, 3);
    grid->addWidget(CommandPAspPreLoad, 1, 3);
    grid->addWidget(CommandSaveDevice, 1, 4);
    grid->addWidget(CommandReloadDD, 1, 5);
    grid->addWidget(lblDDVersion, 2, 0, 1, 6);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(3, 1);

    connect(TextPAspOutput, &QLineEdit::editingFinished, this, &KestrelConfig::TextPAspOutput_Click);
    connect(cboDevice, &QComboBox::activated, this, [this](int index) { devices.selected = index; });
    connect(CommandPAspPreLoad, &QPushButton::clicked, this, &KestrelConfig::CommandPAspPreLoad_Click);
    connect(CommandSaveDevice, &QPushButton::clicked, this, &KestrelConfig::CommandSaveDevice_Click);
    return page;
}

void KestrelConfig::refreshDevices()
{
    updating = true;
    cboDevice->clear();
    for (const auto& name : devices.cboDevice)
        cboDevice->addItem(latin1(name));
    cboDevice->setCurrentIndex(devices.selected);
    lblDDVersion->setText(latin1(devices.lblDDVersion));
    const AspectView view = ShowAspect(core->config);
    TextPAspOutput->setText(latin1(view.pinText));
    TextDevicePin->setText(latin1(view.devicePin));
    TextDeviceDescription->setText(latin1(view.deviceDescription));
    updating = false;
}

void KestrelConfig::TextPAspOutput_Click()
{
    if (updating)
        return;
    selectPin(core->config, TextPAspOutput->text().toStdString());
    refreshDevices();
}

void KestrelConfig::CommandPAspPreLoad_Click()
{
    devices.selected = cboDevice->currentIndex();
    try {
        kestrel::CommandPAspPreLoad_Click(devices, core->config, core->dialogs());
    } catch (const ProgramFault& fault) {
        core->dialogs().message(std::string("Program error, the device was not loaded: ") + fault.what(), Icon::Warning);
    }
    refreshDevices();
}

void KestrelConfig::CommandSaveDevice_Click()
{
    kestrel::CommandSaveDevice_Click(core->config, core->dialogs());
}

void KestrelConfig::fillPortList()
{
    core->linkControl.ScanPorts();
    updating = true;
    ComboPort->clear();
    for (const auto& p : core->linkControl.ComboPort)
        ComboPort->addItem(QString::fromStdString(p));
    ComboPort->setCurrentIndex(-1);
    ComboPort->setEditText(QString());
    updating = false;
}

void KestrelConfig::refreshLinkDisplays()
{
    updating = true;
    auto& lc = core->linkControl;
    auto& s = core->link.settings;
    const int base = core->config.NumberingBase;
    UpDownAddress->setRange(base, lc.addressMaximum());
    UpDownAddress->setValue(s.TargetAddress + base);
    TextAddress->setText(QString::fromStdString(lc.addressText()));
    UpDownXaddr->setRange(base, lc.xAddressMaximum());
    UpDownXaddr->setValue(s.TargetXAddress + base);
    txtXaddr->setText(QString::fromStdString(lc.xAddressText()));
    CheckXaddress->setChecked(s.CheckXaddress);
    LabelAddress->setText(QString::fromStdString(lc.addressLabel()));
    LabelXaddress->setVisible(s.CheckXaddress);
    txtXaddr->setVisible(s.CheckXaddress);
    UpDownXaddr->setVisible(s.CheckXaddress);
    CheckKestrelBD->setChecked(s.CheckKestrelBD);
    CheckCorvid->setChecked(s.CheckCorvid);
    cmdSetTM->setVisible(corvid->cmdSetTMVisible);
    updating = false;
}

void KestrelConfig::ComboPort_Click()
{
    if (updating)
        return;
    core->linkControl.ComboPort_Click(ComboPort->currentText().trimmed().toStdString());
}

void KestrelConfig::cmdRefreshComm_Click()
{
    core->linkControl.cmdRefreshComm_Click();
    fillPortList();
}

void KestrelConfig::OptionBitRate_Click(int index)
{
    core->linkControl.OptionBitRate_Click(index);
}

void KestrelConfig::TextAddress_Click()
{
    if (updating)
        return;
    TextAddress->setText(QString::fromStdString(core->linkControl.TextAddress_Click(TextAddress->text().toStdString())));
    refreshLinkDisplays();
}

void KestrelConfig::UpDownAddress_Change(int value)
{
    if (updating)
        return;
    core->linkControl.UpDownAddress_Change(value);
    refreshLinkDisplays();
}

void KestrelConfig::txtXaddr_Click()
{
    if (updating)
        return;
    txtXaddr->setText(QString::fromStdString(core->linkControl.txtXaddr_Click(txtXaddr->text().toStdString())));
    refreshLinkDisplays();
}

void KestrelConfig::UpDownXaddr_Change(int value)
{
    if (updating)
        return;
    core->linkControl.UpDownXaddr_Change(value);
    refreshLinkDisplays();
}

void KestrelConfig::CheckXaddress_Click()
{
    core->linkControl.CheckXaddress_Click(CheckXaddress->isChecked());
    refreshLinkDisplays();
}

void KestrelConfig::CheckKestrelBD_Click()
{
    core->link.settings.CheckKestrelBD = CheckKestrelBD->isChecked();
}

void KestrelConfig::LabelPort_DblClick()
{
    FrameBitrate->setVisible(!FrameBitrate->isVisible());
}

void KestrelConfig::CommandGenVersion_Click()
{
    generalPage->CommandGenVersion_Click();
}

bool KestrelConfig::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == LabelPort && event->type() == QEvent::MouseButtonDblClick) {
        LabelPort_DblClick();
        return true;
    }
    // Reload DD acts on the press too: with Shift the chosen file is appended to the list.
    if (watched == CommandReloadDD && event->type() == QEvent::MouseButtonPress) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        CommandReloadDD_MouseDown(devices, core->dialogs(), mouse->button() == Qt::LeftButton ? 1 : 2,
                                  mouse->modifiers() & Qt::ShiftModifier ? 1 : 0);
        refreshDevices();
        return false;
    }
    // Save acts on the press, where the Shift key decides between the full and the compact file.
    if (watched == CommandSave && event->type() == QEvent::MouseButtonPress) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const int button = mouse->button() == Qt::LeftButton ? 1 : mouse->button() == Qt::RightButton ? 2 : 4;
        const int shift = (mouse->modifiers() & Qt::ShiftModifier ? 1 : 0) | (mouse->modifiers() & Qt::ControlModifier ? 2 : 0) |
                          (mouse->modifiers() & Qt::AltModifier ? 4 : 0);
        CommandSave_MouseDown(*core, button, shift);
        return false;
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace kestrel
