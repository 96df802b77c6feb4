#include "shell/EventPage.h"

#include "link/Text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
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

std::string fromBox(const QLineEdit* box)
{
    return box->text().toLatin1().toStdString();
}

// An up-down control beside its text box: only the arrows show.
QSpinBox* upDown(const QString& name, int min, int max)
{
    auto* s = named(new QSpinBox, name);
    s->setFixedWidth(22);
    s->setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    s->setRange(min, max);
    return s;
}

QLineEdit* numberBox(const QString& name)
{
    auto* box = named(new QLineEdit("0"), name);
    box->setFixedWidth(44);
    box->setAlignment(Qt::AlignRight);
    return box;
}

// A text box with its spinner, side by side.
QHBoxLayout* boxWithSpinner(QLineEdit* box, QSpinBox* spinner)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(box);
    row->addWidget(spinner);
    return row;
}
} // namespace

EventPage::EventPage(Session& s, std::function<void(const char* job)> start, QWidget* parent)
    : QWidget(parent), session(s), startJob(std::move(start))
{
    setObjectName("PageEventControl");
    auto* layout = new QVBoxLayout(this);

    // One pin's entries and the enable maps, in one table whose columns are the inputs.
    auto* frame = named(new QGroupBox("Event Control"), "FrameEC");
    auto* frameLayout = new QVBoxLayout(frame);

    auto* pinRow = new QHBoxLayout;
    TextECpin = numberBox("TextECpin");
    UpDownECpin = upDown("UpDownECpin", 0, kPinCount - 1);
    CommandECReadSingle = named(new QPushButton("Read"), "CommandECReadSingle");
    CommandECWriteSingle = named(new QPushButton("Write"), "CommandECWriteSingle");
    CommandECcopy = named(new QPushButton("Copy to All"), "CommandECcopy");
    pinRow->addWidget(new QLabel("Pin"));
    pinRow->addLayout(boxWithSpinner(TextECpin, UpDownECpin));
    pinRow->addSpacing(16);
    pinRow->addWidget(CommandECReadSingle);
    pinRow->addWidget(CommandECWriteSingle);
    pinRow->addWidget(CommandECcopy);
    pinRow->addStretch();
    frameLayout->addLayout(pinRow);

    auto* table = new QGridLayout;
    table->setHorizontalSpacing(12);
    for (int i = 0; i < kEventSlots; ++i) {
        LabelECinput[i] = named(new QLabel(QString("Input %1").arg(i + 1)), QString("LabelECinput_%1").arg(i));
        table->addWidget(LabelECinput[i], 0, 1 + i);
    }
    table->addWidget(new QLabel("ON:"), 1, 0);
    LabelEC = named(new QLabel("OFF:"), "LabelEC");
    table->addWidget(LabelEC, 2, 0);
    for (int i = 0; i < kEventSlots; ++i) {
        TextECon[i] = numberBox(QString("TextECon_%1").arg(i));
        UpDownECon[i] = upDown(QString("UpDownECon_%1").arg(i), kEventActionMin, kEventActionMax);
        table->addLayout(boxWithSpinner(TextECon[i], UpDownECon[i]), 1, 1 + i);
        TextECoff[i] = numberBox(QString("TextECoff_%1").arg(i));
        UpDownECoff[i] = upDown(QString("UpDownECoff_%1").arg(i), kEventActionMin, kEventActionMax);
        table->addLayout(boxWithSpinner(TextECoff[i], UpDownECoff[i]), 2, 1 + i);
    }
    table->setRowMinimumHeight(3, 10);
    table->addWidget(new QLabel("InitialEvent_ON Enable"), 4, 0);
    table->addWidget(new QLabel("Initial Event_OFF Enable"), 5, 0);
    for (int i = 0; i < 8; ++i) {
        CheckInitEE[i] = named(new QCheckBox, QString("CheckInitEE_%1").arg(i));
        table->addWidget(CheckInitEE[i], 4 + i / 4, 1 + i % 4);
        connect(CheckInitEE[i], &QCheckBox::clicked, this, [this, i] { CheckInitEE_Click(i); });
    }
    CommandECInitRead = named(new QPushButton("Read Enable Map"), "CommandECInitRead");
    CommandECInitWrite = named(new QPushButton("Write Enable Map"), "CommandECInitWrite");
    table->addWidget(CommandECInitRead, 4, 5);
    table->addWidget(CommandECInitWrite, 5, 5);
    table->setColumnStretch(6, 1);
    frameLayout->addLayout(table);
    layout->addWidget(frame);

    // The event control of every pin, as jobs.
    auto* all = named(new QGroupBox("All Pins"), "FrameECAll");
    auto* allRow = new QHBoxLayout(all);
    CommandECRead = named(new QPushButton("Read All Events"), "CommandECRead");
    CommandECWrite = named(new QPushButton("Write All Events"), "CommandECWrite");
    CommandECVerify = named(new QPushButton("Verify Event Control"), "CommandECVerify");
    allRow->addWidget(CommandECRead);
    allRow->addWidget(CommandECWrite);
    allRow->addWidget(CommandECVerify);
    allRow->addStretch();
    layout->addWidget(all);
    layout->addStretch();

    connect(TextECpin, &QLineEdit::editingFinished, this, &EventPage::TextECpin_Click);
    connect(UpDownECpin, &QSpinBox::valueChanged, this, &EventPage::UpDownECpin_Change);
    for (int i = 0; i < kEventSlots; ++i) {
        connect(TextECon[i], &QLineEdit::editingFinished, this, [this, i] { TextECon_LostFocus(i); });
        connect(TextECoff[i], &QLineEdit::editingFinished, this, [this, i] { TextECoff_LostFocus(i); });
        connect(UpDownECon[i], &QSpinBox::valueChanged, this, [this, i](int v) {
            if (updating)
                return;
            TextECon[i]->setText(QString::number(v));
            TextECon_LostFocus(i);
        });
        connect(UpDownECoff[i], &QSpinBox::valueChanged, this, [this, i](int v) {
            if (updating)
                return;
            TextECoff[i]->setText(QString::number(v));
            TextECoff_LostFocus(i);
        });
    }
    connect(CommandECReadSingle, &QPushButton::clicked, this, &EventPage::CommandECReadSingle_Click);
    connect(CommandECWriteSingle, &QPushButton::clicked, this, &EventPage::CommandECWriteSingle_Click);
    connect(CommandECcopy, &QPushButton::clicked, this, &EventPage::CommandECcopy_Click);
    connect(CommandECInitRead, &QPushButton::clicked, this, &EventPage::CommandECInitRead_Click);
    connect(CommandECInitWrite, &QPushButton::clicked, this, &EventPage::CommandECInitWrite_Click);
    connect(CommandECRead, &QPushButton::clicked, this, &EventPage::CommandECRead_Click);
    connect(CommandECWrite, &QPushButton::clicked, this, &EventPage::CommandECWrite_Click);
    connect(CommandECVerify, &QPushButton::clicked, this, &EventPage::CommandECVerify_Click);

    refresh();
}

void EventPage::refresh()
{
    ShowEventPin(session);
    updating = true;
    const int base = session.config.NumberingBase;
    UpDownECpin->setRange(base, base + kPinCount - 1);
    UpDownECpin->setValue(base + shownEventPin(session));
    TextECpin->setText(latin1(session.eventControl.TextECpin));
    updating = false;
    showEntries();
    showEnables();
}

void EventPage::showEvent(QShowEvent* event)
{
    // Jobs and other pages change what this page shows while it is hidden.
    refresh();
    QWidget::showEvent(event);
}

void EventPage::showEntries()
{
    updating = true;
    const auto& page = session.eventControl;
    for (int i = 0; i < kEventSlots; ++i) {
        TextECon[i]->setText(latin1(page.TextECon[i]));
        TextECoff[i]->setText(latin1(page.TextECoff[i]));
        UpDownECon[i]->setValue(static_cast<int>(valInt(page.TextECon[i])));
        UpDownECoff[i]->setValue(static_cast<int>(valInt(page.TextECoff[i])));
    }
    updating = false;
}

void EventPage::showEnables()
{
    updating = true;
    for (int i = 0; i < 8; ++i)
        CheckInitEE[i]->setChecked(session.general.CheckInitEE[i] == 1);
    updating = false;
}

void EventPage::TextECpin_Click()
{
    if (updating)
        return;
    session.eventControl.TextECpin = fromBox(TextECpin);
    refresh();
}

void EventPage::UpDownECpin_Change(int value)
{
    if (updating)
        return;
    session.eventControl.TextECpin = std::to_string(value);
    refresh();
}

void EventPage::editEntry(EventSide side, int slot)
{
    auto& text = side == EventSide::On ? session.eventControl.TextECon[slot] : session.eventControl.TextECoff[slot];
    QLineEdit* box = side == EventSide::On ? TextECon[slot] : TextECoff[slot];
    QSpinBox* spinner = side == EventSide::On ? UpDownECon[slot] : UpDownECoff[slot];
    text = fromBox(box);
    EditEventEntry(session, side, slot);
    updating = true;
    box->setText(latin1(text));
    spinner->setValue(static_cast<int>(valInt(text)));
    updating = false;
}

void EventPage::TextECon_LostFocus(int slot)
{
    if (!updating)
        editEntry(EventSide::On, slot);
}

void EventPage::TextECoff_LostFocus(int slot)
{
    if (!updating)
        editEntry(EventSide::Off, slot);
}

void EventPage::commitEntries()
{
    for (int i = 0; i < kEventSlots; ++i) {
        editEntry(EventSide::On, i);
        editEntry(EventSide::Off, i);
    }
}

void EventPage::CheckInitEE_Click(int index)
{
    if (updating)
        return;
    session.general.CheckInitEE[index] = CheckInitEE[index]->isChecked() ? 1 : 0;
}

void EventPage::CommandECReadSingle_Click()
{
    ReadSingleEvents(session);
    refresh();
}

void EventPage::CommandECWriteSingle_Click()
{
    commitEntries();
    WriteSingleEvents(session);
}

void EventPage::CommandECcopy_Click()
{
    commitEntries();
    CopyEventsToAll(session);
}

void EventPage::CommandECInitRead_Click()
{
    ReadEnableMaps(session);
    showEnables();
}

void EventPage::CommandECInitWrite_Click()
{
    WriteEnableMaps(session);
}

void EventPage::CommandECRead_Click()
{
    if (startJob)
        startJob("ECReadAll");
}

void EventPage::CommandECWrite_Click()
{
    if (startJob)
        startJob("ECWriteAll");
}

void EventPage::CommandECVerify_Click()
{
    if (startJob)
        startJob("ECVerify");
}

} // namespace kestrel
