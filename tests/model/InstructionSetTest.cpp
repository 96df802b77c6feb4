#include "model/InstructionSet.h"
#include "base/ProgramFault.h"
#include "model/StepCodec.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(StepCodec, EveryInstructionRoundTripsWithAndWithoutFade)
{
    for (int code = 0; code < 128; ++code) {
        const InstructionInfo& info = instructionInfo(code);
        if (info.Name.empty())
            continue;
        for (int fade = 0; fade <= 1; ++fade) {
            StepRecord s{static_cast<std::uint8_t>(code), static_cast<std::uint8_t>(fade), 0, 17, 42, 3};
            if (code == 4 || code == 5)
                s.Par0 = 0; // not sent for the SendSerial pair
            const auto bytes = encodeStep(s);
            SCOPED_TRACE(info.Name + " fade " + std::to_string(fade));
            EXPECT_EQ(bytes[0], code + 16 * fade);
            const StepRecord back = decodeStep(bytes);
            if (fade == 0 || info.FadeAllowed) {
                EXPECT_EQ(back, s);
            } else if (code >= 64 || (code >= 16 && code <= 18)) {
                // these codes never read back as faded
                EXPECT_EQ(back.Fade, 0);
            }
        }
    }
}

TEST(StepCodec, CodeByteSplit)
{
    // The code byte, the instruction and fade it splits into.
    const std::tuple<int, int, int> cases[] = {
        {26, 10, 1},                                // "Invert" faded
        {17, 17, 0},                                // "Feedback", never faded
        {16, 16, 0},  {18, 18, 0},   {112, 112, 0}, // "SetAspect 0"
        {0x13, 3, 1}, {0x43, 67, 0}, {63, 47, 1},   {64, 64, 0}, {9, 9, 0},
    };
    for (const auto& [byte, instruction, fade] : cases) {
        StepRecord s;
        splitCodeByte(byte, s);
        EXPECT_EQ(std::tuple(int(s.Instruction), int(s.Fade)), std::tuple(instruction, fade)) << byte;
    }
    for (int b = 64; b < 128; ++b) {
        StepRecord s;
        splitCodeByte(b, s);
        EXPECT_EQ(s.Fade, 0) << b;
    }
}

TEST(StepCodec, SendSerialPacksEightBitValues)
{
    const StepRecord two{5, 0, 0, 200, 129, 7};
    EXPECT_EQ(encodeStep(two), (std::array<int, 5>{5, 3, 72, 1, 7}));
    EXPECT_EQ(decodeStep({5, 3, 72, 1, 7}), two);

    const StepRecord one{4, 0, 0, 200, 5, 0};
    EXPECT_EQ(encodeStep(one), (std::array<int, 5>{4, 1, 72, 5, 0}));
    // Par0 is not sent for these codes and reads back as 0
    EXPECT_EQ(decodeStep(encodeStep({4, 0, 9, 255, 0, 0})), (StepRecord{4, 0, 0, 255, 0, 0}));
}

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
