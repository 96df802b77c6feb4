#include "forms/AspectEditor.h"
#include "base/Translatable.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "base/UserDialogs.h"
#include "model/InstructionSet.h"
#include "model/PinTools.h"

namespace kestrel {

namespace {

PinRecord& selectedPin(Configuration& config)
{
    checkIndex(config.CurrentPin, kPinCount, "current pin");
    return config.pin(config.CurrentPin);
}

AspectRecord& selectedAspect(Configuration& config)
{
    checkIndex(config.CurrentAspect, 12, "current aspect");
    return selectedPin(config).Aspects[config.CurrentAspect];
}

StepRecord& selectedStep(Configuration& config, int row)
{
    checkIndex(row, kStepRows, "step row");
    return selectedAspect(config).Steps[row];
}

long clampValue(long v, long lo, long hi, bool& clamped)
{
    clamped = v < lo || v > hi;
    return v < lo ? lo : (v > hi ? hi : v);
}

// The box text after clamping: the bound when clamped, the typed text otherwise.
std::string boxText(const std::string& typed, bool clamped, long value)
{
    return clamped ? std::to_string(value) : typed;
}

RowEdit makeRow(Configuration& config, int row, bool visible)
{
    StepRecord& step = selectedStep(config, row);
    const NormalisedStep n = normaliseStep(step);
    RowEdit out;
    out.headings = n.headings;
    out.row.instruction = step.Instruction;
    out.row.listIndex = InstructionTable::instance().listIndexOf(step.Instruction);
    out.row.fadeChecked = step.Fade != 0;
    out.row.fadeVisible = n.fadeVisible;
    out.row.fadeCaption = n.fadeCaption;
    for (int p = 0; p < 4; ++p)
        out.row.parameters[p] = showParameter(step, p, config.CurrentPin, config.NumberingBase);
    if (visible)
        out.row.timeText = stepTimeText(step);
    return out;
}

// The option click handler without the re-show: visibility, maxima, clamps, layout.
LayoutView applyLayout(Configuration& config, int option)
{
    checkIndex(option, 3, "layout option");
    PinRecord& pin = selectedPin(config);
    LayoutView lv;
    lv.option = option;
    lv.aspectControlsVisible = option != 0;
    const int layout = layoutOfOption(option);
    lv.aspectMaximum = aspectMaximum(layout);
    if (option == 1) {
        if (config.CurrentAspect > 3)
            config.CurrentAspect = 3;
        if (pin.InitAspect - 1 > 3)
            pin.InitAspect = 0;
    }
    for (int r = 0; r < kStepRows; ++r)
        lv.rowVisible[r] = option == 1 || (option == 2 && r < 3);
    pin.AspectLayout = static_cast<std::uint8_t>(layout);
    return lv;
}

} // namespace

int layoutOfOption(int option)
{
    checkIndex(option, 3, "layout option");
    static const int layouts[3] = {0, 3, 2};
    return layouts[option];
}

int optionOfLayout(int aspectLayout)
{
    if (aspectLayout == 2)
        return 2;
    if (aspectLayout == 3)
        return 1;
    return 0;
}

int aspectMaximum(int aspectLayout) { return aspectLayout == 3 ? 3 : 11; }

int lastUsableStep(int aspectLayout) { return aspectLayout == 3 ? 8 : 2; }

AspectView ShowAspect(Configuration& config)
{
    PinRecord& pin = selectedPin(config);
    AspectView view;
    view.pinText = std::to_string(config.CurrentPin + config.NumberingBase);
    view.pinDescription = pin.Description;

    const int head = deviceHead(config, config.CurrentPin);
    view.devicePin = std::to_string(head + config.NumberingBase);
    view.deviceDescription = deviceDescriptionText(config, config.CurrentPin);
    view.deviceDescriptionEnabled = pin.DeviceOffset == 0;

    const int aspectBefore = config.CurrentAspect;
    const int initBefore = pin.InitAspect;
    view.aspectDescription = selectedAspect(config).Description;

    for (int r = 0; r < kStepRows; ++r) {
        const RowEdit e = makeRow(config, r, false);
        view.rows[r] = e.row;
        view.headings = e.headings;
    }

    view.layout = applyLayout(config, optionOfLayout(pin.AspectLayout));
    // A clamp of the selected aspect or the initial aspect changes their boxes, which
    // shows the page once more.
    if (config.CurrentAspect != aspectBefore || pin.InitAspect != initBefore)
        return ShowAspect(config);

    for (int r = 0; r < kStepRows; ++r)
        if (view.layout.rowVisible[r])
            view.rows[r].timeText = stepTimeText(selectedStep(config, r));

    view.aspectText = std::to_string(config.CurrentAspect);
    view.initText = std::to_string(pin.InitAspect - 1);
    view.dccCount = std::to_string(pin.DccCount);
    view.xdccCount = std::to_string(pin.XDccCount);
    view.lynxCount = std::to_string(pin.LynxCount);
    return view;
}

AspectView changeLayout(Configuration& config, int option)
{
    applyLayout(config, option);
    return ShowAspect(config);
}

Selection selectPin(Configuration& config, const std::string& typed)
{
    bool clamped = false;
    const long v = clampValue(valInt(typed), config.NumberingBase, config.NumberingBase + 31, clamped);
    config.CurrentPin = static_cast<int>(v - config.NumberingBase);
    Selection out;
    out.text = boxText(typed, clamped, v);
    out.view = ShowAspect(config);
    return out;
}

Selection selectAspect(Configuration& config, const std::string& typed)
{
    bool clamped = false;
    const long v = clampValue(valInt(typed), 0, aspectMaximum(selectedPin(config).AspectLayout), clamped);
    config.CurrentAspect = static_cast<int>(v);
    Selection out;
    out.text = boxText(typed, clamped, v);
    out.view = ShowAspect(config);
    return out;
}

std::string setInitAspect(Configuration& config, const std::string& typed)
{
    PinRecord& pin = selectedPin(config);
    bool clamped = false;
    const long v = clampValue(valInt(typed), -1, aspectMaximum(pin.AspectLayout), clamped);
    pin.InitAspect = static_cast<std::uint8_t>(v + 1);
    return boxText(typed, clamped, v);
}

std::string setAddressCount(Configuration& config, AddressKind kind, const std::string& typed)
{
    std::uint8_t& count = addressCount(selectedPin(config), kind);
    bool clamped = false;
    const long v = clampValue(valInt(typed), 0, addressCountMaximum(kind), clamped);
    const std::uint8_t before = count;
    count = static_cast<std::uint8_t>(v);
    try {
        RecalcAddressIndex(config, kind);
    } catch (const ProgramFault&) {
        count = before;
        throw;
    }
    return boxText(typed, clamped, v);
}

void setPinDescription(Configuration& config, const std::string& text)
{
    selectedPin(config).Description = text;
}

void setAspectDescription(Configuration& config, const std::string& text)
{
    selectedAspect(config).Description = text;
}

bool setDeviceDescription(Configuration& config, const std::string& text)
{
    PinRecord& pin = selectedPin(config);
    if (pin.DeviceOffset != 0)
        return false;
    pin.DeviceDescription = text;
    return true;
}

RowEdit showStepRow(Configuration& config, int row) { return makeRow(config, row, true); }

RowEdit setInstruction(Configuration& config, int row, int code)
{
    checkIndex(code, kInstructionCodes, "instruction code");
    selectedStep(config, row).Instruction = static_cast<std::uint8_t>(code);
    return makeRow(config, row, true);
}

RowEdit setFade(Configuration& config, int row, bool checked)
{
    selectedStep(config, row).Fade = checked ? 1 : 0;
    return makeRow(config, row, true);
}

ParameterEdit setParameter(Configuration& config, int row, int parameter, const std::string& typed)
{
    StepRecord& step = selectedStep(config, row);
    const AcceptedParameter a =
        acceptParameter(step, parameter, typed, config.CurrentPin, config.NumberingBase);
    switch (parameter) {
    case 0:
        step.Par0 = a.stored;
        break;
    case 1:
        step.Par1 = a.stored;
        break;
    case 2:
        step.Par2 = a.stored;
        break;
    default:
        step.Par3 = a.stored;
        break;
    }
    return {a.text, stepTimeText(step)};
}

void AspectTool::copy(const Configuration& config)
{
    checkIndex(config.CurrentAspect, 12, "current aspect");
    clipboard = config.aspect(config.CurrentPin, config.CurrentAspect);
    filled = true;
}

bool AspectTool::paste(Configuration& config, UserDialogs& dialogs) const
{
    if (!filled) {
        dialogs.message(KC_TRANSLATABLE("Messages", "Nothing to Paste"));
        return false;
    }
    selectedAspect(config) = clipboard;
    return true;
}

void AspectTool::clear(Configuration& config) const
{
    AspectRecord& aspect = selectedAspect(config);
    aspect.Description.clear();
    aspect.AspectMark = kAllOnes;
    clearAspectSteps(aspect);
}

void AspectTool::clean(Configuration& config) const
{
    AspectRecord& aspect = selectedAspect(config);
    aspect.Description.clear();
    aspect.AspectMark = kAllOnes;
    // The first empty step loses its fade and parameters, every later step is cleared:
    // both end as six zero bytes.
    int s = 0;
    while (s < kStepRows && aspect.Steps[s].Instruction != 0)
        ++s;
    for (; s < kStepRows; ++s)
        aspect.Steps[s] = StepRecord{};
}

void selectStepRow(Configuration& config, int row)
{
    checkIndex(row, kStepRows, "step row");
    config.CurrentStep = row;
}

void insertStep(Configuration& config)
{
    checkIndex(config.CurrentStep, kStepRows, "current step");
    AspectRecord& aspect = selectedAspect(config);
    const int last = lastUsableStep(selectedPin(config).AspectLayout);
    const int at = config.CurrentStep;
    // From the end backwards: step last-1 goes to last and the old last step is lost.
    for (int s = last - 1; s >= at; --s)
        aspect.Steps[s + 1] = aspect.Steps[s];
    aspect.Steps[at] = StepRecord{};
}

void deleteStep(Configuration& config)
{
    checkIndex(config.CurrentStep, kStepRows, "current step");
    AspectRecord& aspect = selectedAspect(config);
    const int last = lastUsableStep(selectedPin(config).AspectLayout);
    const int at = config.CurrentStep;
    if (at >= last) {
        aspect.Steps[at] = StepRecord{};
        return;
    }
    for (int s = at + 1; s <= last; ++s)
        aspect.Steps[s - 1] = aspect.Steps[s];
    aspect.Steps[last] = StepRecord{};
}

NumberingView setNumbering(Configuration& config, bool checked)
{
    config.NumberingBase = checked ? 1 : 0;
    NumberingView out;
    out.legend = checked ? "Pin       1..8         9..16      17..24       25..32"
                         : "Pin       0..7         8..15      16..23       24..31";
    out.pinMinimum = config.NumberingBase;
    out.pinMaximum = config.NumberingBase + 31;
    out.view = ShowAspect(config);
    return out;
}

HelpToolKind helpToolFor(const StepRecord& step, HelpBox box, UserDialogs& dialogs)
{
    const int tool = instructionInfo(step.Instruction).HelpTool;
    switch (box) {
    case HelpBox::Time:
    case HelpBox::Par2:
    case HelpBox::Par3:
        if (tool == 9)
            return HelpToolKind::Time;
        break;
    case HelpBox::Par1:
        if (tool >= 2 && tool <= 7)
            return HelpToolKind::Pattern;
        if (tool == 16)
            return HelpToolKind::EventPattern;
        break;
    }
    if (box != HelpBox::Time) {
        const int parameter = box == HelpBox::Par1 ? 1 : box == HelpBox::Par2 ? 2 : 3;
        const InstructionInfo& info = instructionInfo(step.Instruction);
        // The level tool composes 16 x level + time index, 0..127: only a box that takes
        // all of that range can hold its value.
        const int lowest = parameter == 1 ? info.Par1Min + info.Par1Shift : 0;
        const int highest = parameter == 1   ? info.Par1Max + info.Par1Shift
                            : parameter == 2 ? par2Maximum(step.Instruction)
                                             : 3;
        if (info.used(parameter) && info.caption(parameter) == "Level" && lowest <= 0 && highest >= 127)
            return HelpToolKind::Level;
    }
    dialogs.message(
        KC_TRANSLATABLE("Messages", "Help tool not available for this box with the selected command"));
    return HelpToolKind::None;
}

HelpToolKind helpToolForRow(Configuration& config, int row, HelpBox box, UserDialogs& dialogs)
{
    return helpToolFor(selectedStep(config, row), box, dialogs);
}

} // namespace kestrel
