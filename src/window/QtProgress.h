#pragma once
#include "link/Progress.h"
#include "ops/Estimate.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QString>

#include <optional>

class QProgressDialog;
class QWidget;

namespace kestrel {

// Progress of a job in the window: a window-modal progress dialog whose only live
// control is Cancel. After every exchange with the module the window's events are
// processed, so it repaints and Cancel is seen before the next exchange.
class QtProgress : public Progress {
public:
    QtProgress(QWidget* parent, const QString& title);
    ~QtProgress() override;
    void step(int done, int total, const std::string& what) override;
    void exchanged() override;
    bool cancelled() override;

    // A long job's estimate, under the step: "About 1 min 20 s at 19200 baud" before its
    // first exchange, then the time left ("About 35 s left") as its exchanges complete.
    void setEstimate(const JobTraffic& traffic, int baud);
    QString estimateText() const { return timeText; }

private:
    void showLabel();
    QPointer<QProgressDialog> dialog;
    QString stepText;
    QString timeText;
    std::optional<JobTraffic> estimate;
    int bitRate = 0;
    long exchanges = 0;
    QElapsedTimer clock;
};

} // namespace kestrel
