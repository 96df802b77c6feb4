#pragma once
#include "ops/Estimate.h"
#include "ops/JobDispatcher.h"
#include "session/Session.h"
#include "window/Guard.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QLabel;
class QWidget;

namespace kestrel {

// The window's long operations. A button asks for a job (the busy notice shows); the next
// tick of `Timer1` runs it behind a window-modal progress dialog, inside the guard, and
// the status bar says how it ended. From the press until the job ends the program takes
// no input but the progress dialog's and its boxes' (and the windows that only watch);
// another job's button may still replace the job asked for before the tick. Every event
// of the program passes here first for that, and so does a mnemonic (one key) on a
// button that writes, which asks first.
class JobRunner : public QObject {
public:
    struct Window {
        QWidget* main;                // the window: the progress dialog's owner, the keyboard's home
        QLabel* notice;               // "Working ... Please WAIT"
        QLabel* status;               // what the last job did
        QCheckBox* writePinConfig;    // "Write pin configurations too"
        std::function<void()> commit; // takes the pages' unfinished entries
        std::function<void()> show;   // shows the session on every page, once a job has ended
        std::function<bool(const QWidget*)> watches; // a window that only watches (traffic, report, guide)
    };
    JobRunner(Session& session, Guard& guard, JobDispatcher& jobs, Window window);

    // The buttons that start jobs, and those that write to the module.
    void setButtons(QList<QAbstractButton*> starters, QList<QAbstractButton*> writing);
    // A button asks for a job.
    void ask(JobName name);
    // Timer1's tick: runs the job asked for.
    void tick();
    // A job is asked for or runs: the window does not close.
    bool busy() const { return asked || jobs.running(); }

    // Runs one job and tells its outcome. `reads` jobs fill the pages; `verifies` jobs
    // compare the module with the configuration in the report. A long job's progress
    // shows its `estimate`.
    void run(const QString& title, const std::function<bool()>& operation, bool reads = false,
             bool verifies = false, std::optional<LongJob> estimate = std::nullopt);
    // A write job is about to send, with or without the pins' configurations.
    void writes(bool withPinConfig) { pinConfigWritten = withPinConfig; }
    // A line the report gained.
    void reportLine(const std::string& line) { jobReport.push_back(line); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool blocksInput(QObject* target, QEvent* event) const;
    bool confirmKeyboardWrite(QAbstractButton* button);

    Session& session;
    Guard& guard;
    JobDispatcher& jobs;
    Window window;
    QList<QAbstractButton*> starters;
    QList<QAbstractButton*> writing;
    bool asked = false;                 // a job's button was pressed: input waits for its end
    bool pinConfigWritten = true;       // the last write sent the pins' configurations too
    std::vector<std::string> jobReport; // the report's lines written since the job began
    QPointer<QWidget> focusBefore;      // where the keyboard goes back to when the job ends
};

} // namespace kestrel
