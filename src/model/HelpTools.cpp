#include "model/HelpTools.h"
#include "base/Translatable.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "model/InstructionSet.h"
#include "model/StepDisplay.h"

namespace kestrel {

namespace {

long clampLong(long v, long lo, long hi, bool& clamped)
{
    clamped = v < lo || v > hi;
    return v < lo ? lo : (v > hi ? hi : v);
}

int clampInt(int v, int lo, int hi) { return v < lo ? lo : (v > hi ? hi : v); }

} // namespace

// ---- time tool

void TimeTool::open(const StepRecord& step)
{
    timeValue = clampInt(step.Par2, 0, kSliderMaximum);
    baseValue = clampInt(step.Par3, 0, 3);
    openedTime = timeValue;
    openedBase = baseValue;
    refresh();
}

std::string TimeTool::setBaseText(const std::string& typed)
{
    bool clamped = false;
    const long v = clampLong(valInt(typed), 0, 3, clamped);
    baseValue = static_cast<int>(v);
    refresh();
    return clamped ? std::to_string(v) : typed;
}

void TimeTool::setBase(int base)
{
    baseValue = clampInt(base, 0, 3);
    refresh();
}

void TimeTool::setTime(int time)
{
    checkIndex(time, kSliderMaximum + 1, "time slider");
    timeValue = time;
    shownText = durationText(durationTicks(timeValue, baseValue));
}

void TimeTool::cancel()
{
    timeValue = openedTime;
    baseValue = openedBase;
    refresh();
}

void TimeTool::apply(StepRecord& step) const
{
    step.Par2 = static_cast<std::uint8_t>(timeValue);
    step.Par3 = static_cast<std::uint8_t>(baseValue);
}

void TimeTool::refresh()
{
    maxText = durationText(durationTicks(kSliderMaximum, baseValue));
    shownText = durationText(durationTicks(timeValue, baseValue));
}

// ---- pattern tool

void PatternTool::open(const StepRecord& step)
{
    const InstructionInfo& info = instructionInfo(step.Instruction);
    if (info.HelpTool < 1 || info.HelpTool > 7)
        throw ProgramFault("pattern tool opened for instruction " + std::to_string(step.Instruction));
    opened = step;
    outputCount = info.HelpTool;
    const int shown = step.Par1 + info.Par1Shift;
    // Bits 5 and 6 are outputs +5 and +6 where the instruction has them, else the
    // "All Dark" and "No Dark-phase" flags.
    checks.fill(false);
    for (int i = 0; i < outputCount; ++i)
        checks[i] = (shown >> i) & 1;
    noDarkChecked = outputCount <= 6 && ((shown >> 6) & 1);
    allDarkChecked = outputCount <= 5 && ((shown >> 5) & 1) && !noDarkChecked;
    original = std::to_string(shown);
    parameter = original;
}

void PatternTool::setOutput(int index, bool checked)
{
    checkIndex(index, outputCount, "pattern output");
    checks[index] = checked;
    recompute();
}

void PatternTool::setAllDark(bool checked)
{
    if (checked)
        noDarkChecked = false;
    allDarkChecked = checked;
    recompute();
}

void PatternTool::setNoDark(bool checked)
{
    if (checked)
        allDarkChecked = false;
    noDarkChecked = checked;
    recompute();
}

bool PatternTool::output(int index) const
{
    checkIndex(index, 7, "pattern output");
    return checks[index];
}

int PatternTool::value() const
{
    int sum = 0;
    for (int i = 0; i < 7; ++i)
        if (checks[i])
            sum += 1 << i;
    if (allDarkChecked)
        sum += kAllDark;
    if (noDarkChecked)
        sum += kNoDark;
    return sum;
}

void PatternTool::recompute() { parameter = std::to_string(value()); }

void PatternTool::apply(StepRecord& step) const
{
    // The Par1 rule subtracts Par1Shift and keeps the value within Par1Min..Par1Max; the
    // pin and numbering do not enter into it for these instructions.
    step.Par1 = acceptParameter(step, 1, parameter, 0, 0).stored;
}

// ---- event-pattern tool

const std::array<std::string, 6>& EventPatternTool::optionCaptions()
{
    static const std::array<std::string, 6> captions = {
        KC_TRANSLATABLE("EventPatternTool", "Enable Off-Event"),
        KC_TRANSLATABLE("EventPatternTool", "Disable Off-Event"),
        KC_TRANSLATABLE("EventPatternTool", "Execute Off-Event"),
        KC_TRANSLATABLE("EventPatternTool", "Enable On-Event"),
        KC_TRANSLATABLE("EventPatternTool", "Disable On-Event"),
        KC_TRANSLATABLE("EventPatternTool", "Execute On-Event")};
    return captions;
}

int EventPatternTool::encode(const Choice& choice)
{
    int v = 0;
    for (int i = 0; i < 4; ++i)
        if (choice.events[i])
            v += 1 << i;
    if (choice.option != kNoOption) {
        checkIndex(choice.option, 6, "event option");
        if (choice.option < 3)
            v += 16 * (choice.option + 1);
        else
            v += 64 + 16 * (choice.option - 2);
    }
    return v;
}

EventPatternTool::Choice EventPatternTool::decode(int value)
{
    Choice c;
    for (int i = 0; i < 4; ++i)
        c.events[i] = (value >> i) & 1;
    const int group = (value >> 6) & 1;
    const int number = (value >> 4) & 3; // 1..3 within the group, 0 = no action
    if (number != 0)
        c.option = 3 * group + number - 1;
    return c;
}

void EventPatternTool::open(const StepRecord& step)
{
    opened = step;
    current = decode(step.Par1);
    original = std::to_string(step.Par1);
    parameter = original;
}

void EventPatternTool::setEvent(int input, bool checked)
{
    checkIndex(input, 4, "event input");
    current.events[input] = checked;
    parameter = std::to_string(encode(current));
}

void EventPatternTool::setOption(int option)
{
    if (option != kNoOption)
        checkIndex(option, 6, "event option");
    current.option = option;
    parameter = std::to_string(encode(current));
}

void EventPatternTool::apply(StepRecord& step) const
{
    bool clamped = false;
    step.Par1 = static_cast<std::uint8_t>(clampLong(valInt(parameter), 0, 127, clamped));
}

// ---- level tool

const std::array<int, 16>& LevelTool::delayTable()
{
    static const std::array<int, 16> table = {0, 1, 2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 64, 96, 128, 192};
    return table;
}

void LevelTool::open(int parameter)
{
    checkIndex(parameter, 128, "level parameter");
    value = parameter;
}

std::string LevelTool::setParameterText(const std::string& typed)
{
    bool clamped = false;
    value = static_cast<int>(clampLong(valInt(typed), 0, 127, clamped));
    return clamped ? std::to_string(value) : typed;
}

std::string LevelTool::setLevelText(const std::string& typed)
{
    bool clamped = false;
    long level = clampLong(valInt(typed), 0, 15, clamped);
    if (16 * level + timeIndex() > 127) {
        level = 7;
        clamped = true;
    }
    value = static_cast<int>(16 * level) + timeIndex();
    return clamped ? std::to_string(level) : typed;
}

std::string LevelTool::setTimeIndexText(const std::string& typed)
{
    bool clamped = false;
    const long index = clampLong(valInt(typed), 0, 15, clamped);
    value = 16 * level() + static_cast<int>(index);
    return clamped ? std::to_string(index) : typed;
}

std::string LevelTool::delayText() const { return durationText(delayTable()[timeIndex()]); }

} // namespace kestrel
