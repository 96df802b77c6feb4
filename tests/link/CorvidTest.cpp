// The tunnel route and the Corvid switches: exact frames against a scripted port, whole
// exchanges against the simulated Corvid system.
#include "base/Text.h"
#include "link/CorvidControl.h"
#include "link/Link.h"
#include "sim/SimBus.h"
#include "sim/SimCorvid.h"
#include "sim/SimPort.h"
#include "support/Frames.h"
#include "support/ScriptedLink.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

using Scripted = ScriptedLink;

// The link on a simulated Corvid system with modules at 0 and 20.
struct SimulatedRig {
    FakeClock clock;
    sim::SimBus bus;
    sim::SimCorvid system{bus};
    sim::SimPort port{system};
    RecordingDialogs dialogs;
    Link link{port, clock, dialogs};
    int base = 0;
    LinkControl control{link, base};
    CorvidControl corvid{link, control};
    SimulatedRig()
    {
        clock.tick = 0.005;
        port.setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
        port.open();
        bus.addModule(0, std::nullopt, {1, 2, 3, 4});
        bus.addModule(20, std::nullopt, {2, 0, 0, 1});
    }
};
struct Simulated : SimulatedRig, ::testing::Test {};

} // namespace

TEST_F(Scripted, FramesLogLinesAndSystemVersionAccepted)
{
    port.queue(corvidFrame({}, 1));                 // answer to the poll
    port.queue(corvidFrame({1, 2, 0x30, 0x25}, 0)); // system version 6045
    port.queue(corvidFrame({}, 1));                 // answer to the final poll
    EXPECT_TRUE(corvid.CheckCorvid_Click(true));
    EXPECT_EQ(std::tuple(link.settings.CheckCorvid, corvid.cmdSetTMVisible, control.addressMaximum(),
                         dialogs.messages.size()),
              std::tuple(true, false, 31, 0u));

    // Poll (toggle 1): header 40 + 64, check 152; version request (toggle 0): 42, 129, 130, 211.
    EXPECT_EQ(port.take(), (std::vector<int>{104, 152, 42, 129, 130, 211, 104, 152}));
    EXPECT_EQ(link.txtCorvidCommunication,
              "> 6818\r\n< 6818\r\n> 2A1253\r\n< 2C1230257C\r\n> 6818\r\n< 6818\r\n");
    EXPECT_EQ(CorvidControl::versionFrom(0x30, 0x25), 6045);
}

TEST_F(Scripted, OldSystemRefusedWithProtocolText)
{
    port.queue(corvidFrame({}, 1));
    port.queue(corvidFrame({1, 2, 0x18, 0x00}));
    port.queue(corvidFrame({}, 1));
    EXPECT_FALSE(corvid.CheckCorvid_Click(true));
    // The final poll is sent all the same.
    EXPECT_EQ(std::tuple(link.settings.CheckCorvid, port.take().size()), std::tuple(false, 8u));
    EXPECT_EQ(dialogs.messages,
              (std::vector<Shown>{
                  {"Your system does not support this function\r\nProtocol = 3.0", Icon::Warning}}));
}

TEST_F(Scripted, NoAnswerAndBadCheckByte)
{
    EXPECT_FALSE(corvid.CheckCorvid_Click(true)); // nothing answers the poll
    EXPECT_EQ(std::tuple(dialogs.messages, link.settings.CheckCorvid),
              std::tuple(std::vector<Shown>{{"No answer from Corvid", Icon::Warning}}, false));

    dialogs.clear();
    auto bad = corvidFrame({1, 2, 3});
    bad.back() ^= 1;
    port.queue(bad);
    EXPECT_FALSE(link.CorvidExchange(0));
    EXPECT_EQ(dialogs.texts(),
              (std::vector<std::string>{"Checksum Error\r\nSize = 3< 2B1234E", "No answer from Corvid"}));
    EXPECT_EQ(link.state.ReplyBuffer[0], 0);

    // A frame announcing more data than the reply buffer holds with its checksum is a
    // checksum error however its bytes add up, and is not waited out.
    for (int n : {19, 23}) {
        dialogs.clear();
        port.queue(corvidFrame(std::vector<int>(n, 1)));
        const double start = clock.secondsSinceMidnight();
        EXPECT_FALSE(link.CorvidExchange(0));
        ASSERT_EQ(dialogs.messages.size(), 2u) << n;
        const std::string head = "Checksum Error\r\nSize = " + std::to_string(n) + "< " + hexUpper(n);
        EXPECT_EQ(dialogs.messages[0].text.rfind(head + std::string(n, '1'), 0), 0u)
            << dialogs.messages[0].text;
        EXPECT_LT(clock.secondsSinceMidnight() - start, 1.0);
    }

    link.state.CorvidToggle = 0;
    EXPECT_FALSE(corvid.CheckCorvid_Click(false));
    link.settings.TargetAddress = 25;
    corvid.CheckCorvid_Click(false);
    EXPECT_EQ(link.settings.TargetAddress, 15); // clamped back to the direct route's range
}

TEST_F(Scripted, TunnelledWriteAndRequestBytes)
{
    link.settings.CheckCorvid = true;
    link.state.CorvidToggle = 0;
    link.settings.TargetAddress = 2;
    const auto poll = corvidFrame({}, true);
    // A write: the tunnel frame (0, T, the module's header, data), then one poll.
    port.queue(corvidFrame({}));
    port.queue(corvidFrame({}, 1));
    EXPECT_TRUE(link.SendKestrelMessage(false, 3, {96, 6, 9}));
    EXPECT_EQ(port.take(), concat({corvidFrame({0, 98, 96, 96, 6, 9}), poll}));

    // eXtended address: 0, T, 112, x, data.
    link.settings.CheckXaddress = true;
    link.settings.TargetXAddress = 33;
    port.queue(corvidFrame({}));
    port.queue(corvidFrame({}, 1));
    link.SendKestrelMessage(false, 1, {5});
    EXPECT_EQ(port.take(), concat({corvidFrame({0, 98, 112, 33, 5}), poll}));
}

TEST_F(Scripted, TimeOutAfterGoodPollsLeavesReplyValid)
{
    link.settings.CheckCorvid = true;
    clock.tick = 0.05;
    // Every frame is answered with an empty frame; no module reply ever comes.
    for (int i = 0; i < 100; ++i)
        port.queue(corvidFrame({}, i % 2));
    link.SendKestrelMessage(true, 2, {112, 0});
    EXPECT_EQ(std::tuple(link.state.ReplyValid, dialogs.messages.size()), std::tuple(true, 0u));
    EXPECT_NE(link.state.ReplyBuffer[1] & 15, 6); // callers reject it by its size
}

TEST_F(Simulated, TunnelledVersionOfTwoModules)
{
    system.setSystemVersion(6045);
    link.state.LinkToggle = 128;
    ASSERT_TRUE(corvid.CheckCorvid_Click(true));
    EXPECT_TRUE(link.GetVersion());
    EXPECT_EQ(link.VersionText, "1.2.3.4");
    EXPECT_EQ(control.TextAddress_Click("20"), "20");
    EXPECT_TRUE(link.GetVersion());
    EXPECT_EQ(std::tuple(link.VersionText, dialogs.messages.size()), std::tuple("2.0.0.1", 0u));
}

TEST_F(Simulated, TransparentModeByUnitTypeAndVersion)
{
    const std::tuple<sim::CorvidUnit, int, bool, const char*> cases[] = {
        // The units digit travels in three bits: 1017 is the highest version below 1020.
        {sim::CorvidUnit::HubA, 1017, false, "Your Hub-A does not support this function"},
        {sim::CorvidUnit::HubA, 1020, true, "Your Hub-A has been put in Transparent Mode"},
        {sim::CorvidUnit::Linkbox, 1027, false, "Your Linkbox does not support this function"},
        {sim::CorvidUnit::Linkbox, 1030, true, "Your Linkbox has been put in Transparent Mode"},
        {sim::CorvidUnit::HubB, 1000, true, "Your Hub-B has been put in Transparent Mode"},
    };
    for (const auto& [unit, version, switched, text] : cases) {
        SimulatedRig r;
        r.system.setSystemVersion(3100); // too old for tunneling: no question asked
        r.system.setUnit(unit, version);
        EXPECT_EQ(r.corvid.cmdSetTM_Click(), switched) << text;
        EXPECT_EQ(std::tuple(r.dialogs.messages, r.system.transparent(), r.dialogs.questions.size()),
                  std::tuple(std::vector<Shown>{{text, switched ? Icon::Information : Icon::Warning}},
                             switched, 0u));
    }
}

TEST_F(Simulated, TransparentModeAsksOnNewSystemsThenDirectRouteWorks)
{
    system.setSystemVersion(3200);
    system.setUnit(sim::CorvidUnit::HubB, 1000);
    dialogs.answers = {Answer::No};
    EXPECT_FALSE(corvid.cmdSetTM_Click());
    ASSERT_EQ(dialogs.questions.size(), 1u);
    EXPECT_EQ(dialogs.questions[0].text, "Your Corvid system supports Kestrel Tunneling\r\n"
                                         "We recommend to use the Corvid Tunneling option instead\r\n"
                                         "Do you still want to activate Transparant Mode?");
    EXPECT_FALSE(system.transparent());

    dialogs.answers = {Answer::Yes};
    EXPECT_TRUE(corvid.cmdSetTM_Click());
    EXPECT_TRUE(system.transparent());
    // Now the direct route reaches the module through the unit.
    EXPECT_TRUE(link.GetVersion());
    EXPECT_EQ(link.VersionText, "1.2.3.4");
}
