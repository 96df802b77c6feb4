#include "files/DemoConfiguration.h"
#include "files/ConfigurationFile.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(DemoConfiguration, HoldsSignalsATurnoutAndEvents)
{
    Configuration c;
    GeneralSettings g;
    fillDemoConfiguration(c, g);
    EXPECT_EQ(std::tuple(c.Pins[2].DeviceOffset, c.Pins[8].ConfigMode, c.EventMap[12].OnEvent[1]),
              std::tuple(-2, 1, -1));
    EXPECT_GT(c.DccTotal, 0); // the address index is built

    // It is a compact data file as this program writes it.
    EXPECT_EQ(writeConfigurationText(c, g, SaveForm::Compact), demoConfigurationText());
}
