#include "model/InstructionSet.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(InstructionSet, DefinedCodesAndNames) {
    const std::vector<int> undefined = [] {
        std::vector<int> v{2, 40, 41, 124, 125, 126, 128};
        for (int c = 19; c <= 31; ++c)
            v.push_back(c);
        for (int c = 48; c <= 95; ++c)
            v.push_back(c);
        for (int c = 108; c <= 111; ++c)
            v.push_back(c);
        return v;
    }();
    for (int c : undefined)
        EXPECT_TRUE(instructionInfo(c).Name.empty()) << c;
    EXPECT_EQ(InstructionTable::instance().list().size(), 129u - undefined.size());

    EXPECT_THROW(instructionInfo(129), ProgramFault);
    EXPECT_THROW(instructionInfo(-1), ProgramFault);
}

// The rows whose ranges differ from their siblings'.
TEST(InstructionSet, RangesThatDifferFromTheFamily) {
    for (int code = 104; code <= 107; ++code) {
        EXPECT_EQ(instructionInfo(code).Par1Min, -64);
        EXPECT_EQ(instructionInfo(code).Par1Max, 63);
    }
    // SetAspect 3 and 6 keep 0..127, their siblings 0..11
    for (int code = 112; code <= 123; ++code) {
        const int expected = (code == 115 || code == 118) ? 127 : 11;
        EXPECT_EQ(instructionInfo(code).Par1Max, expected) << code;
        EXPECT_FALSE(instructionInfo(code).Par1Used);
    }
    EXPECT_EQ(instructionInfo(98).Par1Max, 31);
}

TEST(InstructionSet, ListOrderByKindThenCode) {
    const auto &list = InstructionTable::instance().list();
    const std::vector<std::string> head{"-", "Blink alt", "Off", "On", "Invert", "Random", "Multibit 2"};
    for (std::size_t i = 0; i < head.size(); ++i)
        EXPECT_EQ(list[i].name, head[i]);
    EXPECT_EQ(list.back().name, "If Not Less");
    for (std::size_t i = 1; i < list.size(); ++i) {
        const auto &a = instructionInfo(list[i - 1].code);
        const auto &b = instructionInfo(list[i].code);
        EXPECT_TRUE(a.Kind < b.Kind || (a.Kind == b.Kind && list[i - 1].code < list[i].code)) << i;
    }
    // selection by code searches the data; an unknown code selects "-"
    EXPECT_EQ(list[InstructionTable::instance().listIndexOf(97)].name, "SetLevel & WtRnd");
    EXPECT_EQ(InstructionTable::instance().listIndexOf(50), 0);
}

TEST(InstructionSet, NormaliseStep) {
    StepRecord wait{102, 1, 5, 7, 20, 2};
    const NormalisedStep n = normaliseStep(wait);
    EXPECT_EQ(wait, (StepRecord{102, 0, 0, 0, 20, 2}));
    EXPECT_FALSE(n.fadeVisible);
    EXPECT_EQ(n.fadeCaption, "");
    EXPECT_EQ(n.headings, (std::array<std::string, 4>{"", "", "Time", "Base"}));

    StepRecord on{9, 1, 4, 10, 30, 3};
    const NormalisedStep m = normaliseStep(on);
    EXPECT_EQ(on, (StepRecord{9, 1, 4, 10, 0, 0}));
    EXPECT_TRUE(m.fadeVisible);
    EXPECT_EQ(m.fadeCaption, "Fade");

    StepRecord unknown{50, 1, 1, 1, 1, 1};
    normaliseStep(unknown);
    EXPECT_EQ(unknown, (StepRecord{50, 0, 0, 0, 0, 0}));
}
