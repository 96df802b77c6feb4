#include "window/LinkArea.h"
#include "window/Bindings.h"
#include "window/Language.h"
#include "window/Widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace kestrel {

namespace {
struct Caption {
    QLabel*& label;
    const char* text;
    const char* name;
};
template <typename W> struct Named {
    W*& widget;
    const char* name;
};

// An address box with its up-down, named, and its caption, which also names the box.
NumberEntry* addressEntry(Caption caption, Named<QLineEdit> box, Named<QSpinBox> upDown)
{
    caption.label = named(new QLabel(Lang::tr(caption.text)), caption.name);
    auto* entry = new NumberEntry(box.name, upDown.name);
    box.widget = entry->text;
    upDown.widget = entry->upDown;
    numericInput(box.widget, 3);
    nameAfter(caption.label, box.widget);
    return entry;
}
} // namespace

LinkArea::LinkArea(Session& session, CorvidControl& corvid, Guard& guard, RememberedSettings& kept)
    : QGroupBox(Lang::tr("Communication")), session(session), corvid(corvid), guard(guard), kept(kept)
{
    setObjectName("FrameComm");
    auto* grid = new QGridLayout(this);

    LabelPort = named(new QLabel(Lang::tr("Port:")), "LabelPort");
    LabelPort->installEventFilter(this);
    ComboPort = named(new QComboBox, "ComboPort");
    ComboPort->setEditable(true); // a typed device path is accepted too
    ComboPort->setMinimumWidth(160);
    ComboPort->setInsertPolicy(QComboBox::NoInsert);
    cmdRefreshComm = named(new QPushButton(Lang::tr("&Refresh")), "cmdRefreshComm");
    nameAfter(LabelPort, ComboPort);
    ComboPort->lineEdit()->setAccessibleName(Lang::tr("Port"));
    grid->addWidget(LabelPort, 0, 0);
    grid->addWidget(ComboPort, 0, 1);
    grid->addWidget(cmdRefreshComm, 0, 2);

    FrameBitrate = named(new QGroupBox(Lang::tr("Bitrate")), "FrameBitrate");
    auto* rates = new QHBoxLayout(FrameBitrate);
    const char* captions[3] = {"9k6", "19k2", "38k4"};
    for (int i = 0; i < 3; ++i) {
        OptionBitRate[i] = named(new QRadioButton(captions[i]), QString("OptionBitRate_%1").arg(i));
        rates->addWidget(OptionBitRate[i]);
        connect(OptionBitRate[i], &QRadioButton::clicked, this, [this, i] { OptionBitRate_Click(i); });
    }
    OptionBitRate[session.linkControl.OptionBitRate]->setChecked(true);
    grid->addWidget(FrameBitrate, 1, 0, 1, 3);

    auto* address = addressEntry({LabelAddress, QT_TRANSLATE_NOOP("Lang", "Module Address"), "LabelAddress"},
                                 {TextAddress, "TextAddress"}, {UpDownAddress, "UpDownAddress"});
    grid->addWidget(LabelAddress, 0, 3);
    grid->addWidget(address, 0, 4, Qt::AlignLeft);

    CheckXaddress = named(new QCheckBox(Lang::tr("Use eXtended Addr")), "CheckXaddress");
    auto* xAddress =
        addressEntry({LabelXaddress, QT_TRANSLATE_NOOP("Lang", "eXtended address"), "LabelXaddress"},
                     {txtXaddr, "txtXaddr"}, {UpDownXaddr, "UpDownXaddr"});
    UpDownXaddr->setAccessibleName(txtXaddr->accessibleName());
    grid->addWidget(CheckXaddress, 1, 3);
    grid->addWidget(LabelXaddress, 2, 3);
    grid->addWidget(xAddress, 2, 4, Qt::AlignLeft);
    grid->setColumnStretch(4, 1); // room to spare goes beside the addresses

    CheckKestrelBD = named(new QCheckBox(Lang::tr("Bidirectional Comm.")), "CheckKestrelBD");
    CheckCorvid = named(new QCheckBox(Lang::tr("Use Corvid Tunneling")), "CheckCorvid");
    cmdSetTM = named(new QPushButton(Lang::tr("A&ctivate Transparent Mode")), "cmdSetTM");
    cmdSetTM->setToolTip(Lang::tr("Switch Hub-A or Linkbox in Transparant Mode for Kestrel Configuration"));
    grid->addWidget(cmdSetTM, 3, 5);
    CheckKLnumber = named(new QCheckBox(Lang::tr("Start numbering at 1")), "CheckKLnumber");
    grid->addWidget(CheckKestrelBD, 0, 5);
    grid->addWidget(CheckCorvid, 1, 5);
    grid->addWidget(CheckKLnumber, 2, 5);

    TextResponse = named(new QLineEdit, "TextResponse");
    TextResponse->setReadOnly(true);
    grid->addWidget(captionFor(Lang::tr("Response:"), TextResponse), 3, 0);
    grid->addWidget(TextResponse, 3, 1, 1, 4);

    // Tab reads the grid row by row.
    tabOrder({ComboPort, cmdRefreshComm, TextAddress, CheckKestrelBD, OptionBitRate[0], OptionBitRate[1],
              OptionBitRate[2], CheckXaddress, CheckCorvid, txtXaddr, CheckKLnumber, TextResponse, cmdSetTM});

    connect(ComboPort, &QComboBox::activated, this, [this](int) { ComboPort_Click(); });
    connect(ComboPort->lineEdit(), &QLineEdit::returnPressed, this, &LinkArea::ComboPort_Click);
    connect(cmdRefreshComm, &QPushButton::clicked, this, &LinkArea::cmdRefreshComm_Click);
    connect(TextAddress, &QLineEdit::editingFinished, this, &LinkArea::TextAddress_Click);
    connect(UpDownAddress, &QSpinBox::valueChanged, this, &LinkArea::UpDownAddress_Change);
    connect(txtXaddr, &QLineEdit::editingFinished, this, &LinkArea::txtXaddr_Click);
    connect(UpDownXaddr, &QSpinBox::valueChanged, this, &LinkArea::UpDownXaddr_Change);
    connect(CheckXaddress, &QCheckBox::clicked, this, &LinkArea::CheckXaddress_Click);
    connect(CheckKestrelBD, &QCheckBox::clicked, this, &LinkArea::CheckKestrelBD_Click);
    connect(CheckCorvid, &QCheckBox::clicked, this, &LinkArea::CheckCorvid_Click);
    connect(CheckKLnumber, &QCheckBox::clicked, this, [this] {
        if (onNumbering)
            onNumbering(CheckKLnumber->isChecked());
    });
    connect(cmdSetTM, &QPushButton::clicked, this, &LinkArea::cmdSetTM_Click);
}

void LinkArea::fillPortList()
{
    session.linkControl.ScanPorts();
    const QSignalBlocker block(ComboPort);
    ComboPort->clear();
    for (const auto& p : session.linkControl.ComboPort)
        ComboPort->addItem(QString::fromStdString(p));
    for (const QString& typed : kept.typedPorts)
        if (ComboPort->findText(typed) < 0)
            ComboPort->addItem(typed);
    // The port in use stays chosen; with none, the box is empty.
    ComboPort->setCurrentIndex(-1);
    ComboPort->setEditText(
        session.link.port().isOpen() ? QString::fromStdString(session.linkControl.ComboPortText) : QString());
}

void LinkArea::refresh()
{
    auto& lc = session.linkControl;
    auto& s = session.link.settings;
    const int base = session.config.NumberingBase;
    const QSignalBlocker b1(UpDownAddress), b2(TextAddress), b3(UpDownXaddr), b4(txtXaddr), b5(CheckXaddress),
        b6(CheckKestrelBD), b7(CheckCorvid);
    UpDownAddress->setRange(base, lc.addressMaximum());
    UpDownAddress->setValue(s.TargetAddress + base);
    TextAddress->setText(QString::fromStdString(lc.addressText()));
    UpDownXaddr->setRange(base, lc.xAddressMaximum());
    UpDownXaddr->setValue(s.TargetXAddress + base);
    txtXaddr->setText(QString::fromStdString(lc.xAddressText()));
    CheckXaddress->setChecked(s.CheckXaddress);
    LabelAddress->setText(translated("LinkControl", lc.addressLabel()));
    nameAfter(LabelAddress, TextAddress); // the caption names the address of the route in use
    UpDownAddress->setAccessibleName(TextAddress->accessibleName());
    LabelXaddress->setVisible(s.CheckXaddress);
    txtXaddr->setVisible(s.CheckXaddress);
    UpDownXaddr->setVisible(s.CheckXaddress);
    CheckKestrelBD->setChecked(s.CheckKestrelBD);
    CheckCorvid->setChecked(s.CheckCorvid);
    cmdSetTM->setVisible(corvid.cmdSetTMVisible);
    changed();
}

void LinkArea::ComboPort_Click()
{
    const QString typed = ComboPort->currentText().trimmed();
    const std::string chosen = typed.toStdString();
    guard([&] { session.linkControl.ComboPort_Click(chosen); });
    // A path typed by hand that opened joins the list, this time and next.
    if (session.link.port().isOpen() && ComboPort->findText(typed) < 0 && !typed.isEmpty()) {
        kept.rememberPort(typed);
        const QSignalBlocker block(ComboPort);
        ComboPort->addItem(typed);
        ComboPort->setCurrentIndex(ComboPort->findText(typed));
    }
}

void LinkArea::cmdRefreshComm_Click()
{
    guard([this] { session.linkControl.cmdRefreshComm_Click(); });
    fillPortList();
    changed();
}

void LinkArea::OptionBitRate_Click(int index)
{
    guard([&] { session.linkControl.OptionBitRate_Click(index); });
}

void LinkArea::changeThenRefresh(const std::function<void()>& change)
{
    guard(change);
    refresh();
}

void LinkArea::take(QLineEdit* box, std::string (LinkControl::*taker)(const std::string&))
{
    box->setModified(false);
    changeThenRefresh([&] { (session.linkControl.*taker)(fromLatin1(box->text())); });
}

void LinkArea::TextAddress_Click() { take(TextAddress, &LinkControl::TextAddress_Click); }

void LinkArea::UpDownAddress_Change(int value)
{
    changeThenRefresh([&] { session.linkControl.UpDownAddress_Change(value); });
}

void LinkArea::txtXaddr_Click() { take(txtXaddr, &LinkControl::txtXaddr_Click); }

void LinkArea::UpDownXaddr_Change(int value)
{
    changeThenRefresh([&] { session.linkControl.UpDownXaddr_Change(value); });
}

void LinkArea::CheckXaddress_Click()
{
    changeThenRefresh([this] { session.linkControl.CheckXaddress_Click(CheckXaddress->isChecked()); });
}

void LinkArea::CheckKestrelBD_Click() { session.link.setBidirectional(CheckKestrelBD->isChecked()); }

void LinkArea::CheckCorvid_Click()
{
    changeThenRefresh([this] { corvid.CheckCorvid_Click(CheckCorvid->isChecked()); });
}

void LinkArea::cmdSetTM_Click()
{
    changeThenRefresh([this] { corvid.cmdSetTM_Click(); });
}

bool LinkArea::eventFilter(QObject* watched, QEvent* event)
{
    // A double-click on "Port:" shows and hides the bit rates.
    if (watched == LabelPort && event->type() == QEvent::MouseButtonDblClick) {
        FrameBitrate->setVisible(!FrameBitrate->isVisible());
        return true;
    }
    return QGroupBox::eventFilter(watched, event);
}

void LinkArea::changed() const
{
    if (onChanged)
        onChanged();
}

} // namespace kestrel
