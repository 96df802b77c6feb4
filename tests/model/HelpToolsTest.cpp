#include "model/HelpTools.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>
#include <set>

using namespace kestrel;

TEST(HelpTools, TimeTool)
{
    TimeTool t;
    EXPECT_EQ(std::tuple(t.maxTimeText(), t.timeText()), std::tuple("00:00.00", "00:00.00"));
    const StepRecord step{102, 0, 0, 0, 50, 0};
    t.open(step);
    EXPECT_EQ(std::tuple(t.timeText(), t.maxTimeText()), std::tuple("00:01.00", "00:01.26"));
    EXPECT_EQ(t.setBaseText("7"), "3");
    EXPECT_EQ(t.maxTimeText(), "10:45.12");
    t.setTime(63);
    EXPECT_EQ(t.timeText(), "10:45.12");
    EXPECT_EQ(t.setBaseText("-2"), "0");
    EXPECT_EQ(t.timeText(), "00:01.26");
    EXPECT_THROW(t.setTime(64), ProgramFault);

    t.cancel();
    EXPECT_EQ(std::tuple(t.time(), t.base()), std::tuple(50, 0));
    t.setBase(2);
    t.setTime(10);
    StepRecord target = step;
    t.apply(target);
    EXPECT_EQ(target, (StepRecord{102, 0, 0, 0, 10, 2}));
}

TEST(HelpTools, PatternTool)
{
    PatternTool t;
    StepRecord step{15, 0, 0, 3, 0, 0}; // "Multibit 5", pattern 3
    t.open(step);
    EXPECT_EQ(t.outputs(), 5);
    EXPECT_TRUE(t.output(0) && t.output(1));
    EXPECT_EQ(t.originalText(), "3");
    t.setOutput(1, false);
    t.setOutput(2, true);
    t.setAllDark(true);
    EXPECT_EQ(t.parameterText(), "37");
    t.setNoDark(true);
    EXPECT_FALSE(t.allDark());
    EXPECT_EQ(t.parameterText(), "69");
    EXPECT_THROW(t.setOutput(5, true), ProgramFault);

    t.cancel();
    EXPECT_EQ(std::tuple(t.parameterText(), t.output(1), t.noDark(), step.Par1),
              std::tuple("3", true, false, 3));
    t.setOutput(1, false);
    t.setOutput(2, true);
    t.setNoDark(true);
    t.setOutput(4, true);
    t.apply(step);
    EXPECT_EQ(step.Par1, 1 + 4 + 16 + 64);

    // reopening reads the flags back
    t.open(step);
    EXPECT_EQ(std::tuple(t.noDark(), t.output(4), t.output(1)), std::tuple(true, true, false));

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
    std::set<int> seen;
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
            seen.insert(v);
        }
    EXPECT_EQ(seen.size(), 16u * 7u);

    // absence of an action is 0; the On-Event group carries 64
    EventPatternTool t;
    StepRecord step{16, 0, 0, 0, 0, 0};
    t.open(step);
    EXPECT_EQ(t.choice().option, EventPatternTool::kNoOption);
    t.setEvent(0, true);
    t.setOption(5); // "Execute On-Event"
    EXPECT_EQ(EventPatternTool::optionCaptions()[5], "Execute On-Event");
    EXPECT_EQ(t.parameterText(), "113");
    t.setOption(0); // "Enable Off-Event"
    EXPECT_EQ(t.parameterText(), "17");
    t.cancel();
    EXPECT_EQ(t.parameterText(), "0");
    EXPECT_FALSE(t.choice().events[0]);
    t.setOption(3);
    t.apply(step);
    EXPECT_EQ(step.Par1, 80);
    t.open(step);
    EXPECT_EQ(t.choice().option, 3);
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
