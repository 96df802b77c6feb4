#pragma once
#include "files/DeviceDefinitions.h"
#include "forms/AspectEditor.h"
#include "ops/JobDispatcher.h"
#include "session/Session.h"
#include "window/Bindings.h"
#include "window/Guard.h"
#include "window/WidgetsFwd.h"

#include <QWidget>
#include <functional>
#include <memory>

namespace kestrel {

class EditPinDialog;
class EditAspectDialog;
class EditStepDialog;
class TimeToolDialog;
class PatternToolDialog;
class EventPatternToolDialog;
class LevelToolDialog;
class AspectTimeline;

// The aspect page: CurrentPin's description, device, aspect layout, address counts and
// initial aspect, and the program of the selected aspect as nine step rows; the pin,
// aspect and step tools behind the labels "Pin", "Aspect" and each step number; the help
// tools behind the parameter boxes; the transfers of the pin, its device and its aspects;
// and the device definitions (Load Device, Save Device, Reload DD). Widgets carry the
// control names (objectName = member name, arrays as Name_index).
//
// Every edit goes straight into the model. The page shows what ShowAspect gives: after a
// selection, a layout change, a tool, a read or a load the whole page; after an edit in
// a step row only that row and the column headings. The headings take the captions of the
// row that has the focus (else of the chosen step), and every parameter box's tool tip says
// what the value does for its row's instruction and the range it takes. Beside the rows, TimelinePAsp
// pictures the pin's aspects over time; it follows every showing and every taken entry, and a click on a step
// in it selects that aspect and step and puts the focus on the step's row.
class AspectsPage : public QWidget {
    Q_OBJECT
public:
    // `guard` is the window's; a page on its own keeps one of its own.
    AspectsPage(Session& session, DeviceList& devices, std::function<void(JobName job)> startJob,
                Guard* guard = nullptr, QWidget* parent = nullptr);
    ~AspectsPage() override;

    // ShowAspect: the whole page from the model (an entry typed but not yet taken is
    // taken first) and the device list.
    void refresh();
    void commitPending();
    // CurrentPin moved, or its record (or a device's pins) was replaced here: the window
    // shows the pin everywhere.
    std::function<void()> onPinChosen;
    // "Show Details" changed: the window shows or hides the pin-configuration page's
    // parameter buttons with it.
    std::function<void(bool shown)> onDetailsChanged;

    // Pin, device and layout
    QLabel* LabelPAspOutput;
    QLineEdit* TextPAspOutput;
    QSpinBox* UpDownPAspOutput;
    QLineEdit* TextPAspDesc;
    QLineEdit* TextDevicePin;
    QLineEdit* TextDeviceDescription;
    QRadioButton* OptionPAspConf[3];
    QButtonGroup* OptionPAspConfGroup;
    QLabel* LabelPASPAdrCnt;
    QLineEdit* TextPaspDCCn;
    QSpinBox* UpDownPaspDCCn;
    QLineEdit* TextPAspXDCCn;
    QSpinBox* UpDownPAspXDCCn;
    QLineEdit* TextPaspLynxn;
    QSpinBox* UpDownPaspLynxn;

    // The pin's jobs
    QPushButton* CommandReadPin;
    QPushButton* CommandWritePin;
    QPushButton* CommandReadDevice;
    QPushButton* CommandWriteDevice;

    // Aspect
    QLabel* LabelPAspAspect;
    QLineEdit* TextPAspAspect;
    QSpinBox* UpDownPAspAspect;
    QLabel* LabelPAspAspDesc;
    QLineEdit* TextPAspAspDesc;
    QLabel* LabelPAspInit;
    QLineEdit* TextPAspInit;
    QSpinBox* UpDownPAspInit;

    // Step rows 0..8 and their headings
    QLabel* LabelPAspHStep;
    QLabel* LabelPAspHInst;
    QLabel* LabelPAspHFade;
    QLabel* LabelPAspOffset;
    QLabel* LabelPAspHParam1;
    QLabel* LabelPASpHParam2;
    QLabel* LabelPAspHParam3;
    QLabel* LabelPAspHTime;
    QLabel* LabelPAspStep[kStepRows];
    QComboBox* ComboPAspInst[kStepRows];
    QCheckBox* CheckPAspFade[kStepRows];
    QLineEdit* TextPAspOffset[kStepRows];
    QLineEdit* TextPAspPar1[kStepRows];
    QLineEdit* TextPAspPar2[kStepRows];
    QLineEdit* TextPAspPar3[kStepRows];
    QLabel* LabelPAspTime[kStepRows];
    AspectTimeline* TimelinePAsp;

    QCheckBox* CheckPAspShowDetails;
    QPushButton* CommandPAspReadPin;
    QPushButton* CommandPAspWritePin;
    QPushButton* CommandPAspWriteAspect;
    QPushButton* CommandPAspTestAspect;

    // Device definitions
    QComboBox* cboDevice;
    QLabel* lblDDVersion;
    QPushButton* CommandPAspPreLoad;
    QPushButton* CommandSaveDevice;
    QPushButton* CommandReloadDD;

    // The Edit menu's entries for the tools: each opens its tool as a click on its label
    // does, on the selected pin, the selected aspect, and the step row that has the focus
    // (else the row chosen last). The aspect and step tools are disabled while the pin has
    // no aspects. The rows themselves offer the tools' commands in a context menu (right
    // button, Shift+F10 or the Menu key).
    QAction* actionPinTool;    // "&Pin Tool..."
    QAction* actionAspectTool; // "&Aspect Tool..."
    QAction* actionStepTool;   // "&Step Tool..."

    // Reload DD, for the File menu: replaces the device definitions with a chosen file, or
    // appends that file's devices (Shift held on the button).
    void reloadDeviceDefinitions(bool append);

    // The tools, made on first use and kept (their clipboards live as long as the page).
    EditPinDialog* dlgEditPin = nullptr;
    EditAspectDialog* dlgEditAspect = nullptr;
    EditStepDialog* dlgEditStep = nullptr;
    TimeToolDialog* dlgCT = nullptr;
    PatternToolDialog* dlgKestrelCalcPattern = nullptr;
    EventPatternToolDialog* dlgKestrelCalcEventPattern = nullptr;
    LevelToolDialog* dlgKestrelCalcLevel = nullptr;

public slots:
    void LabelPAspOutput_Click();
    void LabelPAspAspect_Click();
    void LabelPAspStep_Click(int row);
    // A double-click (or F2) on a row's time label or parameter box.
    void helpTool(int row, HelpBox box);
    void CommandPAspPreLoad_Click();
    void CommandSaveDevice_Click();
    // Left button (1) only; Shift (1) appends, anything else replaces.
    void CommandReloadDD_MouseDown(int button, int shift);
    // The step row (0..8) a tool acts on from the Edit menu.
    int focusedStepRow() const;
    void CheckPAspShowDetails_Click();
    // A click on a step in the timeline.
    void TimelinePAsp_Click(int aspect, int step);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* buildPinArea();
    QWidget* buildAspectArea();
    QWidget* buildDeviceArea();
    void bind();
    // A selector's box: the typed selection clamped and written back, the page's view made
    // for it (its box showing `text`), then `then`.
    void bindSelector(QLineEdit* box, std::string AspectView::*text,
                      Selection (*select)(Configuration&, const std::string&),
                      const std::function<void()>& then);
    // Shows one step row from `view`; the headings from the focused row.
    void showRow(int row);
    void showHeadings();
    void showDetails();
    void showTimeline();
    // After a tool or a device load: the page and, through onPinChosen, the window.
    void pinReplaced();
    StepRecord& step(int row);
    // The tools, made on first use.
    EditPinDialog& pinTool();
    EditAspectDialog& aspectTool();
    EditStepDialog& stepTool();
    // A context menu on a row: the pin tool's (row -2), the aspect tool's (-1) or a step
    // row's commands, below a text box's own.
    void showToolMenu(QWidget* on, int row, const QPoint& where);
    // One command of a tool run on the selected pin, aspect, or step `row`.
    void toolCommand(int row, QPushButton* commandButton);
    // A handler that reaches the model: pending entries first, inside the guard.
    void run(const std::function<void()>& handler);

    Session& session;
    DeviceList& devices;
    std::function<void(JobName)> startJob;
    std::unique_ptr<Guard> ownGuard;
    Guard& guard;
    Bindings bindings;
    AspectView view;     // what the page shows
    int reloadShift = 0; // the keys held when Reload DD was pressed (1 = Shift alone)
};

} // namespace kestrel
