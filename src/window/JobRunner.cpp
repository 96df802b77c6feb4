#include "window/JobRunner.h"
#include "forms/MainWindowForm.h"
#include "window/Bindings.h"
#include "window/Language.h"
#include "window/QtProgress.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>

namespace kestrel {

namespace {
// Progress that remembers the last step reported, so the outcome can say where a job stopped.
class JobProgress : public QtProgress {
public:
    using QtProgress::QtProgress;
    void step(int done, int total, const std::string& what) override
    {
        last = what;
        QtProgress::step(done, total, what);
    }
    std::string last;
};
} // namespace

JobRunner::JobRunner(Session& session, Guard& guard, JobDispatcher& jobs, Window window)
    : QObject(window.main), session(session), guard(guard), jobs(jobs), window(std::move(window))
{
}

void JobRunner::setButtons(QList<QAbstractButton*> jobButtons, QList<QAbstractButton*> writers)
{
    starters = std::move(jobButtons);
    writing = std::move(writers);
}

void JobRunner::ask(JobName name)
{
    window.commit();
    if (!asked)
        focusBefore = QApplication::focusWidget();
    asked = true; // from now until the job ends the window waits
    window.notice->setVisible(true);
    jobs.request(name);
}

void JobRunner::tick()
{
    if (jobs.running())
        return;
    jobs.Timer1_Timer();
    if (!asked)
        return;
    asked = false;
    window.notice->setVisible(false);
    // The keyboard goes back where it was, whatever boxes the job raised.
    window.main->activateWindow();
    if (focusBefore && focusBefore->isVisible() && focusBefore->isEnabled())
        focusBefore->setFocus(Qt::OtherFocusReason);
}

bool JobRunner::eventFilter(QObject* watched, QEvent* event)
{
    if (blocksInput(watched, event))
        return true;
    auto* button = qobject_cast<QAbstractButton*>(watched);
    return event->type() == QEvent::Shortcut && button && writing.contains(button) &&
           !confirmKeyboardWrite(button);
}

bool JobRunner::blocksInput(QObject* target, QEvent* event) const
{
    if (!busy())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        // Before the job begins, another job's button replaces the job asked for.
        if (!jobs.running() && starters.contains(qobject_cast<QAbstractButton*>(target)))
            return false;
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
        break;
    default:
        return false;
    }
    // The progress dialog and the boxes a job raises take their input, and so do the
    // windows that only watch.
    const auto* widget = qobject_cast<QWidget*>(target);
    if (!widget)
        return true;
    const QWidget* top = widget->window();
    return top != QApplication::activeModalWidget() && !window.watches(top);
}

bool JobRunner::confirmKeyboardWrite(QAbstractButton* button)
{
    return session.dialogs().ask(Lang::tr("\"%1\" writes to the module. Write now?")
                                     .arg(spoken(button->text()))
                                     .toLatin1()
                                     .toStdString(),
                                 Buttons::YesNo, Icon::Question) == Answer::Yes;
}

void JobRunner::run(const QString& title, const std::function<bool()>& operation, bool reads, bool verifies,
                    std::optional<LongJob> estimate)
{
    Session& s = session;
    window.commit();
    jobReport.clear();
    // The job's name in the user's language (the names are marked where the jobs start);
    // the outcome is worded from the English one.
    const QByteArray english = title.toLatin1();
    const QString shown = QCoreApplication::translate("Lang", english.constData());
    JobProgress progress(window.main, shown);
    // The estimate counts the direct route's frames; a tunnelled job goes without one.
    if (estimate && !s.link.settings.CheckCorvid)
        progress.setEstimate(
            jobTraffic(*estimate, s.config, s.general, s.link.settings, window.writePinConfig->isChecked()),
            9600 << s.linkControl.OptionBitRate);
    s.link.setProgress(&progress);
    QElapsedTimer clock;
    clock.start();
    bool ok = false;
    s.beginJob(title.toStdString()); // the whole-module jobs within count as part of it
    const bool noFault = guard(shown.toStdString(), [&] { ok = operation(); });
    // A verification that ran to its end has done its job, whatever it found.
    s.endJob(noFault && (ok || verifies));
    s.link.setProgress(nullptr);
    window.notice->setVisible(false);

    JobEnd end;
    end.title = title.toStdString();
    end.fault = !noFault;
    end.cancelled = progress.cancelled();
    end.ok = ok;
    end.reads = reads;
    end.verifies = verifies;
    end.imageKnown = s.moduleImage() != nullptr;
    end.summary = s.jobSummary();
    end.lastStep = progress.last;
    end.seconds = clock.elapsed() / 1000.0;
    window.status->setText(translatedMessage(jobOutcomeText(end)));
    if (verifies && !ok && !pinConfigWritten && onlyPinConfigurationsDiffer(jobReport))
        s.report.line(kWritePinConfigurationsHint);
    // The one refresh of the pages after a job; after a fault the guard has done it.
    if (noFault)
        window.show();
}

} // namespace kestrel
