#include "window/EditTools.h"
#include "window/Language.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <initializer_list>
#include <tuple>
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

QString pinText(const Configuration& config)
{
    return Lang::tr("Pin %1").arg(config.CurrentPin + config.NumberingBase);
}

QString aspectText(const Configuration& config)
{
    return pinText(config) + Lang::tr(", aspect %1").arg(config.CurrentAspect);
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

QPushButton* ToolDialog::commandButton(const QString& caption, const QString& name,
                                       const std::function<bool()>& action)
{
    QPushButton* b = button(caption, name);
    connect(b, &QPushButton::clicked, this, [this, action] {
        command([&] {
            if (action())
                accept();
        });
    });
    return b;
}

QLabel* ToolDialog::layOut(std::initializer_list<QPushButton*> commands, QPushButton*& cancel,
                           const QString& cancelCaption)
{
    cancel = button(cancelCaption, "commandCancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* target = new QLabel;
    target->setObjectName("LabelTarget");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(target);
    layout->addSpacing(6);
    for (QPushButton* b : commands)
        layout->addWidget(b);
    layout->addSpacing(12);
    layout->addWidget(cancel);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setMinimumWidth(200);
    return target;
}

// ---- pin tool

EditPinDialog::EditPinDialog(Session& s, QWidget* parent)
    : ToolDialog("dlgEditPin", Lang::tr("Pin tool"), parent), session(s)
{
    std::tie(CommandCopyPin, CommandPastePin, CommandClearPin) =
        clipboardButtons(tool, session, "Pin", {"CommandCopyPin", "CommandPastePin", "CommandClearPin"});
    LabelTarget =
        layOut({CommandCopyPin, CommandPastePin, CommandClearPin}, commandCancel, Lang::tr("Ca&ncel"));
}

void EditPinDialog::run()
{
    LabelTarget->setText(pinText(session.config));
    runModal();
}

// ---- aspect tool

EditAspectDialog::EditAspectDialog(Session& s, QWidget* parent)
    : ToolDialog("dlgEditAspect", Lang::tr("Aspect tool"), parent), session(s)
{
    std::tie(CommandCopy, CommandPaste, CommandClear) =
        clipboardButtons(tool, session, "Aspect", {"CommandCopy", "CommandPaste", "CommandClear"});
    CommandClean = commandButton(Lang::tr("Clean &Aspect"), "CommandClean", [this] {
        tool.clean(session.config);
        return true;
    });
    LabelTarget =
        layOut({CommandCopy, CommandPaste, CommandClear, CommandClean}, commandCancel, Lang::tr("Ca&ncel"));
    CommandClean->setToolTip(Lang::tr("Clears the description and everything after the first empty step"));
}

void EditAspectDialog::run()
{
    LabelTarget->setText(aspectText(session.config));
    runModal();
}

// ---- step tool

EditStepDialog::EditStepDialog(Session& s, QWidget* parent)
    : ToolDialog("dlgEditStep", Lang::tr("Step tool"), parent), session(s)
{
    commandInsert = commandButton(Lang::tr("&Insert Step"), "commandInsert", [this] {
        insertStep(session.config);
        return true;
    });
    commandDelete = commandButton(Lang::tr("&Delete Step"), "commandDelete", [this] {
        deleteStep(session.config);
        return true;
    });
    LabelTarget = layOut({commandInsert, commandDelete}, commandCancel, Lang::tr("&Cancel"));
}

void EditStepDialog::run()
{
    LabelTarget->setText(aspectText(session.config) + Lang::tr(", step %1").arg(session.config.CurrentStep));
    runModal();
}

} // namespace kestrel
