#include "window/GeneralPage.h"
#include "forms/GeneralForm.h"
#include "window/Language.h"

#include "base/Text.h"
#include "forms/AspectEditor.h"
#include "ops/GeneralCommands.h"
#include "window/Bindings.h"
#include "window/Widgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace kestrel {

namespace {

// A hidden control keeps its place, so the frame does not jump when a mode changes.
void keepPlaceWhenHidden(QWidget* w)
{
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
}

// The pin legend of the hardware configuration for a numbering base, as the numbering
// check box sets it.
QString pinLegend(int base)
{
    static const std::array<QString, 2> legends = [] {
        Configuration scratch;
        return std::array<QString, 2>{latin1(setNumbering(scratch, false).legend),
                                      latin1(setNumbering(scratch, true).legend)};
    }();
    return legends[base == 1 ? 1 : 0];
}

QPushButton* button(const QString& caption, const char* name)
{
    return named(new QPushButton(caption), name);
}

// A frame's Read and Write buttons ("<prefix>Read", "<prefix>Write") in a row of their own.
QHBoxLayout* readWriteRow(const QString& prefix, const QString& read, const QString& write,
                          QPushButton*& readButton, QPushButton*& writeButton)
{
    readButton = named(new QPushButton(read), prefix + "Read");
    writeButton = named(new QPushButton(write), prefix + "Write");
    auto* row = new QHBoxLayout;
    row->addWidget(readButton);
    row->addWidget(writeButton);
    row->addStretch();
    return row;
}

// A frame of the page and the layout of its controls.
template <typename Layout = QGridLayout>
std::pair<QGroupBox*, Layout*> frameWith(const QString& title, const char* name)
{
    auto* frame = named(new QGroupBox(title), name);
    return {frame, new Layout(frame)};
}

QLineEdit* numberBox(const char* name, int width)
{
    auto* box = named(new QLineEdit("0"), name);
    box->setFixedWidth(width);
    return box;
}

} // namespace

GeneralPage::GeneralPage(Session& s, Guard* sharedGuard, QWidget* parent)
    : QWidget(parent), session(s), ownGuard(sharedGuard ? nullptr : new Guard(s)),
      guard(sharedGuard ? *sharedGuard : *ownGuard), bindings(guard, [this] { refresh(); })
{
    setObjectName("PageGeneral");

    // Three columns: the module and DCC, the addressing and the serial port, the
    // output drivers and the LEDs.
    auto* columns = new QHBoxLayout(scrolledContent(this));
    const auto column = [columns](std::initializer_list<QWidget*> frames) {
        auto* c = new QVBoxLayout;
        for (QWidget* f : frames)
            c->addWidget(f);
        c->addStretch();
        columns->addLayout(c);
    };
    column({buildIdentity(), buildDcc(), buildErase()});
    column({buildAddressing(), buildSerialPort()});
    column({buildHardware(), buildLeds()});
    columns->addStretch();

    connect(CommandGenVersion, &QPushButton::clicked, this, &GeneralPage::CommandGenVersion_Click);
    connect(CommandGenIDRead, &QPushButton::clicked, this, &GeneralPage::CommandGenIDRead_Click);
    connect(CommandGenIDWrite, &QPushButton::clicked, this, &GeneralPage::CommandGenIDWrite_Click);
    connect(CommandGenDCCRead, &QPushButton::clicked, this, &GeneralPage::CommandGenDCCRead_Click);
    connect(CommandGenDCCWrite, &QPushButton::clicked, this, &GeneralPage::CommandGenDCCWrite_Click);
    connect(CommandGenAddrRead, &QPushButton::clicked, this, &GeneralPage::CommandGenAddrRead_Click);
    connect(CommandGenAddrWrite, &QPushButton::clicked, this, &GeneralPage::CommandGenAddrWrite_Click);
    connect(CommandGenHWCRead, &QPushButton::clicked, this, &GeneralPage::CommandGenHWCRead_Click);
    connect(CommandGenHWCWrite, &QPushButton::clicked, this, &GeneralPage::CommandGenHWCWrite_Click);
    connect(CommandLCRead, &QPushButton::clicked, this, &GeneralPage::CommandLCRead_Click);
    connect(CommandLCWrite, &QPushButton::clicked, this, &GeneralPage::CommandLCWrite_Click);
    connect(CommandGenSerialRead, &QPushButton::clicked, this, &GeneralPage::CommandGenSerialRead_Click);
    connect(CommandGenSerialWrite, &QPushButton::clicked, this, &GeneralPage::CommandGenSerialWrite_Click);
    connect(CommandGenEraseFlash, &QPushButton::clicked, this, &GeneralPage::CommandGenEraseFlash_Click);

    bind();
    refresh();
}

// ---- Building ----

QGroupBox* GeneralPage::buildIdentity()
{
    const auto [frame, grid] = frameWith(Lang::tr("Module"), "FrameGenID");
    CommandGenVersion = button(Lang::tr("Re&quest Version"), "CommandGenVersion");
    LabelGenVersionString = named(new QLabel(Lang::tr("Unknown")), "LabelGenVersionString");
    LabelGenVersionString->setMinimumWidth(90);
    TextGenIDString = named(new QLineEdit, "TextGenIDString");
    TextGenIDString->setToolTip(Lang::tr("At most 12 characters, letters, digits and signs without accents"));

    TextGenIDString->setMinimumWidth(140);
    grid->addWidget(CommandGenVersion, 0, 0);
    grid->addWidget(LabelGenVersionString, 0, 1);
    grid->addWidget(captionFor(Lang::tr("ID String"), TextGenIDString), 1, 0);
    grid->addWidget(TextGenIDString, 1, 1);
    grid->addLayout(readWriteRow("CommandGenID", Lang::tr("Re&ad"), Lang::tr("Write"), CommandGenIDRead,
                                 CommandGenIDWrite),
                    2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    return frame;
}

QGroupBox* GeneralPage::buildDcc()
{
    const auto [frame, grid] = frameWith(Lang::tr("DCC"), "FrameGenDCC");
    TextGenDCCAddress = numberBox("TextGenDCCAddress", 60);
    TextGenXDCCAddress = numberBox("TextGenXDCCAddress", 60);
    grid->addWidget(captionFor(Lang::tr("DCC Address"), TextGenDCCAddress), 0, 0);
    grid->addWidget(TextGenDCCAddress, 0, 1);
    grid->addWidget(captionFor(Lang::tr("eXtended DCC Address"), TextGenXDCCAddress), 1, 0);
    grid->addWidget(TextGenXDCCAddress, 1, 1);

    auto* period = named(new QGroupBox(Lang::tr("Packet Repeat Period")), "FrameGenDCC_PRP");
    auto* periodRow = new QHBoxLayout(period);
    prpGroup = new QButtonGroup(this);
    const char* periods[4] = {"500ms", "250ms", "125ms", "62.5ms"};
    for (int i = 0; i < 4; ++i) {
        OptGenDCC_PRP[i] = named(new QRadioButton(periods[i]), indexed("OptGenDCC_PRP", i));
        prpGroup->addButton(OptGenDCC_PRP[i], i);
        periodRow->addWidget(OptGenDCC_PRP[i]);
    }
    grid->addWidget(period, 2, 0, 1, 3);

    ChkGenDCC_BPSI = named(new QCheckBox(Lang::tr("Basic Packet State Invert")), "ChkGenDCC_BPSI");
    ChkGenDCCAllow0 = named(new QCheckBox(Lang::tr("Allow Address 0")), "ChkGenDCCAllow0");
    grid->addWidget(ChkGenDCC_BPSI, 3, 0, 1, 2);
    grid->addWidget(ChkGenDCCAllow0, 4, 0, 1, 2);

    grid->addLayout(readWriteRow("CommandGenDCC", Lang::tr("Rea&d"), Lang::tr("Write"), CommandGenDCCRead,
                                 CommandGenDCCWrite),
                    5, 0, 1, 3);
    grid->setColumnStretch(2, 1);
    return frame;
}

QGroupBox* GeneralPage::buildAddressing()
{
    const auto [frame, grid] = frameWith(Lang::tr("Serial Addressing"), "FrameGenAddr");
    CheckGenKestrelNative =
        named(new QCheckBox(Lang::tr("Enable Native Kestrel Mode")), "CheckGenKestrelNative");
    CheckGenLynxaddr = named(new QCheckBox(Lang::tr("Enable Lynx Flex-Addresss")), "CheckGenLynxaddr");
    LabelGenXA_4 = named(new QLabel(Lang::tr("Flex-Address")), "LabelGenXA_4");
    auto* flexAddress = new NumberEntry("TextGenLynxaddr", "UpDownGenLynxaddr");
    TextGenLynxaddr = flexAddress->text;
    TextGenLynxaddr->setToolTip(
        Lang::tr("The first Lynx address of the module; addresses come in groups of 4"));
    UpDownGenLynxaddr = flexAddress->upDown;
    UpDownGenLynxaddr->setSingleStep(4);
    nameAfter(LabelGenXA_4, TextGenLynxaddr);
    UpDownGenLynxaddr->setAccessibleName(TextGenLynxaddr->accessibleName());
    for (QWidget* w : {static_cast<QWidget*>(CheckGenKestrelNative), static_cast<QWidget*>(CheckGenLynxaddr),
                       static_cast<QWidget*>(LabelGenXA_4), static_cast<QWidget*>(TextGenLynxaddr),
                       static_cast<QWidget*>(UpDownGenLynxaddr)})
        keepPlaceWhenHidden(w);

    grid->addWidget(CheckGenKestrelNative, 0, 0, 1, 3);
    // The flex-address sits beside its check box, shown only while it is checked.
    auto* flexRow = new QHBoxLayout;
    flexRow->setSpacing(2);
    flexRow->addWidget(CheckGenLynxaddr);
    flexRow->addStretch();
    flexRow->addWidget(LabelGenXA_4);
    flexRow->addSpacing(6);
    flexRow->addWidget(flexAddress);
    grid->addLayout(flexRow, 1, 0, 1, 3);
    TextGenXaddr = numberBox("TextGenXaddr", 50);
    grid->addWidget(captionFor(Lang::tr("eXtended Address"), TextGenXaddr), 2, 0);
    grid->addWidget(TextGenXaddr, 2, 1, Qt::AlignLeft);

    auto* mask = named(new QGroupBox(Lang::tr("eXtended Group Mask")), "FrameGenXGM");
    auto* maskGrid = new QGridLayout(mask);
    for (int i = 0; i < 16; ++i) {
        CheckGenXGM[i] = named(new QCheckBox(QString::number(i)), indexed("CheckGenXGM", i));
        CheckGenXGM[i]->setAccessibleName(Lang::tr("Group mask %1").arg(i));
        maskGrid->addWidget(CheckGenXGM[i], i / 4, i % 4);
    }
    grid->addWidget(mask, 3, 0, 1, 3);

    grid->addLayout(readWriteRow("CommandGenAddr", Lang::tr("Read"), Lang::tr("Write"), CommandGenAddrRead,
                                 CommandGenAddrWrite),
                    4, 0, 1, 3);
    grid->setColumnStretch(2, 1);
    return frame;
}

QGroupBox* GeneralPage::buildHardware()
{
    const auto [frame, column] = frameWith<QVBoxLayout>(Lang::tr("Hardware Configuration"), "FrameGenHWC");
    hardwareArea = new QWidget;
    LabelGenHWCPin = named(new QLabel(pinLegend(0), hardwareArea), "LabelGenHWCPin");
    driverCaptions[0] = new QLabel(Lang::tr("Sink Driver"), hardwareArea);
    driverCaptions[1] = new QLabel(Lang::tr("Source Driver"), hardwareArea);
    for (int g = 0; g < 4; ++g) {
        ChkGenHWCSink[g] = named(new QCheckBox(hardwareArea), indexed("ChkGenHWCSink", g));
        ChkGenHWCSource[g] = named(new QCheckBox(hardwareArea), indexed("ChkGenHWCSource", g));
    }
    placeHardwareBoxes();
    column->addWidget(hardwareArea);
    // Tab reads the rows: the sink drivers, then the source drivers.
    tabOrder({ChkGenHWCSink[0], ChkGenHWCSink[1], ChkGenHWCSink[2], ChkGenHWCSink[3], ChkGenHWCSource[0],
              ChkGenHWCSource[1], ChkGenHWCSource[2], ChkGenHWCSource[3]});

    column->addLayout(readWriteRow("CommandGenHWC", Lang::tr("Read Config"), Lang::tr("Write Config"),
                                   CommandGenHWCRead, CommandGenHWCWrite));
    return frame;
}

void GeneralPage::placeHardwareBoxes()
{
    const QFontMetrics fm(LabelGenHWCPin->font());
    const QString legend = LabelGenHWCPin->text();
    const int captionWidth = std::max(fm.horizontalAdvance(driverCaptions[0]->text()),
                                      fm.horizontalAdvance(driverCaptions[1]->text()));
    const QSize box = ChkGenHWCSink[0]->sizeHint();
    const int rowHeight = std::max(box.height(), fm.height()) + 4;

    // The ranges are the words after "Pin"; the check boxes go under their middles.
    const QStringList words = legend.split(' ', Qt::SkipEmptyParts);
    std::array<int, 4> middles{};
    int from = 0;
    for (int w = 0; w < static_cast<int>(words.size()); ++w) {
        const int at = legend.indexOf(words[w], from);
        from = at + words[w].size();
        if (w >= 1 && w <= 4)
            middles[w - 1] = fm.horizontalAdvance(legend.left(at)) + fm.horizontalAdvance(words[w]) / 2;
    }
    // The legend moves right so that its first range clears the row captions.
    const int shift = std::max(0, captionWidth + 12 + box.width() / 2 - middles[0]);
    LabelGenHWCPin->setGeometry(shift, 0, fm.horizontalAdvance(legend) + 4, rowHeight);
    for (int r = 0; r < 2; ++r) {
        const int y = rowHeight * (r + 1);
        driverCaptions[r]->setGeometry(0, y, captionWidth + 4, rowHeight);
        for (int g = 0; g < 4; ++g) {
            QCheckBox* b = r == 0 ? ChkGenHWCSink[g] : ChkGenHWCSource[g];
            // Named after its row and column: "Sink driver pins 8..15".
            b->setAccessibleName(Lang::tr("%1 pins %2")
                                     .arg(r == 0 ? Lang::tr("Sink driver") : Lang::tr("Source driver"))
                                     .arg(g + 1 < words.size() ? words[g + 1] : QString::number(g)));
            b->setGeometry(shift + middles[g] - box.width() / 2, y + (rowHeight - box.height()) / 2,
                           box.width(), box.height());
        }
    }
    const int width = std::max(shift + fm.horizontalAdvance(legend), shift + middles[3] + box.width()) + 8;
    hardwareArea->setFixedSize(width, rowHeight * 3);
}

QGroupBox* GeneralPage::buildLeds()
{
    const auto [frame, grid] = frameWith(Lang::tr("LED Control"), "FrameGenLC");
    const char* green[8] = {
        QT_TRANSLATE_NOOP("Lang", "Basic DCC Packet"), QT_TRANSLATE_NOOP("Lang", "eXtd DCC Packet"),
        QT_TRANSLATE_NOOP("Lang", "Lynx Message"),     QT_TRANSLATE_NOOP("Lang", "Kestrel Message"),
        QT_TRANSLATE_NOOP("Lang", "Green 4"),          QT_TRANSLATE_NOOP("Lang", "Green 5"),
        QT_TRANSLATE_NOOP("Lang", "Green 6"),          QT_TRANSLATE_NOOP("Lang", "Idle Flash")};
    const char* orange[8] = {
        QT_TRANSLATE_NOOP("Lang", "DCC Checksum Error"), QT_TRANSLATE_NOOP("Lang", "Orange 1"),
        QT_TRANSLATE_NOOP("Lang", "Orange 2"),           QT_TRANSLATE_NOOP("Lang", "Orange 3"),
        QT_TRANSLATE_NOOP("Lang", "Orange 4"),           QT_TRANSLATE_NOOP("Lang", "Orange 5"),
        QT_TRANSLATE_NOOP("Lang", "Orange 6"),           QT_TRANSLATE_NOOP("Lang", "All Received Datagrams")};
    auto* greenHead = new QLabel(Lang::tr("<b>Green LED</b>"));
    auto* orangeHead = new QLabel(Lang::tr("<b>Orange LED</b>"));
    grid->addWidget(greenHead, 0, 0);
    grid->addWidget(orangeHead, 0, 1);
    for (int i = 0; i < 8; ++i) {
        CheckLCGreen[i] = named(new QCheckBox(Lang::tr(green[i])), indexed("CheckLCGreen", i));
        CheckLCOrange[i] = named(new QCheckBox(Lang::tr(orange[i])), indexed("CheckLCOrange", i));
        grid->addWidget(CheckLCGreen[i], i + 1, 0);
        grid->addWidget(CheckLCOrange[i], i + 1, 1);
    }
    grid->addLayout(readWriteRow("CommandLC", Lang::tr("Read Settings"), Lang::tr("Write Settings"),
                                 CommandLCRead, CommandLCWrite),
                    9, 0, 1, 2);
    return frame;
}

QGroupBox* GeneralPage::buildSerialPort()
{
    const auto [frame, grid] = frameWith(Lang::tr("Serial Port"), "FrameGenSerial");
    CheckGenSerialEnable = named(new QCheckBox(Lang::tr("Enable")), "CheckGenSerialEnable");
    ComboGenBaud = named(new QComboBox, "ComboGenBaud");
    for (const char* rate : kGenBaudList)
        ComboGenBaud->addItem(rate);
    grid->addWidget(CheckGenSerialEnable, 0, 0);
    grid->addWidget(captionFor(Lang::tr("Baud"), ComboGenBaud), 0, 1, Qt::AlignRight);
    grid->addWidget(ComboGenBaud, 0, 2);

    auto optionFrame = [](const QString& title, const char* frameName) {
        auto* f = named(new QGroupBox(title), frameName);
        new QVBoxLayout(f);
        return f;
    };
    auto* data = optionFrame(Lang::tr("Data Bits"), "FrameGenSerialDatabits");
    auto* stop = optionFrame(Lang::tr("Stop Bits"), "FrameGenSerialStop");
    auto* parity = optionFrame(Lang::tr("Parity"), "FrameGenSerialParity");
    databitsGroup = new QButtonGroup(this);
    stopGroup = new QButtonGroup(this);
    parityGroup = new QButtonGroup(this);
    const char* dataCaptions[2] = {QT_TRANSLATE_NOOP("Lang", "7 bits"), QT_TRANSLATE_NOOP("Lang", "8 bits")};
    const char* stopCaptions[2] = {QT_TRANSLATE_NOOP("Lang", "1 bit"), QT_TRANSLATE_NOOP("Lang", "2 bits")};
    for (int i = 0; i < 2; ++i) {
        OptionGenSerialDatabits[i] =
            named(new QRadioButton(Lang::tr(dataCaptions[i])), indexed("OptionGenSerialDatabits", i));
        databitsGroup->addButton(OptionGenSerialDatabits[i], i);
        data->layout()->addWidget(OptionGenSerialDatabits[i]);
        OptionGenSerialStop[i] =
            named(new QRadioButton(Lang::tr(stopCaptions[i])), indexed("OptionGenSerialStop", i));
        stopGroup->addButton(OptionGenSerialStop[i], i);
        stop->layout()->addWidget(OptionGenSerialStop[i]);
    }
    // Field value 1 of the parity has no button.
    OptionGenSerialParity = {};
    const std::pair<int, const char*> parities[3] = {{0, QT_TRANSLATE_NOOP("Lang", "None")},
                                                     {2, QT_TRANSLATE_NOOP("Lang", "Even")},
                                                     {3, QT_TRANSLATE_NOOP("Lang", "Odd")}};
    for (const auto& [index, caption] : parities) {
        OptionGenSerialParity[index] =
            named(new QRadioButton(Lang::tr(caption)), indexed("OptionGenSerialParity", index));
        parityGroup->addButton(OptionGenSerialParity[index], index);
        parity->layout()->addWidget(OptionGenSerialParity[index]);
    }
    auto* options = new QHBoxLayout;
    options->addWidget(data);
    options->addWidget(stop);
    options->addWidget(parity);
    grid->addLayout(options, 1, 0, 1, 4);

    grid->addLayout(readWriteRow("CommandGenSerial", Lang::tr("Read Settings"), Lang::tr("Write Settings"),
                                 CommandGenSerialRead, CommandGenSerialWrite),
                    2, 0, 1, 4);
    grid->setColumnStretch(3, 1);
    return frame;
}

QGroupBox* GeneralPage::buildErase()
{
    const auto [frame, row] = frameWith<QHBoxLayout>(Lang::tr("Configuration Memory"), "FrameGenErase");
    CommandGenEraseFlash = button(Lang::tr("Erase Flash"), "CommandGenEraseFlash");
    CommandGenEraseFlash->setToolTip(
        Lang::tr("Erases the whole configuration of the module (takes up to 45 seconds)"));
    row->addWidget(CommandGenEraseFlash);
    row->addStretch();
    return frame;
}

// ---- The binding of every control to its field ----

void GeneralPage::bind()
{
    GeneralSettings& g = session.general;
    Bindings& b = bindings;
    const auto base = [this] { return session.config.NumberingBase; };

    b.display([this, &g] {
        LabelGenVersionString->setText(translated("GeneralSettings", g.LabelGenVersionString));
    });
    // The module stores single-byte characters of 0..127: only printable ones are taken.
    TextGenIDString->setValidator(
        new QRegularExpressionValidator(QRegularExpression("[\\x20-\\x7e]*"), TextGenIDString));
    b.text(TextGenIDString, g.TextGenIDString);
    connect(TextGenIDString, &QLineEdit::editingFinished, this, [this] {
        guard(Lang::tr("typing in %1").arg(controlName(TextGenIDString)).toStdString(),
              [this] { cutIDString(); });
    });

    const auto dccEntry = [&b](QLineEdit* box, std::string& field) {
        numericInput(box, 5);
        b.entry(
            box, [&field] { return field; },
            [&field](const std::string& typed) { field = clampedDccAddress(typed); });
    };
    dccEntry(TextGenDCCAddress, g.TextGenDCCAddress);
    dccEntry(TextGenXDCCAddress, g.TextGenXDCCAddress);
    b.option(prpGroup, g.OptGenDCC_PRP);
    b.check(ChkGenDCC_BPSI, g.ChkGenDCC_BPSI);
    b.check(ChkGenDCCAllow0, g.ChkGenDCCAllow0);

    b.check(CheckGenKestrelNative, g.CheckGenKestrelNative,
            [this] { kestrel::CheckGenKestrelNative_Click(session); });
    b.check(CheckGenLynxaddr, g.CheckGenLynxaddr, [this] { kestrel::CheckGenLynxaddr_Click(session); });
    // The flex-address is shown times 4 with the numbering base; its text field follows
    // LynxFlexAddress, which the writer sends.
    numericInput(TextGenLynxaddr, 4);
    b.entry(
        TextGenLynxaddr,
        [&g, base] {
            g.TextGenLynxaddr = std::to_string(g.LynxFlexAddress * 4 + base());
            return g.TextGenLynxaddr;
        },
        [&g, base](const std::string& typed) { takeFlexAddress(g, typed, base()); });
    b.display([this, base] { UpDownGenLynxaddr->setRange(base(), base() + 4 * kFlexAddressMaximum); });
    b.spinner(UpDownGenLynxaddr, TextGenLynxaddr, [&g, base] { return g.LynxFlexAddress * 4 + base(); });
    numericInput(TextGenXaddr, 4);
    b.entry(
        TextGenXaddr,
        [&g, base] {
            g.TextGenXaddr = std::to_string(g.ExtendedAddress + base());
            return g.TextGenXaddr;
        },
        [&g, base](const std::string& typed) { takeExtendedAddress(g, typed, base()); });
    for (int i = 0; i < 16; ++i)
        b.check(CheckGenXGM[i], g.CheckGenXGM[i]);
    b.display([this, &g] {
        CheckGenKestrelNative->setVisible(g.CheckGenKestrelNativeVisible);
        CheckGenLynxaddr->setVisible(g.CheckGenLynxaddrVisible);
        TextGenLynxaddr->setVisible(g.TextGenLynxaddrVisible);
        UpDownGenLynxaddr->setVisible(g.TextGenLynxaddrVisible);
        LabelGenXA_4->setVisible(g.TextGenLynxaddrVisible);
    });

    b.display([this, base] {
        const QString legend = pinLegend(base());
        if (LabelGenHWCPin->text() != legend) {
            LabelGenHWCPin->setText(legend);
            placeHardwareBoxes();
        }
    });
    for (int i = 0; i < 4; ++i) {
        b.check(ChkGenHWCSink[i], g.ChkGenHWCSink[i]);
        b.check(ChkGenHWCSource[i], g.ChkGenHWCSource[i]);
    }
    for (int i = 0; i < 8; ++i) {
        b.check(CheckLCGreen[i], g.CheckLCGreen[i]);
        b.check(CheckLCOrange[i], g.CheckLCOrange[i]);
    }

    b.check(CheckGenSerialEnable, g.CheckGenSerialEnable);
    b.combo(ComboGenBaud, g.ComboGenBaud);
    b.option(databitsGroup, g.OptionGenSerialDatabits);
    b.option(stopGroup, g.OptionGenSerialStop);
    b.option(parityGroup, g.OptionGenSerialParity);
}

void GeneralPage::cutIDString()
{
    std::string& id = session.general.TextGenIDString;
    if (id.size() <= kIdStringLength)
        return;
    id.resize(kIdStringLength);
    refresh();
    session.dialogs().message(Lang::tr("ID string cut to 12 characters: ").toLatin1().toStdString() + id,
                              Icon::Information);
}

void GeneralPage::refresh() { bindings.show(); }

void GeneralPage::commit() { bindings.commitPending(); }

// ---- Buttons ----

template <typename Procedure> bool GeneralPage::run(Procedure procedure)
{
    bool ok = false;
    guard([&] {
        commit();
        ok = procedure(session);
    });
    refresh();
    return ok;
}

bool GeneralPage::CommandGenVersion_Click() { return run(RequestVersion); }
bool GeneralPage::CommandGenIDRead_Click() { return run(ReadIDString); }
bool GeneralPage::CommandGenIDWrite_Click() { return run(WriteIDString); }
bool GeneralPage::CommandGenDCCRead_Click() { return run(ReadDCCSettings); }
bool GeneralPage::CommandGenDCCWrite_Click() { return run(WriteDCCSettings); }
bool GeneralPage::CommandGenAddrRead_Click() { return run(kestrel::CommandGenAddrRead_Click); }
bool GeneralPage::CommandGenAddrWrite_Click() { return run(WriteSerialAddressing); }
bool GeneralPage::CommandGenHWCRead_Click() { return run(ReadHardwareConfig); }
bool GeneralPage::CommandGenHWCWrite_Click() { return run(WriteHardwareConfig); }
bool GeneralPage::CommandLCRead_Click() { return run(ReadLEDControl); }
bool GeneralPage::CommandLCWrite_Click() { return run(WriteLEDControl); }
bool GeneralPage::CommandGenSerialRead_Click() { return run(ReadSerialPortSettings); }
bool GeneralPage::CommandGenSerialWrite_Click() { return run(WriteSerialPortSettings); }
bool GeneralPage::CommandGenEraseFlash_Click() { return run(EraseFlash); }

} // namespace kestrel
