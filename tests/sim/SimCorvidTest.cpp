#include "sim/SimCorvid.h"
#include "SimTestBytes.h"
#include "sim/SimFraming.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace kestrel::sim;
using namespace kestrel::sim::test;

namespace {

// Data of one Corvid answer, whose header form, length and check byte must be those the
// test side gives the same data.
Bytes answerData(const Bytes& frame)
{
    std::vector<int> data;
    for (std::size_t i = 1; i + 1 < frame.size(); ++i)
        data.push_back(frame[i] & 127);
    EXPECT_EQ(frame, corvidRequest(data, !frame.empty() && (frame[0] & 64)));
    return Bytes(data.begin(), data.end());
}

struct Rig {
    SimBus bus;
    SimCorvid corvid{bus};
    Bytes exchange(const std::vector<int>& data, bool toggle = false)
    {
        return answerData(feed(corvid, corvidRequest(data, toggle)));
    }
};

} // namespace

TEST(SimCorvid, SystemVersionAndInterfaceUnit)
{
    Rig rig;
    rig.corvid.setSystemVersion(6045);
    EXPECT_EQ(rig.exchange({1, 2}), (Bytes{1, 2, 0x30, 0x25}));
    rig.corvid.setSystemVersion(3000);
    EXPECT_EQ(rig.exchange({1, 2}), (Bytes{1, 2, 0x18, 0x00}));
    rig.corvid.setUnit(CorvidUnit::Linkbox, 1030);
    EXPECT_EQ(rig.exchange({1, 10}), (Bytes{1, 10, 10, 8, 24}));
    EXPECT_THROW(rig.corvid.setUnit(CorvidUnit::HubA, 1019), std::invalid_argument); // units digit 9 > 7
    EXPECT_EQ(decodeCorvidVersion(0x30, 0x25), 6045);
    EXPECT_EQ(encodeCorvidVersion(1027), (std::pair<std::uint8_t, std::uint8_t>{8, 23}));
    EXPECT_THROW(encodeCorvidVersion(6800), std::invalid_argument);
    EXPECT_THROW(encodeCorvidVersion(1029), std::invalid_argument);
}

TEST(SimCorvid, TunnelledRequestIsAnsweredOnALaterPoll)
{
    Rig rig;
    rig.bus.addModule(0, std::nullopt, {1, 2, 3, 4});
    EXPECT_TRUE(rig.exchange({0, 96, 96, 112, 0}).empty());
    // Nine data bytes: the long form of the header.
    EXPECT_EQ(feed(rig.corvid, corvidRequest({}, true)),
              corvidRequest({0, 96, 102, 112, 0, 1, 2, 3, 4}, true));
    EXPECT_TRUE(rig.exchange({}).empty());

    rig.corvid.setReplyDelayPolls(3); // the reply comes with the third poll
    rig.exchange({0, 96, 96, 112, 0});
    EXPECT_TRUE(rig.exchange({}).empty());
    EXPECT_TRUE(rig.exchange({}).empty());
    EXPECT_EQ(rig.exchange({}).size(), 9u);
}

TEST(SimCorvid, TunnelReachesHighAndExtendedAddressesAndCarriesWrites)
{
    Rig rig;
    rig.bus.addModule(20, 17);
    rig.exchange({0, 116, 112, 17, 114, 3});
    EXPECT_EQ(rig.exchange({}), (Bytes{0, 116, 112 + 3, 17, 114, 3, 0}));
    rig.exchange({0, 116, 112, 18, 114, 3}); // other eXtended address: no reply
    rig.exchange({0, 117, 96, 114, 3});      // no module at 21
    EXPECT_TRUE(rig.exchange({}).empty());
    EXPECT_EQ(rig.corvid.pendingReplies(), 0u);

    // A tunnelled write changes the module and is acknowledged.
    SimModule& m = rig.bus.addModule(3);
    rig.exchange({0, 99, 96, 96, 10, 'Y', 'a', 'r', 'd'});
    EXPECT_EQ(m.memory().idString, "Yard");
    EXPECT_EQ(rig.exchange({}), (Bytes{0, 99, 98, 96, 10}));
}

TEST(SimCorvid, TransparentModePassesBytesThrough)
{
    Rig rig;
    rig.bus.addModule(0);
    EXPECT_EQ(rig.exchange({1, 5, 16}), (Bytes{1, 5, 16}));
    EXPECT_EQ(std::tuple(rig.corvid.transparent(), rig.corvid.transparentRequests()), std::tuple(true, 1));
    // The wake-up burst, the empty frame and Request Version, straight to the module.
    EXPECT_TRUE(feed(rig.corvid, {0, 0, 0, 255, 255, 255, 170, 170, 170, 3, 192, 189}).empty());
    EXPECT_EQ(feed(rig.corvid, kVersionRequest), kVersionReply);
}

TEST(SimCorvid, PollsDamagedFramesAndFaults)
{
    Rig rig;
    // A poll with nothing pending gets an empty frame with its toggle: header 40 + 64, check 152.
    EXPECT_EQ(feed(rig.corvid, {104, 152}), (Bytes{104, 152}));
    EXPECT_EQ(feed(rig.corvid, {40, 216}), (Bytes{40, 216}));
    Bytes poll = corvidRequest({});
    poll.back() ^= 1;
    EXPECT_TRUE(feed(rig.corvid, poll).empty());
    EXPECT_EQ(rig.corvid.checksumErrors(), 1);

    rig.corvid.faults.ignoreFrames = 1;
    EXPECT_TRUE(feed(rig.corvid, corvidRequest({1, 2})).empty());
    rig.corvid.faults.corruptReplies = 1;
    const Bytes bad = feed(rig.corvid, corvidRequest({1, 2}));
    EXPECT_EQ(std::tuple(bad.size(), sumsToZero(bad)), std::tuple(6u, false));
    EXPECT_EQ(rig.exchange({1, 2}).size(), 4u);
}

TEST(SimCorvid, LongRequestHeaderForms)
{
    Rig rig;
    rig.bus.addModule(1);
    // Sixteen data bytes: header 16 (bit 4 set, bit 3 clear). The servo send to flash.
    const std::vector<int> send{0, 97, 96, 97, 2, 1, 70, 43, 64, 10, 20, 30, 40, 66, 5, 60};
    const Bytes frame = corvidRequest(send);
    ASSERT_EQ(frame[0], 16);
    EXPECT_TRUE(answerData(feed(rig.corvid, frame)).empty());
    EXPECT_EQ(rig.exchange({}), (Bytes{0, 97, 98, 97, 2}));
    EXPECT_EQ(rig.bus.module(1)->memory().pins[2].flashConfig,
              (Bytes{1, 70, 43, 64, 10, 20, 30, 40, 66, 5, 60}));
}
