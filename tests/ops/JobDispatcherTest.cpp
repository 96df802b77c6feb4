#include "ops/JobDispatcher.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(JobDispatcher, RunsTheLastRequestOnceDropsUnknownNamesAndNeverRunsTwoAtOnce)
{
    JobDispatcher d;
    std::vector<std::string> ran;
    d.add(Jobs::ReadAll, [&] { ran.push_back("ReadAll"); });
    d.add(Jobs::WriteAll, [&] { ran.push_back("WriteAll"); });

    EXPECT_FALSE(d.Timer1_Timer()); // nothing pending
    d.request(Jobs::ReadAll);
    d.request(Jobs::WriteAll); // two clicks within one interval: only the later runs
    EXPECT_TRUE(d.Timer1_Timer());
    EXPECT_FALSE(d.Timer1_Timer());
    EXPECT_EQ(ran, std::vector<std::string>{"WriteAll"});

    d.PendingJob = "readall"; // compared exactly, case included
    EXPECT_FALSE(d.Timer1_Timer());
    EXPECT_TRUE(d.PendingJob.empty());
    EXPECT_EQ(ran.size(), 1u);

    // A tick during a job does nothing; a failing job still clears.
    int inner = 0;
    d.add(Jobs::VerifyAll, [&] {
        d.request(Jobs::VerifyAll);
        inner += d.Timer1_Timer() ? 1 : 0; // the window's events keep ticking meanwhile
    });
    d.add(Jobs::ECVerify, [] { throw std::runtime_error("fault"); });
    d.request(Jobs::VerifyAll);
    EXPECT_TRUE(d.Timer1_Timer());
    EXPECT_EQ(inner, 0);
    EXPECT_EQ(d.PendingJob, "VerifyAll"); // asked for again while running: runs on a later tick

    d.request(Jobs::ECVerify);
    EXPECT_THROW(d.Timer1_Timer(), std::runtime_error);
    EXPECT_FALSE(d.running());
    EXPECT_TRUE(d.PendingJob.empty());
}
