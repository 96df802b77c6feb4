// Which file holds the configuration, whether it is saved, and whether the module holds it.
#include "forms/WorkState.h"
#include "forms/MainWindowForm.h"

#include "files/ConfigurationFile.h"
#include "files/DemoConfiguration.h"
#include "support/Files.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(WorkState, OnlyALoadOrASaveOfAllThatIsShownMakesTheWorkSaved)
{
    ScratchDir dir("workstate");
    Configuration c;
    GeneralSettings g;
    fillDemoConfiguration(c, g);
    WorkState work;
    EXPECT_TRUE(work.unsaved(c, g)); // never saved
    std::string error;
    ASSERT_TRUE(saveConfigurationFile(dir.file("full.dat"), c, g, SaveForm::Full, error));
    work.fileHolds(dir.file("full.dat"), c, g);
    EXPECT_FALSE(work.unsaved(c, g) || work.changedOnDisk());
    c.pin(3).Description = "Only the file keeps it"; // counts for the file, not the module
    ModuleImage image;
    image.config = c;
    image.general = g;
    image.config.pin(3).Description.clear();
    EXPECT_EQ(std::pair(work.unsaved(c, g), work.moduleState(&image, c, g)),
              std::pair(true, std::string("The module holds what is shown")));
    image.config.step(3, 0, 0).Par1 ^= 1;
    EXPECT_EQ(work.moduleState(&image, c, g), "The module differs in 1 item");

    // A compact file leaves a pin without a description out: the work stays unsaved.
    c.pin(20).AspectLayout = 2;
    c.step(20, 0, 0).Instruction = 1;
    ASSERT_TRUE(saveConfigurationFile(dir.file("compact.dat"), c, g, SaveForm::Compact, error));
    work.compactSaved(dir.file("compact.dat"));
    EXPECT_EQ(std::pair(work.file(), work.unsaved(c, g)), std::pair(dir.file("compact.dat"), true));
    spit(dir.file("compact.dat"), "changed elsewhere");
    EXPECT_TRUE(work.changedOnDisk());

    GeneralSettings other = g;
    EXPECT_FALSE(work.readFromModule(g)); // the file's own module
    other.TextGenIDString = "Other";
    EXPECT_EQ(std::tuple(work.readFromModule(other), work.file(), work.unsaved(c, g)),
              std::tuple(true, "", true));
}

TEST(WorkState, TheStatusBarSaysWhatAJobDid)
{
    const auto end = [](std::string title, bool ok, std::string step, std::string summary = "") {
        JobEnd e;
        e.title = std::move(title);
        e.ok = ok;
        e.lastStep = std::move(step);
        e.summary = std::move(summary);
        e.seconds = 7.44;
        e.reads = e.title.rfind("Read", 0) == 0;
        e.verifies = e.title.rfind("Verify", 0) == 0;
        return e;
    };
    JobEnd cancelled = end("Read All", false, "Reading DCC settings");
    cancelled.cancelled = true;
    JobEnd lost =
        end("Write Changes", true, "Done", "Write Changes incomplete: 1 problem reported, the first: X");
    lost.imageKnown = false;
    const std::pair<JobEnd, std::string> cases[] = {
        {end("Read All", true, "Pins read"), "Read All done in 7.4 s"},
        {end("Verify All", true, "Pins verified"), "Verify OK"},
        {end("Verify All Pins", false, "Pins verified"),
         "Verify All Pins: the module differs, see the verification report"},
        {end("Write All", false, "Writing pin 12"), "Write All stopped at pin 12 of 32"},
        {end("Write All", false, "", "Write All stopped: DCC address 9000 cannot be sent"),
         "Write All stopped: DCC address 9000 cannot be sent"},
        {cancelled, "Read All cancelled while reading DCC settings: the pages show a partial read"},
        {lost,
         "Write Changes incomplete: 1 problem reported, the first: X; the module may hold only part of it"},
    };
    for (const auto& [e, text] : cases)
        EXPECT_EQ(jobOutcomeText(e), text);
}
