#include "SimTestBytes.h"
#include "sim/SimBus.h"

#include <gtest/gtest.h>

using namespace kestrel::sim;
using namespace kestrel::sim::test;

namespace {

// Data of a single reply frame without eXtended address, which must be the reply the test
// side builds from them.
Bytes replyData(const Bytes& frame)
{
    std::vector<int> data;
    for (std::size_t i = 2; i + 1 < frame.size(); ++i)
        data.push_back(frame[i] & 127);
    EXPECT_EQ(std::vector<int>(frame.begin(), frame.end()),
              kestrel::test::moduleReply(frame.empty() ? 0 : frame[0], data));
    return Bytes(data.begin(), data.end());
}

Bytes ask(SimBus& bus, int address, const std::vector<int>& data)
{
    return replyData(feed(bus, busRequest(address, 0, data)));
}

// One module at address 0.
struct SimModulePins : ::testing::Test {
    SimBus bus;
    SimModule& m = bus.addModule(0);
};
using SimModuleFaults = SimModulePins;

} // namespace

TEST(SimModuleFraming, VersionRequestWorkedExampleAfterBurstAndEmptyFrame)
{
    SimBus bus;
    SimModule& m = bus.addModule(0);
    EXPECT_TRUE(feed(bus, {0, 0, 0, 255, 255, 255, 170, 170, 170, 3, 192, 189}).empty());
    // Request Version to address 0, toggle 64: header 128 + 64 + 32 + size 2, data + 128, check
    // byte. The reply echoes the address byte; header 128 + 96 + 6; 67 + 102 + 112 + 10 = 291 -> 93 + 128.
    EXPECT_EQ(feed(bus, kVersionRequest), (Bytes{67, 230, 240, 128, 129, 130, 131, 132, 221}));
    EXPECT_EQ(feed(bus, {67, 226, 240, /* restart */ 67, 226, 240, 128, 235}), kVersionReply);
    EXPECT_TRUE(feed(bus, {67, 226, 240, 128, 236}).empty()); // bad check byte: dropped silently
    EXPECT_EQ(m.stats().checksumErrors, 1);
}

TEST(SimModuleFraming, AnswersOnlyItsOwnAddressWithTheToggleEchoed)
{
    SimBus bus;
    bus.addModule(2);
    bus.addModule(5);
    bus.addModule(17); // tunnel-only address: 17 * 4 + 3 = 71 would read as address 1 with toggle
    EXPECT_EQ(feed(bus, busRequest(2, 0, {112, 0})).at(0), 11);
    EXPECT_EQ(feed(bus, busRequest(5, 64, {112, 0})).at(0), 64 + 23);
    EXPECT_EQ(feed(bus, busRequest(5, 0, {112, 0})).at(0), 23);
    // Other addresses, unknown commands and wrong lengths get no reply.
    for (const Bytes& r :
         {busRequest(0, 0, {112, 0}), busRequest(1, 64, {112, 0}), busRequest(2, 0, {120, 0}),
          busRequest(2, 0, {112, 9}), busRequest(2, 0, {114, 3, 1}), busRequest(2, 0, {114, 32})})
        EXPECT_TRUE(feed(bus, r).empty()) << ::testing::PrintToString(r);
    // Without the bidirectional bit a write is carried out and nothing is sent.
    EXPECT_TRUE(feed(bus, busRequest(2, 0, {96, 6, 5}, false)).empty());
    EXPECT_EQ(bus.module(2)->memory().greenLed, 5);
    EXPECT_TRUE(feed(bus, busRequest(2, 0, {112, 6}, false)).empty());
}

TEST(SimModuleFraming, ExtendedAddressMatchMismatchAndReaddressing)
{
    SimBus bus;
    bus.addModule(1, 17);
    bus.addModule(1); // same bus address, no eXtended address
    EXPECT_EQ(feed(bus, busRequest(1, 64, {112, 2}, true, 17)),
              kestrel::test::frame<Bytes>({71, 128 + 96 + 16 + 3, 128 + 17}, {112, 2, 17}));
    EXPECT_TRUE(feed(bus, busRequest(1, 0, {112, 2}, true, 18)).empty());
    // Without the byte both modules answer, each with its own frame.
    EXPECT_EQ(feed(bus, busRequest(1, 0, {112, 0})).size(), 18u);
    // Writing item 2 readdresses the module.
    EXPECT_EQ(feed(bus, busRequest(1, 0, {96, 2, 40}, true, 17)).size(), 6u); // acknowledged at 17
    EXPECT_TRUE(feed(bus, busRequest(1, 0, {112, 0}, true, 17)).empty());
    EXPECT_FALSE(feed(bus, busRequest(1, 0, {112, 0}, true, 40)).empty());
}

TEST(SimModuleGeneral, WrongLengthWritesChangeNothingEraseNeedsTheConfirmationAndKeepsTheVersion)
{
    SimBus bus;
    SimModule& m = bus.addModule(0, std::nullopt, {3, 1, 0, 9});
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {96, 1, 1, 2, 3})).empty());
    EXPECT_TRUE(
        feed(bus, busRequest(0, 0, {96, 10, 'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j', 'k', 'l', 'm'}))
            .empty());
    EXPECT_EQ(m.memory(), m.factoryMemory());
    EXPECT_EQ(ask(bus, 0, {112, 10}), (Bytes{112, 10})); // empty ID string: length 2

    m.memory().idString = "Yard";
    m.memory().pins[7].aspectLayout = 3;
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {96, 0, 61, 17, 92, 8, 33, 70, 15, 45})).empty());
    EXPECT_EQ(m.memory().idString, "Yard");
    // As the erase is sent: without the bidirectional bit.
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {96, 0, 61, 17, 92, 8, 33, 70, 15, 44}, false)).empty());
    EXPECT_EQ(std::tuple(m.stats().erases, m.memory().idString, m.memory().pins[7].aspectLayout),
              std::tuple(1, "", 0));
    EXPECT_EQ(ask(bus, 0, {112, 0}), (Bytes{112, 0, 3, 1, 0, 9}));
}

TEST_F(SimModulePins, StepBytesAreKeptByteForByte)
{
    // Instruction 4 with Par1 = 200, Par2 = 5 travels as 1, 72, 5; code 0x13 = 3 faded.
    EXPECT_EQ(ask(bus, 0, {99, 5, 3, 8, 0x13, 1, 72, 5, 127}), (Bytes{99, 5}));
    EXPECT_EQ(ask(bus, 0, {99, 5, 11, 2, 0x43, 0, 1, 2, 3}), (Bytes{99, 5}));
    EXPECT_EQ(ask(bus, 0, {115, 5, 3, 8}), (Bytes{115, 5, 3, 8, 0x13, 1, 72, 5, 127}));
    EXPECT_EQ(ask(bus, 0, {115, 5, 11, 2}), (Bytes{115, 5, 11, 2, 0x43, 0, 1, 2, 3}));
    EXPECT_EQ(ask(bus, 0, {115, 5, 0, 0}), (Bytes{115, 5, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {115, 5, 12, 0})).empty());
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {99, 5, 0, 9, 1, 2, 3, 4, 5})).empty());
    EXPECT_EQ(ask(bus, 0, {98, 5, 3}), (Bytes{98, 5}));
    EXPECT_EQ(ask(bus, 0, {114, 5}), (Bytes{114, 5, 3}));
}

TEST_F(SimModulePins, AddressConfigurationTagsInAnyOrder)
{
    // Pin 30, device starting at pin 1: offset (1 - 30) & 31 = 3, sent 64 + 3; the bytes
    // arrive in an unusual order.
    EXPECT_EQ(ask(bus, 0, {102, 30, 67, 16 + 4, 8 + 6}), (Bytes{102, 30}));
    const PinMemory& pin = m.memory().pins[30];
    EXPECT_EQ(std::tuple(pin.dccCount, pin.xdcc, pin.lynxCount, pin.deviceOffset), std::tuple(6, true, 4, 3));
    EXPECT_EQ(ask(bus, 0, {118, 30}), (Bytes{118, 30, 14, 20, 67}));
    m.addressConfigRotation = 1;
    EXPECT_EQ(ask(bus, 0, {118, 30}), (Bytes{118, 30, 20, 67, 14}));
    // A byte without a valid tag refuses the whole write.
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {102, 30, 40, 16, 64})).empty());
    EXPECT_EQ(m.memory().pins[30].lynxCount, 4);
}

TEST_F(SimModulePins, InitialAspectAndEventSlots)
{
    // Factory: no initial aspect (127) and no actions (slot * 16 + 15).
    EXPECT_EQ(ask(bus, 0, {116, 9}), (Bytes{116, 9, 127, 0x0F, 0x1F, 0x2F, 0x3F}));
    EXPECT_EQ(ask(bus, 0, {100, 9, 112 + 4}), (Bytes{100, 9}));
    EXPECT_EQ(ask(bus, 0, {100, 9, 0x05, 0x1F, 0x2B, 0x30}), (Bytes{100, 9}));
    EXPECT_EQ(ask(bus, 0, {101, 9, 0x0F, 0x11, 0x2F, 0x25}), (Bytes{101, 9}));
    EXPECT_EQ(ask(bus, 0, {116, 9}), (Bytes{116, 9, 116, 0x05, 0x1F, 0x2B, 0x30}));
    EXPECT_EQ(ask(bus, 0, {117, 9}), (Bytes{117, 9, 0x0F, 0x11, 0x2F, 0x25}));
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {100, 9, 0x64})).empty()); // tag 6: refused
    EXPECT_EQ(ask(bus, 0, {100, 9, 127}), (Bytes{100, 9}));
    EXPECT_EQ(ask(bus, 0, {116, 9}).at(2), 127);
}

TEST_F(SimModulePins, PinConfigurationPerModeInFlashAndActive)
{
    const std::vector<int> servo{97, 4, 1, 70, 43, 64, 10, 20, 30, 40, 66, 5, 60, 7};
    EXPECT_EQ(ask(bus, 0, servo), (Bytes{97, 4}));
    EXPECT_EQ(ask(bus, 0, {113, 4}), (Bytes{113, 4, 1, 70, 43, 64, 10, 20, 30, 40, 66, 5, 60, 7}));
    EXPECT_EQ(ask(bus, 0, {81, 4}), (Bytes{81, 4, 0})); // active set untouched by a flash write

    EXPECT_EQ(ask(bus, 0, {65, 4, 3, 12, 1, 9, 0, 31}), (Bytes{65, 4})); // PWM inverted, level 12
    EXPECT_EQ(ask(bus, 0, {81, 4}), (Bytes{81, 4, 3, 12, 1, 9, 0, 31}));
    EXPECT_EQ(ask(bus, 0, {0, 54, 4, 25}), (Bytes{0, 54})); // slow PWM level 25
    EXPECT_EQ(ask(bus, 0, {81, 4}), (Bytes{81, 4, 3, 25, 1, 9, 0, 31}));
    EXPECT_EQ(m.lastLive.subCommand, 54);

    EXPECT_EQ(ask(bus, 0, {97, 6, 5, 0, 0, 7, 9}), (Bytes{97, 6})); // input, inverted
    EXPECT_EQ(ask(bus, 0, {113, 6}), (Bytes{113, 6, 5, 0, 0, 7, 9}));
    EXPECT_EQ(ask(bus, 0, {97, 6, 0}), (Bytes{97, 6})); // unconfigured
    EXPECT_EQ(ask(bus, 0, {113, 6}), (Bytes{113, 6, 0}));

    EXPECT_EQ(ask(bus, 0, {0, 39, 8, 100}), (Bytes{0, 39})); // servo jump on an unconfigured pin
    EXPECT_EQ(m.memory().pins[8].outputValue(), 100);
    EXPECT_TRUE(feed(bus, busRequest(0, 0, {0, 40, 8, 1})).empty()); // not a live sub-command
}

// The fault switches whose effect the client must shrug off: the fault matrix would pass
// if they did nothing, so their bytes are checked here.
TEST_F(SimModuleFaults, CorruptedCopyAndGarbageBeforeTheGoodReply)
{
    m.faults.corruptCopies = 1;
    Bytes out = feed(bus, kVersionRequest);
    ASSERT_EQ(out.size(), 18u);
    const Bytes bad(out.begin(), out.begin() + 9);
    EXPECT_FALSE(sumsToZero(bad));
    EXPECT_GE(bad.back(), 128);
    EXPECT_EQ(Bytes(out.begin() + 9, out.end()), kVersionReply);
    EXPECT_EQ(feed(bus, kVersionRequest), kVersionReply); // only the next one

    m.faults.garbage = {0xAA, 0x05};
    out = feed(bus, kVersionRequest);
    EXPECT_EQ(out, (Bytes{0xAA, 0x85, 67, 230, 240, 128, 129, 130, 131, 132, 221})); // bit 7 forced
}
