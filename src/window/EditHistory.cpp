#include "window/EditHistory.h"
#include "window/Bindings.h"
#include "window/Language.h"

#include <QAction>
#include <QGroupBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QUndoStack>

namespace kestrel {

namespace {
// What is kept in a data file, without what only shows (labels, the warning flag, and the
// address texts, which follow the numbering base; the file keeps their values).
GeneralSettings filed(GeneralSettings g)
{
    g.LabelGenVersionString.clear();
    g.SuppressAddrWarning = false;
    g.TextGenXaddr.clear();
    g.TextGenLynxaddr.clear();
    return g;
}

// Whether what is kept differs: the selection, the numbering and what only shows do not count.
bool differs(const Configuration& a, const GeneralSettings& g, const Configuration& b,
             const GeneralSettings& h)
{
    return a.Pins != b.Pins || a.EventMap != b.EventMap || a.DccFirstIndex != b.DccFirstIndex ||
           a.XDccFirstIndex != b.XDccFirstIndex || a.LynxFirstIndex != b.LynxFirstIndex ||
           a.DccTotal != b.DccTotal || a.XDccTotal != b.XDccTotal || a.LynxTotal != b.LynxTotal ||
           filed(g) != filed(h);
}

// One step: the states before and after what the user did.
class ConfigurationStep : public QUndoCommand {
public:
    using State = std::shared_ptr<const EditState>;
    ConfigurationStep(const QString& name, State before, State after, const void* control, int run,
                      std::function<void(const State&)> restore)
        : QUndoCommand(name), before(std::move(before)), after(std::move(after)), control(control), run(run),
          restore(std::move(restore))
    {
    }
    void undo() override { restore(before); }
    void redo() override
    {
        if (pushed) // the first redo is the push: the change is made already
            restore(after);
        pushed = true;
    }
    int id() const override { return control ? 1 : -1; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = static_cast<const ConfigurationStep*>(other);
        if (next->control != control || next->run != run || *next->before != *after)
            return false;
        after = next->after;
        setObsolete(!differs(before->config, before->general, after->config, after->general));
        return true;
    }

private:
    State before;
    State after;
    const void* control;
    int run;
    std::function<void(const State&)> restore;
    bool pushed = false;
};
} // namespace

EditHistory::EditHistory(Session& session, std::function<void()> commit, std::function<void()> show,
                         QObject* parent)
    : QObject(parent), session(session), commit(std::move(commit)), show(std::move(show)),
      steps(new QUndoStack(this))
{
    steps->setUndoLimit(100);
    undoEntry = steps->createUndoAction(this, Lang::tr("Undo"));
    redoEntry = steps->createRedoAction(this, Lang::tr("Redo"));
    // The entries name the step in the user's language ("Undo typing in Description"),
    // after Qt's own wording of them.
    const auto wording = [](QAction* entry, const QString& none, const QString& named) {
        return [entry, none, named](const QString& step) {
            entry->setText(step.isEmpty() ? none : named.arg(step));
        };
    };
    connect(steps, &QUndoStack::undoTextChanged, undoEntry,
            wording(undoEntry, Lang::tr("Undo"), Lang::tr("Undo %1")));
    connect(steps, &QUndoStack::redoTextChanged, redoEntry,
            wording(redoEntry, Lang::tr("Redo"), Lang::tr("Redo %1")));
    undoEntry->setShortcuts(QKeySequence::Undo);
    redoEntry->setShortcuts({QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")});
    // A typed but unfinished entry is taken first.
    disconnect(undoEntry, &QAction::triggered, steps, nullptr);
    disconnect(redoEntry, &QAction::triggered, steps, nullptr);
    connect(undoEntry, &QAction::triggered, this, &EditHistory::undo);
    connect(redoEntry, &QAction::triggered, this, &EditHistory::redo);
}

void EditHistory::undo()
{
    commit();
    steps->undo();
}

void EditHistory::redo()
{
    commit();
    steps->redo();
}

void EditHistory::record(const EditState& before, const std::string& name, const void* control)
{
    if (restoring || !differs(before.config, before.general, session.config, session.general))
        return;
    auto was = latest && *latest == before ? latest : std::make_shared<const EditState>(before);
    latest =
        std::make_shared<const EditState>(EditState{session.config, session.general, session.eventControl});
    steps->push(new ConfigurationStep(name.empty() ? Lang::tr("Edit") : QString::fromStdString(name),
                                      std::move(was), latest, control, editRun,
                                      [this](const ConfigurationStep::State& s) { restore(s); }));
}

void EditHistory::restore(const std::shared_ptr<const EditState>& state)
{
    restoring = true;
    Session& s = session;
    const int base = s.config.NumberingBase;
    const std::string version = s.general.LabelGenVersionString;
    const bool warned = s.general.SuppressAddrWarning;
    s.config = state->config; // with the selection it had: the change is shown where it was made
    s.config.NumberingBase = base;
    s.general = state->general;
    s.general.LabelGenVersionString = version;
    s.general.SuppressAddrWarning = warned;
    s.eventControl = state->eventControl;
    show();
    restoring = false;
    latest = state;
    ++editRun;
}

void EditHistory::takeUndoKeysOfBoxes(QWidget* window)
{
    for (QLineEdit* box : window->findChildren<QLineEdit*>())
        box->installEventFilter(this);
}

bool EditHistory::eventFilter(QObject* watched, QEvent* event)
{
    if ((event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) &&
        qobject_cast<QLineEdit*>(watched)) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QKeyCombination keys = key->keyCombination();
        const bool back = key->matches(QKeySequence::Undo);
        const bool forth = key->matches(QKeySequence::Redo) ||
                           keys == QKeyCombination(Qt::CTRL | Qt::SHIFT, Qt::Key_Z) ||
                           keys == QKeyCombination(Qt::CTRL, Qt::Key_Y);
        if (back || forth) {
            if (event->type() == QEvent::ShortcutOverride)
                event->accept(); // the key comes to the box, and so here
            else if (back)
                undo();
            else
                redo();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void EditHistory::nameStepsAfterButtons(QWidget* window, Guard& guard)
{
    for (QPushButton* b : window->findChildren<QPushButton*>()) {
        QString name = spoken(b->text());
        for (QWidget* p = b->parentWidget(); p && !name.contains(' '); p = p->parentWidget())
            if (auto* frame = qobject_cast<QGroupBox*>(p)) {
                name += " (" + spoken(frame->title()) + ")";
                break;
            }
        connect(b, &QAbstractButton::pressed, this, [&guard, name] { guard.nextName = name.toStdString(); });
        connect(b, &QAbstractButton::released, this,
                [this, &guard] { QTimer::singleShot(0, this, [&guard] { guard.nextName.clear(); }); });
    }
}

} // namespace kestrel
