// The time estimate of long jobs against a real run's traffic and the wire benchmark.
#include "ops/Estimate.h"
#include "FullConfiguration.h"
#include "ops/Bulk.h"
#include "ops/GeneralCommands.h"
#include "ops/PinTransfer.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(Estimate, CountsTheTrafficOfEachWholeModuleJobExactly)
{
    SimSession sim;
    Session& s = sim.session;
    bench::fillFullConfiguration(s.config, s.general);
    ASSERT_TRUE(RequestVersion(s)); // the link is in step before counting
    const struct {
        LongJob job;
        bool (*run)(Session&);
    } jobs[] = {
        {LongJob::WriteAll, [](Session& x) { return WriteAll(x, true); }},
        {LongJob::ReadAll, ReadAll},
        {LongJob::VerifyAll, VerifyAll},
        {LongJob::WriteAllPins, [](Session& x) { return WriteAllPins(x, true); }},
        {LongJob::ReadAllPins, ReadAllPins},
        {LongJob::VerifyAllPins, VerifyAllPins},
    };
    for (const auto& j : jobs) {
        const JobTraffic expected = jobTraffic(j.job, s.config, s.general, s.link.settings, true);
        const LinkStats before = s.link.stats;
        ASSERT_TRUE(j.run(s));
        EXPECT_EQ(expected.exchanges, s.link.stats.exchanges - before.exchanges);
        EXPECT_EQ(expected.bytesOut, s.link.stats.bytesOut - before.bytesOut);
        EXPECT_EQ(expected.bytesIn, s.link.stats.bytesIn - before.bytesIn);
    }
}

TEST(Estimate, ReadAllOfTheFullConfigurationIsWithinTenPercentOfTheBenchmark)
{
    Configuration config;
    GeneralSettings general;
    bench::fillFullConfiguration(config, general);
    const JobTraffic read = jobTraffic(LongJob::ReadAll, config, general, LinkSettings{});
    // Wall times of `kestrel-cli read` in the README's wire benchmark.
    for (const auto& [baud, measured] : {std::pair{9600, 28.78}, std::pair{38400, 7.43}})
        EXPECT_NEAR(wireSeconds(read, baud), measured, 0.1 * measured) << baud;
}
