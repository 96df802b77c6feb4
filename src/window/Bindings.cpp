#include "window/Bindings.h"

#include "window/Guard.h"
#include "window/Language.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QSpinBox>

#include <memory>

namespace kestrel {

QString latin1(const std::string& s)
{
    return QString::fromLatin1(s.data(), static_cast<qsizetype>(s.size()));
}

std::string fromLatin1(const QString& s) { return s.toLatin1().toStdString(); }

QString spoken(QString caption) { return caption.remove(QChar('&')).remove(QChar(':')).trimmed(); }

QString controlName(const QWidget* control)
{
    if (!control->accessibleName().isEmpty())
        return control->accessibleName();
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    return button ? spoken(button->text()) : control->objectName();
}

void nameAfter(QLabel* label, QWidget* control)
{
    label->setBuddy(control);
    control->setAccessibleName(spoken(label->text()));
}

void tabOrder(std::initializer_list<QWidget*> chain)
{
    const QWidget* before = nullptr;
    for (QWidget* w : chain) {
        if (before)
            QWidget::setTabOrder(const_cast<QWidget*>(before), w);
        before = w;
    }
}

QLabel* captionFor(const QString& caption, QWidget* control)
{
    auto* label = new QLabel(caption);
    nameAfter(label, control);
    return label;
}

std::pair<int, int> pressOf(const QMouseEvent* mouse)
{
    const int button = mouse->button() == Qt::LeftButton ? 1 : mouse->button() == Qt::RightButton ? 2 : 4;
    const auto keys = mouse->modifiers();
    const int shift = (keys & Qt::ShiftModifier ? 1 : 0) | (keys & Qt::ControlModifier ? 2 : 0) |
                      (keys & Qt::AltModifier ? 4 : 0);
    return {button, shift};
}

void numericInput(QLineEdit* box, int digits)
{
    box->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QString("[-+]?[0-9]{0,%1}").arg(digits)), box));
}

Bindings::Bindings(Guard& g, std::function<void()> after) : guard(g), afterCommit(std::move(after)) {}

void Bindings::commitNow(const std::function<void()>& take, const std::function<void()>& changed,
                         const QString& name, const void* control)
{
    if (showing)
        return;
    guard(
        name.toStdString(),
        [&] {
            take();
            if (changed)
                changed();
        },
        control);
    if (afterCommit)
        afterCommit();
}

void Bindings::check(QAbstractButton* box, int& field, std::function<void()> changed)
{
    QObject::connect(
        box, &QAbstractButton::toggled, box, [this, box, &field, changed = std::move(changed)](bool on) {
            commitNow([&field, on] { field = on ? 1 : 0; }, changed,
                      (on ? Lang::tr("checking %1") : Lang::tr("unchecking %1")).arg(controlName(box)));
        });
    items.push_back({[box, &field] {
                         const QSignalBlocker block(box);
                         box->setChecked(field == 1);
                     },
                     {}});
}

void Bindings::option(QButtonGroup* group, int& field, std::function<void()> changed)
{
    QObject::connect(group, &QButtonGroup::idToggled, group,
                     [this, group, &field, changed = std::move(changed)](int id, bool on) {
                         if (on)
                             commitNow([&field, id] { field = id; }, changed,
                                       Lang::tr("choosing %1").arg(controlName(group->button(id))));
                     });
    items.push_back({[group, &field] {
                         // An exclusive group refuses to uncheck its checked button, and
                         // would keep the old one beside the new: it is opened meanwhile.
                         group->setExclusive(false);
                         for (QAbstractButton* b : group->buttons()) {
                             const QSignalBlocker block(b);
                             b->setChecked(false);
                         }
                         if (QAbstractButton* b = group->button(field)) {
                             const QSignalBlocker block(b);
                             b->setChecked(true);
                         }
                         group->setExclusive(true);
                     },
                     {}});
}

void Bindings::combo(QComboBox* box, int& field, std::function<void()> changed)
{
    QObject::connect(box, &QComboBox::currentIndexChanged, box,
                     [this, box, &field, changed = std::move(changed)](int index) {
                         commitNow([&field, index] { field = index; }, changed,
                                   Lang::tr("choosing %1 in %2").arg(box->itemText(index), controlName(box)));
                     });
    items.push_back({[box, &field] {
                         const QSignalBlocker block(box);
                         box->setCurrentIndex(field >= 0 && field < box->count() ? field : -1);
                     },
                     {}});
}

void Bindings::text(QLineEdit* box, std::string& field, std::function<void()> changed)
{
    text(
        box, [&field]() -> std::string& { return field; }, std::move(changed));
}

void Bindings::text(QLineEdit* box, std::function<std::string&()> field, std::function<void()> changed)
{
    // textChanged, not textEdited: a text set from outside (a screen reader, a test) is an
    // edit too; showing blocks the signal.
    QObject::connect(box, &QLineEdit::textChanged, box,
                     [this, box, field, changed = std::move(changed)](const QString& typed) {
                         commitNow([&field, typed] { field() = fromLatin1(typed); }, changed,
                                   Lang::tr("typing in %1").arg(controlName(box)), box);
                     });
    items.push_back({[box, field] {
                         const QString shown = latin1(field());
                         if (box->text() == shown)
                             return; // keeps the cursor where the user is typing
                         const QSignalBlocker block(box);
                         box->setText(shown);
                     },
                     {}});
}

void Bindings::entry(QLineEdit* box, std::function<std::string()> show,
                     std::function<void(const std::string&)> commit)
{
    // What the box was last given: any other text is an edit not yet taken.
    auto shown = std::make_shared<QString>(box->text());
    auto showModel = [box, show = std::move(show), shown] {
        const QSignalBlocker block(box);
        *shown = latin1(show());
        if (box->text() != *shown)
            box->setText(*shown);
        box->setModified(false);
    };
    auto take = [this, box, commit, showModel, shown] {
        *shown = box->text(); // taken: no longer pending while the page shows the model again
        box->setModified(false);
        const std::string typed = fromLatin1(*shown);
        // A spinner's steps follow each other as one change; a typed entry is a step of its own.
        const bool spun = spinning == box;
        commitNow([&] { commit(typed); }, {},
                  (spun ? Lang::tr("changing %1") : Lang::tr("typing in %1")).arg(controlName(box)),
                  spun ? box : nullptr);
        showModel();
    };
    QObject::connect(box, &QLineEdit::editingFinished, box, take);
    items.push_back({showModel, [box, shown, take] {
                         if (box->isModified() || box->text() != *shown)
                             take();
                     }});
}

void Bindings::spinner(QSpinBox* spin, QLineEdit* box, std::function<int()> show)
{
    QObject::connect(spin, &QSpinBox::valueChanged, spin, [this, box](int value) {
        if (showing)
            return;
        box->setText(QString::number(value));
        spinning = box;
        emit box->editingFinished();
        spinning = nullptr;
    });
    items.push_back({[spin, show = std::move(show)] {
                         const QSignalBlocker block(spin);
                         spin->setValue(show());
                     },
                     {}});
}

void Bindings::display(std::function<void()> show) { items.push_back({std::move(show), {}}); }

void Bindings::commitPending()
{
    if (showing)
        return;
    for (const Item& item : items)
        if (item.commitPending)
            item.commitPending();
}

void Bindings::show()
{
    if (showing)
        return;
    commitPending();
    showing = true;
    for (const Item& item : items)
        item.show();
    showing = false;
}

} // namespace kestrel
