#include "ops/PinTransfer.h"
#include "support/ScriptedModule.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

using Frames = std::vector<std::vector<int>>;

TEST(PinRead, CodeBytesFadeAndAspectMajorOrder)
{
    ScriptedModule rig;
    // Layout 2; only the first three steps of aspect 0 carry a code.
    rig.answer({114, 5, 2});
    const int codes[] = {0x13, 0x12, 0x43};
    for (int a = 0; a < 12; ++a)
        for (int s = 0; s < 3; ++s)
            rig.answer({115, 5, a, s, a == 0 ? codes[s] : 0, 1, 2, 3, 4});
    rig.answer({{116, 5, 0x73, 0x0F, 0x1F, 0x2F, 0x3F}, {118, 5, 0x02, 0x11, 0x40}});
    ASSERT_TRUE(PAspReadPin(rig.session, 5));
    const auto& pin = rig.session.config.Pins[5];
    // Entry 0x73: initial aspect 3, stored plus one.
    EXPECT_EQ(std::tuple(pin.AspectLayout, pin.Aspects[0].Steps[0], pin.Aspects[0].Steps[1],
                         pin.Aspects[0].Steps[2], pin.InitAspect, pin.DccCount, pin.LynxCount),
              std::tuple(2, (StepRecord{3, 1, 1, 2, 3, 4}), (StepRecord{18, 0, 1, 2, 3, 4}),
                         (StepRecord{67, 0, 1, 2, 3, 4}), 4, 2, 1));

    const Frames f = rig.take();
    ASSERT_EQ(f.size(), 1u + 36 + 2); // the aspect editor's read stops before "q"
    EXPECT_EQ((Frames{f[0], f[1], f[4], f[36], f[37], f[38]}),
              (Frames{{114, 5}, {115, 5, 0, 0}, {115, 5, 1, 0}, {115, 5, 11, 2}, {116, 5}, {118, 5}}));
}

TEST(PinRead, AddressBytesInAnyOrderAndDevicePointer)
{
    // The pin, the three address bytes, the device offset they give.
    const std::tuple<int, std::array<int, 3>, int> cases[] = {
        {30, {0x43, 0x0B, 0x15}, -29}, {30, {0x15, 0x41, 0x0B}, 1}, {0, {0x0B, 0x15, 0x5F}, 31}};
    for (const auto& [p, bytes, offset] : cases) {
        ScriptedModule rig;
        rig.answer(
            {{114, p, 0}, {116, p, 0x7F, 0x0F, 0x1F, 0x2F, 0x3F}, {118, p, bytes[0], bytes[1], bytes[2]}});
        ASSERT_TRUE(PAspReadPin(rig.session, p));
        const auto& pin = rig.session.config.Pins[p];
        EXPECT_EQ(std::tuple(pin.DeviceOffset, pin.DccCount, pin.XDccCount, pin.LynxCount, pin.InitAspect),
                  std::tuple(offset, 3, 1, 5, 0));
    }
}

TEST(PinRead, LayoutOtherThanTwoOrThreeReadsNoStepsAndBadRepliesFail)
{
    ScriptedModule rig;
    rig.answer({114, 3, 5});
    rig.answer({116, 3, 0x65, 0x0F, 0x1F, 0x2F, 0x3F}); // tag 6: no initial aspect
    rig.answer({118, 3, 0x00, 0x10, 0x30});             // 0x30 carries no tag
    rig.session.config.Pins[3].InitAspect = 9;
    EXPECT_FALSE(PAspReadPin(rig.session, 3));
    EXPECT_EQ(std::tuple(rig.session.config.Pins[3].InitAspect, rig.dialogs.texts(), rig.take()),
              std::tuple(0, std::vector<std::string>{"Read Pin Address Configuration: Invalid Response"},
                         Frames{{114, 3}, {116, 3}, {118, 3}}));
    rig.answer({{114, 3, 0}, {116, 3, 0x7F, 0x0F, 0x1F, 0x2F, 0x3F}});
    EXPECT_FALSE(PAspReadPin(rig.session, 3)); // no reply to the address configuration
}

TEST(PinWrite, ExactRequestsAndPacingWhenOneWay)
{
    ScriptedModule rig;
    rig.session.link.settings.CheckKestrelBD = false;
    PinRecord& pin = rig.session.config.Pins[30];
    pin.AspectLayout = 3;
    pin.DccCount = 3;
    pin.XDccCount = 1;
    pin.LynxCount = 5;
    pin.DeviceOffset = -29;
    pin.Aspects[0].Steps[0] = {4, 0, 0, 200, 5, 0};
    pin.Aspects[3].Steps[8] = {9, 1, 2, 10, 0, 0};
    ASSERT_TRUE(WritePin(rig.session, 30));

    const Frames f = rig.take();
    ASSERT_EQ(f.size(), 3u + 36);
    // No initial aspect: 112 + 15.
    EXPECT_EQ((Frames{f[0], f[1], f[2], f[3], f[38]}), (Frames{{98, 30, 3},
                                                               {100, 30, 127},
                                                               {102, 30, 11, 21, 67},
                                                               {99, 30, 0, 0, 4, 1, 72, 5, 0},
                                                               {99, 30, 3, 8, 25, 2, 10, 0, 0}}));
    EXPECT_EQ(rig.clock.slept, 39 * 100);

    pin.AspectLayout = 1; // neither 2 nor 3: no steps
    pin.InitAspect = 12;
    ASSERT_TRUE(WritePin(rig.session, 30, true));
    // The pin configuration goes to flash last, mode 0.
    EXPECT_EQ(rig.take(), (Frames{{98, 30, 1}, {100, 30, 123}, {102, 30, 11, 21, 67}, {97, 30, 0}}));
    EXPECT_EQ(rig.clock.slept, 39 * 100 + 4 * 100);

    // "Write Aspect": the steps of one aspect only, and nothing for an aspect outside the layout.
    pin.AspectLayout = 3;
    ASSERT_TRUE(WriteAspect(rig.session, 30, 3));
    const Frames h = rig.take();
    ASSERT_EQ(h.size(), 9u);
    EXPECT_EQ(h[0], (std::vector<int>{99, 30, 3, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(h[8], (std::vector<int>{99, 30, 3, 8, 25, 2, 10, 0, 0}));
    EXPECT_FALSE(WriteAspect(rig.session, 30, 4));
    EXPECT_TRUE(rig.take().empty());
    EXPECT_EQ(rig.dialogs.texts().back(), "Pin 30 has no aspect 4 in its layout: nothing was written");
}
