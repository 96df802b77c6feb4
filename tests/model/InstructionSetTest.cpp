#include "model/InstructionSet.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(InstructionSet, CodesBeyondTheTableAreProgramFaultsAndTheListKeepsItsOrder)
{
    EXPECT_THROW(instructionInfo(129), ProgramFault);
    EXPECT_THROW(instructionInfo(-1), ProgramFault);
    EXPECT_TRUE(instructionInfo(128).Name.empty());

    // "-" first, then by kind and code; an unknown code selects "-".
    const auto& list = InstructionTable::instance().list();
    EXPECT_EQ(list[0].name, "-");
    for (std::size_t i = 1; i < list.size(); ++i) {
        const auto& a = instructionInfo(list[i - 1].code);
        const auto& b = instructionInfo(list[i].code);
        EXPECT_TRUE(a.Kind < b.Kind || (a.Kind == b.Kind && list[i - 1].code < list[i].code)) << i;
        EXPECT_FALSE(b.Name.empty()) << list[i].code;
    }
    EXPECT_EQ(list[InstructionTable::instance().listIndexOf(97)].name, "SetLevel & WtRnd");
    EXPECT_EQ(InstructionTable::instance().listIndexOf(50), 0);
}

TEST(InstructionSet, NormaliseStep)
{
    StepRecord wait{102, 1, 5, 7, 20, 2};
    const NormalisedStep n = normaliseStep(wait);
    EXPECT_EQ(wait, (StepRecord{102, 0, 0, 0, 20, 2}));
    EXPECT_EQ(std::tuple(n.fadeVisible, n.fadeCaption, n.headings),
              std::tuple(false, "", std::array<std::string, 4>{"", "", "Time", "Base"}));

    StepRecord on{9, 1, 4, 10, 30, 3};
    const NormalisedStep m = normaliseStep(on);
    EXPECT_EQ(on, (StepRecord{9, 1, 4, 10, 0, 0}));
    EXPECT_EQ(std::tuple(m.fadeVisible, m.fadeCaption), std::tuple(true, "Fade"));

    StepRecord unknown{50, 1, 1, 1, 1, 1};
    normaliseStep(unknown);
    EXPECT_EQ(unknown, (StepRecord{50, 0, 0, 0, 0, 0}));
}
