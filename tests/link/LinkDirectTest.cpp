// The direct route, byte for byte, against a scripted port and a fake clock.
#include "base/ProgramFault.h"
#include "link/Link.h"
#include "support/Frames.h"
#include "support/RecordingDialogs.h"
#include "support/ScriptedLink.h"
#include "support/ScriptedPort.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

const std::vector<int> kBurst = {0, 0, 0, 255, 255, 255, 170, 170, 170};

using DirectRoute = ScriptedLink;

} // namespace

TEST_F(DirectRoute, RequestVersionWorkedExampleWithBurstAndEmptyFrame)
{
    port.queue(moduleReply(67, {112, 0, 1, 2, 3, 4}));
    EXPECT_TRUE(link.GetVersion());
    EXPECT_EQ(port.take(), concat({kBurst, {3, 192, 189}, {67, 226, 240, 128, 235}}));
    EXPECT_EQ(std::tuple(link.VersionText, link.state.ReplyValid, link.TextResponse, dialogs.messages.size(),
                         link.state.LinkToggle),
              std::tuple("1.2.3.4", true, "[43] [66] [70] [0] [1] [2] [3] [4]", 0u, 0));

    // Next frame carries toggle 0 and no burst; then 64 again.
    port.queue(moduleReply(3, {112, 0, 1, 2, 3, 4}));
    EXPECT_TRUE(link.GetVersion());
    EXPECT_EQ(port.take(), frame({3, 226}, {112, 0}));
    port.queue(moduleReply(67, {112, 0, 1, 2, 3, 4}));
    link.GetVersion();
    EXPECT_EQ(port.take(), frame({67, 226}, {112, 0}));
}

TEST_F(DirectRoute, AddressChangeResynchronisesAndHeaderBits)
{
    link.settings.CheckKestrelBD = false;
    link.settings.TargetAddress = 5; // A = 23
    EXPECT_TRUE(link.SendKestrelMessage(false, 0, {}));
    // Size 0 without bidirectional: header 192; with eXtended address 208 and the address byte.
    EXPECT_EQ(port.take(), concat({kBurst, frame({23, 192}, {}), frame({64 + 23, 192}, {})}));
    EXPECT_FALSE(link.state.ReplyValid);

    link.settings.CheckXaddress = true;
    link.settings.TargetXAddress = 95;
    EXPECT_TRUE(link.SendKestrelMessage(false, 0, {}));
    EXPECT_EQ(port.take(), frame({23, 208, 128 + 95}, {}));

    link.state.LinkToggle = 128;            // what an address change does
    link.SendKestrelMessage(false, 1, {5}); // the empty frame after the burst has no eXtended address
    EXPECT_EQ(port.take(),
              concat({kBurst, frame({23, 192}, {}), frame({64 + 23, 192 + 16 + 1, 128 + 95}, {5})}));
}

TEST_F(DirectRoute, SizeOverrunClosedPortAndDataAbove127SendNothing)
{
    EXPECT_FALSE(link.SendKestrelMessage(true, 16, {}));
    EXPECT_EQ(dialogs.texts(),
              std::vector<std::string>{"SendKestrelMessage: Message Size Overrun, size = 16"});
    EXPECT_TRUE(port.written.empty());

    dialogs.clear();
    port.opened = false;
    EXPECT_FALSE(link.SendKestrelMessage(true, 2, {112, 0}));
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Select communications port"});
    EXPECT_TRUE(port.written.empty());

    // A data byte above 127 is a program fault.
    port.opened = true;
    EXPECT_THROW(link.SendKestrelMessage(false, 3, {96, 10, 200}), ProgramFault);
    EXPECT_TRUE(port.written.empty());
    EXPECT_THROW(link.SendKestrelMessage(false, 1, {-1}), ProgramFault);
}

TEST_F(DirectRoute, CorruptedCopyThenGoodCopyAndFrameRestart)
{
    link.state.LinkToggle = 64;
    auto bad = moduleReply(67, {112, 0, 9, 9, 9, 9});
    bad.back() ^= 1;
    // Garbage, a corrupted copy, half a frame cut short by a new start, then the good one.
    auto good = moduleReply(67, {112, 0, 1, 0, 0, 7});
    auto half = std::vector<int>(good.begin(), good.begin() + 4);
    port.queue(concat({{200, 201}, bad, half, good}));
    EXPECT_TRUE(link.GetVersion());
    EXPECT_EQ(std::tuple(link.VersionText, dialogs.messages.size()), std::tuple("1.0.0.7", 0u));
}

TEST_F(DirectRoute, TimeoutUnchecksBidirectionalAndWaitsTwoSecondsOrUntilMidnight)
{
    link.state.LinkToggle = 64;
    int changed = 0;
    link.onSettingsChanged = [&] { ++changed; };
    const double start = clock.now;
    EXPECT_FALSE(link.GetVersion());
    EXPECT_NEAR(clock.now - start, 2.0, 0.01);
    EXPECT_EQ(dialogs.texts(),
              std::vector<std::string>{"No response received, resetting bidirectional communication"});
    // Cleared by the time-out; the toggle moves whether replied or not.
    EXPECT_EQ(std::tuple(link.settings.CheckKestrelBD, changed, link.VersionText, link.state.LinkToggle),
              std::tuple(false, 1, "Unknown", 0));

    // With bidirectional communication off a read never sees a valid reply.
    dialogs.clear();
    EXPECT_TRUE(link.SendKestrelMessage(true, 2, {112, 10}));
    EXPECT_FALSE(link.state.ReplyValid);
    EXPECT_TRUE(dialogs.messages.empty());

    // Midnight ends a wait.
    link.setBidirectional(true);
    port.waits = 0;
    link.state.LinkToggle = 64;
    clock.wrapAtMidnight = true;
    clock.now = 86399.9;
    link.SendKestrelMessage(true, 2, {112, 0});
    // One wait carried the clock past midnight: the receiver stopped instead of waiting a day.
    EXPECT_EQ(std::tuple(port.waits, link.state.ReplyValid), std::tuple(1, false));
}

TEST_F(DirectRoute, InvalidReplyMessagesAndExtendedAddressBytes)
{
    link.state.LinkToggle = 64;
    // A reply with the wrong toggle: the expected address is shown without it.
    port.queue(moduleReply(3, {112, 0, 1, 2, 3, 4}));
    link.GetVersion();
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Invalid response received, \r\nReceived: Addr = 3 "
                                                        "Header = 102\r\nExpected: Addr = 3 Header > 95 "});
    EXPECT_FALSE(link.state.ReplyValid);

    // A reply carrying an eXtended address byte we did not send.
    dialogs.clear();
    link.state.LinkToggle = 64;
    port.queue(moduleReply(67, {7, 112, 0, 1, 2, 3, 4}, 128 + 96 + 16 + 6));
    link.GetVersion();
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Unexpected eXtended Address Byte 7"});
    EXPECT_EQ(link.VersionText, "1.2.3.4");

    // With eXtended addressing on, a different byte is named.
    dialogs.clear();
    link.settings.CheckXaddress = true;
    link.settings.TargetXAddress = 9;
    link.state.LinkToggle = 64;
    port.queue(moduleReply(67, {7, 112, 0, 1, 2, 3, 4}, 128 + 96 + 16 + 6));
    link.GetVersion();
    EXPECT_EQ(dialogs.texts(),
              std::vector<std::string>{"Incorrect eXtended Address byte \r\nReceived 7 Expected 9"});
}

TEST_F(DirectRoute, GetVersionRejectsWrongSizeAndEcho)
{
    link.state.LinkToggle = 64;
    port.queue(moduleReply(67, {112, 0, 1, 2, 3}));
    EXPECT_FALSE(link.GetVersion());
    port.queue(moduleReply(3, {112, 1, 1, 2, 3, 4}));
    EXPECT_FALSE(link.GetVersion());
    EXPECT_EQ(dialogs.texts(), (std::vector<std::string>{"GetVersion: No valid response, size <> 6",
                                                         "GetVersion: No valid response"}));
    EXPECT_EQ(link.VersionText, "Unknown");
}

TEST_F(DirectRoute, LynxMessageFramesWithoutToggle)
{
    const auto lynx = frame({20}, {1, 2, 3});
    link.SendLynxMessage(20, 1, 2, 3); // after the burst and the empty legacy frame
    EXPECT_EQ(std::tuple(port.take(), link.state.LinkToggle),
              std::tuple(concat({kBurst, frame({20}, {0, 0, 0}), lynx}), 64));
    link.SendLynxMessage(20, 1, 2, 3);
    EXPECT_EQ(std::tuple(port.take(), link.state.LinkToggle), std::tuple(lynx, 64));
}

TEST_F(DirectRoute, PortLostMidExchangeReportsOnceAndFails)
{
    link.state.LinkToggle = 64;
    port.writesFail = true;
    EXPECT_FALSE(link.SendKestrelMessage(true, 2, {112, 0}));
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Communications port lost:  (device removed)"});
    EXPECT_EQ(std::tuple(link.state.ReplyValid, port.isOpen(), link.state.LinkToggle),
              std::tuple(false, false, 128));
}

TEST_F(DirectRoute, EveryFrameIsHandedToTheWireWhenComplete)
{
    // A port may gather a frame's bytes; the link flushes after each frame's checksum, so
    // nothing written ever waits in a buffer (an erase frame is the last thing a run sends).
    link.settings.CheckKestrelBD = false;
    link.SendKestrelMessage(false, 2, {112, 0}); // burst + empty frame + frame: one flush at the end
    EXPECT_EQ(port.flushedAt, std::vector<std::size_t>{9 + 3 + 5});
    link.SendLynxMessage(20, 1, 2, 3);
    EXPECT_EQ(port.flushedAt.back(), port.written.size());
    link.CorvidExchange(2, {1, 2}); // nothing answers: still flushed before the wait
    EXPECT_EQ(port.flushedAt.back(), port.written.size());
    EXPECT_EQ(port.hint, 0); // no hint is left behind after a wait
}
