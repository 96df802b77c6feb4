#include "window/HelpToolDialogs.h"
#include "window/Language.h"

#include "window/Bindings.h"
#include "window/FieldHelp.h"
#include "window/Widgets.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

namespace kestrel {

namespace {
// A box for a number: digits only.
QLineEdit* numberBox(const QString& name, int digits)
{
    auto* box = named(new QLineEdit, name);
    box->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QString("[0-9]{0,%1}").arg(digits)), box));
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(60);
    return box;
}

QLineEdit* readOnlyBox(const QString& name)
{
    auto* box = named(new QLineEdit, name);
    box->setReadOnly(true);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(60);
    return box;
}

// The label of an input: its buddy, and the input's accessible name.
QLabel* labelFor(const QString& caption, const QString& name, QWidget* input)
{
    auto* label = named(new QLabel(caption), name);
    nameAfter(label, input);
    return label;
}

void setTextIfChanged(QLineEdit* box, const std::string& text)
{
    const QString shown = latin1(text);
    if (box->text() != shown)
        box->setText(shown);
}
} // namespace

void HelpToolDialog::addOkCancel(QVBoxLayout* layout)
{
    auto* box = new QDialogButtonBox;
    OKButton = named(new QPushButton(Lang::tr("&OK")), "OKButton");
    CancelButton = named(new QPushButton(Lang::tr("&Cancel")), "CancelButton");
    box->addButton(OKButton, QDialogButtonBox::AcceptRole);
    box->addButton(CancelButton, QDialogButtonBox::RejectRole);
    OKButton->setDefault(true);
    CancelButton->setAutoDefault(false);
    layout->addWidget(box);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

// ---- time tool

TimeToolDialog::TimeToolDialog(QWidget* parent)
    : HelpToolDialog("dlgCT", Lang::tr("KestrelConfig CalcTime"), parent)
{
    auto* base = new NumberEntry("TextCTBase", "UpDownCTBase", 2);
    TextCTBase = base->text;
    TextCTBase->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,2}"), TextCTBase));
    UpDownCTBase = base->upDown;
    UpDownCTBase->setRange(0, 3);
    SliderCTTime = named(new QSlider(Qt::Horizontal), "SliderCTTime");
    SliderCTTime->setRange(0, TimeTool::kSliderMaximum);
    SliderCTTime->setPageStep(8);
    SliderCTTime->setTickInterval(8);
    SliderCTTime->setTickPosition(QSlider::TicksBelow);
    SliderCTTime->setMinimumWidth(260);
    LabelCTBase = labelFor(Lang::tr("&Base"), "LabelCTBase", TextCTBase);
    UpDownCTBase->setAccessibleName(Lang::tr("Base"));
    LabelCTTime = labelFor(Lang::tr("&Time ="), "LabelCTTime", SliderCTTime);
    LabelCTMaxTime = named(new QLabel(Lang::tr("Max Time =")), "LabelCTMaxTime");
    LabelCTMaxTimeValue = named(new QLabel("00:00.00"), "LabelCTMaxTimeValue");
    LabelCTTimeValue = named(new QLabel("00:00.00"), "LabelCTTimeValue");

    auto* layout = new QVBoxLayout(this);
    auto* baseRow = new QHBoxLayout;
    baseRow->setSpacing(0);
    baseRow->addWidget(LabelCTBase);
    baseRow->addSpacing(8);
    baseRow->addWidget(base);
    baseRow->addStretch();
    layout->addLayout(baseRow);
    layout->addWidget(SliderCTTime);
    auto* values = new QGridLayout;
    values->addWidget(LabelCTMaxTime, 0, 0);
    values->addWidget(LabelCTMaxTimeValue, 0, 1);
    values->addWidget(LabelCTTime, 1, 0);
    values->addWidget(LabelCTTimeValue, 1, 1);
    values->setColumnStretch(1, 1);
    layout->addLayout(values);
    addOkCancel(layout);

    // The durations follow the box as it is typed in, clicked and left (and on Return).
    connect(TextCTBase, &QLineEdit::editingFinished, this, &TimeToolDialog::TextCTBase_Change);
    connect(TextCTBase, &QLineEdit::textEdited, this, &TimeToolDialog::TextCTBase_Change);
    TextCTBase->installEventFilter(this);
    connect(UpDownCTBase, &QSpinBox::valueChanged, this, &TimeToolDialog::UpDownCTBase_Change);
    connect(SliderCTTime, &QSlider::valueChanged, this, &TimeToolDialog::SliderCTTime_Change);
    connect(OKButton, &QPushButton::clicked, this, [this] {
        command([this] {
            tool.setBaseText(fromLatin1(TextCTBase->text())); // typed but not yet left
            accept();
        });
    });
}

bool TimeToolDialog::run(StepRecord& step)
{
    tool.open(step);
    TextCTBase->setText(QString::number(tool.base()));
    showTool();
    if (!runModal()) {
        tool.cancel();
        return false;
    }
    tool.apply(step);
    return true;
}

void TimeToolDialog::TextCTBase_Change()
{
    command([this] {
        const std::string shown = tool.setBaseText(fromLatin1(TextCTBase->text()));
        setTextIfChanged(TextCTBase, shown);
        showTool();
    });
}

bool TimeToolDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == TextCTBase &&
        (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::FocusOut))
        TextCTBase_Change();
    return ToolDialog::eventFilter(watched, event);
}

void TimeToolDialog::UpDownCTBase_Change(int base)
{
    command([this, base] {
        tool.setBase(base);
        TextCTBase->setText(QString::number(tool.base()));
        showTool();
    });
}

void TimeToolDialog::SliderCTTime_Change(int time)
{
    command([this, time] {
        tool.setTime(time);
        LabelCTTimeValue->setText(latin1(tool.timeText()));
    });
}

void TimeToolDialog::showTool() const
{
    {
        const QSignalBlocker a(UpDownCTBase), b(SliderCTTime);
        UpDownCTBase->setValue(tool.base());
        SliderCTTime->setValue(tool.time());
    }
    LabelCTMaxTimeValue->setText(latin1(tool.maxTimeText()));
    LabelCTTimeValue->setText(latin1(tool.timeText()));
}

// ---- pattern tool

PatternToolDialog::PatternToolDialog(QWidget* parent)
    : HelpToolDialog("dlgKestrelCalcPattern", Lang::tr("LynxConfig Calculate Pattern"), parent)
{
    auto* boxes = new QGridLayout;
    for (int i = 0; i < 7; ++i) {
        chkUitgang[i] = named(new QCheckBox(Lang::tr("Output +&%1").arg(i)), QString("chkUitgang_%1").arg(i));
        boxes->addWidget(chkUitgang[i], i, 0);
        connect(chkUitgang[i], &QCheckBox::clicked, this, [this, i](bool checked) {
            command([&] {
                tool.setOutput(i, checked);
                showTool();
            });
        });
    }
    chkAllDark = named(new QCheckBox(Lang::tr("&All Dark")), "chkAllDark");
    chkNoDark = named(new QCheckBox(Lang::tr("&No Dark-phase")), "chkNoDark");
    boxes->addWidget(chkAllDark, 0, 1);
    boxes->addWidget(chkNoDark, 1, 1);
    boxes->setColumnMinimumWidth(0, 110);
    boxes->setRowStretch(7, 1);
    connect(chkAllDark, &QCheckBox::clicked, this, [this](bool checked) {
        command([&] {
            tool.setAllDark(checked);
            showTool();
        });
    });
    connect(chkNoDark, &QCheckBox::clicked, this, [this](bool checked) {
        command([&] {
            tool.setNoDark(checked);
            showTool();
        });
    });

    txtParameter = numberBox("txtParameter", 3);
    txtOriginal = readOnlyBox("txtOriginal");
    lblParam = labelFor(Lang::tr("&Parameter"), "lblParam", txtParameter);
    lblOriginal = labelFor(Lang::tr("Original"), "lblOriginal", txtOriginal);
    connect(txtParameter, &QLineEdit::textEdited, this,
            [this](const QString& typed) { command([&] { tool.setParameterText(fromLatin1(typed)); }); });

    auto* values = new QFormLayout;
    values->addRow(lblParam, txtParameter);
    values->addRow(lblOriginal, txtOriginal);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(boxes);
    layout->addLayout(values);
    addOkCancel(layout);

    connect(OKButton, &QPushButton::clicked, this, [this] {
        command([this] {
            tool.setParameterText(fromLatin1(txtParameter->text()));
            accept();
        });
    });
}

bool PatternToolDialog::run(StepRecord& step)
{
    return runOnStep(tool, step, [this] { showTool(); });
}

void PatternToolDialog::showTool()
{
    // Bits 5 and 6 are outputs +5 and +6 where the instruction has them.
    const int outputs = tool.outputs();
    for (int i = 0; i < 7; ++i) {
        chkUitgang[i]->setVisible(i < outputs);
        chkUitgang[i]->setChecked(i < outputs && tool.output(i));
    }
    chkAllDark->setEnabled(outputs <= 5);
    chkAllDark->setChecked(tool.allDark());
    chkNoDark->setEnabled(outputs <= 6);
    chkNoDark->setChecked(tool.noDark());
    setTextIfChanged(txtParameter, tool.parameterText());
    setTextIfChanged(txtOriginal, tool.originalText());
}

// ---- event-pattern tool

EventPatternToolDialog::EventPatternToolDialog(QWidget* parent)
    : HelpToolDialog("dlgKestrelCalcEventPattern", Lang::tr("KestrelConfig CalcETImap"), parent)
{
    auto* inputs = new QGroupBox(Lang::tr("Event inputs"));
    auto* inputsLayout = new QVBoxLayout(inputs);
    for (int i = 0; i < 4; ++i) {
        chkEvent[i] = named(new QCheckBox(Lang::tr("Event Input &%1").arg(i)), QString("chkEvent_%1").arg(i));
        inputsLayout->addWidget(chkEvent[i]);
        connect(chkEvent[i], &QCheckBox::clicked, this, [this, i](bool checked) {
            command([&] {
                tool.setEvent(i, checked);
                showTool();
            });
        });
    }

    // The options in two columns, Off-Event and On-Event; each caption's mnemonic letter.
    auto* actions = new QGroupBox(Lang::tr("Action"));
    auto* actionsLayout = new QGridLayout(actions);
    options = new QButtonGroup(this);
    optNoEvent = named(new QRadioButton(Lang::tr("No &action")), "optNoEvent");
    options->addButton(optNoEvent);
    actionsLayout->addWidget(optNoEvent, 0, 0);
    connect(optNoEvent, &QRadioButton::clicked, this, [this] {
        command([this] {
            tool.setOption(EventPatternTool::kNoOption);
            showTool();
        });
    });
    const int mnemonic[6] = {0, 0, 1, 1, 2, 4};
    for (int k = 0; k < 6; ++k) {
        // A translation carries its own letter.
        const std::string& english = EventPatternTool::optionCaptions()[k];
        QString caption = translated("EventPatternTool", english);
        if (caption == latin1(english))
            caption.insert(mnemonic[k], '&');
        optEvent[k] = named(new QRadioButton(caption), QString("optEvent_%1").arg(k));
        options->addButton(optEvent[k]);
        actionsLayout->addWidget(optEvent[k], 1 + k % 3, k / 3);
        connect(optEvent[k], &QRadioButton::clicked, this, [this, k] {
            command([this, k] {
                tool.setOption(k);
                showTool();
            });
        });
    }

    txtParameter = readOnlyBox("txtParameter");
    txtOriginal = readOnlyBox("txtOriginal");
    lblParam = labelFor(Lang::tr("Parameter"), "lblParam", txtParameter);
    lblOriginal = labelFor(Lang::tr("Original"), "lblOriginal", txtOriginal);
    auto* values = new QFormLayout;
    values->addRow(lblParam, txtParameter);
    values->addRow(lblOriginal, txtOriginal);

    auto* top = new QHBoxLayout;
    top->addWidget(inputs);
    top->addWidget(actions);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(values);
    addOkCancel(layout);
    explainFields(this);

    connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
}

bool EventPatternToolDialog::run(StepRecord& step)
{
    return runOnStep(tool, step, [this] { showTool(); });
}

void EventPatternToolDialog::showTool()
{
    const EventPatternTool::Choice& choice = tool.choice();
    for (int i = 0; i < 4; ++i)
        chkEvent[i]->setChecked(choice.events[i]);
    (choice.option == EventPatternTool::kNoOption ? optNoEvent : optEvent[choice.option])->setChecked(true);
    txtParameter->setText(latin1(tool.parameterText()));
    txtOriginal->setText(latin1(tool.originalText()));
}

// ---- level tool

LevelToolDialog::LevelToolDialog(QWidget* parent)
    : HelpToolDialog("dlgKestrelCalcLevel", Lang::tr("LynxConfig Calculate Level"), parent)
{
    txtParameter = numberBox("txtParameter", 3);
    txtLevel = numberBox("txtLevel", 2);
    txtTimeIndex = numberBox("txtTimeIndex", 2);
    txtDelay = readOnlyBox("txtDelay");
    txtDelay->setFixedWidth(80);
    lblParameter = labelFor(Lang::tr("&Parameter"), "lblParameter", txtParameter);
    lblLevel = labelFor(Lang::tr("&Level"), "lblLevel", txtLevel);
    lblTimeIndex = labelFor(Lang::tr("&Time Index"), "lblTimeIndex", txtTimeIndex);
    lblDelay = labelFor(Lang::tr("&Delay"), "lblDelay", txtDelay);
    txtParameter->setToolTip(Lang::tr("0..127: 16 x level + time index"));

    auto* values = new QFormLayout;
    values->addRow(lblParameter, txtParameter);
    values->addRow(lblLevel, txtLevel);
    values->addRow(lblTimeIndex, txtTimeIndex);
    values->addRow(lblDelay, txtDelay);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(values);
    addOkCancel(layout);

    for (QLineEdit* box : {txtParameter, txtLevel, txtTimeIndex})
        connect(box, &QLineEdit::editingFinished, this, [this, box] { command([this, box] { take(box); }); });
    connect(OKButton, &QPushButton::clicked, this, [this] {
        command([this] {
            // A box typed but not yet left.
            if (txtParameter->text() != latin1(tool.parameterText()))
                take(txtParameter);
            if (txtLevel->text() != latin1(tool.levelText()))
                take(txtLevel);
            if (txtTimeIndex->text() != latin1(tool.timeIndexText()))
                take(txtTimeIndex);
            accept();
        });
    });
}

bool LevelToolDialog::run(int& parameter)
{
    tool.open(parameter);
    showTool();
    if (!runModal())
        return false;
    parameter = tool.parameter();
    return true;
}

void LevelToolDialog::take(QLineEdit* box)
{
    const std::string typed = fromLatin1(box->text());
    std::string shown;
    if (box == txtParameter)
        shown = tool.setParameterText(typed);
    else if (box == txtLevel)
        shown = tool.setLevelText(typed);
    else
        shown = tool.setTimeIndexText(typed);
    showTool();
    setTextIfChanged(box, shown);
}

void LevelToolDialog::showTool() const
{
    setTextIfChanged(txtParameter, tool.parameterText());
    setTextIfChanged(txtLevel, tool.levelText());
    setTextIfChanged(txtTimeIndex, tool.timeIndexText());
    txtDelay->setText(latin1(tool.delayText()));
}

} // namespace kestrel
