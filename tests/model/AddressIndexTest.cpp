#include "model/AddressIndex.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(AddressIndex, RunningSumsOverAllRecords)
{
    Configuration c;
    c.Pins[0].DccCount = 2;
    c.Pins[1].DccCount = 0;
    c.Pins[2].DccCount = 3;
    c.Pins[31].DccCount = 4;
    c.Pins[5].XDccCount = 1;
    c.Pins[7].LynxCount = 6;
    RecalcAddressIndex(c);
    EXPECT_EQ(std::tuple(c.DccFirstIndex[0], c.DccFirstIndex[1], c.DccFirstIndex[2], c.DccFirstIndex[3],
                         c.DccFirstIndex[31], c.DccFirstIndex[32], c.DccTotal, c.XDccFirstIndex[5],
                         c.XDccFirstIndex[6], c.XDccTotal, c.LynxFirstIndex[8], c.LynxTotal),
              std::tuple(0, 2, 2, 5, 5, 9, 9, 0, 1, 1, 6, 6));

    // the spare record takes part in the total
    c.Pins[32].DccCount = 1;
    RecalcDccAddressIndex(c);
    EXPECT_EQ(std::tuple(c.DccFirstIndex[32], c.DccTotal), std::tuple(9, 10));
}

TEST(AddressIndex, OverflowThrowsAndKeepsNoPartialResult)
{
    Configuration c;
    c.Pins[0].DccCount = 1;
    c.Pins[0].LynxCount = 3;
    RecalcAddressIndex(c);

    for (auto& p : c.Pins)
        p.LynxCount = 8; // 33 x 8 = 264
    c.Pins[1].DccCount = 5;
    EXPECT_THROW(RecalcLynxAddressIndex(c), ProgramFault);
    EXPECT_EQ(std::tuple(c.LynxTotal, c.LynxFirstIndex[1], c.LynxFirstIndex[2]), std::tuple(3, 3, 3));

    EXPECT_THROW(RecalcAddressIndex(c), ProgramFault);
    EXPECT_EQ(c.DccTotal, 1); // not rebuilt either

    // 255 is still a byte
    for (auto& p : c.Pins)
        p.LynxCount = 0;
    c.Pins[32].LynxCount = 255;
    RecalcLynxAddressIndex(c);
    EXPECT_EQ(c.LynxTotal, 255);
}
