#include "shell/KestrelConfig.h"

#include "shell/BuiltInSim.h"
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

    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    buildLinkArea(central);
    layout->addWidget(linkFrame);

    tabs = named(new QTabWidget, "SSTab1");
    tabs->addTab(buildGeneralPage(), "General");
    layout->addWidget(tabs, 1);

    LabelAction = named(new QLabel("Working ... Please WAIT"), "LabelAction");
    LabelAction->setStyleSheet("color: #b00000; font-weight: bold;");
    LabelAction->hide();
    layout->addWidget(LabelAction);
    setCentralWidget(central);

    core->link.onTextResponse = [this](const std::string& t) { TextResponse->setText(latin1(t)); };
    core->link.onSettingsChanged = [this] { refreshLinkDisplays(); };

    fillPortList();
    refreshLinkDisplays();
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
    CheckCorvid->setEnabled(false); // the tunnel is switched on through the Corvid checks
    CheckKLnumber = named(new QCheckBox("Start numbering at 1"), "CheckKLnumber");
    grid->addWidget(CheckKestrelBD, 0, 5);
    grid->addWidget(CheckCorvid, 1, 5);
    grid->addWidget(CheckKLnumber, 2, 5);

    TextResponse = named(new QLineEdit, "TextResponse");
    TextResponse->setReadOnly(true);
    grid->addWidget(new QLabel("Response:"), 3, 0);
    grid->addWidget(TextResponse, 3, 1, 1, 5);

    connect(ComboPort, &QComboBox::activated, this, [this](int) { ComboPort_Click(); });
    connect(ComboPort->lineEdit(), &QLineEdit::returnPressed, this, &KestrelConfig::ComboPort_Click);
    connect(cmdRefreshComm, &QPushButton::clicked, this, &KestrelConfig::cmdRefreshComm_Click);
    connect(TextAddress, &QLineEdit::editingFinished, this, &KestrelConfig::TextAddress_Click);
    connect(UpDownAddress, &QSpinBox::valueChanged, this, &KestrelConfig::UpDownAddress_Change);
    connect(txtXaddr, &QLineEdit::editingFinished, this, &KestrelConfig::txtXaddr_Click);
    connect(UpDownXaddr, &QSpinBox::valueChanged, this, &KestrelConfig::UpDownXaddr_Change);
    connect(CheckXaddress, &QCheckBox::clicked, this, &KestrelConfig::CheckXaddress_Click);
    connect(CheckKestrelBD, &QCheckBox::clicked, this, &KestrelConfig::CheckKestrelBD_Click);
}

QWidget* KestrelConfig::buildGeneralPage()
{
    auto* page = named(new QWidget, "PageGeneral");
    auto* grid = new QGridLayout(page);
    CommandGenVersion = named(new QPushButton("Request Version"), "CommandGenVersion");
    LabelGenVersionString = named(new QLabel("Unknown"), "LabelGenVersionString");
    grid->addWidget(CommandGenVersion, 0, 0);
    grid->addWidget(LabelGenVersionString, 0, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(1, 1);
    connect(CommandGenVersion, &QPushButton::clicked, this, &KestrelConfig::CommandGenVersion_Click);
    return page;
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
    core->link.GetVersion();
    LabelGenVersionString->setText(latin1(core->link.VersionText));
}

bool KestrelConfig::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == LabelPort && event->type() == QEvent::MouseButtonDblClick) {
        LabelPort_DblClick();
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace kestrel
