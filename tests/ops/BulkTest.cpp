// Read All, Write All and Verify All: the order of the steps and where a run stops.
#include "ops/Bulk.h"
#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"
#include "ops/PinTransfer.h"
#include "support/ScriptedModule.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

#include <functional>

using namespace kestrel;
using namespace kestrel::test;

namespace {

// The module holds what the session holds (the round trip is the fault matrix's check).
struct BulkSim : ::testing::Test {
    SimSession sim;
    Session& s = sim.session;
    void SetUp() override
    {
        s.general = fullGeneralSettings();
        s.config = fullConfiguration();
        ASSERT_TRUE(WriteAll(s));
        sim.dialogs.clear();
    }
};

} // namespace

TEST_F(BulkSim, AnotherIdOnTheModuleStopsAfterTheGeneralStage)
{
    int shown = 0;
    s.onShowVerification = [&] { ++shown; };
    s.report.line("left from an earlier run");
    sim.memory().idString = "Up Yard";
    EXPECT_FALSE(VerifyAll(s));
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(s.report.txtVerification,
              "Start General Settings Verification\r\n"
              "ID does not compare: KestrelConfig = <Up Main 7> Kestrel = <Up Yard>\r\n"
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
    // The refusal, the item refused, the lines between the first and "Verification Stopped".
    const std::tuple<sim::Refusal, int, std::string> cases[] = {
        {sim::Refusal::WrongLength, 13, "Serial Port Config: No valid response, size = 5 expected = 4\r\n"},
        {sim::Refusal::WrongEcho, 8,
         "Serial Address Settings: No valid response, msg = 113,8 expected = 112,8\r\n"},
        // A wrong length of the DCC address is reported and the stage goes on to the end.
        {sim::Refusal::WrongLength, 4,
         "DCC Address: No valid response\r\nSerial Port Configuration does not compare\r\n"},
        // A wrong echo of the eXtended DCC address ends it there.
        {sim::Refusal::WrongEcho, 12, "eXtended DCC Address: No valid response\r\n"},
        // No reply at all: the stage ends without a line of its own.
        {sim::Refusal::NoReply, 6, ""},
    };
    s.general.ComboGenBaud = 0; // differs from the module: seen only by a stage that goes on
    for (const auto& [refusal, item, lines] : cases) {
        sim.module.faults.refused.clear();
        sim.module.faults.refuse(112, refusal, item);
        EXPECT_FALSE(VerifyAll(s));
        EXPECT_EQ(s.report.txtVerification,
                  "Start General Settings Verification\r\n" + lines + "Verification Stopped\r\n")
            << item;
    }
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

TEST(BulkScripted, ModuleThatAnswersNothingEndsReadAllAfterTheVersionRequest)
{
    ScriptedModule m;
    m.silence();
    EXPECT_FALSE(ReadAll(m.session));
    EXPECT_EQ(std::tuple(m.requests, m.session.general.LabelGenVersionString),
              std::tuple(std::vector<Data>{{112, 0}}, "Unknown"));
}

TEST(BulkScripted, WriteAllSendsSerialAddressingLast)
{
    ScriptedModule m;
    m.session.link.settings.CheckKestrelBD = false; // nothing answers; writes are paced
    EXPECT_TRUE(WriteAll(m.session));
    std::vector<int> general; // the items of the general writes
    int pinWrites = 0, eventWrites = 0;
    for (const auto& r : m.requests) {
        if (r[0] == 96)
            general.push_back(r[1]);
        else if ((r[0] == 100 && r.size() == 6) || r[0] == 101)
            ++eventWrites;
        else
            ++pinWrites;
    }
    // ID, DCC options / address / eXtended address, green, orange, hardware, serial
    // port, enable maps, then serial addressing: mode, group mask, eXtended address.
    EXPECT_EQ(general, (std::vector<int>{10, 5, 4, 12, 6, 7, 1, 13, 11, 8, 3, 2}));
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
    EXPECT_FALSE(ReadAll(*fresh));
    EXPECT_GT(cancel.steps, 0);
    EXPECT_EQ(std::tuple(cancel.exchanges, fresh->general.TextGenIDString, fresh->general.TextGenDCCAddress,
                         sim.dialogs.texts(), fresh->jobSummary()),
              std::tuple(2, "Up Main 7", "0", std::vector<std::string>{},
                         "Read All cancelled at Reading DCC settings"));
}

// Told once, naming where the value is.
TEST_F(BulkSim, AValueThatCannotBeSentStopsTheWriteBeforeItsFirstByte)
{
    const auto writeAll = [](Session& x) { return WriteAll(x, true); };
    // What spoils the model, the write, the one message.
    const std::tuple<std::function<void(Session&)>, std::function<bool(Session&)>, std::string> cases[] = {
        {[](Session& x) { x.general.TextGenDCCAddress = "9000"; }, writeAll,
         "DCC address 9000 cannot be sent: 0..8191"},
        {[](Session& x) { x.general.TextGenIDString = "Caf\xc3\xa9"; }, WriteIDString,
         "ID string character 195 at position 4 cannot be sent: 0..127"},
        {[](Session& x) { x.config.Pins[31].Aspects[1].Steps[2] = {9, 0, 0, 200, 0, 0}; }, writeAll,
         "Pin 31, aspect 1, step 2: Par1 200 cannot be sent: 0..127"},
        {[](Session& x) { x.config.Pins[3].InitAspect = 16; }, [](Session& x) { return WritePin(x, 3); },
         "Pin 3: initial aspect 16 cannot be sent: 0..15"},
        {[](Session& x) { x.config.Pins[5].ConfigMode = 1, x.config.Pins[5].P(7) = 200; }, writeAll,
         "Pin 5: configuration parameter 7 200 cannot be sent: 0..127"},
        {[](Session& x) { x.config.EventMap[9].OffEvent[3] = 15; }, WriteAllEvents,
         "Pin 9: Event-Off(3) action 15 cannot be sent: -1..14"},
    };
    for (const auto& [spoil, write, message] : cases) {
        auto fresh = sim.fresh();
        fresh->config = s.config;
        fresh->general = s.general;
        spoil(*fresh);
        sim.dialogs.clear();
        const long before = sim.bus.stats().bytesIn;
        EXPECT_FALSE(write(*fresh)) << message;
        EXPECT_EQ(std::tuple(sim.dialogs.texts(), sim.bus.stats().bytesIn),
                  std::tuple(std::vector<std::string>{message}, before));
    }
}
