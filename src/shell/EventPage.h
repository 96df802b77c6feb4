#pragma once
#include "ops/EventControl.h"
#include "ops/Session.h"

#include <QWidget>
#include <functional>

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
    EventPage(Session& session, std::function<void(const char* job)> startJob, QWidget* parent = nullptr);

    // Shows the pin in TextECpin, its entries and the enable boxes from the session.
    void refresh();

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
    void TextECpin_Click();
    void UpDownECpin_Change(int value);
    void TextECon_LostFocus(int slot);
    void TextECoff_LostFocus(int slot);
    void CheckInitEE_Click(int index);
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
    void editEntry(EventSide side, int slot);
    void showEntries();   // the entry boxes and their spinners from session.eventControl
    void commitEntries(); // every entry box through its handler
    void showEnables();

    Session& session;
    std::function<void(const char*)> startJob;
    bool updating = false;
};

} // namespace kestrel
