// The Corvid receiver and the tunnel route, fed arbitrary bytes as the port's incoming data.
//
// Input: four bytes of settings, then the bytes that arrive on the port.
//   [0] bit 0 eXtended address on, bit 1 the Corvid toggle to start from,
//       bits 2-3 what each round does: 0 a read request, 1 a write without reply,
//       2 a poll (CorvidExchange with no data), 3 a bare CorvidReceive
//   [1] module address (0..31)   [2] eXtended address (0..95)
//   [3] size of the chunks in which the bytes arrive (1..32)
// Rounds go on until every chunk has been taken.
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
    const int address = in.byte() % 32;
    const int xaddress = in.byte() % 96;
    const std::size_t chunk = in.byte() % 32 + 1;
    const auto incoming = in.rest();

    test::FakeClock clock;
    test::ScriptedPort port(clock);
    test::RecordingDialogs dialogs;
    Link link(port, clock, dialogs);
    link.settings.CheckCorvid = true;
    link.settings.CheckXaddress = flags & 1;
    link.settings.TargetAddress = address;
    link.settings.TargetXAddress = xaddress;
    link.state.CorvidToggle = (flags >> 1) & 1;
    const int mode = (flags >> 2) & 3;

    for (std::size_t i = 0; i < incoming.size(); i += chunk) {
        const std::size_t end = std::min(incoming.size(), i + chunk);
        port.queue(std::vector<int>(incoming.begin() + static_cast<std::ptrdiff_t>(i),
                                    incoming.begin() + static_cast<std::ptrdiff_t>(end)));
    }

    int pin = 0;
    do {
        port.take();
        const int toggleBefore = link.state.CorvidToggle;
        std::string log;
        try {
            switch (mode) {
            case 0:
                link.SendKestrelMessage(true, 2, {114, pin++ % 32});
                break;
            case 1:
                link.SendKestrelMessage(false, 3, {98, pin++ % 32, 2});
                break;
            case 2:
                link.CorvidExchange(0);
                break;
            case 3:
                log = link.CorvidReceive();
                break;
            }
        } catch (const ProgramFault& fault) {
            fuzz::finding(std::string("ProgramFault while receiving: ") + fault.what());
        }
        const auto written = port.take();
        fuzz::expectCorvidFrames(written, "Corvid request");
        if (mode == 3) {
            fuzz::expect(written.empty(), "CorvidReceive wrote to the port");
            fuzz::expect(link.state.CorvidToggle == toggleBefore, "CorvidReceive changed the toggle");
            if (!log.empty()) {
                fuzz::expect(log.rfind("< ", 0) == 0, "Corvid log line does not start with \"< \"");
                fuzz::expect(link.state.ReplyBuffer[0] <= 18, "Corvid reply longer than the buffer");
            }
        }
        for (int b : link.state.ReplyBuffer)
            fuzz::expect(b >= 0 && b <= 127, "reply buffer holds a byte outside 0..127");
        fuzz::expect(link.state.CorvidToggle == 0 || link.state.CorvidToggle == 1,
                     "Corvid toggle not 0 or 1");
    } while (!port.chunks.empty() || !port.input.empty());
    return 0;
}
