#include "forms/AspectEditor.h"
#include "base/ProgramFault.h"
#include "model/InstructionSet.h"
#include "support/RecordingDialogs.h"

#include <gtest/gtest.h>

using namespace kestrel;

namespace {

StepRecord mark(int n)
{
    return StepRecord{9, 0, static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(n), 0, 0};
}

// Fills steps 0..9 of the selected aspect with distinct "On" steps (Par0 = Par1 = step).
AspectRecord& filledAspect(Configuration& c)
{
    AspectRecord& a = c.Pins[c.CurrentPin].Aspects[c.CurrentAspect];
    for (int s = 0; s < kStepRecords; ++s)
        a.Steps[s] = mark(s);
    return a;
}

} // namespace

TEST(AspectEditor, ShowAspectFillsThePage)
{
    Configuration c;
    c.NumberingBase = 1;
    c.CurrentPin = 4;
    c.CurrentAspect = 1;
    PinRecord& p = c.Pins[4];
    p.Description = "Home signal";
    p.DeviceOffset = -2;
    c.Pins[2].DeviceDescription = "Entry";
    p.DccCount = 3;
    p.LynxCount = 1;
    p.AspectLayout = 2;
    p.Aspects[1].Description = "Clear";
    p.Aspects[1].Steps[0] = {102, 1, 5, 0, 63, 3}; // fade and Par0 are dropped
    p.Aspects[1].Steps[1] = {50, 0, 0, 0, 0, 0};   // no instruction: "-" selected
    p.Aspects[1].Steps[8] = {9, 0, 0, 0, 0, 0};

    const AspectView v = ShowAspect(c);
    EXPECT_EQ(std::tuple(v.pinText, v.pinDescription, v.devicePin, v.deviceDescription,
                         v.deviceDescriptionEnabled, v.aspectText, v.aspectDescription, v.initText,
                         v.dccCount + v.xdccCount + v.lynxCount),
              std::tuple("5", "Home signal", "3", "Entry", false, "1", "Clear", "-1", "301"));
    EXPECT_EQ(p.Aspects[1].Steps[0], (StepRecord{102, 0, 0, 0, 63, 3}));
    EXPECT_EQ(InstructionTable::instance().list()[v.rows[0].listIndex].name, "Wait");
    EXPECT_EQ(std::tuple(v.rows[0].timeText, v.rows[1].listIndex, v.rows[1].instruction,
                         v.rows[0].parameters[2].text, v.rows[0].parameters[0].used),
              std::tuple("10:45.12", 0, 50, "63", false));
    // the headings are those of the row normalised last, row 8
    EXPECT_EQ(v.headings, (std::array<std::string, 4>{"P.O.", "T(/60)", "", ""}));
    EXPECT_EQ(std::tuple(v.layout.option, v.layout.aspectControlsVisible, v.layout.aspectMaximum,
                         v.layout.rowVisible[2], v.layout.rowVisible[3], v.rows[8].timeText), // row 8 hidden
              std::tuple(2, true, 11, true, false, ""));

    p.InitAspect = 12;
    setDeviceDescription(c, "ignored"); // a member's device name is its head's
    EXPECT_EQ(std::tuple(ShowAspect(c).initText, p.DeviceDescription), std::tuple("11", ""));
}

TEST(AspectEditor, SelectorsClamp)
{
    Configuration c;
    c.NumberingBase = 1;
    for (const auto& [typed, shown, pin] : {std::tuple{"0", "1", 0}, {"40", "32", 31}, {"7", "7", 6}}) {
        const Selection selected = selectPin(c, typed);
        EXPECT_EQ(std::tuple(selected.text, c.CurrentPin, selected.view.pinText),
                  std::tuple(shown, pin, shown));
    }

    c.Pins[6].AspectLayout = 3;
    EXPECT_EQ(selectAspect(c, "9").text, "3");
    EXPECT_EQ(c.CurrentAspect, 3);
    EXPECT_EQ(selectAspect(c, "-4").text, "0");
    // Typed, layout, shown, stored (the initial aspect is kept plus one).
    const std::tuple<const char*, int, const char*, int> init[] = {
        {"-5", 3, "-1", 0}, {"8", 3, "3", 4}, {"11", 2, "11", 12}};
    for (const auto& [typed, layout, shown, stored] : init) {
        c.Pins[6].AspectLayout = static_cast<std::uint8_t>(layout);
        EXPECT_EQ(setInitAspect(c, typed), shown);
        EXPECT_EQ(c.Pins[6].InitAspect, stored) << typed;
    }

    EXPECT_EQ(std::tuple(setAddressCount(c, AddressKind::Dcc, "9"),
                         setAddressCount(c, AddressKind::XDcc, "3"),
                         setAddressCount(c, AddressKind::Lynx, "2")),
              std::tuple("7", "1", "2"));
    EXPECT_EQ(std::tuple(c.DccFirstIndex[7], c.XDccTotal, c.LynxFirstIndex[6], c.LynxTotal),
              std::tuple(7, 1, 0, 2));

    // a count whose sum would overflow is put back
    c.Pins[32].DccCount = 250;
    EXPECT_THROW(setAddressCount(c, AddressKind::Dcc, "6"), ProgramFault);
    EXPECT_EQ(c.Pins[6].DccCount, 7);
}

TEST(AspectEditor, RowEdits)
{
    Configuration c;
    c.CurrentPin = 30;
    c.Pins[30].AspectLayout = 3;
    const RowEdit wait = setInstruction(c, 4, 102);
    EXPECT_EQ(std::tuple(wait.headings, wait.row.fadeVisible),
              std::tuple(std::array<std::string, 4>{"", "", "Time", "Base"}, false));
    const ParameterEdit time = setParameter(c, 4, 2, "70");
    EXPECT_EQ(std::tuple(time.text, time.timeText), std::tuple("63", "00:01.26"));
    EXPECT_EQ(setParameter(c, 4, 3, "1").timeText, "00:10.08");

    setInstruction(c, 0, 9);
    EXPECT_EQ(setParameter(c, 0, 0, "5").text, "1");
    const RowEdit faded = setFade(c, 0, true);
    EXPECT_EQ(std::tuple(faded.row.fadeChecked, faded.row.fadeCaption, c.Pins[30].Aspects[0].Steps[0]),
              std::tuple(true, "Fade", StepRecord{9, 1, 1, 0, 0, 0}));
    EXPECT_FALSE(setInstruction(c, 0, 96).row.fadeChecked); // no fade for this one
    EXPECT_THROW(setInstruction(c, 9, 9), ProgramFault);
}

TEST(AspectEditor, StepToolInsertAndDelete)
{
    Configuration c;
    c.CurrentPin = 1;
    c.CurrentAspect = 2;
    // The layout, the row selected, the edit, and the steps after it as the mark they hold (-1:
    // empty). Layout 2 shows three rows, layout 3 nine: the edit stays within them, steps below are
    // untouched.
    const std::tuple<int, int, void (*)(Configuration&), std::array<int, kStepRecords>> cases[] = {
        {2, 0, insertStep, {-1, 0, 1, 3, 4, 5, 6, 7, 8, 9}}, // old row 2 is lost
        {2, 2, insertStep, {0, 1, -1, 3, 4, 5, 6, 7, 8, 9}},
        {2, 0, deleteStep, {1, 2, -1, 3, 4, 5, 6, 7, 8, 9}},
        {3, 8, deleteStep, {0, 1, 2, 3, 4, 5, 6, 7, -1, 9}}, // only row 8 is cleared
        {3, 0, insertStep, {-1, 0, 1, 2, 3, 4, 5, 6, 7, 9}},
        {3, 3, deleteStep, {0, 1, 2, 4, 5, 6, 7, 8, -1, 9}},
    };
    for (const auto& [layout, row, edit, steps] : cases) {
        c.Pins[1].AspectLayout = static_cast<std::uint8_t>(layout);
        const AspectRecord& a = filledAspect(c);
        selectStepRow(c, row);
        edit(c);
        for (int s = 0; s < kStepRecords; ++s)
            EXPECT_EQ(a.Steps[s], steps[s] < 0 ? StepRecord{} : mark(steps[s]))
                << "layout " << layout << " row " << row << " step " << s;
    }
    EXPECT_THROW(selectStepRow(c, 9), ProgramFault);
    // An option beyond the three is a program fault (the clamps: AspectsPageTest).
    EXPECT_THROW(changeLayout(c, 3), ProgramFault);
}

TEST(AspectEditor, AspectTool)
{
    Configuration c;
    test::RecordingDialogs dialogs;
    AspectTool tool;
    c.CurrentAspect = 1;
    EXPECT_FALSE(tool.paste(c, dialogs));
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Nothing to Paste"});

    AspectRecord& a = c.Pins[0].Aspects[1];
    a.Description = "Stop";
    a.Steps[0] = {9, 1, 2, 3, 0, 0}; // "On"
    a.Steps[1] = {0, 1, 4, 5, 6, 1}; // "-" with leftovers
    a.Steps[2] = {8, 0, 7, 8, 0, 0}; // "Off"
    a.Steps[9] = {8, 0, 7, 8, 0, 0};
    tool.copy(c);
    c.CurrentAspect = 5;
    EXPECT_TRUE(tool.paste(c, dialogs));
    EXPECT_EQ(c.Pins[0].Aspects[5], a);

    c.CurrentAspect = 1;
    tool.clean(c);
    EXPECT_EQ(std::tuple(a.Description, a.AspectMark, a.Steps[0], a.Steps[1], a.Steps[2]),
              std::tuple("", -1, (StepRecord{9, 1, 2, 3, 0, 0}), StepRecord{}, StepRecord{}));

    c.CurrentAspect = 5;
    tool.clear(c);
    AspectRecord cleared{"", -1, {}}; // step 9, never used, is kept
    cleared.Steps[9] = {8, 0, 7, 8, 0, 0};
    EXPECT_EQ(c.Pins[0].Aspects[5], cleared);
}

TEST(AspectEditor, NumberingAndHelpDecision)
{
    Configuration c;
    c.CurrentPin = 9;
    NumberingView on = setNumbering(c, true);
    EXPECT_EQ(std::tuple(on.legend, on.pinMinimum, on.pinMaximum, on.view.pinText),
              std::tuple("Pin       1..8         9..16      17..24       25..32", 1, 32, "10"));
    NumberingView off = setNumbering(c, false);
    EXPECT_EQ(std::tuple(off.legend, off.view.pinText, c.NumberingBase),
              std::tuple("Pin       0..7         8..15      16..23       24..31", "9", 0));

    // Last those without a tool, the "Level" boxes of 0..31 among them (no room for 16 x level).
    using B = HelpBox;
    using K = HelpToolKind;
    const std::tuple<int, HelpBox, HelpToolKind> help[] = {
        {102, B::Time, K::Time},   {120, B::Par3, K::Time},        {13, B::Par1, K::Pattern},
        {37, B::Par1, K::Pattern}, {16, B::Par1, K::EventPattern}, {102, B::Par1, K::None},
        {13, B::Par2, K::None},    {38, B::Par1, K::None},         {96, B::Par1, K::None},
        {97, B::Par1, K::None},    {18, B::Par2, K::None}};
    test::RecordingDialogs dialogs;
    for (const auto& [instruction, box, kind] : help)
        EXPECT_EQ(helpToolFor({static_cast<std::uint8_t>(instruction), 0, 0, 0, 0, 0}, box, dialogs), kind)
            << instruction;
    EXPECT_EQ(dialogs.texts(),
              std::vector<std::string>(6, "Help tool not available for this box with the selected command"));
}
