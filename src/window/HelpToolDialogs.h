#pragma once
#include "model/Configuration.h"
#include "model/HelpTools.h"
#include "window/EditTools.h"
#include "window/WidgetsFwd.h"

namespace kestrel {

// The parameter help tools of a step row. Each composes a value from its parts; nothing
// reaches the step before OK, so Cancel (or closing the window) leaves it as it was. The
// windows only copy values between their tool object and the controls.

// A help tool: its controls, then OK (the default button) and Cancel at the bottom.
class HelpToolDialog : public ToolDialog {
public:
    using ToolDialog::ToolDialog;

    QPushButton* OKButton = nullptr;
    QPushButton* CancelButton = nullptr;

protected:
    // OK and Cancel below what `layout` holds (Cancel rejects); the window keeps its size.
    void addOkCancel(QVBoxLayout* layout);
};

// The time tool: "Time" (Par2) on the slider, "Base" (Par3) in the box.
class TimeToolDialog : public HelpToolDialog {
    Q_OBJECT
public:
    explicit TimeToolDialog(QWidget* parent = nullptr);
    // Shows the tool on the step; OK sets its Par2 and Par3 and returns true.
    bool run(StepRecord& step);

    TimeTool tool;
    QLabel* LabelCTBase;
    QLineEdit* TextCTBase;
    QSpinBox* UpDownCTBase;
    QSlider* SliderCTTime;
    QLabel* LabelCTMaxTime;
    QLabel* LabelCTMaxTimeValue;
    QLabel* LabelCTTime;
    QLabel* LabelCTTimeValue;

public slots:
    void TextCTBase_Change();
    void UpDownCTBase_Change(int base);
    void SliderCTTime_Change(int time);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showTool() const; // the controls from the tool
};

// The pattern tool of the "Multibit" instructions.
class PatternToolDialog : public HelpToolDialog {
    Q_OBJECT
public:
    explicit PatternToolDialog(QWidget* parent = nullptr);
    // Shows the tool on the step (its instruction has a pattern); OK sets Par1 and
    // returns true.
    bool run(StepRecord& step);

    PatternTool tool;
    QCheckBox* chkUitgang[7]; // as many shown as the instruction has outputs
    QCheckBox* chkAllDark;    // only where bit 5 is no output
    QCheckBox* chkNoDark;     // only where bit 6 is no output
    QLabel* lblParam;
    QLineEdit* txtParameter;
    QLabel* lblOriginal;
    QLineEdit* txtOriginal;

private:
    void showTool();
};

// The event-pattern tool of "Event Input": the event inputs and at most one action. The
// seventh option, "No action", is the value without an action, so that every value the
// tool composes is shown again as it was chosen when the tool is opened on it.
class EventPatternToolDialog : public HelpToolDialog {
    Q_OBJECT
public:
    explicit EventPatternToolDialog(QWidget* parent = nullptr);
    // Shows the tool on the step; OK sets Par1 and returns true.
    bool run(StepRecord& step);

    EventPatternTool tool;
    QCheckBox* chkEvent[4];
    QRadioButton* optEvent[6];
    QRadioButton* optNoEvent; // "No action"
    QLabel* lblParam;
    QLineEdit* txtParameter; // composed from the boxes only
    QLabel* lblOriginal;
    QLineEdit* txtOriginal;

private:
    void showTool();
    QButtonGroup* options;
};

// The level tool: a parameter 0..127 as level and time index, and the delay of that index.
class LevelToolDialog : public HelpToolDialog {
    Q_OBJECT
public:
    explicit LevelToolDialog(QWidget* parent = nullptr);
    // Shows the tool on a parameter 0..127; OK sets it and returns true.
    bool run(int& parameter);

    LevelTool tool;
    QLabel* lblParameter;
    QLineEdit* txtParameter;
    QLabel* lblLevel;
    QLineEdit* txtLevel;
    QLabel* lblTimeIndex;
    QLineEdit* txtTimeIndex;
    QLabel* lblDelay;
    QLineEdit* txtDelay; // read-only

private:
    // A box left: it clamps through the tool and the others follow.
    void take(QLineEdit* box);
    void showTool() const;
};

} // namespace kestrel
