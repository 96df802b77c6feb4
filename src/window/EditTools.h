#pragma once
#include "forms/AspectEditor.h"
#include "model/PinTools.h"
#include "session/Session.h"

#include <QDialog>
#include <array>
#include <exception>
#include <functional>
#include <initializer_list>
#include <tuple>

class QLabel;
class QPushButton;

namespace kestrel {

// A small modal tool of the aspect page, created once by its owner and kept, so that its
// state (a clipboard, the values last shown) lasts as long as the program. Its commands
// run inside the modal loop, where nothing may be thrown through Qt: a program fault there
// closes the tool and is thrown again when runModal() returns, to the caller's guard.
class ToolDialog : public QDialog {
    Q_OBJECT
public:
    ToolDialog(const QString& name, const QString& title, QWidget* parent);

    // The caption of the command chosen last ("Paste Pin"), what the change is called.
    QString chosen;

    // One of the tool's commands chosen without showing the tool (from a context or the
    // Edit menu): it runs as its button's click, and a program fault is thrown from here.
    void perform(QPushButton* commandButton);

protected:
    // Shows the tool modally until it closes; true when it was accepted.
    bool runModal();
    // One command of the tool (a click, a finished entry).
    void command(const std::function<void()>& action);
    // A command's button: a click runs the action as one command, and the tool closes
    // when the action says it is done.
    QPushButton* commandButton(const QString& caption, const QString& name,
                               const std::function<bool()>& action);
    // The line that says what the tool acts on (returned), then the commands one below the
    // other and Cancel ("commandCancel", made here) apart at the bottom.
    QLabel* layOut(std::initializer_list<QPushButton*> commands, QPushButton*& cancel,
                   const QString& cancelCaption);
    // Copy, Paste and Clear of a tool that keeps a pin or an aspect ("&Copy <what>", ...),
    // with the buttons' names in that order.
    template <typename Tool>
    std::tuple<QPushButton*, QPushButton*, QPushButton*>
    clipboardButtons(Tool& tool, Session& session, const QString& what,
                     const std::array<const char*, 3>& names)
    {
        return {commandButton("&Copy " + what, names[0],
                              [&tool, &session] {
                                  tool.copy(session.config);
                                  return true;
                              }),
                commandButton("&Paste " + what, names[1],
                              [&tool, &session] { return tool.paste(session.config, session.dialogs()); }),
                commandButton("C&lear " + what, names[2], [&tool, &session] {
                    tool.clear(session.config);
                    return true;
                })};
    }
    // A help tool's run: opened on the step and shown; OK applies it to the step, Cancel
    // shows the values it was opened with again and leaves the step as it was.
    template <typename Tool> bool runOnStep(Tool& tool, StepRecord& step, const std::function<void()>& show)
    {
        tool.open(step);
        show();
        if (!runModal()) {
            tool.cancel();
            show();
            return false;
        }
        tool.apply(step);
        return true;
    }

private:
    std::exception_ptr fault;
    bool running = false; // inside runModal()
};

// The pin tool: copy, paste and clear CurrentPin.
class EditPinDialog : public ToolDialog {
    Q_OBJECT
public:
    EditPinDialog(Session& session, QWidget* parent = nullptr);
    // Shows the tool on CurrentPin until a command closes it.
    void run();

    PinTool tool;
    QLabel* LabelTarget; // "Pin 5"
    QPushButton* CommandCopyPin;
    QPushButton* CommandPastePin;
    QPushButton* CommandClearPin;
    QPushButton* commandCancel;

private:
    Session& session;
};

// The aspect tool: copy, paste, clear and clean the selected aspect.
class EditAspectDialog : public ToolDialog {
    Q_OBJECT
public:
    EditAspectDialog(Session& session, QWidget* parent = nullptr);
    // Shows the tool on CurrentPin and CurrentAspect until a command closes it.
    void run();

    AspectTool tool;
    QLabel* LabelTarget; // "Pin 5, aspect 2"
    QPushButton* CommandCopy;
    QPushButton* CommandPaste;
    QPushButton* CommandClear;
    QPushButton* CommandClean;
    QPushButton* commandCancel;

private:
    Session& session;
};

// The step tool: insert or delete CurrentStep of the selected aspect.
class EditStepDialog : public ToolDialog {
    Q_OBJECT
public:
    EditStepDialog(Session& session, QWidget* parent = nullptr);
    // Shows the tool on CurrentStep until a command closes it.
    void run();

    QLabel* LabelTarget; // "Pin 5, aspect 2, step 3"
    QPushButton* commandInsert;
    QPushButton* commandDelete;
    QPushButton* commandCancel;

private:
    Session& session;
};

} // namespace kestrel
