// A port that disappears (an adapter pulled out) in the ways the fault matrix does not cover:
// during a time-out, on a one-way write, for good, and tunnelled in the middle of Read All.
#include "FaultRig.h"
#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;
using namespace kestrel::test::faults;

namespace {

TEST(PortLost, DuringATimeOutIsTheOnlyMessage)
{
    FaultRig rig(false);
    ASSERT_TRUE(rig.ready);
    rig.forgetModel();
    // The module stays silent; half a second into the wait the adapter is pulled.
    rig.module.faults.dropReplies = 1;
    rig.port.setWaitHook([&](int) {
        rig.clock.advance(0.5);
        rig.port.setVanished(true);
    });
    const double start = rig.clock.now;
    EXPECT_FALSE(ReadAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{kPortLost});
    EXPECT_NEAR(rig.clock.now - start, 0.5, 1e-6); // not the rest of the 2 s
    // No time-out: nothing reset.
    EXPECT_EQ(std::tuple(rig.session.link.settings.CheckKestrelBD, rig.session.general.LabelGenVersionString),
              std::tuple(true, "Unknown"));

    rig.port.setWaitHook([&](int ms) { rig.clock.advance(ms / 1000.0); });
    rig.bringBack();
    EXPECT_TRUE(ReadAll(rig.session));
    EXPECT_EQ(std::tuple(rig.dialogs.texts(), rig.session.general),
              std::tuple(std::vector<std::string>{}, rig.sourceGeneral));
}

TEST(PortLost, OneWayWriteAllStopsAtTheFirstFailedWrite)
{
    FaultRig rig(false);
    ASSERT_TRUE(rig.ready);
    rig.eraseModule();
    rig.session.link.setBidirectional(false);
    // Event-On of pin 12 is being written when the adapter goes (command 100 with the
    // slot 0 byte, action 11; with a tag-7 byte it would be the pin's initial aspect).
    ASSERT_EQ(rig.source.events(12).OnEvent[0], 11);
    rig.wire.arm(Fault::PortGoneWriting, {100, 12, 11});
    const double start = rig.clock.now;
    const long slept = rig.clock.slept;
    EXPECT_FALSE(WriteAll(rig.session));
    EXPECT_EQ(std::tuple(rig.wire.hits, rig.dialogs.texts()),
              std::tuple(1, std::vector<std::string>{kPortLost}));
    // Only the pauses that pace one-way writes have passed: no reply was waited for.
    EXPECT_NEAR(rig.clock.now - start, (rig.clock.slept - slept) / 1000.0, 1e-6);
    for (int p = 0; p < kPinCount; ++p)
        EXPECT_EQ(rig.module.memory().pins[p].eventOn,
                  p < 12 ? rig.seeded.pins[p].eventOn : rig.module.factoryMemory().pins[p].eventOn)
            << p;
    EXPECT_EQ(rig.module.memory().eventOnEnable, rig.module.factoryMemory().eventOnEnable);

    rig.bringBack();
    EXPECT_TRUE(WriteAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{});
    EXPECT_TRUE(rig.module.memory() == rig.seeded);
}

TEST(PortLost, AJobStartedWhileItIsStillGoneSaysSoOnce)
{
    FaultRig rig(false);
    ASSERT_TRUE(rig.ready);
    rig.wire.arm(Fault::PortGoneWaiting, {112, 0});
    EXPECT_FALSE(ReadAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{kPortLost});
    rig.dialogs.clear();

    // The user tries again before plugging the adapter back in: each job stops at its
    // first request with the port closed.
    EXPECT_FALSE(WriteAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{"Select communications port"});
    rig.dialogs.clear();
    EXPECT_FALSE(VerifyAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{"Select communications port"});
    EXPECT_EQ(rig.session.report.txtVerification,
              "Start General Settings Verification\r\nVerification Stopped\r\n");
    rig.dialogs.clear();

    // Choosing the port while it is still gone fails with its own message.
    EXPECT_FALSE(rig.session.linkControl.ComboPort_Click("sim"));
    EXPECT_EQ(rig.dialogs.texts(),
              std::vector<std::string>{"Cannot open port sim: Port sim: the simulated port has gone away"});

    rig.bringBack();
    EXPECT_TRUE(VerifyAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{});
}

TEST(PortLost, TunnelledReadAllAndTheNextJob)
{
    FaultRig rig(true);
    ASSERT_TRUE(rig.ready);
    rig.forgetModel();
    // The step read of pin 9, aspect 2, step 1 is on its way when the adapter goes.
    rig.wire.arm(Fault::PortGoneWaiting, {115, 9, 2, 1});
    EXPECT_FALSE(ReadAll(rig.session));
    EXPECT_EQ(std::tuple(rig.wire.hits, rig.dialogs.texts()),
              std::tuple(1, std::vector<std::string>{kPortLost}));
    EXPECT_EQ(std::tuple(rig.session.general.TextGenIDString, rig.session.config.pin(8),
                         rig.session.config.pin(10)),
              std::tuple(rig.sourceGeneral.TextGenIDString, rig.source.pin(8), Configuration{}.pin(10)));

    // The module's reply to that step read still waits in the Corvid system; it must not
    // be taken for the reply to the next job's first request.
    rig.bringBack();
    rig.forgetModel();
    EXPECT_TRUE(ReadAll(rig.session));
    EXPECT_EQ(rig.dialogs.texts(), std::vector<std::string>{});
    rig.expectWholeModel();
}

} // namespace
