#pragma once
#include <QString>

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

class QAbstractButton;
class QButtonGroup;
class QComboBox;
class QLabel;
class QLineEdit;
class QMouseEvent;
class QSpinBox;
class QWidget;

namespace kestrel {

class Guard;

// The one table of a page that binds each control to one field of the session, both
// ways. A check box, option group or list is committed the moment the user changes it;
// a text box while it is typed; an entry box whose number is clamped when editing is
// finished (focus leaves it, Return) or, at the latest, when anything else happens:
// show() and commitPending() take a typed but unfinished entry first, so a refresh from
// the model never overwrites what the user typed. Showing blocks the controls' signals
// (QSignalBlocker), so showing is never taken for an edit.
//
// Every commit runs inside the page's guard, named after its control ("typing in
// Description", "checking Fade, step 2"), then `changed` (the control's own handler, if
// any), then the page's `afterCommit` (it shows the model again).
class Bindings {
public:
    explicit Bindings(Guard& guard, std::function<void()> afterCommit = {});

    void check(QAbstractButton* box, int& field, std::function<void()> changed = {});
    void option(QButtonGroup* group, int& field, std::function<void()> changed = {});
    void combo(QComboBox* box, int& field, std::function<void()> changed = {});
    // Latin-1 text, committed as it is typed.
    void text(QLineEdit* box, std::string& field, std::function<void()> changed = {});
    // The same for a field that moves with the selection (the selected pin's description).
    void text(QLineEdit* box, std::function<std::string&()> field, std::function<void()> changed = {});
    // A clamped entry: `show` gives the box's text from the model, `commit` takes the typed
    // text into the model (clamping it); the box then shows the model again.
    void entry(QLineEdit* box, std::function<std::string()> show,
               std::function<void(const std::string&)> commit);
    // A spinner beside an entry box: its value becomes the box's text and is committed.
    void spinner(QSpinBox* spin, QLineEdit* box, std::function<int()> show);
    // Something shown from the model that takes no input (labels, visibility, ranges).
    void display(std::function<void()> show);
    // A change that a page's own handler takes (an instruction chosen from a list whose
    // items carry codes, a layout option): guarded like every commit under `name`, and
    // ignored while the page is showing the model. Text typed on in one `control` is one step.
    void edit(const QString& name, const std::function<void()>& take, const void* control = nullptr)
    {
        commitNow(take, {}, name, control);
    }

    void show();
    void commitPending();

private:
    struct Item {
        std::function<void()> show;
        std::function<void()> commitPending; // empty for controls that commit at once
    };
    void commitNow(const std::function<void()>& take, const std::function<void()>& changed,
                   const QString& name, const void* control = nullptr);

    Guard& guard;
    std::function<void()> afterCommit;
    std::vector<Item> items;
    bool showing = false;
    const QLineEdit* spinning = nullptr; // the box whose spinner is stepping it
};

// Entry-box input rules: digits and an optional sign only, at most `digits` digits.
void numericInput(QLineEdit* box, int digits = 6);

// The mouse button and the keys held, as the buttons' press handlers take them: button 1
// left, 2 right, 4 middle; Shift 1, Ctrl 2, Alt 4 added together.
std::pair<int, int> pressOf(const QMouseEvent* mouse);

// A caption that names the control beside it, for the eye and for a screen reader: the
// label is the control's buddy, and the control's accessible name is the caption without
// its mnemonic and colon. `nameAfter` does the same for a label that exists already (and
// again when its text changes).
QLabel* captionFor(const QString& caption, QWidget* control);
void nameAfter(QLabel* label, QWidget* control);
// The caption as a screen reader says it: without "&" and ":".
QString spoken(QString caption);
// What a control is called: its accessible name, else its caption as spoken.
QString controlName(const QWidget* control);
// Tab goes from each control to the next in this order (the reading order where the
// order of building does not give it).
void tabOrder(std::initializer_list<QWidget*> chain);

QString latin1(const std::string& s);
std::string fromLatin1(const QString& s);

} // namespace kestrel
