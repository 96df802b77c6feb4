#pragma once
#include "pins/PinEdits.h"
#include "session/Session.h"
#include "window/Bindings.h"
#include "window/Guard.h"
#include "window/WidgetsFwd.h"

#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QSignalBlocker>

namespace kestrel {

// The pin-configuration page: CurrentPin's configuration mode and parameters on the
// four pages of SSTabPCFG (not configured, servo, PWM, input), the reads and sends of
// the configuration, and the live servo and PWM commands. Widgets carry the control
// names (objectName = member name, arrays as Name_index).
//
// Choosing another page of SSTabPCFG by hand gives the pin that page's mode (servo,
// PWM, input or none); a pin whose mode changes so starts with cleared parameters, as
// when a module reports a new mode (a servo at position 0). A configured pin asks first
// (OK / Cancel); Cancel shows the pin's own page again and changes nothing.
class PinConfigPage : public QWidget {
    Q_OBJECT
public:
    // `guard` is the window's; a page on its own keeps one of its own.
    explicit PinConfigPage(Session& session, Guard* guard = nullptr, QWidget* parent = nullptr);

    // Shows CurrentPin: the pin box and its configuration (a parameter typed but not yet
    // taken is taken first). An unknown mode is reported through the session's dialogs,
    // once for the pin shown, and leaves the page as it was.
    void refresh();
    // Takes every parameter box whose text was typed but not yet taken.
    void commitPending();
    // The user chose another pin here (CurrentPin has moved): the window shows it everywhere.
    std::function<void()> onPinChosen;

    QLineEdit* TextPCFGPin;
    QSpinBox* UpDownPCFGPin;
    QTabWidget* SSTabPCFG;

    // page 0
    QLabel* LabelPCFGClear;

    // page 1, servo
    QLineEdit* TextPosition;
    QSlider* SliderServo;
    QPushButton* CommandSrvLevel;
    QPushButton* CommandStopSrv;
    QCheckBox* CheckSrvDynamic;
    QLineEdit* TextSrvInitPos;
    QRadioButton* OptionServoRange[5];
    QCheckBox* ChkSrvAutoSuspend;
    QCheckBox* ChkSrvSuspended;
    QCheckBox* ChkSrvInitialized;
    QLineEdit* TextMidpoint;
    QLineEdit* TextSrvAntiMass;
    QLineEdit* TextSrvFriction;
    QLineEdit* TextSrvMaxSpd;
    QLineEdit* TextSrvMaxAccel;
    QLineEdit* TextBounceDown;
    QLineEdit* TextBounceDownFactor;
    QLineEdit* TextBounceUp;
    QLineEdit* TextBounceUpFactor;
    QLabel* LabelSrvHWCWarn;

    // page 2, PWM
    QCheckBox* CheckPWMInverted;
    QLineEdit* TextPWMLevel;
    QSlider* SliderPWM;
    QPushButton* CommandPWMLevel;
    QPushButton* CommandPWMJump;
    QCheckBox* CheckPWMSlow;
    QLineEdit* TextPWMInitLevel;
    QRadioButton* OptionPWMDriveMode[2];
    QRadioButton* OptionPWMAccelMode[2];
    QLineEdit* TextPWMAccel;
    QLineEdit* TextPWMOffLevel;
    QLineEdit* TextPWMOnLevel;

    // page 3, input
    QCheckBox* CheckInputInvert;
    QLineEdit* TextInputDelay[2];
    QLabel* LabelInpHWCWarn;

    QPushButton* CommandPCFGGetParam[2]; // "Get Pin Config" (active), "Read Pin Config" (flash)
    QPushButton* CommandPCFGSetParam[2]; // "Set Pin Config" (active), "Write Pin Config" (flash)

public slots:
    void TextPCFGPin_Click();
    void CommandPCFGGetParam_Click(int index);
    void CommandPCFGSetParam_Click(int index);
    void CommandSrvLevel_Click();
    void CommandStopSrv_Click();
    void CommandPWMLevel_Click();
    void CommandPWMJump_Click();
    void SliderServo_Change(int value);
    void SliderPWM_Change(int value);
    void SSTabPCFG_Click(int page);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildServoPage();
    QWidget* buildPwmPage();
    QWidget* buildInputPage();
    QLineEdit* fieldBox(PinField field, const QString& name);
    // The "Inverted" box of a page: a click sets the mode inverted or not.
    QCheckBox* invertedBox(const QString& name, ModePage page);
    // A live box and its slider: a box left moves the slider (sending nothing), a slider
    // dragged writes the box.
    void followEachOther(QLineEdit* box, PinField field, QSlider* slider);
    PinRecord& pin();
    // The handler of an edit box: clamped, written back and stored.
    void commitField(PinField field);
    // The box's value clamped to its range and written back, without storing it (the
    // live position and level, which their buttons send).
    int liveValue(PinField field);
    void servoFlagsChanged(const QString& name); // `name`: what the user did, for undo
    void pwmModesChanged(const QString& name);

    // Blocks the signals of every control of the page while it shows the model.
    std::vector<std::unique_ptr<QSignalBlocker>> blockAll();

    Session& session;
    std::unique_ptr<Guard> ownGuard;
    Guard& guard;
    std::map<PinField, QLineEdit*> fields;
    std::map<QLineEdit*, QString> shown;            // what each parameter box was last given
    std::optional<std::pair<int, int>> toldUnknown; // the pin and unknown mode told last
};

} // namespace kestrel
