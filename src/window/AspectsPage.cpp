#include "window/AspectsPage.h"
#include "window/Language.h"

#include "base/Text.h"
#include "forms/AspectTimeline.h"
#include "forms/DevicesForm.h"
#include "model/AddressIndex.h"
#include "model/InstructionSet.h"
#include "window/AspectTimeline.h"
#include "window/EditTools.h"
#include "window/FieldHelp.h"
#include "window/HelpToolDialogs.h"
#include "window/Widgets.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kestrel {

namespace {
// An entry box with its spinner.
NumberEntry* entry(const QString& name, QLineEdit*& box, QSpinBox*& spinner)
{
    auto* e = new NumberEntry("Text" + name, "UpDown" + name);
    box = e->text;
    spinner = e->upDown;
    numericInput(box, 4);
    return e;
}

QLineEdit* numberBox(const QString& name, int width = 44)
{
    auto* box = named(new QLineEdit("0"), name);
    box->setFixedWidth(width);
    box->setAlignment(Qt::AlignRight);
    numericInput(box, 4);
    return box;
}

const char* const kToolTip = QT_TRANSLATE_NOOP("Lang", "Click for copy/paste tools");
const char* const kHelpTip = QT_TRANSLATE_NOOP("Lang", "Double-click for help-tool");
constexpr int kPinRow = -2; // the rows of a context menu: the pin's, the aspect's, a step's
constexpr int kAspectRow = -1;
const char* const kTestTip =
    QT_TRANSLATE_NOOP("Lang", "The module has no command to test an aspect, so this is not available");

// A button of the page with its tooltip.
QPushButton* tippedButton(const QString& caption, const char* name, const QString& tip)
{
    auto* b = named(new QPushButton(caption), name);
    b->setToolTip(tip);
    return b;
}

// A tool window of the page, made on its first use and then kept with what it holds.
template <typename Dialog, typename... Args> Dialog* kept(Dialog*& dialog, Args&&... args)
{
    if (!dialog)
        dialog = new Dialog(std::forward<Args>(args)...);
    return dialog;
}
} // namespace

AspectsPage::AspectsPage(Session& s, DeviceList& list, std::function<void(JobName)> start, Guard* sharedGuard,
                         QWidget* parent)
    : QWidget(parent), session(s), devices(list), startJob(std::move(start)),
      ownGuard(sharedGuard ? nullptr : new Guard(s)), guard(sharedGuard ? *sharedGuard : *ownGuard),
      bindings(guard)
{
    setObjectName("PageAspects");
    auto* layout = new QVBoxLayout(scrolledContent(this));
    layout->addWidget(buildPinArea());
    layout->addWidget(buildAspectArea(), 1);
    layout->addWidget(buildDeviceArea());

    actionPinTool = new QAction(Lang::tr("&Pin Tool..."), this);
    actionAspectTool = new QAction(Lang::tr("&Aspect Tool..."), this);
    actionStepTool = new QAction(Lang::tr("&Step Tool..."), this);
    connect(actionPinTool, &QAction::triggered, this, &AspectsPage::LabelPAspOutput_Click);
    connect(actionAspectTool, &QAction::triggered, this, &AspectsPage::LabelPAspAspect_Click);
    connect(actionStepTool, &QAction::triggered, this, [this] { LabelPAspStep_Click(focusedStepRow()); });
    // The column headings follow the row that has the focus.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && isAncestorOf(now))
            showHeadings();
    });
    bind();
}

AspectsPage::~AspectsPage() = default;

QWidget* AspectsPage::buildPinArea()
{
    auto* frame = named(new QGroupBox(Lang::tr("Pin")), "FramePAspPin");
    auto* grid = new QGridLayout(frame);

    NumberEntry* pin = entry("PAspOutput", TextPAspOutput, UpDownPAspOutput);
    LabelPAspOutput = named(captionFor(Lang::tr("Pin"), TextPAspOutput), "LabelPAspOutput");
    LabelPAspOutput->setToolTip(Lang::tr(kToolTip));
    LabelPAspOutput->setCursor(Qt::PointingHandCursor);
    TextPAspDesc = named(new QLineEdit, "TextPAspDesc");
    TextPAspDesc->setToolTip(Lang::tr("The pin's description, kept in the configuration"));
    TextDevicePin = named(new QLineEdit, "TextDevicePin");
    TextDevicePin->setReadOnly(true);
    TextDevicePin->setFixedWidth(44);
    TextDevicePin->setToolTip(Lang::tr("The first pin of the device this pin belongs to"));
    TextDeviceDescription = named(new QLineEdit, "TextDeviceDescription");
    TextDeviceDescription->setToolTip(Lang::tr("The device's name, kept by its first pin"));

    grid->addWidget(LabelPAspOutput, 0, 0);
    grid->addWidget(pin, 0, 1);
    grid->addWidget(captionFor(Lang::tr("Description"), TextPAspDesc), 0, 2);
    grid->addWidget(TextPAspDesc, 0, 3, 1, 3);
    grid->addWidget(captionFor(Lang::tr("Device pin"), TextDevicePin), 1, 0);
    grid->addWidget(TextDevicePin, 1, 1);
    grid->addWidget(captionFor(Lang::tr("Device"), TextDeviceDescription), 1, 2);
    grid->addWidget(TextDeviceDescription, 1, 3, 1, 3);

    auto* layoutRow = new QHBoxLayout;
    OptionPAspConfGroup = new QButtonGroup(this);
    auto* layoutLabel = new QLabel(Lang::tr("Aspects"));
    layoutRow->addWidget(layoutLabel);
    const char* captions[3] = {"0", "4", "12"};
    for (int i = 0; i < 3; ++i) {
        OptionPAspConf[i] = named(new QRadioButton(captions[i]), indexed("OptionPAspConf", i));
        OptionPAspConf[i]->setAccessibleName(Lang::tr("%1 aspects").arg(captions[i]));
        OptionPAspConfGroup->addButton(OptionPAspConf[i], i);
        layoutRow->addWidget(OptionPAspConf[i]);
    }
    layoutRow->addSpacing(16);
    LabelPASPAdrCnt = named(new QLabel(Lang::tr("Addresses:")), "LabelPASPAdrCnt");
    layoutRow->addWidget(LabelPASPAdrCnt);
    NumberEntry* dcc = entry("PaspDCCn", TextPaspDCCn, UpDownPaspDCCn);
    NumberEntry* xdcc = entry("PAspXDCCn", TextPAspXDCCn, UpDownPAspXDCCn);
    NumberEntry* serial = entry("PaspLynxn", TextPaspLynxn, UpDownPaspLynxn);
    layoutRow->addWidget(captionFor(Lang::tr("DCC"), TextPaspDCCn));
    layoutRow->addWidget(dcc);
    layoutRow->addWidget(captionFor(Lang::tr("eXtd DCC"), TextPAspXDCCn));
    layoutRow->addWidget(xdcc);
    layoutRow->addWidget(captionFor(Lang::tr("Serial"), TextPaspLynxn));
    layoutRow->addWidget(serial);
    TextPaspDCCn->setAccessibleName(Lang::tr("DCC addresses"));
    TextPAspXDCCn->setAccessibleName(Lang::tr("eXtd DCC addresses"));
    TextPaspLynxn->setAccessibleName(Lang::tr("Serial addresses"));
    for (auto [box, spin] :
         {std::pair{TextPAspOutput, UpDownPAspOutput}, std::pair{TextPaspDCCn, UpDownPaspDCCn},
          std::pair{TextPAspXDCCn, UpDownPAspXDCCn}, std::pair{TextPaspLynxn, UpDownPaspLynxn}})
        spin->setAccessibleName(box->accessibleName());
    layoutRow->addStretch();
    grid->addLayout(layoutRow, 2, 0, 1, 6);

    // The pin's own jobs, beside the pin they act on.
    auto* jobs = new QHBoxLayout;
    CommandReadPin =
        tippedButton(Lang::tr("Re&ad Pin"), "CommandReadPin",
                     Lang::tr("Reads this pin from the module: aspects, addresses and pin configuration"));
    CommandWritePin = tippedButton(Lang::tr("Write Pin"), "CommandWritePin",
                                   Lang::tr("Writes this pin to the module: aspects and addresses"));
    CommandReadDevice = tippedButton(Lang::tr("Read Device"), "CommandReadDevice",
                                     Lang::tr("Reads every pin of this pin's device from the module"));
    CommandWriteDevice = tippedButton(Lang::tr("Write Device"), "CommandWriteDevice",
                                      Lang::tr("Writes every pin of this pin's device to the module"));
    for (QPushButton* b : {CommandReadPin, CommandWritePin, CommandReadDevice, CommandWriteDevice})
        jobs->addWidget(b);
    jobs->addStretch();
    grid->addLayout(jobs, 3, 0, 1, 6);
    grid->setColumnStretch(3, 1);

    connect(CommandReadPin, &QPushButton::clicked, this, [this] { startJob(Jobs::ReadPin); });
    connect(CommandWritePin, &QPushButton::clicked, this, [this] { startJob(Jobs::WritePin); });
    connect(CommandReadDevice, &QPushButton::clicked, this, [this] { startJob(Jobs::ReadDevice); });
    connect(CommandWriteDevice, &QPushButton::clicked, this, [this] { startJob(Jobs::WriteDevice); });
    LabelPAspOutput->installEventFilter(this);
    TextPAspOutput->installEventFilter(this);
    return frame;
}

QWidget* AspectsPage::buildAspectArea()
{
    auto* frame = named(new QGroupBox(Lang::tr("Aspect program")), "FramePAspAspect");
    auto* layout = new QVBoxLayout(frame);

    auto* aspectRow = new QHBoxLayout;
    NumberEntry* aspect = entry("PAspAspect", TextPAspAspect, UpDownPAspAspect);
    LabelPAspAspect = named(captionFor(Lang::tr("Aspect"), TextPAspAspect), "LabelPAspAspect");
    LabelPAspAspect->setToolTip(Lang::tr(kToolTip));
    LabelPAspAspect->setCursor(Qt::PointingHandCursor);
    TextPAspAspDesc = named(new QLineEdit, "TextPAspAspDesc");
    LabelPAspAspDesc = named(captionFor(Lang::tr("Aspect description"), TextPAspAspDesc), "LabelPAspAspDesc");
    NumberEntry* init = entry("PAspInit", TextPAspInit, UpDownPAspInit);
    LabelPAspInit = named(captionFor(Lang::tr("Initial aspect"), TextPAspInit), "LabelPAspInit");
    TextPAspInit->setToolTip(Lang::tr("The aspect the pin shows after power-up; -1 for none"));
    UpDownPAspAspect->setAccessibleName(TextPAspAspect->accessibleName());
    UpDownPAspInit->setAccessibleName(TextPAspInit->accessibleName());
    aspectRow->addWidget(LabelPAspAspect);
    aspectRow->addWidget(aspect);
    aspectRow->addWidget(LabelPAspAspDesc);
    aspectRow->addWidget(TextPAspAspDesc, 1);
    aspectRow->addWidget(LabelPAspInit);
    aspectRow->addWidget(init);
    layout->addLayout(aspectRow);
    LabelPAspAspect->installEventFilter(this);
    TextPAspAspect->installEventFilter(this);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    LabelPAspHStep = named(new QLabel(Lang::tr("Step")), "LabelPAspHStep");
    LabelPAspHInst = named(new QLabel(Lang::tr("Instruction")), "LabelPAspHInst");
    LabelPAspHFade = named(new QLabel(Lang::tr("Fade")), "LabelPAspHFade");
    LabelPAspOffset = named(new QLabel, "LabelPAspOffset");
    LabelPAspHParam1 = named(new QLabel, "LabelPAspHParam1");
    LabelPASpHParam2 = named(new QLabel, "LabelPASpHParam2");
    LabelPAspHParam3 = named(new QLabel, "LabelPAspHParam3");
    LabelPAspHTime = named(new QLabel(Lang::tr("Time")), "LabelPAspHTime");
    const QList<QLabel*> headings{LabelPAspHStep,   LabelPAspHInst,   LabelPAspHFade,   LabelPAspOffset,
                                  LabelPAspHParam1, LabelPASpHParam2, LabelPAspHParam3, LabelPAspHTime};
    for (int c = 0; c < headings.size(); ++c)
        grid->addWidget(headings[c], 0, c);

    const auto& items = InstructionTable::instance().list();
    for (int r = 0; r < kStepRows; ++r) {
        const QString step = QString::number(r);
        LabelPAspStep[r] = named(new QLabel(step), indexed("LabelPAspStep", r));
        LabelPAspStep[r]->setToolTip(Lang::tr("Click to Insert/Delete step"));
        LabelPAspStep[r]->setCursor(Qt::PointingHandCursor);
        LabelPAspStep[r]->installEventFilter(this);
        ComboPAspInst[r] = named(new QComboBox, indexed("ComboPAspInst", r));
        for (const auto& item : items)
            ComboPAspInst[r]->addItem(latin1(item.name), item.code);
        ComboPAspInst[r]->setMaxVisibleItems(24);
        ComboPAspInst[r]->setAccessibleName(Lang::tr("Instruction, step ") + step);
        CheckPAspFade[r] = named(new QCheckBox, indexed("CheckPAspFade", r));
        CheckPAspFade[r]->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed); // the box, not the column
        CheckPAspFade[r]->setAccessibleName(Lang::tr("Fade, step ") + step);
        TextPAspOffset[r] = numberBox(indexed("TextPAspOffset", r));
        TextPAspPar1[r] = numberBox(indexed("TextPAspPar1", r));
        TextPAspPar2[r] = numberBox(indexed("TextPAspPar2", r));
        TextPAspPar3[r] = numberBox(indexed("TextPAspPar3", r));
        // Named after the instruction's captions once a program is shown.
        QLineEdit* parameters[4] = {TextPAspOffset[r], TextPAspPar1[r], TextPAspPar2[r], TextPAspPar3[r]};
        for (int p = 0; p < 4; ++p)
            parameters[p]->setAccessibleName(Lang::tr("Parameter %1, step %2").arg(p).arg(r));
        LabelPAspTime[r] = named(new QLabel("00:00.00"), indexed("LabelPAspTime", r));
        LabelPAspTime[r]->setToolTip(Lang::tr(kHelpTip));
        for (QWidget* w : std::initializer_list<QWidget*>{ComboPAspInst[r], CheckPAspFade[r],
                                                          TextPAspOffset[r], TextPAspPar1[r], TextPAspPar2[r],
                                                          TextPAspPar3[r], LabelPAspTime[r]})
            w->installEventFilter(this); // help tools and the step tool's context menu
        const QList<QWidget*> row{LabelPAspStep[r], ComboPAspInst[r], CheckPAspFade[r], TextPAspOffset[r],
                                  TextPAspPar1[r],  TextPAspPar2[r],  TextPAspPar3[r],  LabelPAspTime[r]};
        for (int c = 0; c < row.size(); ++c)
            grid->addWidget(row[c], r + 1, c);

        connect(ComboPAspInst[r], &QComboBox::activated, this, [this, r](int index) {
            const int code = ComboPAspInst[r]->itemData(index).toInt();
            const QString name = Lang::tr("choosing %1 in %2")
                                     .arg(ComboPAspInst[r]->itemText(index), controlName(ComboPAspInst[r]));
            bindings.edit(name, [&] {
                const RowEdit e = setInstruction(session.config, r, code);
                view.rows[r] = e.row;
            });
            bindings.show();
        });
        connect(CheckPAspFade[r], &QCheckBox::clicked, this, [this, r](bool checked) {
            bindings.edit((checked ? Lang::tr("checking %1") : Lang::tr("unchecking %1"))
                              .arg(controlName(CheckPAspFade[r])),
                          [&] {
                              const RowEdit e = setFade(session.config, r, checked);
                              view.rows[r] = e.row;
                          });
            bindings.show();
        });
    }
    grid->setColumnStretch(8, 1);
    TimelinePAsp = named(new AspectTimeline, "TimelinePAsp");
    auto* program = new QHBoxLayout;
    program->addLayout(grid);
    program->setAlignment(grid, Qt::AlignTop);
    program->addSpacing(12);
    program->addWidget(TimelinePAsp, 1, Qt::AlignTop);
    layout->addLayout(program);
    connect(TimelinePAsp, &AspectTimeline::stepClicked, this, &AspectsPage::TimelinePAsp_Click);

    auto* buttons = new QHBoxLayout;
    CheckPAspShowDetails = named(new QCheckBox(Lang::tr("Show Details")), "CheckPAspShowDetails");
    CheckPAspShowDetails->setChecked(true);
    CheckPAspShowDetails->setToolTip(
        Lang::tr("Shows or hides the transfer buttons, the step headings and the "
                 "pin configuration's parameter buttons"));
    CommandPAspReadPin =
        tippedButton(Lang::tr("Read Asp's"), "CommandPAspReadPin",
                     Lang::tr("Reads this pin's aspects, initial aspect and addresses from the module"));
    CommandPAspWritePin =
        tippedButton(Lang::tr("Write Asp's"), "CommandPAspWritePin",
                     Lang::tr("Writes this pin's aspects, initial aspect and addresses to the module"));
    CommandPAspWriteAspect =
        tippedButton(Lang::tr("Write Aspect"), "CommandPAspWriteAspect",
                     Lang::tr("Writes only the steps of the selected aspect to the module"));
    CommandPAspTestAspect = named(new QPushButton(Lang::tr("Test Aspect")), "CommandPAspTestAspect");
    CommandPAspTestAspect->setEnabled(false);
    CommandPAspTestAspect->setToolTip(Lang::tr(kTestTip));
    buttons->addWidget(CheckPAspShowDetails);
    for (QPushButton* b :
         {CommandPAspReadPin, CommandPAspWritePin, CommandPAspWriteAspect, CommandPAspTestAspect})
        buttons->addWidget(b);
    buttons->addStretch();
    layout->addLayout(buttons);
    layout->addStretch();

    connect(CheckPAspShowDetails, &QCheckBox::clicked, this, &AspectsPage::CheckPAspShowDetails_Click);
    connect(CommandPAspReadPin, &QPushButton::clicked, this, [this] { startJob(Jobs::PAspReadPin); });
    connect(CommandPAspWritePin, &QPushButton::clicked, this, [this] { startJob(Jobs::PAspWritePin); });
    connect(CommandPAspWriteAspect, &QPushButton::clicked, this, [this] { startJob(Jobs::PAspWriteAspect); });
    return frame;
}

QWidget* AspectsPage::buildDeviceArea()
{
    auto* frame = named(new QGroupBox(Lang::tr("Device definitions")), "FramePAspDevice");
    auto* row = new QHBoxLayout(frame);
    cboDevice = named(new QComboBox, "cboDevice");
    cboDevice->setMinimumWidth(220);
    cboDevice->setAccessibleName(Lang::tr("Device to load"));
    CommandPAspPreLoad =
        tippedButton(Lang::tr("Load Device"), "CommandPAspPreLoad",
                     Lang::tr("Places the chosen device on the pins, its first pin on this pin"));
    CommandSaveDevice = tippedButton(Lang::tr("Save Device"), "CommandSaveDevice",
                                     Lang::tr("Saves this pin's device to a definitions file of its own"));
    CommandReloadDD = tippedButton(Lang::tr("Reload &DD"), "CommandReloadDD",
                                   Lang::tr("Reload DD to load new file, Shift + Reload DD to append"));
    CommandReloadDD->setAutoDefault(true); // Return presses it as Space does
    CommandReloadDD->installEventFilter(this);
    lblDDVersion = named(new QLabel, "lblDDVersion");
    row->addWidget(cboDevice, 1);
    row->addWidget(CommandPAspPreLoad);
    row->addWidget(CommandSaveDevice);
    row->addWidget(CommandReloadDD);
    row->addWidget(lblDDVersion, 1);

    connect(cboDevice, &QComboBox::activated, this, [this](int index) { devices.selected = index; });
    connect(CommandPAspPreLoad, &QPushButton::clicked, this, &AspectsPage::CommandPAspPreLoad_Click);
    connect(CommandSaveDevice, &QPushButton::clicked, this, &AspectsPage::CommandSaveDevice_Click);
    // A click by mouse, Space, Return or Alt+D, with the keys held when it was pressed.
    connect(CommandReloadDD, &QPushButton::clicked, this,
            [this] { CommandReloadDD_MouseDown(1, std::exchange(reloadShift, 0)); });
    // Its mnemonic with Shift appends, as Shift with the mouse does.
    auto* appendKey = new QShortcut(
        QKeySequence(QKeySequence::mnemonic(CommandReloadDD->text())[0].toCombined() | Qt::SHIFT),
        CommandReloadDD);
    const auto append = [this] {
        reloadShift = 1;
        CommandReloadDD->animateClick();
    };
    connect(appendKey, &QShortcut::activated, this, append);
    connect(appendKey, &QShortcut::activatedAmbiguously, this, append);
    return frame;
}

StepRecord& AspectsPage::step(int row)
{
    return session.config.step(session.config.CurrentPin, session.config.CurrentAspect, row);
}

void AspectsPage::bindSelector(QLineEdit* box, std::string AspectView::*text,
                               Selection (*select)(Configuration&, const std::string&),
                               const std::function<void()>& then)
{
    bindings.entry(
        box, [this, text] { return view.*text; },
        [this, text, select, then](const std::string& typed) {
            const Selection s = select(session.config, typed);
            view = s.view;
            view.*text = s.text;
            then();
        });
}

void AspectsPage::bind()
{
    Configuration& c = session.config;
    auto& b = bindings;

    // The selectors: clamped, written back, and the page shown for the new selection.
    bindSelector(TextPAspOutput, &AspectView::pinText, selectPin, [this] { pinReplaced(); });
    b.spinner(UpDownPAspOutput, TextPAspOutput, [&c] { return c.CurrentPin + c.NumberingBase; });
    bindSelector(TextPAspAspect, &AspectView::aspectText, selectAspect, [this] { bindings.show(); });
    b.spinner(UpDownPAspAspect, TextPAspAspect, [&c] { return c.CurrentAspect; });
    b.entry(
        TextPAspInit, [this] { return view.initText; },
        [this, &c](const std::string& typed) { view.initText = setInitAspect(c, typed); });
    b.spinner(UpDownPAspInit, TextPAspInit, [&c] { return c.pin(c.CurrentPin).InitAspect - 1; });

    struct Count {
        QLineEdit* box;
        QSpinBox* spin;
        AddressKind kind;
        std::string AspectView::*text;
    };
    for (const Count& n :
         {Count{TextPaspDCCn, UpDownPaspDCCn, AddressKind::Dcc, &AspectView::dccCount},
          Count{TextPAspXDCCn, UpDownPAspXDCCn, AddressKind::XDcc, &AspectView::xdccCount},
          Count{TextPaspLynxn, UpDownPaspLynxn, AddressKind::Lynx, &AspectView::lynxCount}}) {
        n.spin->setRange(0, addressCountMaximum(n.kind));
        b.entry(
            n.box, [this, n] { return view.*n.text; },
            [this, n, &c](const std::string& typed) { view.*n.text = setAddressCount(c, n.kind, typed); });
        b.spinner(n.spin, n.box, [n, &c] { return addressCount(c.pin(c.CurrentPin), n.kind); });
    }

    b.text(TextPAspDesc, [&c]() -> std::string& { return c.pin(c.CurrentPin).Description; });
    b.text(TextPAspAspDesc,
           [&c]() -> std::string& { return c.aspect(c.CurrentPin, c.CurrentAspect).Description; });
    // Only the device's head keeps its name; on a member the box shows the head's and is closed.
    connect(TextDeviceDescription, &QLineEdit::textChanged, this, [this, &c](const QString& typed) {
        bindings.edit(
            Lang::tr("typing in %1").arg(controlName(TextDeviceDescription)),
            [&] {
                if (setDeviceDescription(c, fromLatin1(typed)))
                    view.deviceDescription = fromLatin1(typed);
            },
            TextDeviceDescription);
    });
    b.display([this] {
        const QSignalBlocker block(TextDeviceDescription);
        if (TextDeviceDescription->text() != latin1(view.deviceDescription))
            TextDeviceDescription->setText(latin1(view.deviceDescription));
        TextDeviceDescription->setEnabled(view.deviceDescriptionEnabled);
        TextDevicePin->setText(latin1(view.devicePin));
    });

    // The step rows: parameters as typed (clamped when editing finishes), then the row's time.
    for (int r = 0; r < kStepRows; ++r) {
        QLineEdit* boxes[4] = {TextPAspOffset[r], TextPAspPar1[r], TextPAspPar2[r], TextPAspPar3[r]};
        for (int p = 0; p < 4; ++p)
            b.entry(
                boxes[p], [this, r, p] { return view.rows[r].parameters[p].text; },
                [this, r, p, &c](const std::string& typed) {
                    const ParameterEdit e = setParameter(c, r, p, typed);
                    view.rows[r].parameters[p].text = e.text;
                    view.rows[r].timeText = e.timeText;
                    LabelPAspTime[r]->setText(latin1(e.timeText));
                    showTimeline();
                });
        b.display([this, r] { showRow(r); });
    }
    b.display([this] { showTimeline(); });

    b.display([this, &c] {
        UpDownPAspOutput->setRange(c.NumberingBase, c.NumberingBase + kPinCount - 1);
        UpDownPAspAspect->setRange(0, view.layout.aspectMaximum);
        UpDownPAspInit->setRange(-1, view.layout.aspectMaximum);
        for (int i = 0; i < 3; ++i) {
            const QSignalBlocker block(OptionPAspConf[i]);
            OptionPAspConf[i]->setChecked(i == view.layout.option);
        }
        const bool aspects = view.layout.aspectControlsVisible;
        for (QWidget* w : std::initializer_list<QWidget*>{
                 LabelPAspAspect, TextPAspAspect, UpDownPAspAspect, LabelPAspAspDesc, TextPAspAspDesc,
                 LabelPAspInit, TextPAspInit, UpDownPAspInit, LabelPAspHFade, LabelPAspOffset,
                 LabelPAspHParam1, LabelPASpHParam2, LabelPAspHParam3, LabelPAspHTime, CheckPAspShowDetails})
            w->setVisible(aspects);
        showHeadings();
        showDetails();
        actionAspectTool->setEnabled(aspects);
        actionStepTool->setEnabled(aspects);
    });
    b.display([this] {
        const QSignalBlocker block(cboDevice);
        cboDevice->clear();
        for (const auto& name : devices.cboDevice)
            cboDevice->addItem(latin1(name));
        cboDevice->setCurrentIndex(devices.selected);
        lblDDVersion->setText(latin1(devices.lblDDVersion));
    });

    connect(OptionPAspConfGroup, &QButtonGroup::idClicked, this, [this](int option) {
        bindings.edit(Lang::tr("choosing %1").arg(controlName(OptionPAspConf[option])),
                      [&] { view = changeLayout(session.config, option); });
        bindings.show();
    });
}

void AspectsPage::showRow(int r)
{
    const StepRowView& row = view.rows[r];
    const bool visible = view.layout.aspectControlsVisible && view.layout.rowVisible[r];
    for (QWidget* w :
         std::initializer_list<QWidget*>{LabelPAspStep[r], ComboPAspInst[r], TextPAspOffset[r],
                                         TextPAspPar1[r], TextPAspPar2[r], TextPAspPar3[r], LabelPAspTime[r]})
        w->setVisible(visible);
    {
        const QSignalBlocker block(ComboPAspInst[r]);
        ComboPAspInst[r]->setCurrentIndex(row.listIndex);
    }
    {
        const QSignalBlocker block(CheckPAspFade[r]);
        CheckPAspFade[r]->setChecked(row.fadeChecked);
        CheckPAspFade[r]->setText(translated("StepTable", row.fadeCaption));
        CheckPAspFade[r]->setVisible(visible && row.fadeVisible);
    }
    QLineEdit* boxes[4] = {TextPAspOffset[r], TextPAspPar1[r], TextPAspPar2[r], TextPAspPar3[r]};
    const InstructionInfo& info = instructionInfo(row.instruction);
    const Configuration& c = session.config;
    for (int p = 0; p < 4; ++p) {
        boxes[p]->setEnabled(row.parameters[p].used);
        setTip(boxes[p], stepParameterTip(step(r), p, c.CurrentPin, c.NumberingBase));
        const std::string& caption = info.caption(p);
        boxes[p]->setAccessibleName(
            Lang::tr("%1, step %2")
                .arg(caption.empty() ? Lang::tr("Parameter %1").arg(p) : latin1(caption))
                .arg(r));
    }
    if (!row.timeText.empty())
        LabelPAspTime[r]->setText(latin1(row.timeText));
}

void AspectsPage::showHeadings()
{
    // One set of headings for all rows: those of the row being worked on.
    const int r = focusedStepRow();
    const Configuration& c = session.config;
    const InstructionInfo& info = instructionInfo(view.rows[r].instruction);
    QLabel* labels[4] = {LabelPAspOffset, LabelPAspHParam1, LabelPASpHParam2, LabelPAspHParam3};
    for (int p = 0; p < 4; ++p) {
        labels[p]->setText(latin1(info.caption(p)));
        setTip(labels[p],
               info.used(p) ? stepParameterTip(step(r), p, c.CurrentPin, c.NumberingBase) : QString());
    }
}

void AspectsPage::showDetails()
{
    const bool details = CheckPAspShowDetails->isChecked();
    const bool aspects = view.layout.aspectControlsVisible;
    CommandPAspReadPin->setVisible(details);
    CommandPAspWritePin->setVisible(details);
    for (QWidget* w : std::initializer_list<QWidget*>{CommandPAspWriteAspect, CommandPAspTestAspect,
                                                      LabelPAspHStep, LabelPAspHInst})
        w->setVisible(details && aspects);
}

void AspectsPage::showTimeline()
{
    const Configuration& c = session.config;
    TimelinePAsp->setVisible(view.layout.aspectControlsVisible);
    TimelinePAsp->showTimeline(aspectTimeline(c), c.CurrentAspect, c.CurrentStep);
}

void AspectsPage::TimelinePAsp_Click(int aspect, int stepIndex)
{
    commitPending();
    guard(Lang::tr("choosing a step in the timeline").toStdString(), [this, aspect, stepIndex] {
        if (aspect != session.config.CurrentAspect)
            selectAspect(session.config, std::to_string(aspect));
        selectStepRow(session.config, stepIndex);
    });
    refresh();
    ComboPAspInst[stepIndex]->setFocus(Qt::MouseFocusReason);
}

void AspectsPage::CheckPAspShowDetails_Click()
{
    showDetails();
    if (onDetailsChanged)
        onDetailsChanged(CheckPAspShowDetails->isChecked());
}

void AspectsPage::refresh()
{
    bindings.commitPending();
    guard([this] { view = ShowAspect(session.config); });
    bindings.show();
}

void AspectsPage::commitPending() { bindings.commitPending(); }

void AspectsPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void AspectsPage::pinReplaced()
{
    refresh();
    if (onPinChosen)
        onPinChosen();
}

void AspectsPage::run(const std::function<void()>& handler)
{
    commitPending();
    guard(handler);
}

EditPinDialog& AspectsPage::pinTool() { return *kept(dlgEditPin, session, this); }

EditAspectDialog& AspectsPage::aspectTool() { return *kept(dlgEditAspect, session, this); }

EditStepDialog& AspectsPage::stepTool() { return *kept(dlgEditStep, session, this); }

void AspectsPage::LabelPAspOutput_Click()
{
    run([this] {
        pinTool().run();
        guard.name(dlgEditPin->chosen.toStdString());
        RecalcAddressIndex(session.config); // a pasted or cleared pin brings its own counts
    });
    pinReplaced();
}

void AspectsPage::LabelPAspAspect_Click()
{
    if (!view.layout.aspectControlsVisible) // a pin without aspects (from the Edit menu)
        return;
    run([this] {
        aspectTool().run();
        guard.name(dlgEditAspect->chosen.toStdString());
    });
    refresh();
}

void AspectsPage::LabelPAspStep_Click(int row)
{
    if (!view.layout.aspectControlsVisible)
        return;
    run([this, row] {
        selectStepRow(session.config, row);
        stepTool().run();
        guard.name(dlgEditStep->chosen.toStdString());
    });
    refresh();
}

void AspectsPage::helpTool(int row, HelpBox box)
{
    run([this, row, box] {
        StepRecord& st = step(row);
        switch (helpToolForRow(session.config, row, box, session.dialogs())) {
        case HelpToolKind::None:
            return;
        case HelpToolKind::Time:
            kept(dlgCT, this)->run(st);
            guard.name(Lang::tr("Time tool").toStdString());
            break;
        case HelpToolKind::Pattern:
            kept(dlgKestrelCalcPattern, this)->run(st);
            guard.name(Lang::tr("Pattern tool").toStdString());
            break;
        case HelpToolKind::EventPattern:
            kept(dlgKestrelCalcEventPattern, this)->run(st);
            guard.name(Lang::tr("Event pattern tool").toStdString());
            break;
        case HelpToolKind::Level: {
            const int p = box == HelpBox::Par1 ? 1 : box == HelpBox::Par2 ? 2 : 3;
            int value = static_cast<int>(valInt(view.rows[row].parameters[p].text));
            kept(dlgKestrelCalcLevel, this);
            guard.name(Lang::tr("Level tool").toStdString());
            if (dlgKestrelCalcLevel->run(value))
                setParameter(session.config, row, p, std::to_string(value)); // within the box's range
            break;
        }
        }
        const RowEdit e = showStepRow(session.config, row);
        view.rows[row] = e.row;
    });
    bindings.show();
}

void AspectsPage::CommandPAspPreLoad_Click()
{
    devices.selected = cboDevice->currentIndex();
    run([this] { kestrel::CommandPAspPreLoad_Click(devices, session.config, session.dialogs()); });
    pinReplaced();
}

void AspectsPage::CommandSaveDevice_Click()
{
    run([this] { kestrel::CommandSaveDevice_Click(session.config, session.dialogs()); });
}

void AspectsPage::CommandReloadDD_MouseDown(int button, int shift)
{
    run([&] { kestrel::CommandReloadDD_MouseDown(devices, session.dialogs(), button, shift); });
    bindings.show();
}

void AspectsPage::reloadDeviceDefinitions(bool append) { CommandReloadDD_MouseDown(1, append ? 1 : 0); }

int AspectsPage::focusedStepRow() const
{
    const QWidget* focus = window()->focusWidget(); // kept while a menu is open
    for (int r = 0; r < kStepRows; ++r)
        for (const QWidget* w :
             std::initializer_list<const QWidget*>{ComboPAspInst[r], CheckPAspFade[r], TextPAspOffset[r],
                                                   TextPAspPar1[r], TextPAspPar2[r], TextPAspPar3[r]})
            if (focus == w)
                return r;
    const int chosen = session.config.CurrentStep;
    return chosen >= 0 && chosen < kStepRows && view.layout.rowVisible[chosen] ? chosen : 0;
}

void AspectsPage::toolCommand(int row, QPushButton* commandButton)
{
    auto* tool = qobject_cast<ToolDialog*>(commandButton->window());
    run([&] {
        if (row >= 0)
            selectStepRow(session.config, row);
        tool->perform(commandButton);
        guard.name(tool->chosen.toStdString());
        if (row == kPinRow)
            RecalcAddressIndex(session.config); // a pasted or cleared pin brings its own counts
    });
    if (row == kPinRow)
        pinReplaced();
    else
        refresh();
}

void AspectsPage::showToolMenu(QWidget* on, int row, const QPoint& where)
{
    if (row != kPinRow && !view.layout.aspectControlsVisible)
        return;
    auto* box = qobject_cast<QLineEdit*>(on);
    QMenu* menu = box ? box->createStandardContextMenu() : new QMenu(this);
    menu->setObjectName("menuTools");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (box)
        menu->addSeparator();
    QList<QPushButton*> commands;
    if (row == kPinRow)
        commands = {pinTool().CommandCopyPin, pinTool().CommandPastePin, pinTool().CommandClearPin};
    else if (row == kAspectRow)
        commands = {aspectTool().CommandCopy, aspectTool().CommandPaste, aspectTool().CommandClear,
                    aspectTool().CommandClean};
    else
        commands = {stepTool().commandInsert, stepTool().commandDelete};
    QAction* first = nullptr;
    for (QPushButton* b : commands) {
        QAction* a = menu->addAction(b->text(), this, [this, row, b] { toolCommand(row, b); });
        first = first ? first : a;
    }
    menu->popup(where);
    menu->setActiveAction(first);
}

bool AspectsPage::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (watched == CommandReloadDD) {
        // The keys held at the press decide (Shift alone appends); Alt is the mnemonic's. A
        // press that ends without a click leaves nothing behind for a later click.
        const int pressed = type == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
        const bool pressKey =
            pressed == Qt::Key_Space || pressed == Qt::Key_Return || pressed == Qt::Key_Enter;
        if (type == QEvent::MouseButtonPress)
            reloadShift = pressOf(static_cast<QMouseEvent*>(event)).second;
        else if (pressKey || type == QEvent::Shortcut) {
            const Qt::KeyboardModifiers keys = type == QEvent::KeyPress
                                                   ? static_cast<QKeyEvent*>(event)->modifiers()
                                                   : QGuiApplication::keyboardModifiers();
            reloadShift = (keys & Qt::ShiftModifier ? 1 : 0) | (keys & Qt::ControlModifier ? 2 : 0);
        }
        if (type == QEvent::MouseButtonRelease && // let go outside the button: no click follows
            !CommandReloadDD->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint()))
            reloadShift = 0;
        return QWidget::eventFilter(watched, event);
    }
    // The tools' context menu: the right button, the Menu key or Shift+F10 on a row.
    const auto* key = type == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool menuKey = key && (key->key() == Qt::Key_Menu ||
                                 (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier));
    if (type == QEvent::ContextMenu || menuKey) {
        auto* w = static_cast<QWidget*>(watched);
        const QPoint where = type == QEvent::ContextMenu ? static_cast<QContextMenuEvent*>(event)->globalPos()
                                                         : w->mapToGlobal(QPoint(0, w->height()));
        int row = watched == LabelPAspOutput || watched == TextPAspOutput   ? kPinRow
                  : watched == LabelPAspAspect || watched == TextPAspAspect ? kAspectRow
                                                                            : kStepRows;
        for (int r = 0; r < kStepRows && row == kStepRows; ++r)
            for (QWidget* c : std::initializer_list<QWidget*>{
                     LabelPAspStep[r], ComboPAspInst[r], CheckPAspFade[r], TextPAspOffset[r], TextPAspPar1[r],
                     TextPAspPar2[r], TextPAspPar3[r], LabelPAspTime[r]})
                if (watched == c)
                    row = r;
        if (row != kStepRows) {
            showToolMenu(w, row, where);
            return true;
        }
    }
    if (type == QEvent::MouseButtonPress) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton)
            return QWidget::eventFilter(watched, event);
        if (watched == LabelPAspOutput) {
            LabelPAspOutput_Click();
            return true;
        }
        if (watched == LabelPAspAspect) {
            LabelPAspAspect_Click();
            return true;
        }
        for (int r = 0; r < kStepRows; ++r)
            if (watched == LabelPAspStep[r]) {
                LabelPAspStep_Click(r);
                return true;
            }
    }
    const bool help = type == QEvent::MouseButtonDblClick || (key && key->key() == Qt::Key_F2);
    if (help)
        for (int r = 0; r < kStepRows; ++r) {
            const std::pair<QObject*, HelpBox> boxes[4] = {{LabelPAspTime[r], HelpBox::Time},
                                                           {TextPAspPar1[r], HelpBox::Par1},
                                                           {TextPAspPar2[r], HelpBox::Par2},
                                                           {TextPAspPar3[r], HelpBox::Par3}};
            for (const auto& [object, box] : boxes)
                if (watched == object) {
                    helpTool(r, box);
                    return true;
                }
        }
    return QWidget::eventFilter(watched, event);
}

} // namespace kestrel
