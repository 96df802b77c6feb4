#pragma once
#include "model/Configuration.h"

#include <array>
#include <string>

namespace kestrel {

// The computations of the parameter help tools. Each tool keeps its state between uses
// (the window is created once and kept); nothing reaches the step until apply(), so a
// cancelled tool leaves the step exactly as it was.

// Time tool: "Time" (Par2) on a slider 0..63 and "Base" (Par3) 0..3; durations are
// Time x 8^Base ticks of 20 ms.
class TimeTool {
public:
    static constexpr int kSliderMaximum = 63;

    // Takes Time and Base from the step (each brought into its range) and shows both labels.
    void open(const StepRecord& step);
    // TextCTBase typed or UpDownCTBase moved: clamped to 0..3; both labels are refreshed.
    // Returns the box text ("0" or "3" when clamped, else the typed text).
    std::string setBaseText(const std::string& typed);
    void setBase(int base);
    // The slider moved: the time label is refreshed.
    void setTime(int time);
    // Cancel: the values shown when the tool was opened come back.
    void cancel();
    // OK: the step's Par2 and Par3 become Time and Base.
    void apply(StepRecord& step) const;

    int time() const { return timeValue; }
    int base() const { return baseValue; }
    const std::string& maxTimeText() const { return maxText; } // LabelCTMaxTimeValue
    const std::string& timeText() const { return shownText; }  // LabelCTTimeValue

private:
    void refresh();
    int timeValue = 0;
    int baseValue = 0;
    int openedTime = 0;
    int openedBase = 0;
    std::string maxText = "00:00.00";
    std::string shownText = "00:00.00";
};

// Pattern tool for the "Multibit" instructions: one box per output (as many as the
// instruction's HelpTool number), "All Dark" (+32) and "No Dark-phase" (+64), which
// exclude each other.
class PatternTool {
public:
    static constexpr int kAllDark = 32;
    static constexpr int kNoDark = 64;

    // Opens on a step whose instruction has HelpTool 1..7 (else ProgramFault). The boxes
    // are set from the step's pattern; txtParameter and txtOriginal show the shown Par1.
    void open(const StepRecord& step);
    int outputs() const { return outputCount; }
    void setOutput(int index, bool checked); // index below outputs()
    void setAllDark(bool checked);
    void setNoDark(bool checked);
    bool output(int index) const;
    bool allDark() const { return allDarkChecked; }
    bool noDark() const { return noDarkChecked; }
    // The sum of the checked boxes.
    int value() const;

    const std::string& parameterText() const { return parameter; }
    const std::string& originalText() const { return original; }
    void setParameterText(const std::string& typed) { parameter = typed; }
    // Cancel: txtParameter and the boxes show the original value again.
    void cancel() { open(opened); }
    // OK: Par1 = txtParameter - Par1Shift, kept within the instruction's Par1 range.
    void apply(StepRecord& step) const;

private:
    void recompute();
    StepRecord opened;
    int outputCount = 0;
    std::array<bool, 7> checks{};
    bool allDarkChecked = false;
    bool noDarkChecked = false;
    std::string parameter;
    std::string original;
};

// Event-pattern tool for "Event Input". The value is:
//   bits 0..3  the checked event inputs 0..3;
//   bits 4..6  the chosen action, one of the six options (they form one group of which
//              at most one is chosen):
//              none 0, "Enable Off-Event" 16, "Disable Off-Event" 32, "Execute Off-Event" 48,
//              "Enable On-Event" 80, "Disable On-Event" 96, "Execute On-Event" 112
//   i.e. option number (1..3 within its group) x 16, plus 64 for the On-Event group. No
//   action is 0 in both groups; a value of 64..79 (On-Event group without an action) is
//   read as no action.
class EventPatternTool {
public:
    static constexpr int kNoOption = -1;
    // Option indices 0..5 in this order.
    static const std::array<std::string, 6>& optionCaptions();

    struct Choice {
        std::array<bool, 4> events{};
        int option = kNoOption; // -1 or 0..5
        bool operator==(const Choice&) const = default;
    };
    static int encode(const Choice& choice);
    static Choice decode(int value);

    // Sets the boxes from the step's Par1; txtParameter and txtOriginal show it.
    void open(const StepRecord& step);
    void setEvent(int input, bool checked);
    void setOption(int option); // -1 or 0..5
    const Choice& choice() const { return current; }
    const std::string& parameterText() const { return parameter; }
    const std::string& originalText() const { return original; }
    // Cancel: txtParameter and the boxes show the original value again.
    void cancel() { open(opened); }
    // OK: Par1 = txtParameter, kept within 0..127.
    void apply(StepRecord& step) const;

private:
    StepRecord opened;
    Choice current;
    std::string parameter;
    std::string original;
};

// Level tool: a parameter 0..127 is 16 x level + time index (level = parameter / 16,
// time index = parameter mod 16), and the time index selects a delay from a table.
//
// Delay table, in 20 ms ticks, roughly doubling every two steps:
//   index  0  1  2  3  4  5  6   7   8   9  10  11  12  13   14   15
//   ticks  0  1  2  3  4  6  8  12  16  24  32  48  64  96  128  192
// shown in txtDelay as "mm:ss.hh" (index 15 is 00:03.84).
class LevelTool {
public:
    static const std::array<int, 16>& delayTable();

    void open(int parameter);
    // Each box clamps and writes back (returns the box text); the other boxes follow.
    std::string setParameterText(const std::string& typed); // 0..127
    // Level: clamped to 0..15, and a level that would take the parameter above 127
    // (above 7) becomes 7; the time index is kept.
    std::string setLevelText(const std::string& typed);
    std::string setTimeIndexText(const std::string& typed); // 0..15

    int parameter() const { return value; }
    int level() const { return value / 16; }
    int timeIndex() const { return value % 16; }
    std::string parameterText() const { return std::to_string(parameter()); }
    std::string levelText() const { return std::to_string(level()); }
    std::string timeIndexText() const { return std::to_string(timeIndex()); }
    std::string delayText() const;

private:
    int value = 0;
};

} // namespace kestrel
