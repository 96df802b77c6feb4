// Event control: slot bytes, transfers, entry boxes, enable maps and verification lines.
#include "ops/EventControl.h"
#include "forms/EventControlForm.h"
#include "support/ScriptedModule.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(EventSlotByte, HighNibbleIsTheSlotAndFifteenMeansNone)
{
    // Slot number 2 found in slot 3 is no action either.
    EXPECT_EQ(std::tuple(decodeEventSlot(2, 0x2F), decodeEventSlot(3, 0x25), decodeEventSlot(2, 0x25),
                         decodeEventSlot(0, 0x0E)),
              std::tuple(-1, -1, 5, 14));
    EXPECT_EQ(std::tuple(encodeEventSlot(1, -1), encodeEventSlot(3, 11), encodeEventSlot(0, 0)),
              std::tuple(0x1F, 0x3B, 0x00));
}

namespace {
struct EventScripted : ::testing::Test {
    ScriptedModule m;
    Session& s = m.session;
};
} // namespace

TEST_F(EventScripted, WriteSinglePinSendsOnThenOffSlots)
{
    s.config.NumberingBase = 1;
    s.eventControl.TextECpin = "8"; // pin 7
    s.config.events(7).OnEvent = {3, -1, 11, 0, 0};
    s.config.events(7).OffEvent = {-1, -1, -1, 2, 0};
    EXPECT_TRUE(WriteSingleEvents(s));
    EXPECT_EQ(m.requests,
              (std::vector<Data>{{100, 7, 0x03, 0x1F, 0x2B, 0x30}, {101, 7, 0x0F, 0x1F, 0x2F, 0x32}}));
}

TEST_F(EventScripted, ReadSinglePinUsesTheDifferentReplyLayoutsAndShowsTheEntries)
{
    s.eventControl.TextECpin = "40"; // clamped to pin 31
    // Event-On: length 7, an initial aspect entry before the slots; Event-Off: length 6.
    m.answer({{116, 31, 0x7F, 0x01, 0x1F, 0x25, 0x3A}, {117, 31, 0x04, 0x1F, 0x2F, 0x3F}});
    EXPECT_TRUE(ReadSingleEvents(s));
    EXPECT_EQ(std::tuple(m.requests, s.eventControl.TextECpin, s.eventControl.TextECon,
                         s.eventControl.TextECoff, s.config.events(31).OnEvent[2]),
              std::tuple(std::vector<Data>{{116, 31}, {117, 31}}, "31",
                         std::array<std::string, 4>{"1", "-1", "5", "10"},
                         std::array<std::string, 4>{"4", "-1", "-1", "-1"}, 5));

    m.answer({116, 31, 0x7F, 0x01, 0x1F, 0x25}); // one byte short
    m.answer({117, 31, 0x04, 0x1F, 0x2F, 0x3F});
    EXPECT_TRUE(ReadSingleEvents(s));
    EXPECT_EQ(m.dialogs.texts(), (std::vector<std::string>{"Function not supported by Device"}));
}

TEST_F(EventScripted, EntryBoxesClampToMinusOneAndElevenAndCopyToAll)
{
    s.eventControl.TextECpin = "3";
    s.eventControl.TextECon[1] = "-5";
    EditEventEntry(s, EventSide::On, 1);
    s.eventControl.TextECoff[2] = "20";
    EditEventEntry(s, EventSide::Off, 2);
    EXPECT_EQ(std::tuple(s.eventControl.TextECon[1], s.eventControl.TextECoff[2],
                         s.config.events(3).OnEvent[1], s.config.events(3).OffEvent[2]),
              std::tuple("-1", "11", -1, 11));
    // A number within -1..11 is taken as typed; only a clamped one is written back.
    s.eventControl.TextECon[3] = "07";
    EditEventEntry(s, EventSide::On, 3);
    EXPECT_EQ(std::tuple(s.eventControl.TextECon[3], s.config.events(3).OnEvent[3]), std::tuple("07", 7));

    s.eventControl.TextECon = {"1", "2", "3", "4"};
    s.eventControl.TextECoff = {"-1", "0", "-1", "7"};
    CopyEventsToAll(s);
    for (int p = 0; p < kPinCount; ++p)
        EXPECT_EQ(s.config.events(p), (EventRecord{{1, 2, 3, 4, 0}, {-1, 0, -1, 7, 0}})) << p;
}

TEST_F(EventScripted, EnableMapsAreTheInverseOfTheBoxes)
{
    s.general.CheckInitEE = {1, 1, 1, 1, 1, 1, 1, 1};
    WriteEnableMaps(s);
    s.general.CheckInitEE = {0, 0, 0, 0, 0, 0, 0, 0};
    WriteEnableMaps(s);
    s.general.CheckInitEE = {1, 0, 1, 1, 0, 1, 1, 1};
    WriteEnableMaps(s);
    EXPECT_EQ(m.take(), (std::vector<Data>{{96, 11, 0, 0}, {96, 11, 15, 15}, {96, 11, 2, 1}}));

    m.answer({112, 11, 0x12, 0x05}); // bits 4..7 unused
    EXPECT_TRUE(ReadEnableMaps(s));
    EXPECT_EQ(std::tuple(m.requests, s.general.CheckInitEE),
              std::tuple(std::vector<Data>{{112, 11}}, std::array<int, 8>{1, 0, 1, 1, 0, 1, 0, 1}));
}

TEST(EventSim, VerifyWritesOneLinePerDifferingSlotAndTheMaskLines)
{
    SimSession sim;
    Session& s = sim.session;
    s.config.NumberingBase = 1;
    ASSERT_TRUE(WriteAllEvents(s));
    ASSERT_TRUE(WriteEnableMaps(s));
    EXPECT_TRUE(VerifyEventControl(s));
    const std::string start = "Start EC Verification\r\nNote: Numbering starts at 1\r\n";
    const std::string pin4 =
        "Event-On(2) for pin 4 does not compare: Configured Action = 0, Kestrel Reply = -1\r\n";
    EXPECT_EQ(s.report.txtVerification, start);

    s.report.clear();
    sim.memory().pins[3].eventOn[2] = 0x2F; // pin 3, slot 2: none
    sim.memory().pins[30].eventOff[0] = 0x07;
    sim.memory().eventOffEnable = 4;
    EXPECT_FALSE(VerifyEventControl(s));
    EXPECT_EQ(s.report.txtVerification,
              start + pin4 +
                  "Event-Off(0) for pin 31 does not compare: Configured Action = 0, Kestrel Reply = 7\r\n" +
                  "ECInit: OFF-mask does not compare\r\n");

    s.report.clear();
    sim.module.faults.refuse(117, sim::Refusal::WrongLength);
    sim.module.faults.refuse(112, sim::Refusal::WrongEcho, 11);
    EXPECT_FALSE(VerifyEventControl(s));
    EXPECT_EQ(s.report.txtVerification, start + pin4 +
                                            "Read Event-Off: Function not supported by Device\r\n"
                                            "ECInit: No valid response type\r\n");
}
