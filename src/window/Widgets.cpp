#include "window/Widgets.h"
#include "window/Language.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>

namespace kestrel {

QWidget* scrolledContent(QWidget* page)
{
    auto* outer = new QVBoxLayout(page);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea;
    scroll->setObjectName(page->objectName() + "Scroll");
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus); // Tab goes to the controls; the view follows the focus
    auto* content = new QWidget;
    content->setObjectName(page->objectName() + "Content");
    scroll->setWidget(content);
    outer->addWidget(scroll);
    return content;
}

Arrows::Arrows(QWidget* parent) : QSpinBox(parent)
{
    setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    setFocusPolicy(Qt::NoFocus);
    lineEdit()->hide(); // the number is the box's to show
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Arrows::sizeHint() const
{
    // The arrows as the style draws them in a spinner of its own size, and the frame.
    const QSize full = QSpinBox::sizeHint();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), full);
    const QRect up = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    const int frame = style()->pixelMetric(QStyle::PM_SpinBoxFrameWidth, &option, this);
    return {full.width() - up.left() + frame, full.height()};
}

NumberEntry::NumberEntry(const QString& textName, const QString& upDownName, int chars, QWidget* parent)
    : QWidget(parent), text(new QLineEdit("0")), upDown(new Arrows)
{
    text->setObjectName(textName);
    upDown->setObjectName(upDownName);
    text->setAlignment(Qt::AlignRight);
    // Wide enough for the widest number, as the style frames a line edit.
    QStyleOptionFrame option;
    option.initFrom(text);
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, text);
    const QMargins margins = text->textMargins() + text->contentsMargins();
    const QSize contents(text->fontMetrics().horizontalAdvance(QString(chars, '0')) + 2 * 2 + 2 +
                             margins.left() + margins.right(),
                         text->sizeHint().height());
    text->setFixedWidth(style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, text).width());
    text->installEventFilter(this);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(text);
    row->addWidget(upDown);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

bool NumberEntry::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == text && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            bool typed = false; // the step goes from the number typed, if any
            const int value = text->text().toInt(&typed);
            if (typed) {
                const QSignalBlocker block(upDown);
                upDown->setValue(value);
            }
            key == Qt::Key_Up ? upDown->stepUp() : upDown->stepDown();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

QLabel* workingNotice()
{
    auto* label = named(new QLabel(Lang::tr("Working ... Please WAIT")), "LabelAction");
    label->setStyleSheet("color: #b00000; font-weight: bold;");
    QSizePolicy keepRoom = label->sizePolicy();
    keepRoom.setRetainSizeWhenHidden(true);
    label->setSizePolicy(keepRoom);
    label->hide();
    return label;
}

void addStatusFields(QStatusBar* bar, std::initializer_list<QLabel**> fields,
                     std::initializer_list<const char*> names)
{
    const char* const* name = names.begin();
    for (QLabel** field : fields) {
        if (field != *fields.begin()) { // a line between the fields
            auto* line = new QFrame;
            line->setFrameStyle(QFrame::VLine | QFrame::Sunken);
            bar->addWidget(line);
        }
        *field = named(new QLabel, *name++);
        (*field)->setContentsMargins(4, 0, 4, 0);
        bar->addWidget(*field, field == *(fields.end() - 1) ? 1 : 0);
    }
}

} // namespace kestrel
