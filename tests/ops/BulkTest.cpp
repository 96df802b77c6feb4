// Read All, Write All and Verify All: the whole configuration against the simulated
// module, the order of the steps and where a run stops.
#include "ScriptedModule.h"
#include "SimModuleSession.h"
#include "ops/Bulk.h"
#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test::ops;

namespace {

// Every general setting away from its start-up value, in the form a read leaves it.
void fillGeneral(GeneralSettings& g)
{
    g.TextGenIDString = "Down Yard 2";
    g.TextGenDCCAddress = "202";
    g.TextGenXDCCAddress = "1025";
    g.OptGenDCC_PRP = 3;
    g.ChkGenDCC_BPSI = 1;
    g.ChkGenDCCAllow0 = 1;
    g.CheckGenKestrelNative = 0;
    g.CheckGenLynxaddr = 1;
    g.LynxFlexAddress = 12;
    g.TextGenLynxaddr = "48";
    g.ExtendedAddress = 41;
    g.TextGenXaddr = "41";
    g.CheckGenXGM = {1, 0, 0, 1, 0, 1, 1, 0, 1, 1, 1, 1, 0, 0, 0, 1};
    g.ChkGenHWCSink = {1, 0, 1, 0};
    g.ChkGenHWCSource = {1, 1, 0, 0};
    g.CheckLCGreen = {0, 1, 0, 1, 0, 0, 1, 0};
    g.CheckLCOrange = {0, 0, 0, 0, 0, 0, 0, 1};
    g.CheckGenSerialEnable = 1;
    g.ComboGenBaud = 5;
    g.OptionGenSerialDatabits = 1;
    g.OptionGenSerialStop = 1;
    g.OptionGenSerialParity = 3;
    g.CheckInitEE = {1, 0, 1, 0, 0, 1, 1, 1};
    g.TextGenLynxaddrVisible = true;
    g.CheckGenKestrelNativeVisible = false;
    g.CheckGenLynxaddrVisible = true;
    g.LabelGenVersionString = "1.2.3.4"; // the simulated module's version
}

void fillPinsAndEvents(Configuration& c)
{
    auto& p0 = c.pin(0);
    p0.AspectLayout = 3;
    p0.InitAspect = 2;
    p0.DccCount = 3;
    p0.XDccCount = 1;
    p0.LynxCount = 2;
    c.step(0, 0, 0) = {3, 1, 10, 20, 30, 40};
    c.step(0, 3, 8) = {4, 0, 0, 200, 5, 9};
    auto& p5 = c.pin(5);
    p5.AspectLayout = 2;
    p5.DccCount = 1;
    c.step(5, 11, 2) = {7, 0, 1, 2, 3, 4};
    c.pin(6).DeviceOffset = -1; // belongs to the device starting at pin 5
    for (int p = 0; p < kPinCount; ++p)
        for (int i = 0; i < 4; ++i) {
            c.events(p).OnEvent[i] = static_cast<std::int16_t>((p + 2 * i) % 13 - 1);
            c.events(p).OffEvent[i] = static_cast<std::int16_t>((3 * p + i) % 13 - 1);
        }
}

struct BulkSim : ::testing::Test {
    SimModuleSession sim;
    Session& s = *sim.session;
    void SetUp() override
    {
        fillGeneral(s.general);
        fillPinsAndEvents(s.config);
        ASSERT_TRUE(WriteAll(s));
        sim.dialogs.clear();
    }
};

} // namespace

TEST_F(BulkSim, WriteAllThenReadAllIntoAFreshSessionGivesTheSameSettings)
{
    const auto& mem = sim.memory();
    EXPECT_EQ(mem.idString, "Down Yard 2");
    EXPECT_EQ(mem.dccAddress(), 202);
    EXPECT_EQ(mem.xdccAddress(), 1025);
    EXPECT_EQ(mem.serialLine, 5 + 8 + 64 + 48);
    EXPECT_EQ(mem.flexEnable, 1);
    EXPECT_EQ(mem.addressMode, 12);

    auto fresh = sim.fresh();
    int refreshed = 0;
    fresh->onConfigurationChanged = [&] { ++refreshed; };
    EXPECT_TRUE(ReadAll(*fresh));
    EXPECT_EQ(refreshed, 1);
    EXPECT_EQ(fresh->general, s.general);
    EXPECT_EQ(fresh->config.EventMap, s.config.EventMap);
    for (int p = 0; p < kPinCount; ++p)
        EXPECT_EQ(fresh->config.pin(p), s.config.pin(p)) << "pin " << p;
    // Flex-addressing came back on without the warning question.
    EXPECT_TRUE(sim.dialogs.questions.empty());
    EXPECT_TRUE(sim.dialogs.messages.empty());
}

TEST_F(BulkSim, VerifyAllAgainstAnEqualModuleSaysVerifyOk)
{
    int shown = 0;
    s.onShowVerification = [&] { ++shown; };
    s.report.line("left from an earlier run");
    EXPECT_TRUE(VerifyAll(s));
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "Start EC Verification\r\n"
                                         "Start Pin Verification\r\n"
                                         "Verify OK\r\n");
    EXPECT_EQ(shown, 1);
}

TEST_F(BulkSim, AnotherIdOnTheModuleStopsAfterTheGeneralStage)
{
    sim.memory().idString = "Up Yard";
    EXPECT_FALSE(VerifyAll(s));
    EXPECT_EQ(s.report.txtVerification,
              "Start General Settings Verification\r\n"
              "ID does not compare: KestrelConfig = <Down Yard 2> Kestrel = <Up Yard>\r\n"
              "Verification Stopped\r\n");
}

TEST_F(BulkSim, GeneralMismatchesAreAllListedInOrder)
{
    s.config.NumberingBase = 1; // display only; the verification compares what is written
    s.general.ChkGenHWCSink[3] = 1;
    s.general.TextGenXDCCAddress = "1024";
    s.general.OptGenDCC_PRP = 0;
    s.general.CheckGenKestrelNative = 1; // writes mode 64
    s.general.ExtendedAddress = 40;
    s.general.CheckGenXGM[15] = 0;
    s.general.CheckLCOrange = {1, 0, 0, 0, 0, 0, 0, 0};
    s.general.ComboGenBaud = 4;
    EXPECT_FALSE(VerifyAll(s));
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "Hardware configuration does not compare\r\n"
                                         "eXtended DCC address does not compare\r\n"
                                         "DCC Options do not compare\r\n"
                                         "Serial Address Settings do not compare\r\n"
                                         "eXtended Address does not compare\r\n"
                                         "eXtended Group Mask does not compare\r\n"
                                         "Orange LED configuration does not compare\r\n"
                                         "Serial Port Configuration does not compare\r\n"
                                         "Verification Stopped\r\n");
}

TEST_F(BulkSim, ReplyErrorsStopTheGeneralStageExceptAWrongDccAddressLength)
{
    sim.module.faults.refuse(112, sim::Refusal::WrongLength, 13);
    EXPECT_FALSE(VerifyAll(s));
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "Serial Port Config: No valid response, size = 5 expected = 4\r\n"
                                         "Verification Stopped\r\n");

    sim.module.faults.refused.clear();
    sim.module.faults.refuse(112, sim::Refusal::WrongEcho, 8);
    VerifyAll(s);
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "Serial Address Settings: No valid response, msg = 113,8 expected = 112,8\r\n"
                                         "Verification Stopped\r\n");

    // A wrong length of the DCC address is reported and the stage goes on to the end.
    sim.module.faults.refused.clear();
    sim.module.faults.refuse(112, sim::Refusal::WrongLength, 4);
    s.general.ComboGenBaud = 0;
    VerifyAll(s);
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "DCC Address: No valid response\r\n"
                                         "Serial Port Configuration does not compare\r\n"
                                         "Verification Stopped\r\n");

    // A wrong echo of the eXtended DCC address ends it there.
    sim.module.faults.refused.clear();
    sim.module.faults.refuse(112, sim::Refusal::WrongEcho, 12);
    VerifyAll(s);
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "eXtended DCC Address: No valid response\r\n"
                                         "Verification Stopped\r\n");

    // No reply at all: the stage ends without a line of its own.
    sim.module.faults.refused.clear();
    sim.module.faults.refuse(112, sim::Refusal::NoReply, 6);
    VerifyAll(s);
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "Verification Stopped\r\n");
}

TEST_F(BulkSim, EventMismatchStopsBeforeThePins)
{
    sim.memory().pins[9].eventOn[1] = 0x1F;
    EXPECT_FALSE(VerifyAll(s));
    const int configured = s.config.events(9).OnEvent[1];
    EXPECT_EQ(s.report.txtVerification, "Start General Settings Verification\r\n"
                                         "Start EC Verification\r\n"
                                         "Event-On(1) for pin 9 does not compare: Configured Action = " +
                                             std::to_string(configured) +
                                             ", Kestrel Reply = -1\r\n"
                                             "Verification Stopped\r\n");
}

// ---- order and stopping, on a scripted module ----

TEST(BulkScripted, ModuleThatAnswersNothingEndsReadAllAfterTheVersionRequest)
{
    ScriptedModule m;
    int refreshed = 0;
    m.session.onConfigurationChanged = [&] { ++refreshed; };
    m.silence();
    EXPECT_FALSE(ReadAll(m.session));
    EXPECT_EQ(m.requests, (std::vector<Data>{{112, 0}}));
    EXPECT_EQ(refreshed, 1);
    EXPECT_EQ(m.session.general.LabelGenVersionString, "Unknown");
}

TEST(BulkScripted, WriteAllSendsSerialAddressingLast)
{
    ScriptedModule m;
    m.session.link.settings.CheckKestrelBD = false; // nothing answers; writes are paced
    EXPECT_TRUE(WriteAll(m.session));
    std::vector<std::pair<int, int>> general;
    int pinWrites = 0, eventWrites = 0;
    for (const auto& r : m.requests) {
        if (r[0] == 96)
            general.push_back({r[0], r[1]});
        else if (r[0] == 100 && r.size() == 6)
            ++eventWrites;
        else if (r[0] == 101)
            ++eventWrites;
        else
            ++pinWrites;
    }
    // ID, DCC options / address / eXtended address, green, orange, hardware, serial
    // port, enable maps, then serial addressing: mode, group mask, eXtended address.
    const std::vector<std::pair<int, int>> order{{96, 10}, {96, 5}, {96, 4}, {96, 12}, {96, 6}, {96, 7}, {96, 1},
                                                 {96, 13}, {96, 11}, {96, 8}, {96, 3}, {96, 2}};
    EXPECT_EQ(general, order);
    EXPECT_EQ(eventWrites, 64);
    EXPECT_GE(pinWrites, 3 * 32); // layout, initial aspect and address configuration of each pin
    EXPECT_EQ(m.requests.back(), (Data{96, 2, 0}));
    // The enable maps come after every event write.
    EXPECT_EQ(m.requests[m.requests.size() - 4][1], 11);
    EXPECT_EQ(m.requests[m.requests.size() - 5][0], 101);
}

namespace {
// Cancels the job once the link has made `after` exchanges.
struct CancelAfter : Progress {
    explicit CancelAfter(int after) : after(after) {}
    void step(int, int, const std::string&) override { ++steps; }
    void exchanged() override { ++exchanges; }
    bool cancelled() override { return exchanges >= after; }
    int after;
    int exchanges = 0;
    int steps = 0;
};
} // namespace

TEST_F(BulkSim, CancelledReadAllKeepsWhatWasReadAndStopsQuietly)
{
    auto fresh = sim.fresh();
    CancelAfter cancel(2); // version and ID string
    fresh->link.setProgress(&cancel);
    int refreshed = 0;
    fresh->onConfigurationChanged = [&] { ++refreshed; };
    EXPECT_FALSE(ReadAll(*fresh));
    EXPECT_EQ(cancel.exchanges, 2);
    EXPECT_GT(cancel.steps, 0);
    EXPECT_EQ(fresh->general.TextGenIDString, "Down Yard 2");
    EXPECT_EQ(fresh->general.TextGenDCCAddress, "0");
    EXPECT_EQ(refreshed, 1);
    EXPECT_TRUE(sim.dialogs.messages.empty());
}
