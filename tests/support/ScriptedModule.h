#pragma once
// A module played by the test on a scripted port: it records the data of every frame the link
// writes and answers one that wants a reply with the next scripted reply, silence, or (nothing
// scripted) the frame's first two bytes, as a module acknowledges a write.
#include "FakeClock.h"
#include "Frames.h"
#include "RecordingDialogs.h"
#include "ScriptedPort.h"
#include "session/Session.h"

#include <deque>
#include <initializer_list>
#include <optional>
#include <utility>
#include <vector>

namespace kestrel::test {

using Data = std::vector<int>;

struct ScriptedModule {
    FakeClock clock;
    ScriptedPort port{clock};
    RecordingDialogs dialogs;
    Session session{port, clock, dialogs};

    std::vector<Data> requests; // data bytes of every frame that carried data
    std::vector<bool> waited;   // its bidirectional bit
    std::deque<std::optional<Data>> replies;

    ScriptedModule()
    {
        port.onWrite = [this](ScriptedPort&, int b) { onByte(b); };
    }

    void answer(Data data) { replies.push_back(std::move(data)); }
    void answer(std::initializer_list<Data> several)
    {
        replies.insert(replies.end(), several.begin(), several.end());
    }
    void silence() { replies.push_back(std::nullopt); }
    // The requests so far, forgotten as they are handed out.
    std::vector<Data> take()
    {
        waited.clear();
        return std::exchange(requests, {});
    }

private:
    void onByte(int b)
    {
        // The empty frame after the wake-up burst carries no request.
        if (!frames.push(b) || frames.data.empty())
            return;
        requests.push_back(frames.data);
        waited.push_back(frames.wantsReply());
        if (!frames.wantsReply())
            return;
        const Data& r = frames.data;
        const std::optional<Data> reply =
            replies.empty() ? Data{r[0], r.size() > 1 ? r[1] : 0} : replies.front();
        if (!replies.empty())
            replies.pop_front();
        if (reply)
            port.feed(moduleReply(frames.first, *reply));
    }

    FrameReader frames;
};

} // namespace kestrel::test
