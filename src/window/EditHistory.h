#pragma once
#include "session/Session.h"
#include "window/Guard.h"

#include <QObject>
#include <functional>
#include <memory>
#include <string>

class QAction;
class QUndoStack;
class QWidget;

namespace kestrel {

// Every change of the configuration, general settings and event entries, one step for each
// handler that changed them (at most 100 kept). A step holds the states before and after,
// shared with its neighbours; typing on in one box, with the focus and everything else
// unchanged, joins the step before. Undo and redo take a typed but unfinished entry first,
// then put a state back with the selection it had, keeping the numbering and the module's
// version text, and show it; nothing is sent.
class EditHistory : public QObject {
public:
    // `commit` takes the pages' unfinished entries; `show` shows the session on every page.
    EditHistory(Session& session, std::function<void()> commit, std::function<void()> show, QObject* parent);

    QUndoStack* stack() const { return steps; }
    // "Undo typing in Description" (Ctrl+Z) and "Redo ..." (Ctrl+Shift+Z, Ctrl+Y).
    QAction* undoAction() const { return undoEntry; }
    QAction* redoAction() const { return redoEntry; }

    // The guard's report of a handler that ended: a step when it changed what is kept.
    void record(const EditState& before, const std::string& name, const void* control);
    void undo();
    void redo();
    // The focus moved: typing after it is a new step.
    void newRun() { ++editRun; }

    // Ctrl+Z and Ctrl+Shift+Z (Ctrl+Y) in every entry box of `window` are these undo and
    // redo, not the box's own (which would only take back its typing).
    void takeUndoKeysOfBoxes(QWidget* window);
    // Every push button of `window` names the change its handler makes ("Read Pin", "Copy
    // to All"; a lone word with its frame: "Read (DCC)"); a press that ends without a click
    // names nothing.
    void nameStepsAfterButtons(QWidget* window, Guard& guard);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void restore(const std::shared_ptr<const EditState>& state);

    Session& session;
    std::function<void()> commit;
    std::function<void()> show;
    QUndoStack* steps;
    QAction* undoEntry;
    QAction* redoEntry;
    std::shared_ptr<const EditState> latest; // the state the last step left, shared with the next
    bool restoring = false;                  // a state is being shown: no step of it
    int editRun = 0;
};

} // namespace kestrel
