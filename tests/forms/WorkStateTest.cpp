// Which file holds the configuration, whether it is saved, and whether the module holds it.
#include "forms/WorkState.h"

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
