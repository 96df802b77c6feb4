#include "shell/QtProgress.h"

#include <QCoreApplication>
#include <QProgressDialog>

namespace kestrel {

QtProgress::QtProgress(QWidget* parent, const QString& title)
{
    dialog = new QProgressDialog(title, "Cancel", 0, 0, parent);
    dialog->setObjectName("dlgProgress");
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setMinimumDuration(300);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    dialog->setValue(0);
}

QtProgress::~QtProgress()
{
    // Gone at once: a message after the job must not find it and belong to it.
    delete dialog.data();
}

void QtProgress::step(int done, int total, const std::string& what)
{
    if (!dialog)
        return;
    dialog->setMaximum(total);
    dialog->setValue(done);
    dialog->setLabelText(QString::fromLatin1(what.c_str()));
    QCoreApplication::processEvents();
}

void QtProgress::exchanged() { QCoreApplication::processEvents(); }

bool QtProgress::cancelled() { return dialog && dialog->wasCanceled(); }

} // namespace kestrel
