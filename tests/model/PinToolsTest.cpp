#include "model/PinTools.h"
#include "base/ProgramFault.h"
#include "support/RecordingDialogs.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(PinTools, DeviceHeadLookup)
{
    Configuration c;
    c.Pins[0].DeviceDescription = "Signal";
    c.Pins[3].DeviceOffset = -3;
    c.Pins[4].DeviceOffset = -1; // refers to pin 3, which is a member itself
    c.Pins[31].DeviceDescription = "Wrap";
    c.Pins[1].DeviceOffset = 30;
    EXPECT_EQ(std::tuple(deviceHead(c, 3), deviceHead(c, 4)), std::tuple(0, 3));
    EXPECT_EQ(std::tuple(deviceDescriptionText(c, 3), deviceDescriptionText(c, 4),
                         deviceDescriptionText(c, 1), deviceDescriptionText(c, 0)),
              std::tuple("Signal", "<Referral is no Device !>", "Wrap", "Signal"));
    c.Pins[2].DeviceOffset = 31; // head 33 is no record
    EXPECT_THROW(deviceHead(c, 2), ProgramFault);
    c.Pins[2].DeviceOffset = -3;
    EXPECT_THROW(deviceHead(c, 2), ProgramFault);
}

TEST(PinTools, ClearLeavesStepNineAspectTwelveAndTheCounts)
{
    Configuration c;
    PinRecord& p = c.Pins[6];
    const StepRecord any{9, 1, 2, 3, 4, 5};
    p.Description = "pin";
    p.DeviceDescription = "dev";
    p.DeviceOffset = -2;
    p.InitAspect = 4;
    p.AspectLayout = 3;
    p.ConfigMode = 1;
    p.ConfigParams.fill(9);
    p.DccCount = 2;
    for (auto& a : p.Aspects) {
        a.Description = "asp";
        a.Steps.fill(any);
    }
    PinRecord cleared;
    cleared.DccCount = 2;
    cleared.PinMarkA = cleared.PinMarkB = cleared.PinMarkC = -1;
    for (int a = 0; a < 12; ++a) {
        cleared.Aspects[a].AspectMark = -1;
        cleared.Aspects[a].Steps[9] = any;
    }
    cleared.Aspects[12] = p.Aspects[12];
    clearPin(c, 6);
    EXPECT_EQ(std::tuple(p, c.Pins[5], c.Pins[7]), std::tuple(cleared, PinRecord{}, PinRecord{}));
}

TEST(PinTools, CopyPasteReaimsDeviceOffset)
{
    Configuration c;
    test::RecordingDialogs dialogs;
    PinTool tool; // pasting before a copy: EditTools.PinToolHasNothingToPasteBeforeACopy
    c.Pins[3].Description = "member";
    c.Pins[3].DeviceOffset = -3;
    c.Pins[3].Aspects[2].Steps[1] = {9, 0, 1, 0, 0, 0};
    c.CurrentPin = 3;
    tool.copy(c);
    c.CurrentPin = 5;
    EXPECT_TRUE(tool.paste(c, dialogs));
    // Still a member of pin 0.
    EXPECT_EQ(std::tuple(c.Pins[5].DeviceOffset, deviceHead(c, 5), c.Pins[5].Description,
                         c.Pins[5].Aspects[2].Steps[1]),
              std::tuple(-5, 0, "member", StepRecord{9, 0, 1, 0, 0, 0}));

    // a head stays a head wherever it is pasted
    c.Pins[10].DeviceDescription = "Head";
    c.CurrentPin = 10;
    tool.copy(c);
    c.CurrentPin = 20;
    EXPECT_TRUE(tool.paste(c, dialogs));
    EXPECT_EQ(std::tuple(c.Pins[20].DeviceOffset, c.Pins[20].DeviceDescription), std::tuple(0, "Head"));

    tool.clear(c);
    EXPECT_EQ(std::tuple(c.Pins[20].DeviceDescription, dialogs.messages.size()), std::tuple("", 0u));
}
