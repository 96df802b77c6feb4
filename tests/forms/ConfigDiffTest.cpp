// Every difference between two configurations, how each is taken, and the readable text.
#include "forms/ConfigDiff.h"

#include "files/DemoConfiguration.h"
#include "support/Files.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(ConfigDiff, PlantedDifferencesComeInWriteAllOrderAndEachTakeCopiesItsItemAlone)
{
    Configuration a;
    GeneralSettings ga;
    fillDemoConfiguration(a, ga);
    Configuration b = a;
    GeneralSettings gb = ga;
    ASSERT_TRUE(differences(a, ga, b, gb, 1).empty());

    gb.ExtendedAddress = 5; // serial addressing goes last
    gb.CheckLCGreen[1] = 1;
    b.step(3, 1, 1) = {7, 1, 1, 4, 0, 0}; // Clone, its source a pin number
    b.pin(9).ConfigMode = 1;              // another kind of mode: its parameters go with it
    b.pin(9).P(1) = 70;
    b.pin(10).P(8) = 90;
    b.pin(13).AspectLayout = 3; // a larger layout: its steps go with it
    b.step(13, 2, 5) = {9, 0, 0, 0, 0, 0};
    b.events(8).OffEvent[3] = 4;

    const std::vector<std::string> expected = {
        "general Green LED eXtd DCC Packet: a unchecked, b checked",
        "pin 4 aspect 1 step 1: a \"On\" P.O. 1 T(/60) 0 Fade, b \"Clone\" P.O. 1 Source 5 Fade",
        "pin 10 mode: a Not configured, b Servo",
        "pin 11 BounceDown: a 24, b 26",
        "pin 14 layout: a 0, b 4",
        "pin 9 events on input 4: a Event-On -1 Event-Off -1, b Event-On -1 Event-Off 4",
        "general eXtended Address: a 1, b 6",
    };
    const std::vector<Difference> found = differences(a, ga, b, gb, 1);
    std::vector<std::string> lines;
    for (const Difference& d : found)
        lines.push_back(differenceLine(d, "a", "b"));
    ASSERT_EQ(lines, expected);

    // Taken alone, an item leaves every other difference; taken all, nothing differs.
    for (std::size_t i = 0; i < found.size(); ++i) {
        Configuration c = a;
        GeneralSettings gc = ga;
        found[i].take(b, gb, c, gc);
        std::vector<std::string> left;
        for (const Difference& d : differences(c, gc, b, gb, 1))
            left.push_back(differenceLine(d, "a", "b"));
        std::vector<std::string> others = expected;
        others.erase(others.begin() + static_cast<long>(i));
        EXPECT_EQ(left, others) << expected[i];
    }
    for (const Difference& d : found)
        d.take(b, gb, a, ga);
    EXPECT_TRUE(a.Pins == b.Pins && a.EventMap == b.EventMap && ga == gb);
}

TEST(ConfigDiff, TheDemonstrationReadsAsItsGoldenText)
{
    Configuration c;
    GeneralSettings g;
    fillDemoConfiguration(c, g);
    EXPECT_EQ(configurationText(c, g, 0), test::slurp(KESTREL_FORMS_TESTS "/demo-show.txt"));
}
