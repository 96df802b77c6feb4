#include "ops/PinTransfer.h"
#include "pins/PinConfig.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

// Pins 4 and 5 with something in every field that pin transfer carries.
void fillPins(Configuration& config)
{
    PinRecord& a = config.Pins[4];
    a.AspectLayout = 3;
    a.InitAspect = 2;
    a.DccCount = 7;
    a.XDccCount = 1;
    a.LynxCount = 2;
    a.Aspects[0].Steps[0] = {5, 0, 0, 200, 129, 3}; // SendSerial 2, 8-bit values
    a.Aspects[3].Steps[8] = {10, 1, 31, 5, 0, 0};   // Invert with fade
    a.ConfigMode = 1;
    a.ConfigParams = {70, 43, 60, 4, 5, 6, 7, 68, 9, 50, 11, 0};
    PinRecord& b = config.Pins[5];
    b.AspectLayout = 2;
    b.DeviceOffset = -1;
    b.Aspects[11].Steps[2] = {39, 0, 1, 100, 0, 0};
    b.ConfigMode = 3;
    b.ConfigParams = {10, 1, 5, 0, 31, 0, 0, 0, 0, 0, 0, 0};
}

class CancelAt : public Progress {
public:
    explicit CancelAt(int pin) : pin(pin) {}
    void step(int done, int, const std::string&) override { steps.push_back(done); }
    bool cancelled() override { return !steps.empty() && steps.back() >= pin; }
    int pin;
    std::vector<int> steps;
};

} // namespace

TEST(PinTransferSim, WriteThenReadGivesThePinsBack)
{
    SimSession rig;
    fillPins(rig.session.config);
    ASSERT_TRUE(WritePin(rig.session, 4, true));
    ASSERT_TRUE(WritePin(rig.session, 5, true));
    // Replies pace a bidirectional link (the bytes of each write: PinWrite.ExactRequestsAndPacingWhenOneWay).
    EXPECT_EQ(std::tuple(rig.clock.slept, rig.modulePin(5).flashConfig),
              std::tuple(0, std::vector<std::uint8_t>{3, 10, 1, 5, 0, 31}));

    PinRecord a = rig.session.config.Pins[4], b = rig.session.config.Pins[5];
    rig.session.config.Pins[4] = rig.session.config.Pins[5] = PinRecord{};
    rig.module.addressConfigRotation = 2;
    ASSERT_TRUE(ReadPin(rig.session, 4));
    ASSERT_TRUE(ReadPin(rig.session, 5));
    a.OutputValue = 64; // the read made pin 4 a servo, which starts in the middle
    EXPECT_EQ(std::tuple(rig.session.config.Pins[4], rig.session.config.Pins[5]), std::tuple(a, b));
    // The address index follows the read counts.
    EXPECT_EQ(std::tuple(rig.session.config.DccFirstIndex[5], rig.dialogs.messages.size()),
              std::tuple(7, 0u));
}

TEST(PinTransferSim, VerifyReportsEachDifferenceOnceConfigurationFirst)
{
    SimSession rig;
    fillPins(rig.session.config);
    rig.session.config.Pins[11].ConfigMode = 2; // PWM whose module answers only five bytes
    rig.session.config.Pins[11].ConfigParams = {10, 1, 5, 0, 31, 0, 0, 0, 0, 0, 0, 0};
    ASSERT_TRUE(WriteAllPins(rig.session, true));
    rig.modulePin(11).flashConfig = {2, 10, 1, 5, 20};
    rig.module.addressConfigRotation = 1;
    EXPECT_TRUE(VerifyAllPins(rig.session));
    EXPECT_EQ(reportLines(rig.session), (std::vector<std::string>{"Start Pin Verification"}));

    rig.modulePin(4).steps[3][8][1] = 30;
    rig.modulePin(4).steps[0][1][4] = 1;
    rig.modulePin(4).steps[5][0][0] = 9; // outside the layout: not compared
    rig.modulePin(5).initialAspect = 3;
    rig.modulePin(6).dccCount = 2;
    rig.modulePin(7).lynxCount = 1;
    rig.modulePin(8).deviceOffset = 30;
    rig.modulePin(9).aspectLayout = 2;
    rig.modulePin(9).flashConfig = {5, 0, 0, 1, 1}; // and its pin configuration: reported first
    rig.modulePin(10).flashConfig = {4, 0, 0, 3, 3};
    rig.modulePin(4).flashConfig[2] |= 64; // servo P2 bits 6 and 7 are not part of the configuration
    rig.session.config.NumberingBase = 1;
    rig.session.report.clear();
    EXPECT_FALSE(VerifyAllPins(rig.session));
    EXPECT_EQ(reportLines(rig.session), (std::vector<std::string>{
                                            "Start Pin Verification",
                                            "Note: Numbering starts at 1",
                                            "Pin 5: Aspect 0 does not compare",
                                            "Pin 5: Aspect 3 does not compare",
                                            "Pin 6: Init does not compare",
                                            "Pin 7: DCC Address Configuration does not compare",
                                            "Pin 8: Serial Address Configuration does not compare",
                                            "Pin 9: Device Pointer does not compare",
                                            "Pin 10: Pinconfig does not compare",
                                            "Pin 10: Aspectconfig does not compare",
                                            "Pin 11: Pinconfig does not compare",
                                        }));
}

TEST(PinTransferSim, VerifyWrongAndMissingReplies)
{
    SimSession rig;
    rig.module.faults.refuse(118, sim::Refusal::WrongEcho, 2);
    rig.module.faults.refuse(113, sim::Refusal::NoReply, 3);
    EXPECT_FALSE(VerifyAllPins(rig.session));
    EXPECT_EQ(reportLines(rig.session),
              (std::vector<std::string>{
                  "Start Pin Verification",
                  "Pin Address Configuration: Invalid Response, expected 5,118,2, received 5,119,2",
                  "No valid response"}));
}

TEST(PinTransferSim, DeviceIsItsHeadAndTheFollowingPinsThatPointAtIt)
{
    SimSession rig;
    for (int p = 3; p <= 7; ++p)
        rig.modulePin(p).aspectLayout = 3;
    rig.modulePin(5).deviceOffset = 31; // head 4
    rig.modulePin(6).deviceOffset = 30; // head 4
    const auto& pins = rig.session.config.Pins;
    const auto layouts = [&](std::vector<int> ps, bool inModule) {
        for (int& p : ps)
            p = inModule ? rig.modulePin(p).aspectLayout : pins[p].AspectLayout;
        return ps;
    };
    rig.session.config.CurrentPin = 5;
    ASSERT_TRUE(ReadDevice(rig.session));
    EXPECT_EQ(layouts({3, 4, 5, 6, 7}, false), (std::vector<int>{0, 3, 3, 3, 0}));
    EXPECT_EQ(pins[6].DeviceOffset, -2);

    for (int p = 3; p <= 7; ++p)
        rig.session.config.Pins[p].AspectLayout = 2;
    rig.session.config.Pins[7].DeviceOffset = 0;
    rig.session.config.CurrentPin = 6;
    ASSERT_TRUE(WriteDevice(rig.session));
    EXPECT_EQ(layouts({3, 4, 6, 7}, true), (std::vector<int>{3, 2, 2, 3}));

    // A device that wraps past pin 31 and has a gap: 30, 31 and 1, not 0.
    for (int p : {30, 31, 0, 1})
        rig.modulePin(p).aspectLayout = 3;
    rig.modulePin(31).deviceOffset = 31; // head 30
    rig.modulePin(1).deviceOffset = 29;  // head 30
    rig.session.config.CurrentPin = 1;
    ASSERT_TRUE(ReadDevice(rig.session));
    EXPECT_EQ(layouts({30, 31, 0, 1}, false), (std::vector<int>{3, 3, 0, 3}));
    for (int p : {30, 31, 0, 1})
        rig.session.config.Pins[p].AspectLayout = 2;
    rig.session.config.CurrentPin = 31;
    ASSERT_TRUE(WriteDevice(rig.session));
    EXPECT_EQ(layouts({30, 31, 0, 1}, true), (std::vector<int>{2, 2, 3, 2}));

    rig.session.config.CurrentPin = 6;
    rig.module.faults.refuse(118, sim::Refusal::WrongEcho, 6);
    rig.session.config.NumberingBase = 1;
    EXPECT_FALSE(ReadDevice(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), (std::vector<std::string>{"Cannot read DevicePointer from Pin 7"}));
}

TEST(PinTransferSim, AllPinsReportProgressAndStopWhenCancelled)
{
    SimSession rig;
    CancelAt progress(3);
    rig.session.link.setProgress(&progress);
    EXPECT_FALSE(ReadAllPins(rig.session));
    EXPECT_EQ(progress.steps, (std::vector<int>{0, 1, 2, 3}));

    CancelAt never(99);
    rig.session.link.setProgress(&never);
    EXPECT_TRUE(WriteAllPins(rig.session));
    EXPECT_EQ(std::tuple(never.steps.size(), never.steps.back()), std::tuple(33u, 32));
}
