#include "model/AddressIndex.h"
#include "base/ProgramFault.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(AddressIndex, RunningSumsOverAllRecords) {
    Configuration c;
    c.Pins[0].DccCount = 2;
    c.Pins[1].DccCount = 0;
    c.Pins[2].DccCount = 3;
    c.Pins[31].DccCount = 4;
    c.Pins[5].XDccCount = 1;
    c.Pins[7].LynxCount = 6;
    RecalcAddressIndex(c);
    EXPECT_EQ(c.DccFirstIndex[0], 0);
    EXPECT_EQ(c.DccFirstIndex[1], 2);
    EXPECT_EQ(c.DccFirstIndex[2], 2);
    EXPECT_EQ(c.DccFirstIndex[3], 5);
    EXPECT_EQ(c.DccFirstIndex[31], 5);
    EXPECT_EQ(c.DccFirstIndex[32], 9);
    EXPECT_EQ(c.DccTotal, 9);
    EXPECT_EQ(c.XDccFirstIndex[5], 0);
    EXPECT_EQ(c.XDccFirstIndex[6], 1);
    EXPECT_EQ(c.XDccTotal, 1);
    EXPECT_EQ(c.LynxFirstIndex[8], 6);
    EXPECT_EQ(c.LynxTotal, 6);

    // the spare record takes part in the total
    c.Pins[32].DccCount = 1;
    RecalcDccAddressIndex(c);
    EXPECT_EQ(c.DccFirstIndex[32], 9);
    EXPECT_EQ(c.DccTotal, 10);
}

TEST(AddressIndex, OverflowThrowsAndKeepsNoPartialResult) {
    Configuration c;
    c.Pins[0].DccCount = 1;
    c.Pins[0].LynxCount = 3;
    RecalcAddressIndex(c);

    for (auto &p : c.Pins)
        p.LynxCount = 8; // 33 x 8 = 264
    c.Pins[1].DccCount = 5;
    EXPECT_THROW(RecalcLynxAddressIndex(c), ProgramFault);
    EXPECT_EQ(c.LynxTotal, 3);
    EXPECT_EQ(c.LynxFirstIndex[1], 3);
    EXPECT_EQ(c.LynxFirstIndex[2], 3);

    EXPECT_THROW(RecalcAddressIndex(c), ProgramFault);
    EXPECT_EQ(c.DccTotal, 1); // not rebuilt either

    // 255 is still a byte
    for (auto &p : c.Pins)
        p.LynxCount = 0;
    c.Pins[32].LynxCount = 255;
    c.Pins[0].LynxCount = 0;
    RecalcLynxAddressIndex(c);
    EXPECT_EQ(c.LynxTotal, 255);
}
