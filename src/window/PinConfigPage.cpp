#include "window/PinConfigPage.h"
#include "window/Language.h"

#include "base/Text.h"
#include "forms/AspectEditor.h"
#include "ops/LiveOutput.h"
#include "ops/PinConfigTransfer.h"
#include "pins/PinConfigView.h"
#include "window/Widgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace kestrel {

namespace {
const char* const kDynamicTip =
    QT_TRANSLATE_NOOP("Lang", "If checked, use active dynamic parameters, else go directly to position");

// A caption and its box in the next row of a two-column grid.
void addField(QGridLayout* grid, int row, int column, const QString& caption, QLineEdit* box)
{
    grid->addWidget(captionFor(caption, box), row, column * 3);
    grid->addWidget(box, row, column * 3 + 1);
}

QLabel* warningLabel(const QString& name)
{
    auto* label = named(new QLabel(kHardwareWarning), name);
    label->setStyleSheet("color: #b00000; font-weight: bold;");
    return label;
}

// The live controls of an output: its box, slider, set button, the option that makes
// the move slow or dynamic, and the jump button.
QGroupBox* liveFrame(const QString& title, const QString& frameName, const QString& caption, QLineEdit* box,
                     QSlider* slider, QPushButton* set, QCheckBox* option, QPushButton* jump)
{
    auto* frame = named(new QGroupBox(title), frameName);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(captionFor(caption, box), 0, 0);
    slider->setAccessibleName(spoken(caption));
    grid->addWidget(box, 0, 1);
    grid->addWidget(slider, 0, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(set);
    buttons->addWidget(option);
    buttons->addWidget(jump);
    buttons->addStretch();
    grid->addLayout(buttons, 1, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    return frame;
}

// A slider moves over the range of its box.
void sliderFor(QSlider* slider, PinField field)
{
    const PinFieldRule rule = pinFieldRule(field);
    slider->setRange(rule.min, rule.max);
}
} // namespace

PinConfigPage::PinConfigPage(Session& s, Guard* sharedGuard, QWidget* parent)
    : QWidget(parent), session(s), ownGuard(sharedGuard ? nullptr : new Guard(s)),
      guard(sharedGuard ? *sharedGuard : *ownGuard)
{
    setObjectName("PagePinConfig");
    auto* layout = new QVBoxLayout(scrolledContent(this));

    auto* pinRow = new QHBoxLayout;
    auto* pinEntry = new NumberEntry("TextPCFGPin", "UpDownPCFGPin");
    TextPCFGPin = pinEntry->text;
    UpDownPCFGPin = pinEntry->upDown;
    UpDownPCFGPin->setRange(0, kPinCount - 1);
    pinRow->setSpacing(0);
    pinRow->addWidget(captionFor(Lang::tr("Pin "), TextPCFGPin));
    UpDownPCFGPin->setAccessibleName(Lang::tr("Pin"));
    pinRow->addWidget(pinEntry);
    pinRow->addStretch();
    layout->addLayout(pinRow);

    SSTabPCFG = named(new QTabWidget, "SSTabPCFG");
    auto* clearPage = new QWidget;
    auto* clearLayout = new QVBoxLayout(clearPage);
    LabelPCFGClear = named(new QLabel(Lang::tr("Pin is not configured")), "LabelPCFGClear");
    clearLayout->addWidget(LabelPCFGClear);
    clearLayout->addStretch();
    // The pages in the order of ModePage.
    SSTabPCFG->addTab(clearPage, Lang::tr("Not configured"));
    SSTabPCFG->addTab(buildServoPage(), Lang::tr("Servo"));
    SSTabPCFG->addTab(buildPwmPage(), Lang::tr("PWM"));
    SSTabPCFG->addTab(buildInputPage(), Lang::tr("Input"));
    static const char* const modeTips[4] = {QT_TRANSLATE_NOOP("Lang", "the pin no longer drives anything"),
                                            QT_TRANSLATE_NOOP("Lang", "the pin drives a servo"),
                                            QT_TRANSLATE_NOOP("Lang", "the pin drives a PWM output"),
                                            QT_TRANSLATE_NOOP("Lang", "the pin reads an input")};
    for (int i = 0; i < 4; ++i)
        SSTabPCFG->setTabToolTip(i,
                                 Lang::tr("Picking this page changes the pin's mode: %1. It asks first when "
                                          "the pin's parameters would be replaced.")
                                     .arg(Lang::tr(modeTips[i])));
    layout->addWidget(SSTabPCFG, 1);

    auto* transfer = named(new QGroupBox(Lang::tr("Pin Configuration")), "FramePCFGTransfer");
    auto* row = new QHBoxLayout(transfer);
    const char* getCaptions[2] = {QT_TRANSLATE_NOOP("Lang", "Get Pin Config"),
                                  QT_TRANSLATE_NOOP("Lang", "Re&ad Pin Config")};
    const char* setCaptions[2] = {QT_TRANSLATE_NOOP("Lang", "Set Pin Config"),
                                  QT_TRANSLATE_NOOP("Lang", "Write Pin Config")};
    const char* getTips[2] = {QT_TRANSLATE_NOOP("Lang", "Gets the active parameters"),
                              QT_TRANSLATE_NOOP("Lang", "Reads the parameters from Flash memory")};
    const char* setTips[2] = {QT_TRANSLATE_NOOP("Lang", "Sets Active Servo parameters (not permanent)"),
                              QT_TRANSLATE_NOOP("Lang", "Writes Servo Parameters to Flash memory")};
    for (int i = 0; i < 2; ++i) {
        CommandPCFGGetParam[i] =
            named(new QPushButton(Lang::tr(getCaptions[i])), QString("CommandPCFGGetParam_%1").arg(i));
        CommandPCFGGetParam[i]->setToolTip(Lang::tr(getTips[i]));
        row->addWidget(CommandPCFGGetParam[i]);
        connect(CommandPCFGGetParam[i], &QPushButton::clicked, this,
                [this, i] { CommandPCFGGetParam_Click(i); });
    }
    row->addSpacing(24);
    for (int i = 0; i < 2; ++i) {
        CommandPCFGSetParam[i] =
            named(new QPushButton(Lang::tr(setCaptions[i])), QString("CommandPCFGSetParam_%1").arg(i));
        CommandPCFGSetParam[i]->setToolTip(Lang::tr(setTips[i]));
        row->addWidget(CommandPCFGSetParam[i]);
        connect(CommandPCFGSetParam[i], &QPushButton::clicked, this,
                [this, i] { CommandPCFGSetParam_Click(i); });
    }
    row->addStretch();
    layout->addWidget(transfer);

    numericInput(TextPCFGPin, 3);
    connect(TextPCFGPin, &QLineEdit::editingFinished, this, &PinConfigPage::TextPCFGPin_Click);
    connect(UpDownPCFGPin, &QSpinBox::valueChanged, this, [this](int v) {
        TextPCFGPin->setText(QString::number(v));
        TextPCFGPin_Click();
    });
    connect(SSTabPCFG, &QTabWidget::currentChanged, this, &PinConfigPage::SSTabPCFG_Click);

    refresh();
}

void PinConfigPage::followEachOther(QLineEdit* box, PinField field, QSlider* slider)
{
    connect(box, &QLineEdit::editingFinished, this, [this, field, slider] {
        const int value = liveValue(field); // the slider follows without sending
        const QSignalBlocker block(slider);
        slider->setValue(value);
    });
    connect(slider, &QSlider::sliderMoved, this, [box](int v) { box->setText(QString::number(v)); });
}

QCheckBox* PinConfigPage::invertedBox(const QString& name, ModePage page)
{
    auto* box = named(new QCheckBox(Lang::tr("Inverted")), name);
    connect(box, &QCheckBox::clicked, this, [this, box, page](bool checked) {
        guard((checked ? Lang::tr("checking %1") : Lang::tr("unchecking %1"))
                  .arg(controlName(box))
                  .toStdString(),
              [&] { setInverted(pin(), page, checked); });
    });
    return box;
}

QLineEdit* PinConfigPage::fieldBox(PinField field, const QString& name)
{
    auto* box = named(new QLineEdit("0"), name);
    box->setFixedWidth(48);
    box->setAlignment(Qt::AlignRight);
    fields[field] = box;
    numericInput(box, 5);
    connect(box, &QLineEdit::editingFinished, this, [this, field] { commitField(field); });
    return box;
}

QWidget* PinConfigPage::buildServoPage()
{
    auto* page = named(new QWidget, "PagePCFGServo");
    auto* layout = new QGridLayout(page);

    TextPosition = named(new QLineEdit("0"), "TextPosition");
    TextPosition->setFixedWidth(48);
    TextPosition->setAlignment(Qt::AlignRight);
    SliderServo = named(new QSlider(Qt::Horizontal), "SliderServo");
    sliderFor(SliderServo, PinField::TextPosition);
    SliderServo->setTracking(false); // sends when let go, not for every step of a drag
    CommandSrvLevel = named(new QPushButton(Lang::tr("Set Position")), "CommandSrvLevel");
    CheckSrvDynamic = named(new QCheckBox(Lang::tr("Dynamic")), "CheckSrvDynamic");
    CheckSrvDynamic->setToolTip(Lang::tr(kDynamicTip));
    CommandStopSrv = named(new QPushButton(Lang::tr("&Jump")), "CommandStopSrv");
    CommandStopSrv->setToolTip(Lang::tr("Jump to target position immediately, override dynamic parameters"));
    layout->addWidget(liveFrame(Lang::tr("Servo Position"), "FrameSrvLive", Lang::tr("Position"),
                                TextPosition, SliderServo, CommandSrvLevel, CheckSrvDynamic, CommandStopSrv),
                      0, 0);

    auto* params = named(new QGroupBox(Lang::tr("Servo Parameters")), "FrameSrvParams");
    auto* grid = new QGridLayout(params);
    TextSrvInitPos = fieldBox(PinField::TextSrvInitPos, "TextSrvInitPos");
    TextMidpoint = fieldBox(PinField::TextMidpoint, "TextMidpoint");
    TextSrvAntiMass = fieldBox(PinField::TextSrvAntiMass, "TextSrvAntiMass");
    TextSrvFriction = fieldBox(PinField::TextSrvFriction, "TextSrvFriction");
    TextSrvMaxSpd = fieldBox(PinField::TextSrvMaxSpd, "TextSrvMaxSpd");
    TextSrvMaxAccel = fieldBox(PinField::TextSrvMaxAccel, "TextSrvMaxAccel");
    TextBounceDown = fieldBox(PinField::TextBounceDown, "TextBounceDown");
    TextBounceDownFactor = fieldBox(PinField::TextBounceDownFactor, "TextBounceDownFactor");
    TextBounceUp = fieldBox(PinField::TextBounceUp, "TextBounceUp");
    TextBounceUpFactor = fieldBox(PinField::TextBounceUpFactor, "TextBounceUpFactor");
    addField(grid, 0, 0, Lang::tr("Initial Position"), TextSrvInitPos);
    addField(grid, 0, 1, Lang::tr("Midpoint"), TextMidpoint);
    addField(grid, 1, 0, Lang::tr("1/Mass"), TextSrvAntiMass);
    addField(grid, 1, 1, Lang::tr("Damping"), TextSrvFriction);
    addField(grid, 2, 0, Lang::tr("MaxSpd"), TextSrvMaxSpd);
    addField(grid, 2, 1, Lang::tr("MaxAcc"), TextSrvMaxAccel);
    addField(grid, 3, 0, Lang::tr("BounceDown"), TextBounceDown);
    addField(grid, 3, 1, Lang::tr("BounceDownFactor"), TextBounceDownFactor);
    addField(grid, 4, 0, Lang::tr("BounceUp"), TextBounceUp);
    addField(grid, 4, 1, Lang::tr("BounceUpFactor"), TextBounceUpFactor);
    grid->setColumnMinimumWidth(2, 16);
    grid->setColumnStretch(5, 1);
    layout->addWidget(params, 0, 1, 2, 1);

    auto* side = new QVBoxLayout;
    auto* rangeFrame = named(new QGroupBox(Lang::tr("Range")), "FrameServoRange");
    auto* ranges = new QHBoxLayout(rangeFrame);
    auto* rangeGroup = new QButtonGroup(this);
    for (int i = 0; i < 5; ++i) {
        OptionServoRange[i] =
            named(new QRadioButton(QString::number(i)), QString("OptionServoRange_%1").arg(i));
        OptionServoRange[i]->setAccessibleName(Lang::tr("Range %1").arg(i));
        rangeGroup->addButton(OptionServoRange[i], i);
        ranges->addWidget(OptionServoRange[i]);
    }
    connect(rangeGroup, &QButtonGroup::idClicked, this, [this](int id) {
        servoFlagsChanged(Lang::tr("choosing %1").arg(controlName(OptionServoRange[id])));
    });
    side->addWidget(rangeFrame);

    auto* flags = named(new QGroupBox(Lang::tr("Servo State")), "FrameSrvFlags");
    auto* flagRow = new QHBoxLayout(flags);
    ChkSrvAutoSuspend = named(new QCheckBox(Lang::tr("Auto Suspend")), "ChkSrvAutoSuspend");
    ChkSrvSuspended = named(new QCheckBox(Lang::tr("Suspended")), "ChkSrvSuspended");
    ChkSrvSuspended->setToolTip(
        Lang::tr("If checked, the servo is not activated until the first position is sent"));
    ChkSrvInitialized = named(new QCheckBox(Lang::tr("Servo Initialised")), "ChkSrvInitialized");
    for (QCheckBox* box : {ChkSrvAutoSuspend, ChkSrvSuspended, ChkSrvInitialized}) {
        flagRow->addWidget(box);
        connect(box, &QCheckBox::clicked, this, [this, box](bool checked) {
            servoFlagsChanged(
                (checked ? Lang::tr("checking %1") : Lang::tr("unchecking %1")).arg(controlName(box)));
        });
    }
    side->addWidget(flags);
    side->addStretch();
    layout->addLayout(side, 1, 0);

    LabelSrvHWCWarn = warningLabel("LabelSrvHWCWarn");
    layout->addWidget(LabelSrvHWCWarn, 2, 0, 1, 2);
    layout->setRowStretch(3, 1);
    layout->setColumnStretch(0, 1);

    followEachOther(TextPosition, PinField::TextPosition, SliderServo);
    connect(SliderServo, &QSlider::valueChanged, this, &PinConfigPage::SliderServo_Change);
    connect(CommandSrvLevel, &QPushButton::clicked, this, &PinConfigPage::CommandSrvLevel_Click);
    connect(CommandStopSrv, &QPushButton::clicked, this, &PinConfigPage::CommandStopSrv_Click);
    return page;
}

QWidget* PinConfigPage::buildPwmPage()
{
    auto* page = named(new QWidget, "PagePCFGPWM");
    auto* layout = new QGridLayout(page);

    CheckPWMInverted = invertedBox("CheckPWMInverted", ModePage::Pwm);

    TextPWMLevel = named(new QLineEdit("0"), "TextPWMLevel");
    TextPWMLevel->setFixedWidth(48);
    TextPWMLevel->setAlignment(Qt::AlignRight);
    SliderPWM = named(new QSlider(Qt::Horizontal), "SliderPWM");
    sliderFor(SliderPWM, PinField::TextPWMLevel);
    SliderPWM->setTracking(false);
    CommandPWMLevel = named(new QPushButton(Lang::tr("Set Level")), "CommandPWMLevel");
    CheckPWMSlow = named(new QCheckBox(Lang::tr("Slow")), "CheckPWMSlow");
    CheckPWMSlow->setToolTip(Lang::tr(kDynamicTip));
    CommandPWMJump = named(new QPushButton(Lang::tr("J&ump")), "CommandPWMJump");
    CommandPWMJump->setToolTip(Lang::tr("Jump to the level immediately, without the slow change"));
    auto* left = new QVBoxLayout;
    left->addWidget(CheckPWMInverted);
    left->addWidget(liveFrame(Lang::tr("PWM Level"), "FramePWMLive", Lang::tr("Level"), TextPWMLevel,
                              SliderPWM, CommandPWMLevel, CheckPWMSlow, CommandPWMJump));

    auto* modes = new QHBoxLayout;
    auto* driveFrame = named(new QGroupBox(Lang::tr("Drive Mode")), "FramePWMDriveMode");
    auto* accelFrame = named(new QGroupBox(Lang::tr("Acceleration Mode")), "FramePWMAccelMode");
    auto* driveGroup = new QButtonGroup(this);
    auto* accelGroup = new QButtonGroup(this);
    auto* driveLayout = new QVBoxLayout(driveFrame);
    auto* accelLayout = new QVBoxLayout(accelFrame);
    const char* modeCaptions[2] = {QT_TRANSLATE_NOOP("Lang", "Linear"),
                                   QT_TRANSLATE_NOOP("Lang", "Logaritmic")};
    for (int i = 0; i < 2; ++i) {
        OptionPWMDriveMode[i] =
            named(new QRadioButton(Lang::tr(modeCaptions[i])), QString("OptionPWMDriveMode_%1").arg(i));
        OptionPWMAccelMode[i] =
            named(new QRadioButton(Lang::tr(modeCaptions[i])), QString("OptionPWMAccelMode_%1").arg(i));
        OptionPWMDriveMode[i]->setAccessibleName(Lang::tr("%1 drive mode").arg(Lang::tr(modeCaptions[i])));
        OptionPWMAccelMode[i]->setAccessibleName(
            Lang::tr("%1 acceleration mode").arg(Lang::tr(modeCaptions[i])));
        driveGroup->addButton(OptionPWMDriveMode[i], i);
        accelGroup->addButton(OptionPWMAccelMode[i], i);
        driveLayout->addWidget(OptionPWMDriveMode[i]);
        accelLayout->addWidget(OptionPWMAccelMode[i]);
    }
    connect(driveGroup, &QButtonGroup::idClicked, this, [this](int id) {
        pwmModesChanged(Lang::tr("choosing %1").arg(controlName(OptionPWMDriveMode[id])));
    });
    connect(accelGroup, &QButtonGroup::idClicked, this, [this](int id) {
        pwmModesChanged(Lang::tr("choosing %1").arg(controlName(OptionPWMAccelMode[id])));
    });
    modes->addWidget(driveFrame);
    modes->addWidget(accelFrame);
    modes->addStretch();
    left->addLayout(modes);
    left->addStretch();
    layout->addLayout(left, 0, 0);

    auto* params = named(new QGroupBox(Lang::tr("PWM Parameters")), "FramePWMParams");
    auto* grid = new QGridLayout(params);
    TextPWMInitLevel = fieldBox(PinField::TextPWMInitLevel, "TextPWMInitLevel");
    TextPWMAccel = fieldBox(PinField::TextPWMAccel, "TextPWMAccel");
    TextPWMOffLevel = fieldBox(PinField::TextPWMOffLevel, "TextPWMOffLevel");
    TextPWMOnLevel = fieldBox(PinField::TextPWMOnLevel, "TextPWMOnLevel");
    addField(grid, 0, 0, Lang::tr("Initial Level"), TextPWMInitLevel);
    addField(grid, 1, 0, Lang::tr("Acceleration"), TextPWMAccel);
    addField(grid, 2, 0, Lang::tr("Off - Level"), TextPWMOffLevel);
    addField(grid, 3, 0, Lang::tr("On-Level"), TextPWMOnLevel);
    grid->setRowStretch(4, 1);
    layout->addWidget(params, 0, 1);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(1, 1);

    followEachOther(TextPWMLevel, PinField::TextPWMLevel, SliderPWM);
    connect(SliderPWM, &QSlider::valueChanged, this, &PinConfigPage::SliderPWM_Change);
    connect(CommandPWMLevel, &QPushButton::clicked, this, &PinConfigPage::CommandPWMLevel_Click);
    connect(CommandPWMJump, &QPushButton::clicked, this, &PinConfigPage::CommandPWMJump_Click);
    return page;
}

QWidget* PinConfigPage::buildInputPage()
{
    auto* page = named(new QWidget, "PagePCFGInput");
    auto* layout = new QVBoxLayout(page);
    CheckInputInvert = invertedBox("CheckInputInvert", ModePage::Input);
    layout->addWidget(CheckInputInvert);

    auto* frame = named(new QGroupBox(Lang::tr("Debounce")), "FrameInputDelay");
    auto* grid = new QGridLayout(frame);
    TextInputDelay[0] = fieldBox(PinField::TextInputDelay0, "TextInputDelay_0");
    TextInputDelay[1] = fieldBox(PinField::TextInputDelay1, "TextInputDelay_1");
    addField(grid, 0, 0, Lang::tr("ON-delay (debounce)"), TextInputDelay[0]);
    addField(grid, 1, 0, Lang::tr("OFF-delay (debounce)"), TextInputDelay[1]);
    auto* row = new QHBoxLayout;
    row->addWidget(frame);
    row->addStretch();
    layout->addLayout(row);

    LabelInpHWCWarn = warningLabel("LabelInpHWCWarn");
    layout->addWidget(LabelInpHWCWarn);
    layout->addStretch();
    return page;
}

PinRecord& PinConfigPage::pin() { return session.config.pin(session.config.CurrentPin); }

void PinConfigPage::refresh()
{
    commitPending(); // what was typed stays; the model is shown after it is taken
    const auto blocked = blockAll();
    const int base = session.config.NumberingBase;
    UpDownPCFGPin->setRange(base, base + kPinCount - 1);
    UpDownPCFGPin->setValue(session.config.CurrentPin + base);
    TextPCFGPin->setText(QString::number(session.config.CurrentPin + base));

    const PinConfigView v = ShowPinConfig(session.config, session.general);
    auto setNumber = [](QLineEdit* box, int value) { box->setText(QString::number(value)); };
    if (v.SSTabPCFG != ModePage::Unknown) {
        SSTabPCFG->setCurrentIndex(static_cast<int>(v.SSTabPCFG));
        switch (v.SSTabPCFG) {
        case ModePage::Servo:
            setNumber(TextPosition, v.TextPosition);
            SliderServo->setValue(v.TextPosition);
            setNumber(TextSrvInitPos, v.TextSrvInitPos);
            OptionServoRange[v.OptionServoRange]->setChecked(true);
            ChkSrvAutoSuspend->setChecked(v.ChkSrvAutoSuspend);
            ChkSrvSuspended->setChecked(v.ChkSrvSuspended);
            ChkSrvInitialized->setChecked(v.ChkSrvInitialized);
            setNumber(TextMidpoint, v.TextMidpoint);
            setNumber(TextSrvAntiMass, v.TextSrvAntiMass);
            setNumber(TextSrvFriction, v.TextSrvFriction);
            setNumber(TextSrvMaxSpd, v.TextSrvMaxSpd);
            setNumber(TextSrvMaxAccel, v.TextSrvMaxAccel);
            setNumber(TextBounceDown, v.TextBounceDown);
            setNumber(TextBounceDownFactor, v.TextBounceDownFactor);
            setNumber(TextBounceUp, v.TextBounceUp);
            setNumber(TextBounceUpFactor, v.TextBounceUpFactor);
            break;
        case ModePage::Pwm:
            CheckPWMInverted->setChecked(v.CheckPWMInverted);
            setNumber(TextPWMLevel, v.TextPWMLevel);
            SliderPWM->setValue(v.TextPWMLevel);
            setNumber(TextPWMInitLevel, v.TextPWMInitLevel);
            OptionPWMDriveMode[v.OptionPWMDriveMode]->setChecked(true);
            OptionPWMAccelMode[v.OptionPWMAccelMode]->setChecked(true);
            setNumber(TextPWMAccel, v.TextPWMAccel);
            setNumber(TextPWMOffLevel, v.TextPWMOffLevel);
            setNumber(TextPWMOnLevel, v.TextPWMOnLevel);
            break;
        case ModePage::Input:
            CheckInputInvert->setChecked(v.CheckInputInvert);
            setNumber(TextInputDelay[0], v.TextInputDelay[0]);
            setNumber(TextInputDelay[1], v.TextInputDelay[1]);
            break;
        default:
            break;
        }
    }
    LabelSrvHWCWarn->setVisible(v.LabelSrvHWCWarn);
    LabelInpHWCWarn->setVisible(v.LabelInpHWCWarn);
    for (const auto& [field, box] : fields)
        shown[box] = box->text();
    // An unknown mode is told once for the pin shown, not on every refresh (a tab change,
    // a job's end); again when another pin or mode is shown or the pin is read anew.
    const std::pair<int, int> shownPin{session.config.CurrentPin, pin().ConfigMode};
    if (v.message.empty())
        toldUnknown.reset();
    else if (toldUnknown != shownPin) {
        toldUnknown = shownPin;
        session.dialogs().message(v.message, Icon::None);
    }
}

void PinConfigPage::showEvent(QShowEvent* event)
{
    // Other pages and jobs change the current pin and its record while this page is hidden.
    refresh();
    QWidget::showEvent(event);
}

std::vector<std::unique_ptr<QSignalBlocker>> PinConfigPage::blockAll()
{
    std::vector<std::unique_ptr<QSignalBlocker>> blocked;
    for (QObject* o : findChildren<QObject*>())
        if (!qobject_cast<QTabBar*>(o) &&
            !qobject_cast<QScrollBar*>(o)) // a tab shows its page, a scroll bar its view
            blocked.push_back(std::make_unique<QSignalBlocker>(o));
    return blocked;
}

void PinConfigPage::commitPending()
{
    for (const auto& [field, box] : fields)
        if (box->isModified() || (shown.count(box) && box->text() != shown[box]))
            commitField(field);
}

void PinConfigPage::commitField(PinField field)
{
    QLineEdit* box = fields.at(field);
    const std::string typed = box->text().toLatin1().toStdString();
    box->setModified(false);
    const QSignalBlocker block(box);
    guard(Lang::tr("typing in %1").arg(controlName(box)).toStdString(),
          [&] { box->setText(latin1(takePinField(pin(), field, typed))); });
    shown[box] = box->text();
}

int PinConfigPage::liveValue(PinField field)
{
    QLineEdit* box = field == PinField::TextPosition ? TextPosition : TextPWMLevel;
    const std::string typed = box->text().toLatin1().toStdString();
    const ClampedField clamped = clampPinField(field, typed);
    if (clamped.text != typed)
        box->setText(latin1(clamped.text));
    return clamped.value;
}

void PinConfigPage::servoFlagsChanged(const QString& name)
{
    int range = 0;
    for (int i = 0; i < 5; ++i)
        if (OptionServoRange[i]->isChecked())
            range = i;
    guard(name.toStdString(), [&] {
        setServoFlags(pin(), range, ChkSrvAutoSuspend->isChecked(), ChkSrvSuspended->isChecked(),
                      ChkSrvInitialized->isChecked());
    });
}

void PinConfigPage::pwmModesChanged(const QString& name)
{
    guard(name.toStdString(), [this] {
        setPwmModes(pin(), OptionPWMDriveMode[1]->isChecked() ? 1 : 0,
                    OptionPWMAccelMode[1]->isChecked() ? 1 : 0);
    });
}

void PinConfigPage::TextPCFGPin_Click()
{
    commitPending(); // entries typed for the pin shown so far stay with it
    guard([this] { selectPin(session.config, TextPCFGPin->text().toLatin1().toStdString()); });
    refresh();
    if (onPinChosen)
        onPinChosen();
}

void PinConfigPage::SSTabPCFG_Click(int page)
{
    const auto shownPage = static_cast<int>(pageOfMode(pin().ConfigMode));
    if (page < 0 || page == shownPage)
        return;
    // The page chosen by hand gives the pin its mode (choosePage); Cancel of the question
    // goes back to the pin's own page.
    if (choosingClearsParameters(pin())) {
        const std::string question = Lang::tr("Pin %1 becomes %2: its %3 parameters are replaced by cleared "
                                              "ones.\r\nChange the pin's mode?")
                                         .arg(session.config.CurrentPin + session.config.NumberingBase)
                                         .arg(SSTabPCFG->tabText(page), SSTabPCFG->tabText(shownPage))
                                         .toLatin1()
                                         .toStdString();
        if (session.dialogs().ask(question, Buttons::OkCancel, Icon::Question) != Answer::Ok) {
            const QSignalBlocker block(SSTabPCFG);
            SSTabPCFG->setCurrentIndex(shownPage);
            return;
        }
    }
    guard(Lang::tr("choosing %1").arg(SSTabPCFG->tabText(page).remove(QChar('&'))).toStdString(),
          [&] { choosePage(pin(), static_cast<ModePage>(page)); });
    refresh();
}

void PinConfigPage::CommandPCFGGetParam_Click(int index)
{
    commitPending();
    guard([&] { ReadPinConfig(session, index, session.config.CurrentPin); });
    toldUnknown.reset();
    refresh();
}

void PinConfigPage::CommandPCFGSetParam_Click(int index)
{
    const auto page = static_cast<ModePage>(SSTabPCFG->currentIndex());
    std::map<PinField, std::string> boxes;
    for (PinField field : pinEditOrder(page))
        boxes[field] = fields.at(field)->text().toLatin1().toStdString();
    guard([&] {
        if (CommitPinEdits(pin(), page, boxes))
            for (const auto& [field, text] : boxes) {
                fields.at(field)->setText(latin1(text));
                shown[fields.at(field)] = latin1(text);
            }
        SendPinConfig(session, index, session.config.CurrentPin);
    });
    refresh(); // a servo's P2 has lost its status bits
}

void PinConfigPage::CommandSrvLevel_Click()
{
    const int position = liveValue(PinField::TextPosition);
    guard([&] { sendServoLevel(session, position, CheckSrvDynamic->isChecked()); });
    const QSignalBlocker block(SliderServo);
    SliderServo->setValue(position);
}

void PinConfigPage::CommandStopSrv_Click()
{
    guard([this] { sendServoJump(session, liveValue(PinField::TextPosition)); });
}

void PinConfigPage::CommandPWMLevel_Click()
{
    const int level = liveValue(PinField::TextPWMLevel);
    guard([&] { sendPwmLevel(session, level, CheckPWMSlow->isChecked()); });
    const QSignalBlocker block(SliderPWM);
    SliderPWM->setValue(level);
}

void PinConfigPage::CommandPWMJump_Click()
{
    guard([this] { sendPwmJump(session, liveValue(PinField::TextPWMLevel)); });
}

void PinConfigPage::SliderServo_Change(int value)
{
    TextPosition->setText(QString::number(value));
    guard([&] { sendServoLevel(session, value, CheckSrvDynamic->isChecked()); });
}

void PinConfigPage::SliderPWM_Change(int value)
{
    TextPWMLevel->setText(QString::number(value));
    guard([&] { sendPwmLevel(session, value, CheckPWMSlow->isChecked()); });
}

} // namespace kestrel
