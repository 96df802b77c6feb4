// The direct route's reply receiver, fed arbitrary bytes as the port's incoming data.
//
// Input: four bytes of settings, then the bytes that arrive on the port.
//   [0] bit 0 eXtended address on, bit 1 Request Version instead of a pin read,
//       bits 2-3 the toggle to start from (128, 0, 64, 128)
//   [1] module address (0..15)   [2] eXtended address (0..95)
//   [3] size of the chunks in which the bytes arrive (1..32)
// Requests are sent one after another until every chunk has been taken; each must leave
// the link in a consistent state whatever arrived.
#include "FuzzSupport.h"
#include "base/ProgramFault.h"
#include "link/Link.h"
#include "support/FakeClock.h"
#include "support/RecordingDialogs.h"
#include "support/ScriptedPort.h"

using namespace kestrel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::InputReader in(data, size);
    const int flags = in.byte();
    const int address = in.byte() % 16;
    const int xaddress = in.byte() % 96;
    const std::size_t chunk = in.byte() % 32 + 1;
    const auto incoming = in.rest();

    test::FakeClock clock;
    test::ScriptedPort port(clock);
    test::RecordingDialogs dialogs;
    Link link(port, clock, dialogs);
    link.settings.CheckXaddress = flags & 1;
    link.settings.TargetAddress = address;
    link.settings.TargetXAddress = xaddress;
    const int toggles[] = {128, 0, 64, 128};
    link.state.LinkToggle = toggles[(flags >> 2) & 3];
    const bool version = flags & 2;

    for (std::size_t i = 0; i < incoming.size(); i += chunk) {
        const std::size_t end = std::min(incoming.size(), i + chunk);
        port.queue(std::vector<int>(incoming.begin() + static_cast<std::ptrdiff_t>(i),
                                    incoming.begin() + static_cast<std::ptrdiff_t>(end)));
    }

    const int a = address * 4 + 3;
    int pin = 0;
    do {
        link.setBidirectional(true);
        const int before = link.state.LinkToggle;
        const int used = before == 128 ? 64 : before;
        port.take();
        try {
            if (version)
                link.GetVersion();
            else
                link.SendKestrelMessage(true, 2, {114, pin++ % 32});
        } catch (const ProgramFault& fault) {
            fuzz::finding(std::string("ProgramFault while receiving: ") + fault.what());
        }
        auto written = port.take();
        fuzz::expect(!written.empty(), "nothing was written");
        if (before == 128) {
            fuzz::expect(written.size() > 9, "wake-up burst missing");
            written.erase(written.begin(), written.begin() + 9);
        }
        fuzz::expectBusFrames(written, false, "request");
        fuzz::expect(link.state.LinkToggle == (used + 64) % 128, "toggle did not alternate");
        for (int b : link.state.ReplyBuffer)
            fuzz::expect(b >= 0 && b <= 127, "reply buffer holds a byte outside 0..127");
        if (link.state.ReplyValid) {
            fuzz::expect(link.state.ReplyBuffer[0] == used + a, "valid reply from another address or toggle");
            fuzz::expect(link.state.ReplyBuffer[1] >= 96, "valid reply with a header below 96");
            const int n = link.state.ReplyBuffer[1] & 15;
            std::size_t brackets = 0;
            for (char c : link.TextResponse)
                brackets += c == '[';
            fuzz::expect(brackets == static_cast<std::size_t>(n) + 2,
                         "TextResponse does not show N + 2 bytes");
        }
        if (version && link.VersionText != "Unknown")
            fuzz::expect(link.state.ReplyValid && (link.state.ReplyBuffer[1] & 15) == 6,
                         "version taken from a reply that is not six bytes");
    } while (!port.chunks.empty() || !port.input.empty());
    return 0;
}
