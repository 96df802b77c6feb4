#include "window/EditTools.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>
#include <utility>

namespace kestrel {

namespace {
QPushButton* button(const QString& caption, const QString& name)
{
    auto* b = new QPushButton(caption);
    b->setObjectName(name);
    b->setAutoDefault(false);
    return b;
}

// The line that says what the tool acts on, then the commands one below the other and
// Cancel apart at the bottom.
QLabel* layOut(QDialog* dialog, std::initializer_list<QPushButton*> commands, QPushButton* cancel)
{
    auto* target = new QLabel;
    target->setObjectName("LabelTarget");
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(target);
    layout->addSpacing(6);
    for (QPushButton* b : commands)
        layout->addWidget(b);
    layout->addSpacing(12);
    layout->addWidget(cancel);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    dialog->setMinimumWidth(200);
    return target;
}

QString pinText(const Configuration& config)
{
    return QString("Pin %1").arg(config.CurrentPin + config.NumberingBase);
}

QString aspectText(const Configuration& config)
{
    return pinText(config) + QString(", aspect %1").arg(config.CurrentAspect);
}
} // namespace

// ---- ToolDialog

ToolDialog::ToolDialog(const QString& name, const QString& title, QWidget* parent) : QDialog(parent)
{
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
}

bool ToolDialog::runModal()
{
    fault = nullptr;
    chosen.clear();
    running = true;
    const bool accepted = exec() == QDialog::Accepted;
    running = false;
    if (fault)
        std::rethrow_exception(std::exchange(fault, nullptr));
    return accepted;
}

void ToolDialog::perform(QPushButton* commandButton)
{
    fault = nullptr;
    chosen.clear();
    running = true; // a fault is kept, not thrown through the click
    commandButton->click();
    running = false;
    if (fault)
        std::rethrow_exception(std::exchange(fault, nullptr));
}

void ToolDialog::command(const std::function<void()>& action)
{
    if (const auto* b = qobject_cast<const QPushButton*>(sender()))
        chosen = b->text().remove(QChar('&'));
    try {
        action();
    } catch (...) {
        if (!running)
            throw; // called directly, not from the modal loop
        fault = std::current_exception();
        reject();
    }
}

// ---- pin tool

EditPinDialog::EditPinDialog(Session& s, QWidget* parent)
    : ToolDialog("dlgEditPin", "Pin tool", parent), session(s)
{
    CommandCopyPin = button("&Copy Pin", "CommandCopyPin");
    CommandPastePin = button("&Paste Pin", "CommandPastePin");
    CommandClearPin = button("C&lear Pin", "CommandClearPin");
    commandCancel = button("Ca&ncel", "commandCancel");
    LabelTarget = layOut(this, {CommandCopyPin, CommandPastePin, CommandClearPin}, commandCancel);
    connect(CommandCopyPin, &QPushButton::clicked, this, &EditPinDialog::CommandCopyPin_Click);
    connect(CommandPastePin, &QPushButton::clicked, this, &EditPinDialog::CommandPastePin_Click);
    connect(CommandClearPin, &QPushButton::clicked, this, &EditPinDialog::CommandClearPin_Click);
    connect(commandCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void EditPinDialog::run()
{
    LabelTarget->setText(pinText(session.config));
    runModal();
}

void EditPinDialog::CommandCopyPin_Click()
{
    command([this] {
        tool.copy(session.config);
        accept();
    });
}

void EditPinDialog::CommandPastePin_Click()
{
    command([this] {
        if (tool.paste(session.config, session.dialogs()))
            accept();
    });
}

void EditPinDialog::CommandClearPin_Click()
{
    command([this] {
        tool.clear(session.config);
        accept();
    });
}

// ---- aspect tool

EditAspectDialog::EditAspectDialog(Session& s, QWidget* parent)
    : ToolDialog("dlgEditAspect", "Aspect tool", parent), session(s)
{
    CommandCopy = button("&Copy Aspect", "CommandCopy");
    CommandPaste = button("&Paste Aspect", "CommandPaste");
    CommandClear = button("C&lear Aspect", "CommandClear");
    CommandClean = button("Clean &Aspect", "CommandClean");
    commandCancel = button("Ca&ncel", "commandCancel");
    LabelTarget = layOut(this, {CommandCopy, CommandPaste, CommandClear, CommandClean}, commandCancel);
    CommandClean->setToolTip("Clears the description and everything after the first empty step");
    connect(CommandCopy, &QPushButton::clicked, this, &EditAspectDialog::CommandCopy_Click);
    connect(CommandPaste, &QPushButton::clicked, this, &EditAspectDialog::CommandPaste_Click);
    connect(CommandClear, &QPushButton::clicked, this, &EditAspectDialog::CommandClear_Click);
    connect(CommandClean, &QPushButton::clicked, this, &EditAspectDialog::CommandClean_Click);
    connect(commandCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void EditAspectDialog::run()
{
    LabelTarget->setText(aspectText(session.config));
    runModal();
}

void EditAspectDialog::CommandCopy_Click()
{
    command([this] {
        tool.copy(session.config);
        accept();
    });
}

void EditAspectDialog::CommandPaste_Click()
{
    command([this] {
        if (tool.paste(session.config, session.dialogs()))
            accept();
    });
}

void EditAspectDialog::CommandClear_Click()
{
    command([this] {
        tool.clear(session.config);
        accept();
    });
}

void EditAspectDialog::CommandClean_Click()
{
    command([this] {
        tool.clean(session.config);
        accept();
    });
}

// ---- step tool

EditStepDialog::EditStepDialog(Session& s, QWidget* parent)
    : ToolDialog("dlgEditStep", "Step tool", parent), session(s)
{
    commandInsert = button("&Insert Step", "commandInsert");
    commandDelete = button("&Delete Step", "commandDelete");
    commandCancel = button("&Cancel", "commandCancel");
    LabelTarget = layOut(this, {commandInsert, commandDelete}, commandCancel);
    connect(commandInsert, &QPushButton::clicked, this, &EditStepDialog::commandInsert_Click);
    connect(commandDelete, &QPushButton::clicked, this, &EditStepDialog::commandDelete_Click);
    connect(commandCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void EditStepDialog::run()
{
    LabelTarget->setText(aspectText(session.config) + QString(", step %1").arg(session.config.CurrentStep));
    runModal();
}

void EditStepDialog::commandInsert_Click()
{
    command([this] {
        insertStep(session.config);
        accept();
    });
}

void EditStepDialog::commandDelete_Click()
{
    command([this] {
        deleteStep(session.config);
        accept();
    });
}

} // namespace kestrel
