#pragma once
// Small building blocks the pages share.
#include <QSpinBox>
#include <QWidget>
#include <initializer_list>

class QLabel;
class QLineEdit;
class QStatusBar;

namespace kestrel {

// A widget given its control name (objectName = member name).
template <typename W> W* named(W* w, const QString& name)
{
    w->setObjectName(name);
    return w;
}

// The objectName of element i of a control array: "Name_i".
inline QString indexed(const char* name, int i) { return QString("%1_%2").arg(name).arg(i); }

// Gives `page` a scroll area that fills it and returns the widget inside it, for the page's
// own layout: the page can be made smaller than its controls, which are then reached by
// scrolling (and the window's minimum size stays small).
QWidget* scrolledContent(QWidget* page);

// "Working ... Please WAIT" (LabelAction), hidden; shown while a job runs, in room kept for
// it so that the window does not change its size.
QLabel* workingNotice();

// A status bar's fields, named, with a line between each two; the last takes the room left.
void addStatusFields(QStatusBar* bar, std::initializer_list<QLabel**> fields,
                     std::initializer_list<const char*> names);

// A spinner that shows only its arrows, at the width the style gives them; its number is
// shown by the entry box beside it. It takes no focus: the box does, and its Up and Down
// keys step the spinner.
class Arrows : public QSpinBox {
public:
    explicit Arrows(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

// A number entry box with its spinner: the box (objectName `Text...`, bound by the page as
// every entry box) wide enough for `chars` characters, and the arrows (`UpDown...`) beside it.
// A change of the spinner's value is the page's to take (Bindings::spinner and the like).
class NumberEntry : public QWidget {
public:
    NumberEntry(const QString& textName, const QString& upDownName, int chars = 3, QWidget* parent = nullptr);
    QLineEdit* const text;
    QSpinBox* const upDown;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace kestrel
