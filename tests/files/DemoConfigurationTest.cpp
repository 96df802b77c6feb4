#include "files/DemoConfiguration.h"
#include "files/ConfigurationFile.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(DemoConfiguration, BuildsItsAddressIndexAndWritesAsItsDataFileText)
{
    Configuration c;
    GeneralSettings g;
    fillDemoConfiguration(c, g);
    EXPECT_GT(c.DccTotal, 0); // the address index is built

    // It is a compact data file as this program writes it.
    EXPECT_EQ(writeConfigurationText(c, g, SaveForm::Compact), demoConfigurationText());
}
