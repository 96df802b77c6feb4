// The whole layout: the bus scan, Back Up All and Check All against the simulated layout
// (modules at 0, 3, 5 with eXtended address 7, and 15, and one that never answers), on
// both routes.
#include "files/Backups.h"
#include "files/DemoConfiguration.h"
#include "forms/LayoutJobs.h"
#include "seed/SimLayout.h"
#include "seed/SimSeed.h"
#include "support/Files.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

#include <filesystem>

using namespace kestrel;
using namespace kestrel::test;

namespace {

struct Layout : ::testing::Test {
    SimLayout layout;
    sim::SimModule& silent = layout.bus.addModule(9); // never answers
    FakeClock clock;
    std::unique_ptr<sim::SimPort> port;
    RecordingDialogs dialogs;
    std::unique_ptr<Session> session;
    ScratchDir root{"layout"};

    void on(sim::SimEndpoint& endpoint, bool corvid)
    {
        silent.faults.dropReplies = 1 << 30;
        port = std::make_unique<sim::SimPort>(endpoint);
        port->open();
        port->setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
        session = std::make_unique<Session>(*port, clock, dialogs);
        session->link.settings.CheckCorvid = corvid;
        clock.tick = corvid ? 0.001 : 0; // the system answers every poll at once: time passes with them
    }
    std::vector<FoundModule> expected(bool corvid, bool extended) const
    {
        std::vector<FoundModule> all;
        for (const SimLayoutModule& m : simLayoutModules())
            all.push_back({corvid, m.address, extended ? m.xaddress : std::nullopt, "1.2.3.4", m.id});
        return all;
    }
};

} // namespace

TEST_F(Layout, FindsEveryModuleQuietlyOnBothRoutes)
{
    const struct {
        bool corvid, extended;
        int addresses;
    } rows[] = {
        {false, false, kDirectAddresses}, {false, true, kDirectAddresses}, {true, false, kTunnelAddresses}};
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "corvid " << row.corvid << " extended " << row.extended);
        on(row.corvid ? static_cast<sim::SimEndpoint&>(layout.corvid) : layout.bus, row.corvid);
        session->link.settings.TargetAddress = 3;
        const double start = clock.now;
        EXPECT_EQ(findModules(*session, {row.extended}), expected(row.corvid, row.extended));
        EXPECT_TRUE(dialogs.messages.empty());
        EXPECT_TRUE(session->jobSummary().empty()) << session->jobSummary();
        // Put back: the address, the time-out, "Bidirectional Comm."; the short wait was used.
        EXPECT_EQ(session->link.settings.TargetAddress, 3);
        EXPECT_FALSE(session->link.settings.CheckXaddress);
        EXPECT_TRUE(session->link.settings.CheckKestrelBD);
        EXPECT_EQ(session->link.replyTimeout, kReplyTimeout);
        EXPECT_EQ(session->link.state.LinkToggle, 128);
        if (!row.extended) {
            EXPECT_LE(clock.now - start, row.addresses * kScanReplyTimeoutMs / 1000.0);
        }
    }
}

TEST_F(Layout, ASilentAddressLeavesTheLinkUnsynchronisedWithoutAWord)
{
    on(layout.bus, false);
    Link& link = session->link;
    link.settings.TargetAddress = 9;
    link.quietMissingReply = true;
    ASSERT_TRUE(link.request({112, 0}).sent);
    EXPECT_FALSE(link.lastReply().valid);
    EXPECT_EQ(link.state.LinkToggle, 128);
    EXPECT_TRUE(link.settings.CheckKestrelBD);
    EXPECT_TRUE(dialogs.messages.empty());
    // The next frame begins with the wake-up again.
    link.settings.TargetAddress = 3;
    port->take();
    EXPECT_TRUE(link.request({112, 0}).valid);
    const std::vector<std::uint8_t> wakeUp{0, 0, 0, 255, 255, 255, 170, 170, 170};
    EXPECT_EQ(std::vector<std::uint8_t>(port->written().begin(), port->written().begin() + 9), wakeUp);
}

TEST_F(Layout, ACancelEndsTheScanWithWhatWasFound)
{
    struct CancelAtAddress4 : Progress {
        std::vector<std::string> steps;
        void step(int, int, const std::string& what) override { steps.push_back(what); }
        bool cancelled() override { return steps.size() > 4; }
    } progress;
    on(layout.bus, false);
    session->link.setProgress(&progress);
    const std::vector<FoundModule> found = findModules(*session);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(found[1].id, "Yard east");
    EXPECT_EQ(session->jobSummary(), "Find Modules cancelled at Asking address 4");
}

TEST_F(Layout, BacksUpAndChecksEveryModuleBesideWhatIsShown)
{
    on(layout.bus, false);
    Session& s = *session;
    s.general.TextGenIDString = "shown";
    s.config.pin(1).Description = "shown pin";
    std::vector<FoundModule> modules = expected(false, true);
    modules.push_back({false, 9, std::nullopt, "1.2.3.4", "Silent"});

    const std::vector<ModuleBackup> backups = backUpAll(s, modules, root.path.string());
    ASSERT_EQ(backups.size(), modules.size());
    for (std::size_t i = 0; i + 1 < backups.size(); ++i) {
        EXPECT_TRUE(backups[i].ok && !backups[i].incomplete) << backups[i].error;
        EXPECT_EQ(std::filesystem::path(backups[i].file).parent_path().filename().string(),
                  backupFolderName(modules[i].id));
    }
    EXPECT_FALSE(backups.back().ok);
    EXPECT_EQ(backups.back().error, "No response received, resetting bidirectional communication");

    // The yard module changes, the station falls silent, the crossing's backup goes.
    layout.bus.module(3)->memory().dccAddressLow = 47; // 111
    layout.bus.module(15)->faults.dropReplies = 1 << 30;
    std::filesystem::remove_all(root.path / backupFolderName("Crossing 2"));
    const std::vector<ModuleCheck> checks = checkAll(s, modules, root.path.string());
    ASSERT_EQ(checks.size(), modules.size());
    const CheckVerdict verdicts[] = {CheckVerdict::Equal, CheckVerdict::Differs, CheckVerdict::NoBackup,
                                     CheckVerdict::Failed, CheckVerdict::NoBackup};
    for (std::size_t i = 0; i < checks.size(); ++i)
        EXPECT_EQ(checks[i].verdict, verdicts[i]) << modules[i].id << ": " << checks[i].error;
    EXPECT_EQ(checks[1].differences, std::vector<std::string>{"general DCC Address: module 111, file 110"});
    EXPECT_EQ(checks[3].error, "No response received, resetting bidirectional communication");

    EXPECT_EQ(s.general.TextGenIDString, "shown");
    EXPECT_EQ(s.config.pin(1).Description, "shown pin");
    EXPECT_EQ(s.link.settings.TargetAddress, 0);
}

TEST(SimLayoutModules, TheDemonstrationModuleIsTheBuiltInOne)
{
    sim::SimBus alone;
    alone.addModule(0);
    Configuration demo;
    GeneralSettings general;
    fillDemoConfiguration(demo, general);
    std::string error;
    ASSERT_TRUE(seedModule(alone, 0, demo, general, error)) << error;
    SimLayout layout;
    EXPECT_EQ(layout.bus.module(0)->memory(), alone.module(0)->memory());
    EXPECT_EQ(layout.bus.module(5)->memory().extendedAddress, 7);
}
