#include "sim/SimPort.h"
#include "SimTestBytes.h"
#include "sim/SimBus.h"
#include "sim/SimFraming.h"

#include <gtest/gtest.h>

#include <random>

using namespace kestrel::sim;
using namespace kestrel::sim::test;

TEST(SimFraming, RunningSumCheckSatisfiesTheReceiverRule)
{
    // Running sum 67, 37, 21, 149 (mod 256); 256 - 149 = 107, below 128, so 235.
    const Bytes request{67, 226, 240, 128};
    EXPECT_EQ(runningSumCheck(request.data(), request.size()), 235);
    std::mt19937 random(7);
    for (int round = 0; round < 500; ++round) {
        Bytes frame{static_cast<std::uint8_t>(random() % 128)};
        const int n = 1 + static_cast<int>(random() % 18);
        for (int i = 0; i < n; ++i)
            frame.push_back(static_cast<std::uint8_t>(128 + random() % 128));
        ASSERT_EQ(runningSumCheck(frame.data(), frame.size()), kestrel::test::closingByte(frame));
    }
}

TEST(SimPort, ReplyIsReadableAsSoonAsTheFrameCompletes)
{
    SimBus bus;
    bus.addModule(0);
    SimPort port(bus);
    ASSERT_TRUE(port.open());
    const Bytes request{67, 226, 240, 128, 235};
    for (std::size_t i = 0; i < request.size(); ++i) {
        EXPECT_EQ(port.bytesWaiting(), 0);
        ASSERT_TRUE(port.writeByte(request[i]));
    }
    EXPECT_TRUE(port.waitForBytes(2000));
    EXPECT_EQ(port.bytesWaiting(), 9);
    EXPECT_EQ(std::tuple(port.readByte(), port.written(), bus.stats().bytesIn, bus.stats().exchanges),
              std::tuple(67, request, 5, 1));
}

TEST(SimPort, SettingsOpenCloseEmptyWaitAndVanishing)
{
    SimBus bus;
    bus.addModule(0);
    SimPort port(bus);
    port.setSettings("38400,o,8,1");
    EXPECT_EQ(std::tuple(port.settings(), port.isOpen(), port.writeByte(67)),
              std::tuple("38400,o,8,1", false, false));
    ASSERT_TRUE(port.open());
    for (auto b : busRequest(0, 0, {112, 0}))
        port.writeByte(b);
    port.close();
    ASSERT_TRUE(port.open()); // a reopened port starts empty
    EXPECT_EQ(port.bytesWaiting(), 0);
    // A wait with nothing to come returns at once through the hook.
    int waitedMs = 0;
    port.setWaitHook([&](int ms) { waitedMs += ms; });
    EXPECT_FALSE(port.waitForBytes(2000));
    EXPECT_EQ(std::tuple(waitedMs, port.emptyWaits()), std::tuple(2000, 1));

    port.setVanished(true);
    EXPECT_EQ(std::tuple(port.isOpen(), port.writeByte(3), port.open(), port.errorString().empty()),
              std::tuple(false, false, false, false));
    port.setVanished(false);
    EXPECT_TRUE(port.open());
}
