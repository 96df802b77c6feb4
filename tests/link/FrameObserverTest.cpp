// The traffic monitor's hook: every frame both ways, byte for byte, on both routes.
#include "support/Frames.h"
#include "support/ScriptedLink.h"

using namespace kestrel;
using namespace kestrel::test;

using FrameObserver = ScriptedLink;
using Seen = std::tuple<FrameDirection, FrameRoute, std::vector<int>>;

TEST_F(FrameObserver, RequestAndReplyFramesOnBothRoutes)
{
    constexpr auto Out = FrameDirection::Out, In = FrameDirection::In;
    constexpr auto Direct = FrameRoute::Direct, Corvid = FrameRoute::Corvid;
    const auto good = moduleReply(67, {112, 1, 5, 6});
    auto bad = good;
    bad.back() ^= 1; // fails its checksum, reported all the same
    const auto request = frame<std::vector<int>>({67, 128 + 96 + 2}, {112, 1});
    const auto tunnel = corvidFrame({0, 96, 96, 112, 1}), poll = corvidFrame({}, true),
               empty = corvidFrame({});
    const auto tunnelReply = corvidFrame({0, 96, 100, 112, 1, 5, 6});
    const struct {
        bool corvid;
        std::vector<std::vector<int>> chunks;
        std::vector<Seen> seen;
    } cases[] = {
        {false,
         {{200}, concat({bad, good})},
         {{Out, Direct, request}, {In, Direct, {200}}, {In, Direct, bad}, {In, Direct, good}}},
        {true,
         {empty, tunnelReply},
         {{Out, Corvid, tunnel}, {In, Corvid, empty}, {Out, Corvid, poll}, {In, Corvid, tunnelReply}}},
    };
    for (const auto& c : cases) {
        link.settings.CheckCorvid = c.corvid;
        link.state.LinkToggle = 64;
        link.state.CorvidToggle = 0;
        for (const auto& chunk : c.chunks)
            port.queue(chunk);
        std::vector<Seen> seen;
        std::vector<int> out;
        link.onFrame = [&](FrameDirection d, FrameRoute r, const std::vector<int>& b) {
            seen.emplace_back(d, r, b);
            if (d == Out)
                out.insert(out.end(), b.begin(), b.end());
        };
        EXPECT_TRUE(link.request({112, 1}).is(4, 112, 1));
        EXPECT_EQ(seen, c.seen);
        EXPECT_EQ(out, port.take()); // nothing written goes unreported
    }
}
