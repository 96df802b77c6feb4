#include "window/QtProgress.h"
#include "window/Language.h"

#include <QCoreApplication>
#include <QProgressDialog>

namespace kestrel {

QtProgress::QtProgress(QWidget* parent, const QString& title)
{
    dialog = new QProgressDialog(title, Lang::tr("Cancel"), 0, 0, parent);
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
    stepText = translatedMessage(what);
    showLabel();
    QCoreApplication::processEvents();
}

void QtProgress::exchanged()
{
    if (estimate) {
        ++exchanges;
        const auto left = secondsLeft(*estimate, bitRate, exchanges, clock.elapsed() / 1000.0);
        const QString text =
            left ? Lang::tr("About %1 left").arg(QString::fromStdString(durationText(*left))) : QString();
        if (text != timeText) {
            timeText = text;
            showLabel();
        }
    }
    QCoreApplication::processEvents();
}

bool QtProgress::cancelled() { return dialog && dialog->wasCanceled(); }

void QtProgress::setEstimate(const JobTraffic& traffic, int baud)
{
    estimate = traffic;
    bitRate = baud;
    exchanges = 0;
    clock.start();
    timeText = Lang::tr("About %1 at %2 baud")
                   .arg(QString::fromStdString(durationText(wireSeconds(traffic, baud))))
                   .arg(baud);
    showLabel();
}

void QtProgress::showLabel()
{
    if (dialog)
        dialog->setLabelText(timeText.isEmpty() ? stepText : stepText + "\n" + timeText);
}

} // namespace kestrel
