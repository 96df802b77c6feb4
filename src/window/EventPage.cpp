#include "window/EventPage.h"
#include "forms/EventControlForm.h"
#include "window/Language.h"

#include "base/Text.h"
#include "window/Widgets.h"

#include <algorithm>

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
// An entry box with its spinner, the spinner's range set.
NumberEntry* entry(const QString& name, int min, int max, QLineEdit*& box, QSpinBox*& spinner)
{
    auto* e = new NumberEntry("Text" + name, "UpDown" + name);
    box = e->text;
    spinner = e->upDown;
    spinner->setRange(min, max);
    return e;
}
} // namespace

EventPage::EventPage(Session& s, std::function<void(JobName job)> start, Guard* sharedGuard, QWidget* parent)
    : QWidget(parent), session(s), startJob(std::move(start)), ownGuard(sharedGuard ? nullptr : new Guard(s)),
      guard(sharedGuard ? *sharedGuard : *ownGuard), bindings(guard, [this] { refresh(); })
{
    setObjectName("PageEventControl");
    auto* layout = new QVBoxLayout(scrolledContent(this));

    // One pin's entries and the enable maps, in one table whose columns are the inputs.
    auto* frame = named(new QGroupBox(Lang::tr("Event Control")), "FrameEC");
    auto* frameLayout = new QVBoxLayout(frame);

    auto* pinRow = new QHBoxLayout;
    NumberEntry* pin = entry("ECpin", 0, kPinCount - 1, TextECpin, UpDownECpin);
    CommandECReadSingle = named(new QPushButton(Lang::tr("Rea&d")), "CommandECReadSingle");
    CommandECWriteSingle = named(new QPushButton(Lang::tr("Write")), "CommandECWriteSingle");
    CommandECcopy = named(new QPushButton(Lang::tr("Copy to &All")), "CommandECcopy");
    pinRow->addWidget(captionFor(Lang::tr("Pin"), TextECpin));
    UpDownECpin->setAccessibleName(Lang::tr("Pin"));
    pinRow->addWidget(pin);
    pinRow->addSpacing(16);
    pinRow->addWidget(CommandECReadSingle);
    pinRow->addWidget(CommandECWriteSingle);
    pinRow->addWidget(CommandECcopy);
    pinRow->addStretch();
    frameLayout->addLayout(pinRow);

    auto* table = new QGridLayout;
    table->setHorizontalSpacing(12);
    for (int i = 0; i < kEventSlots; ++i) {
        LabelECinput[i] =
            named(new QLabel(Lang::tr("Input %1").arg(i + 1)), QString("LabelECinput_%1").arg(i));
        table->addWidget(LabelECinput[i], 0, 1 + i);
    }
    table->addWidget(new QLabel(Lang::tr("ON:")), 1, 0);
    LabelEC = named(new QLabel(Lang::tr("OFF:")), "LabelEC");
    table->addWidget(LabelEC, 2, 0);
    for (int i = 0; i < kEventSlots; ++i) {
        table->addWidget(
            entry(QString("ECon_%1").arg(i), kEventActionMin, kEventActionMax, TextECon[i], UpDownECon[i]), 1,
            1 + i);
        table->addWidget(
            entry(QString("ECoff_%1").arg(i), kEventActionMin, kEventActionMax, TextECoff[i], UpDownECoff[i]),
            2, 1 + i);
        // Named after the row and the column's input: "Event-On input 2".
        for (QWidget* w : {static_cast<QWidget*>(TextECon[i]), static_cast<QWidget*>(UpDownECon[i])})
            w->setAccessibleName(Lang::tr("Event-On input %1").arg(i + 1));
        for (QWidget* w : {static_cast<QWidget*>(TextECoff[i]), static_cast<QWidget*>(UpDownECoff[i])})
            w->setAccessibleName(Lang::tr("Event-Off input %1").arg(i + 1));
    }
    table->setRowMinimumHeight(3, 10);
    table->addWidget(new QLabel(Lang::tr("InitialEvent_ON Enable")), 4, 0);
    table->addWidget(new QLabel(Lang::tr("Initial Event_OFF Enable")), 5, 0);
    for (int i = 0; i < 8; ++i) {
        CheckInitEE[i] = named(new QCheckBox, QString("CheckInitEE_%1").arg(i));
        CheckInitEE[i]->setAccessibleName(
            Lang::tr("%1 input %2")
                .arg(i < 4 ? Lang::tr("InitialEvent_ON Enable") : Lang::tr("Initial Event_OFF Enable"))
                .arg(i % 4 + 1));
        table->addWidget(CheckInitEE[i], 4 + i / 4, 1 + i % 4);
    }
    CommandECInitRead = named(new QPushButton(Lang::tr("Read Enable Map")), "CommandECInitRead");
    CommandECInitWrite = named(new QPushButton(Lang::tr("Write Ena&ble Map")), "CommandECInitWrite");
    table->addWidget(CommandECInitRead, 4, 5);
    table->addWidget(CommandECInitWrite, 5, 5);
    table->setColumnStretch(6, 1);
    frameLayout->addLayout(table);
    // Tab reads the table row by row: the ON entries, the OFF entries, then each enable row
    // with its button.
    QWidget* previous = CommandECcopy;
    const auto next = [&previous](QWidget* w) {
        QWidget::setTabOrder(previous, w);
        previous = w;
    };
    for (auto* row : {&TextECon, &TextECoff})
        for (QLineEdit* box : *row)
            next(box);
    for (int i = 0; i < 8; ++i) {
        next(CheckInitEE[i]);
        if (i % 4 == 3)
            next(i < 4 ? CommandECInitRead : CommandECInitWrite);
    }
    layout->addWidget(frame);

    // The event control of every pin, as jobs.
    auto* all = named(new QGroupBox(Lang::tr("All Pins")), "FrameECAll");
    auto* allRow = new QHBoxLayout(all);
    CommandECRead = named(new QPushButton(Lang::tr("Read All Events")), "CommandECRead");
    CommandECWrite = named(new QPushButton(Lang::tr("Write All Events")), "CommandECWrite");
    CommandECVerify = named(new QPushButton(Lang::tr("Verify Event Control")), "CommandECVerify");
    allRow->addWidget(CommandECRead);
    allRow->addWidget(CommandECWrite);
    allRow->addWidget(CommandECVerify);
    allRow->addStretch();
    layout->addWidget(all);
    layout->addStretch();

    bind();
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

void EventPage::bind()
{
    Bindings& b = bindings;
    EventControlPage& page = session.eventControl;
    const auto base = [this] { return session.config.NumberingBase; };
    // The page shows CurrentPin, which every page shares.
    b.display([this, base, &page] {
        page.TextECpin = std::to_string(std::clamp(session.config.CurrentPin, 0, kPinCount - 1) + base());
        ShowEventPin(session);
        UpDownECpin->setRange(base(), base() + kPinCount - 1);
    });
    numericInput(TextECpin, 3);
    b.entry(
        TextECpin, [&page] { return page.TextECpin; },
        [this, &page](const std::string& typed) {
            bindings.commitPending(); // entries typed for the pin shown so far stay with it
            page.TextECpin = typed;
            session.config.CurrentPin = shownEventPin(session);
            if (onPinChosen)
                onPinChosen();
        });
    b.spinner(UpDownECpin, TextECpin, [this, base] { return session.config.CurrentPin + base(); });
    for (int i = 0; i < kEventSlots; ++i) {
        for (EventSide side : {EventSide::On, EventSide::Off}) {
            QLineEdit* box = side == EventSide::On ? TextECon[i] : TextECoff[i];
            std::string& text = side == EventSide::On ? page.TextECon[i] : page.TextECoff[i];
            numericInput(box, 4);
            b.entry(
                box, [&text] { return text; },
                [this, &text, side, i](const std::string& typed) {
                    text = typed;
                    EditEventEntry(session, side, i);
                });
            b.spinner(side == EventSide::On ? UpDownECon[i] : UpDownECoff[i], box,
                      [&text] { return static_cast<int>(valInt(text)); });
        }
    }
    for (int i = 0; i < 8; ++i)
        b.check(CheckInitEE[i], session.general.CheckInitEE[i]);
}

void EventPage::refresh() { bindings.show(); }

void EventPage::commitPending() { bindings.commitPending(); }

void EventPage::showEvent(QShowEvent* event)
{
    // Jobs and other pages change what this page shows while it is hidden.
    refresh();
    QWidget::showEvent(event);
}

void EventPage::run(const std::function<void()>& handler)
{
    guard([&] {
        commitPending();
        handler();
    });
    refresh();
}

void EventPage::CommandECReadSingle_Click()
{
    run([this] { ReadSingleEvents(session); });
}

void EventPage::CommandECWriteSingle_Click()
{
    run([this] { WriteSingleEvents(session); });
}

void EventPage::CommandECcopy_Click()
{
    run([this] { CopyEventsToAll(session); });
}

void EventPage::CommandECInitRead_Click()
{
    run([this] { ReadEnableMaps(session); });
}

void EventPage::CommandECInitWrite_Click()
{
    run([this] { WriteEnableMaps(session); });
}

void EventPage::CommandECRead_Click()
{
    commitPending();
    if (startJob)
        startJob(Jobs::ECReadAll);
}

void EventPage::CommandECWrite_Click()
{
    commitPending();
    if (startJob)
        startJob(Jobs::ECWriteAll);
}

void EventPage::CommandECVerify_Click()
{
    commitPending();
    if (startJob)
        startJob(Jobs::ECVerify);
}

} // namespace kestrel
