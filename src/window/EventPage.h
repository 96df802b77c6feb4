#pragma once
#include "ops/EventControl.h"
#include "ops/JobDispatcher.h"
#include "session/Session.h"
#include "window/Bindings.h"
#include "window/Guard.h"

#include <QWidget>
#include <functional>
#include <memory>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace kestrel {

// The Event Control page: one pin's Event-On and Event-Off actions for the four inputs,
// the enable maps, and the buttons that read, write, copy and verify them. Widgets carry
// the control names (objectName = member name, arrays as Name_index). The whole-module
// buttons do not run anything themselves: they ask for their job by name.
class EventPage : public QWidget {
    Q_OBJECT
public:
    // `guard` is the window's; a page on its own keeps one of its own.
    EventPage(Session& session, std::function<void(JobName job)> startJob, Guard* guard = nullptr,
              QWidget* parent = nullptr);

    // Shows CurrentPin in TextECpin, its entries and the enable boxes from the session
    // (an entry typed but not yet finished is taken first).
    void refresh();
    void commitPending();
    // The user chose another pin here (CurrentPin has moved): the window shows it everywhere.
    std::function<void()> onPinChosen;

    QLineEdit* TextECpin;
    QSpinBox* UpDownECpin;
    QLabel* LabelECinput[4];
    QLabel* LabelEC; // "OFF:"
    QLineEdit* TextECon[4];
    QSpinBox* UpDownECon[4];
    QLineEdit* TextECoff[4];
    QSpinBox* UpDownECoff[4];
    QCheckBox* CheckInitEE[8];

    QPushButton* CommandECReadSingle;
    QPushButton* CommandECWriteSingle;
    QPushButton* CommandECcopy;
    QPushButton* CommandECInitRead;
    QPushButton* CommandECInitWrite;
    QPushButton* CommandECRead;
    QPushButton* CommandECWrite;
    QPushButton* CommandECVerify;

public slots:
    void CommandECReadSingle_Click();
    void CommandECWriteSingle_Click();
    void CommandECcopy_Click();
    void CommandECInitRead_Click();
    void CommandECInitWrite_Click();
    void CommandECRead_Click();
    void CommandECWrite_Click();
    void CommandECVerify_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void bind();
    void run(const std::function<void()>& handler); // a button: pending entries first, guarded

    Session& session;
    std::function<void(JobName)> startJob;
    std::unique_ptr<Guard> ownGuard;
    Guard& guard;
    Bindings bindings;
};

} // namespace kestrel
