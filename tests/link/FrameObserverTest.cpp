// The traffic monitor's hook: every frame both ways, byte for byte, on both routes.
#include "link/Link.h"
#include "support/Frames.h"
#include "support/ScriptedLink.h"

#include <gtest/gtest.h>

using namespace kestrel;
using namespace kestrel::test;

namespace {

using Seen = std::tuple<FrameDirection, FrameRoute, std::vector<int>>;
constexpr auto Out = FrameDirection::Out;
constexpr auto In = FrameDirection::In;
constexpr auto Direct = FrameRoute::Direct;
constexpr auto Corvid = FrameRoute::Corvid;

using FrameObserver = ScriptedLink;

} // namespace

TEST_F(FrameObserver, RequestAndReplyFramesOnBothRoutes)
{
    const auto request = frame<std::vector<int>>({67, 128 + 96 + 2}, {112, 1});
    const auto good = moduleReply(67, {112, 1, 5, 6});
    auto bad = good;
    bad.back() ^= 1; // fails its checksum, reported all the same
    auto badThenGood = bad;
    badThenGood.insert(badThenGood.end(), good.begin(), good.end());
    const auto tunnel = corvidFrame({0, 96, 96, 112, 1});
    const auto poll = corvidFrame({}, true);
    const auto empty = corvidFrame({});
    const auto tunnelReply = corvidFrame({0, 96, 100, 112, 1, 5, 6});
    struct Case {
        bool corvid;
        std::vector<std::vector<int>> chunks;
        std::vector<Seen> seen;
    };
    const std::vector<Case> cases = {
        {false,
         {{200}, badThenGood},
         {{Out, Direct, request}, {In, Direct, {200}}, {In, Direct, bad}, {In, Direct, good}}},
        {true,
         {empty, tunnelReply},
         {{Out, Corvid, tunnel}, {In, Corvid, empty}, {Out, Corvid, poll}, {In, Corvid, tunnelReply}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.corvid ? "tunnelled" : "direct");
        port.take();
        link.settings.CheckCorvid = c.corvid;
        link.state.LinkToggle = 64;
        link.state.CorvidToggle = 0;
        for (const auto& chunk : c.chunks)
            port.queue(chunk);
        std::vector<Seen> seen;
        link.onFrame = [&](FrameDirection d, FrameRoute r, const std::vector<int>& b) {
            seen.emplace_back(d, r, b);
        };
        EXPECT_TRUE(link.request({112, 1}).is(4, 112, 1));
        EXPECT_EQ(seen, c.seen);
        std::vector<int> out;
        for (const auto& [d, r, b] : seen)
            if (d == Out)
                out.insert(out.end(), b.begin(), b.end());
        EXPECT_EQ(out, port.take());
    }
}
