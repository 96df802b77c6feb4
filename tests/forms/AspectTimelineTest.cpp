// The timeline of a pin's aspects: each step's place and width from its duration.
#include "forms/AspectTimeline.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(AspectTimeline, BlocksFollowTheStepDurationsUpToTheFirstEmptyStep)
{
    Configuration c;
    c.CurrentPin = 2;
    c.pin(2).AspectLayout = 3; // four aspects of nine steps
    const StepRecord program[] = {
        {9, 0, 0, 10, 0, 0},    // On: passes at once
        {102, 0, 0, 0, 50, 0},  // Wait 1 s
        {96, 0, 0, 12, 25, 1},  // SetLevel & Wait, 25 x 8 ticks
        {102, 0, 0, 0, 100, 3}, // Wait 100 x 512: more than the module counts
        {1, 0, 0, 0, 1, 0},     // Jump to aspect 0, step 1
        {},
        {9, 0, 0, 0, 0, 0}, // the program ended at the empty step
    };
    for (int s = 0; s < 7; ++s)
        c.step(2, 0, s) = program[s];

    const Timeline t = aspectTimeline(c);
    ASSERT_EQ(t.rows.size(), 4u);
    struct Expect {
        const char *name, *key;
        int start, width;
        bool overflow;
        int jumpAspect, jumpStep;
    };
    const Expect expected[] = {
        {"On", "T(/60) 10", 0, 0, false, -1, -1},
        {"Wait", "00:01.00", 0, 50, false, -1, -1},
        {"SetLevel & Wait", "Level 12", 50, 200, false, -1, -1},
        {"Wait", "OVFLOW", 250, kLongestStep, true, -1, -1},
        {"Jump", "Asp# 0", 250 + kLongestStep, 0, false, 0, 1},
    };
    const auto& blocks = t.rows[0].blocks;
    ASSERT_EQ(blocks.size(), std::size(expected));
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const TimelineBlock& b = blocks[i];
        const Expect& e = expected[i];
        EXPECT_EQ(std::tuple(b.step, b.name, b.key, b.start, b.width, b.overflow, b.jumpAspect, b.jumpStep),
                  std::tuple(int(i), e.name, e.key, e.start, e.width, e.overflow, e.jumpAspect, e.jumpStep));
    }
    EXPECT_EQ(std::tuple(t.rows[0].length, t.rows[0].marks, t.longest, t.mostMarks, t.rows[1].blocks.size()),
              std::tuple(250 + kLongestStep, 2, 250 + kLongestStep, 2, 0u));

    c.pin(2).AspectLayout = 2; // twelve aspects of three steps: the program stops at step 2
    EXPECT_EQ(std::tuple(aspectTimeline(c).rows.size(), aspectTimeline(c).rows[0].length),
              std::tuple(12u, 250));
    c.pin(2).AspectLayout = 0;
    EXPECT_TRUE(aspectTimeline(c).rows.empty());
}
