#include "model/HelpTools.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>

using namespace kestrel;

// What the tools' windows (tests/gui/ToolsTest.cpp) cannot reach: out-of-range use, the flags
// read back on opening and the clamp of a full seven-output pattern.
TEST(HelpTools, TimeAndPatternToolsOutsideWhatTheirWindowsOffer)
{
    TimeTool time;
    time.open({102, 0, 0, 0, 50, 0});
    EXPECT_THROW(time.setTime(64), ProgramFault);

    PatternTool t;
    StepRecord step{15, 0, 0, 1 + 4 + 16 + 64, 0, 0}; // "Multibit 5": outputs 0, 2, 4, No Dark-phase
    t.open(step);
    EXPECT_EQ(std::tuple(t.outputs(), t.noDark(), t.output(4), t.output(1)),
              std::tuple(5, true, true, false));
    EXPECT_THROW(t.setOutput(5, true), ProgramFault);

    StepRecord seven{33, 0, 0, 0, 0, 0};
    t.open(seven);
    EXPECT_EQ(t.outputs(), 7);
    for (int i = 0; i < 7; ++i)
        t.setOutput(i, true);
    t.setAllDark(true);
    t.apply(seven);
    EXPECT_EQ(seven.Par1, 127); // kept within the Par1 range
    EXPECT_THROW(t.open({9, 0, 0, 0, 0, 0}), ProgramFault);
}

TEST(HelpTools, EventPatternRoundTripsEveryValue)
{
    for (int events = 0; events < 16; ++events)
        for (int option = -1; option < 6; ++option) {
            EventPatternTool::Choice c;
            for (int i = 0; i < 4; ++i)
                c.events[i] = (events >> i) & 1;
            c.option = option;
            const int v = EventPatternTool::encode(c);
            EXPECT_TRUE(v >= 0 && v <= 127) << v;
            EXPECT_EQ(v & 15, events);
            EXPECT_EQ(EventPatternTool::decode(v), c) << v;
        }

    // absence of an action is 0; the On-Event group carries 64
    EXPECT_EQ(EventPatternTool::optionCaptions()[5], "Execute On-Event");
    EXPECT_EQ(std::tuple(EventPatternTool::encode({{true, false, false, false}, 5}),
                         EventPatternTool::encode({{true, false, false, false}, 0}),
                         EventPatternTool::encode({{}, 3}), EventPatternTool::decode(64).option),
              std::tuple(113, 17, 80, EventPatternTool::kNoOption));
    EventPatternTool t;
    EXPECT_THROW(t.setOption(6), ProgramFault);
}

TEST(HelpTools, LevelTool)
{
    LevelTool t;
    t.open(37);
    EXPECT_EQ(std::tuple(t.level(), t.timeIndex(), t.delayText()), std::tuple(2, 5, "00:00.12")); // 6 ticks
    EXPECT_EQ(t.setLevelText("9"), "7");
    EXPECT_EQ(t.parameter(), 117);
    EXPECT_EQ(t.setTimeIndexText("20"), "15");
    EXPECT_EQ(std::tuple(t.parameter(), t.delayText()), std::tuple(127, "00:03.84"));
    EXPECT_EQ(t.setParameterText("200"), "127");
    EXPECT_EQ(t.setParameterText("18"), "18");
    EXPECT_EQ(t.levelText() + "/" + t.timeIndexText(), "1/2");
    EXPECT_EQ(t.setLevelText("20"), "7");
    EXPECT_EQ(t.timeIndex(), 2);
    const auto& table = LevelTool::delayTable();
    for (std::size_t i = 1; i < table.size(); ++i)
        EXPECT_GT(table[i], table[i - 1]);
}
