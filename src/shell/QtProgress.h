#pragma once
#include "link/Progress.h"

#include <QPointer>

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

private:
    QPointer<QProgressDialog> dialog;
};

} // namespace kestrel
