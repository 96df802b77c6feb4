#pragma once
// A module played by the test on a scripted port: every frame the link writes is
// decoded into its data bytes (command, item or pin, values); a frame that asks for a
// reply gets the next scripted reply, or silence; with nothing scripted it is
// acknowledged with its first two bytes, as a module acknowledges a write.
#include "FakeClock.h"
#include "Frames.h"
#include "RecordingDialogs.h"
#include "ScriptedPort.h"
#include "session/Session.h"

#include <deque>
#include <optional>
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
    void silence() { replies.push_back(std::nullopt); }
    // The requests so far, forgotten as they are handed out.
    std::vector<Data> take()
    {
        auto out = std::move(requests);
        requests.clear();
        waited.clear();
        return out;
    }

    static Data replyFrame(int addressByte, const Data& data) { return moduleReply(addressByte, data); }

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
        // Nothing scripted: acknowledged as a module acknowledges a write.
        const std::optional<Data> reply =
            replies.empty() ? Data{r[0], r.size() > 1 ? r[1] : 0} : replies.front();
        if (!replies.empty())
            replies.pop_front();
        if (reply)
            port.feed(replyFrame(frames.first, *reply));
    }

    FrameReader frames;
};

} // namespace kestrel::test
