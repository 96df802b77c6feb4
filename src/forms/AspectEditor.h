#pragma once
#include "model/AddressIndex.h"
#include "model/Configuration.h"
#include "model/StepDisplay.h"

#include <array>
#include <string>

namespace kestrel {

class UserDialogs;

// The editing logic of the aspect page. Every function works on the model and returns
// what the page must show, so the widgets only copy texts and flags into controls.
// Messages to the user ("Nothing to Paste", the help-tool refusal) always go through
// UserDialogs; functions that can show one take it as an argument and report through
// their result whether the action went ahead.

constexpr int kStepRows = 9; // step rows 0..8 of the page

// One step row as shown.
struct StepRowView {
    int instruction = 0; // the step's instruction code
    int listIndex = 0;   // item to select in the row's instruction list
    bool fadeChecked = false;
    bool fadeVisible = false;
    std::string fadeCaption; // "Fade" or ""
    std::array<ParameterBox, 4> parameters;
    std::string timeText; // empty for a hidden row (its label is not refreshed)
};

// The part of the page that follows from the layout option.
struct LayoutView {
    int option = 0;                     // OptionPAspConf: 0 "0", 1 "4", 2 "12"
    bool aspectControlsVisible = false; // aspect selector, initial aspect, aspect description ...
    int aspectMaximum = 11;             // UpDownPAspAspect and UpDownPAspInit
    std::array<bool, kStepRows> rowVisible{};
};

// Everything ShowAspect puts on the page.
struct AspectView {
    std::string pinText;           // TextPAspOutput: CurrentPin + NumberingBase
    std::string pinDescription;    // TextPAspDesc
    std::string devicePin;         // TextDevicePin: device head + NumberingBase
    std::string deviceDescription; // TextDeviceDescription
    bool deviceDescriptionEnabled = false;
    std::string aspectText;        // TextPAspAspect
    std::string aspectDescription; // TextPAspAspDesc
    std::string initText;          // TextPAspInit: InitAspect - 1
    std::string dccCount;          // TextPaspDCCn
    std::string xdccCount;         // TextPAspXDCCn
    std::string lynxCount;         // TextPaspLynxn
    std::array<StepRowView, kStepRows> rows;
    std::array<std::string, 4> headings; // captions of the row normalised last
    LayoutView layout;
};

// AspectLayout for a layout option (0 -> 0, 1 -> 3, 2 -> 2) and back; any stored layout
// other than 2 and 3 is shown as option 0.
int layoutOfOption(int option);
int optionOfLayout(int aspectLayout);
// The largest aspect (and initial aspect) the page takes for a layout: 3 for layout 3, else 11.
int aspectMaximum(int aspectLayout);
// The last step of an aspect that the step tool touches: 8 for layout 3, else 2.
int lastUsableStep(int aspectLayout);

// Shows the selected pin and aspect. Every step row 0..8 of the aspect is normalised on
// the way, and a stored layout other than 2 or 3 is stored as 0.
AspectView ShowAspect(Configuration& config);

// A click on layout option 0..2: shows or hides the aspect controls and rows 3..8, clamps
// the selected aspect to the new maximum, drops an initial aspect above it (InitAspect 0),
// stores the layout, and shows the page again.
AspectView changeLayout(Configuration& config, int option);

// A typed selector value: the text the box shows afterwards and the page.
struct Selection {
    std::string text;
    AspectView view;
};
// TextPAspOutput: clamped to NumberingBase .. NumberingBase + 31.
Selection selectPin(Configuration& config, const std::string& typed);
// TextPAspAspect: clamped to 0 .. the layout's maximum.
Selection selectAspect(Configuration& config, const std::string& typed);
// TextPAspInit: clamped to -1 .. the layout's maximum; InitAspect = value + 1. Returns the box text.
std::string setInitAspect(Configuration& config, const std::string& typed);
// An address count box: clamped to 0 .. addressCountMaximum(kind), stored, and that kind's
// address index rebuilt (the count is put back if the rebuild overflows). Returns the box text.
std::string setAddressCount(Configuration& config, AddressKind kind, const std::string& typed);

void setPinDescription(Configuration& config, const std::string& text);
void setAspectDescription(Configuration& config, const std::string& text);
// Stored only where the selected pin heads its device (the box is disabled otherwise);
// returns whether it was stored.
bool setDeviceDescription(Configuration& config, const std::string& text);

// One row of the selected aspect, normalised, with the headings it sets.
struct RowEdit {
    StepRowView row;
    std::array<std::string, 4> headings;
};
RowEdit showStepRow(Configuration& config, int row);
// Choosing an instruction (the item's code) and clicking the fade box: store, normalise,
// recompute the time.
RowEdit setInstruction(Configuration& config, int row, int code);
RowEdit setFade(Configuration& config, int row, bool checked);
// Typing into parameter box 0..3 of a row: clamp, store, recompute the time.
struct ParameterEdit {
    std::string text;     // what the box shows now
    std::string timeText; // the row's time label
};
ParameterEdit setParameter(Configuration& config, int row, int parameter, const std::string& typed);

// The aspect tool: one whole aspect record as clipboard, empty until the first copy.
class AspectTool {
public:
    void copy(const Configuration& config);
    // false (and "Nothing to Paste") with an empty clipboard; the tool then stays open.
    bool paste(Configuration& config, UserDialogs& dialogs) const;
    // Description "", state word all ones, steps 0..8 zero.
    void clear(Configuration& config) const;
    // Description "", state word all ones; the steps before the first empty one are kept,
    // the first empty one keeps only its instruction (0), every later one is cleared.
    void clean(Configuration& config) const;
    bool hasContent() const { return filled; }

private:
    AspectRecord clipboard;
    bool filled = false;
};

// The step tool, on CurrentStep of the selected aspect.
void selectStepRow(Configuration& config, int row); // a click on a row's label
void insertStep(Configuration& config);
void deleteStep(Configuration& config);

// "Start numbering at 1".
struct NumberingView {
    std::string legend; // LabelGenHWCPin
    int pinMinimum = 0; // range of UpDownPAspOutput and UpDownECpin
    int pinMaximum = 31;
    AspectView view; // its pinText is the shown selected pin
};
NumberingView setNumbering(Configuration& config, bool checked);

// Double-click on a box of a step row.
enum class HelpBox { Time, Par1, Par2, Par3 };
enum class HelpToolKind { None, Time, Pattern, EventPattern, Level };
// The tool to open; None after telling the user
// "Help tool not available for this box with the selected command". Besides the time,
// pattern and event-pattern tools that the instruction's HelpTool names, a parameter box
// captioned "Level" offers the level tool where its range takes the tool's whole value
// (0..127); a "Level" of 0..31 offers none.
HelpToolKind helpToolFor(const StepRecord& step, HelpBox box, UserDialogs& dialogs);
HelpToolKind helpToolForRow(Configuration& config, int row, HelpBox box, UserDialogs& dialogs);

} // namespace kestrel
