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
        if (b < 128) {
            address = b;
            phase = Phase::Header;
            return;
        }
        switch (phase) {
        case Phase::Idle:
            return;
        case Phase::Header:
            size = b & 15;
            bidirectional = (b & 32) != 0;
            current.clear();
            phase = (b & 16) ? Phase::XAddress : (size > 0 ? Phase::Data : Phase::Check);
            return;
        case Phase::XAddress:
            phase = size > 0 ? Phase::Data : Phase::Check;
            return;
        case Phase::Data:
            current.push_back(b & 127);
            if (static_cast<int>(current.size()) == size)
                phase = Phase::Check;
            return;
        case Phase::Check:
            phase = Phase::Idle;
            if (current.empty())
                return; // the empty frame after the wake-up burst
            requests.push_back(current);
            waited.push_back(bidirectional);
            if (!bidirectional)
                return;
            if (replies.empty()) { // nothing scripted: acknowledge like a module does a write
                port.feed(replyFrame(address, {current[0], current.size() > 1 ? current[1] : 0}));
                return;
            }
            {
                auto r = replies.front();
                replies.pop_front();
                if (r)
                    port.feed(replyFrame(address, *r));
            }
            return;
        }
    }

    enum class Phase { Idle, Header, XAddress, Data, Check } phase = Phase::Idle;
    int address = 0;
    int size = 0;
    bool bidirectional = false;
    Data current;
};

} // namespace kestrel::test
