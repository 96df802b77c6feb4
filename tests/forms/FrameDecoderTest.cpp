// The traffic monitor's decoding of frames, built here by the receiver's rule.
#include "forms/FrameDecoder.h"
#include "support/Frames.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(FrameDecoder, NamesCommandsItemsPinsAndDataOnBothRoutes)
{
    constexpr auto Out = FrameDirection::Out, In = FrameDirection::In;
    constexpr auto Direct = FrameRoute::Direct, Corvid = FrameRoute::Corvid;
    auto badSum = moduleReply(67, {115, 5, 1, 2, 9});
    badSum.back() ^= 3;
    // Direction, route, bytes, command name, text.
    const std::tuple<FrameDirection, FrameRoute, std::vector<int>, const char*, const char*> cases[] = {
        {Out, Direct, frame({67, 226}, {112, 1}), "read general item",
         "read general item, item 1 (hardware configuration)"},
        {In, Direct, moduleReply(3, {112, 10, 'K', '7'}), "read general item",
         "reply to read general item, item 10 (ID string), text \"K7\""},
        {In, Direct, badSum, "read step", "reply to read step, pin 5, data 1 2 9 (checksum error)"},
        {Out, Direct, frame({67, 128 + 64 + 16 + 4, 128 + 7}, {99, 5, 1, 2}), "write step",
         "write step, pin 5, data 1 2"},
        {Out, Direct, frame({67, 196}, {0, 55, 3, 70}), "live output",
         "live output, servo position dynamic, pin 3, data 70"},
        {Out, Direct, frame({67, 195}, {100, 2, 113}), "write initial aspect",
         "write initial aspect, pin 2, data 113"},
        {In, Direct, moduleReply(67, {100, 2}), "write initial aspect or Event-On",
         "reply to write initial aspect or Event-On, pin 2"},
        {Out, Direct, {0, 0, 0, 255, 255, 255, 170, 170, 170}, "wake-up burst", "wake-up burst"},
        {Out, Direct, {3, 192, 189}, "empty frame", "empty frame"},
        {Out, Direct, frame({67, 194}, {50, 1}), "(not decoded)", "command 50 1 (not decoded)"},
        {In, Direct, {67, 226, 240}, "(not decoded)", "(not decoded)"}, // cut short
        {Out, Corvid, corvidFrame({}, true), "poll", "poll"},
        {In, Corvid, corvidFrame({1, 2, 48, 37}), "system version", "system version, bytes 48 37"},
        {Out, Corvid, corvidFrame({0, 97, 112, 7, 114, 4}), "read aspect layout",
         "tunnel, module 1: read aspect layout, pin 4"},
        {In, Corvid, corvidFrame({0, 97, 100, 112, 1, 5, 6, 0, 0}, true), "read general item",
         "tunnel, module 1: reply to read general item, item 1 (hardware configuration), data 5 6"},
        {In, Corvid, corvidFrame({3, 4}), "(not decoded)", "Corvid data 3 4 (not decoded)"},
    };
    for (const auto& [direction, route, bytes, command, text] : cases) {
        const DecodedFrame f = decodeFrame(direction, route, bytes);
        EXPECT_EQ(std::tuple(f.command, f.text), std::tuple(command, text)) << frameBytesText(bytes);
    }
    EXPECT_EQ(frameBytesText({67, 226, 240, 128, 235, 5}), "43 E2 F0 80 EB 05");
}
