// The pin overview's texts, from the running sums and the module's general settings.
#include "forms/PinOverview.h"

#include <gtest/gtest.h>

using namespace kestrel;

TEST(PinOverview, AddressesAreTheRunningSumsFromTheModulesFirstAddressUpToTheLargest)
{
    Configuration c;
    const int counts[][4] = {{0, 3, 1, 4}, {1, 1, 0, 1}, {5, 2, 1, 0}, {6, 0, 1, 0}}; // pins 2..4 have none
    for (const auto& [pin, dcc, xdcc, lynx] : counts) {
        c.pin(pin).DccCount = dcc;
        c.pin(pin).XDccCount = xdcc;
        c.pin(pin).LynxCount = lynx;
    }
    RecalcAddressIndex(c);

    struct Case {
        const char *dccBase, *xdccBase;
        int allow0, flex, flexAddress, numberingBase, pin;
        const char *dcc, *xdcc, *serial;
    };
    const Case cases[] = {
        {"100", "7", 0, 0, 9, 0, 0, "100 .. 102", "7", "0 .. 3"}, // no flex-addressing: from 0
        {"100", "7", 0, 0, 9, 0, 1, "103", "No addr in use", "4"},
        {"100", "7", 0, 0, 9, 0, 5, "104 .. 105", "8", "No addr in use"},
        {"100", "7", 0, 1, 9, 0, 1, "103", "No addr in use", "40"}, // 9 x 4 + 4
        {"0", "0", 0, 0, 0, 0, 0, "1 .. 3", "1", "0 .. 3"},         // address 0 not answered
        {"0", "0", 1, 0, 0, 0, 0, "0 .. 2", "0", "0 .. 3"},
        {"8189", "8190", 0, 1, 127, 0, 0, "8189 .. 8191", "8190", "508 .. 511"},
        {"8189", "8190", 0, 1, 127, 0, 1, "8192 .. OVFLOW", "No addr in use", "512 .. OVFLOW"},
        {"8189", "8190", 0, 1, 127, 0, 5, "8193 .. OVFLOW", "8191", "No addr in use"},
        {"8189", "8190", 0, 1, 127, 0, 6, "No addr in use", "8192 .. OVFLOW", "No addr in use"},
        // The serial addresses are numbered as the flex-address box shows it; DCC never.
        {"8189", "8190", 0, 1, 127, 1, 0, "8189 .. 8191", "8190", "509 .. 512"},
        {"8189", "8190", 0, 1, 127, 1, 1, "8192 .. OVFLOW", "No addr in use", "513 .. OVFLOW"},
    };
    for (const Case& k : cases) {
        GeneralSettings g;
        g.TextGenDCCAddress = k.dccBase;
        g.TextGenXDCCAddress = k.xdccBase;
        g.ChkGenDCCAllow0 = k.allow0;
        g.CheckGenLynxaddr = k.flex;
        g.LynxFlexAddress = k.flexAddress;
        c.NumberingBase = k.numberingBase;
        const PinOverviewRow row = pinOverview(c, g)[k.pin];
        EXPECT_EQ(std::tuple(row.dcc, row.xdcc, row.serial), std::tuple(k.dcc, k.xdcc, k.serial))
            << "pin " << k.pin << " from " << k.dccBase << "/" << k.xdccBase << " flex " << k.flex;
    }
}

TEST(PinOverview, PinModeLayoutAndDeviceColumns)
{
    Configuration c;
    PinRecord& head = c.pin(3);
    head.Description = "Block";
    head.DeviceDescription = "Block signal";
    head.ConfigMode = 3;
    head.AspectLayout = 3;
    c.pin(4).DeviceOffset = -1;
    c.pin(4).ConfigMode = 5;
    c.pin(4).AspectLayout = 2;
    c.pin(2).DeviceOffset = 1;
    c.pin(2).ConfigMode = 4;
    c.pin(1).DeviceOffset = 1;  // refers to pin 2, which refers on
    c.pin(31).AspectLayout = 7; // shown as option "0"
    c.pin(31).ConfigMode = 9;
    c.pin(0).DeviceOffset = 31; // a device wrapped round from pin 31, without a description
    for (int base : {0, 1}) {
        c.NumberingBase = base;
        const auto rows = pinOverview(c, GeneralSettings{});
        const auto n = [base](int p) { return std::to_string(p + base); };
        const auto cols = [&rows](int p) {
            const PinOverviewRow& r = rows[p];
            return std::tuple(r.pin, r.description, r.mode, r.layout, r.device);
        };
        EXPECT_EQ(cols(3), std::tuple(n(3), "Block", "PWM, Inverted", "4", n(3) + ": Block signal"));
        EXPECT_EQ(cols(4), std::tuple(n(4), "", "Input, Inverted", "12", n(3) + ": Block signal"));
        EXPECT_EQ(cols(2), std::tuple(n(2), "", "Input", "0", n(3) + ": Block signal"));
        EXPECT_EQ(cols(1), std::tuple(n(1), "", "Not configured", "0", n(2) + ": <Referral is no Device !>"));
        EXPECT_EQ(cols(31), std::tuple(n(31), "", "Unknown configuration: 9", "0", n(31)));
        EXPECT_EQ(cols(0), std::tuple(n(0), "", "Not configured", "0", n(31)));
        EXPECT_EQ(cols(5), std::tuple(n(5), "", "Not configured", "0", ""));
    }
}
