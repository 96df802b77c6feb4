// Write Changes: only what differs from a trusted image of the module goes out, else it asks.
#include "ops/Bulk.h"
#include "ops/PinTransfer.h"
#include "support/Frames.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

#include <functional>

using namespace kestrel;
using namespace kestrel::test;

namespace {

struct WriteChangesSim : ::testing::Test {
    SimSession sim;
    Session& s = sim.session;
    std::vector<std::vector<int>> sent; // what reached the link, requests and sends alike

    void SetUp() override
    {
        s.general = fullGeneralSettings();
        s.config = fullConfiguration();
        ASSERT_TRUE(WriteAll(s, true));
        ASSERT_TRUE(ReadAll(s));
        ASSERT_NE(s.moduleImage(), nullptr);
        auto session = s.link.onExchange;
        s.link.onExchange = [this, session](const std::vector<int>& bytes, bool reply, bool ok) {
            sent.push_back(bytes);
            session(bytes, reply, ok);
        };
        sim.dialogs.clear();
    }
    // The command bytes of what went out, the ID string request first.
    std::vector<int> commands() const
    {
        std::vector<int> out;
        for (const auto& f : sent)
            out.push_back(f[0]);
        return out;
    }
    bool moduleMatches()
    {
        sent.clear();
        return VerifyAll(s);
    }
};

} // namespace

TEST_F(WriteChangesSim, OnlyWhatDiffersGoesOutInWriteAllsOrder)
{
    // What, the edit, the commands sent after the ID string request (112).
    const std::tuple<const char*, std::function<void(Session&)>, std::vector<int>> cases[] = {
        {"one step", [](Session& t) { t.config.step(3, 1, 4).Par1 ^= 1; }, {112, 99}},
        {"two items",
         [](Session& t) {
             t.general.TextGenDCCAddress = "77";
             t.config.events(5).OffEvent[2] ^= 1;
         },
         {112, 96, 101}},
        {"a layout", [](Session& t) { t.config.pin(1).AspectLayout = 3; },
         concat({{112, 98}, std::vector<int>(36, 99)})}, // all 4 x 9 steps
        {"a configuration and an initial aspect",
         [](Session& t) {
             t.config.pin(6).InitAspect ^= 1;
             t.config.pin(6).ConfigMode = 4;
         },
         {112, 100, 97}},
        {"nothing", [](Session&) {}, {112}},
    };
    for (const auto& [what, edit, expected] : cases) {
        SCOPED_TRACE(what);
        sent.clear();
        edit(s);
        ASSERT_TRUE(WriteChanges(s));
        EXPECT_EQ(commands(), expected);
        EXPECT_TRUE(moduleMatches());
    }
    EXPECT_EQ(sim.dialogs.texts().back(), "Nothing to write: the module holds this configuration.");
}

TEST_F(WriteChangesSim, APinWriteKeepsTheImageAndAFailureOrAnotherModuleDropsIt)
{
    s.config.step(0, 0, 0).Par0 ^= 1;
    ASSERT_TRUE(WritePin(s, 0));
    sent.clear();
    ASSERT_TRUE(WriteChanges(s));
    EXPECT_EQ(commands(), std::vector<int>{112}) << "the pin write is in the image";

    sim.memory().idString = "Up Yard";
    sim.dialogs.defaultAnswer = Answer::No;
    sent.clear();
    EXPECT_FALSE(WriteChanges(s));
    EXPECT_EQ(commands(), std::vector<int>{112});
    ASSERT_EQ(sim.dialogs.questions.size(), 1u);
    EXPECT_EQ(sim.dialogs.questions[0].text, "Another module answers at this address: its ID string is "
                                             "\"Up Yard\", not \"Up Main 7\".\r\nWrite All instead?");
    EXPECT_EQ(s.moduleImage(), nullptr);

    ASSERT_TRUE(ReadAll(s));
    sim.port.close(); // unplugged: the next exchange fails
    EXPECT_FALSE(ReadPin(s, 2));
    sim.port.open();
    sim.dialogs.clear();
    sent.clear();
    EXPECT_FALSE(WriteChanges(s));
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(sim.dialogs.questions.at(0).text.substr(0, 36), "What the module holds is not known: ");

    // A write outside the tracked ones (live erase included) drops it as well; Yes writes everything.
    ASSERT_TRUE(ReadAll(s));
    ASSERT_TRUE(s.link.send({96, 11, 0, 0}));
    EXPECT_EQ(s.moduleImage(), nullptr);
    sim.dialogs.defaultAnswer = Answer::Yes;
    EXPECT_TRUE(WriteChanges(s));
    EXPECT_EQ(s.lastJob().job, "Write Changes");
    EXPECT_TRUE(moduleMatches());

    // A write's reply that goes missing: the rest goes out one-way, and the image goes, so
    // that the next Write Changes cannot say the module holds what it may not.
    auto tracked = s.link.onExchange;
    s.link.onExchange = [&, tracked](const std::vector<int>& bytes, bool reply, bool ok) {
        tracked(bytes, reply, ok);
        if (bytes[0] == 112) // the ID string's reply came: the first write's will not
            sim.module.faults.dropReplies = 1;
    };
    s.config.step(3, 1, 4).Par1 ^= 1;
    s.general.TextGenDCCAddress = "77";
    EXPECT_TRUE(WriteChanges(s));
    EXPECT_EQ(std::tuple(s.moduleImage(), s.link.settings.CheckKestrelBD, s.jobSummary().substr(0, 31)),
              std::tuple(nullptr, false, "Write Changes incomplete: 1 pro"));
}
