#pragma once
#include "ops/Session.h"
#include "sim/SimBus.h"
#include "sim/SimPort.h"
#include "support/FakeClock.h"
#include "support/RecordingDialogs.h"
#include "support/ScriptedPort.h"

#include <vector>

namespace kestrel::test {

// A session on a scripted port talking to the module at bus address 0.
struct ScriptedRig {
    FakeClock clock;
    ScriptedPort port{clock};
    RecordingDialogs dialogs;
    Session session{port, clock, dialogs};
    int toggle = 64; // the first frame after the wake-up carries 64

    // Queues the module's reply to the next request frame: address byte with the
    // request's toggle, header 96 + N, the data, and a check byte that makes the
    // address byte plus the low 7 bits of every later byte a multiple of 128.
    void reply(const std::vector<int>& data)
    {
        const int address = toggle + 3;
        const int header = 96 + static_cast<int>(data.size());
        int sum = address + header;
        std::vector<int> frame{address, 128 + header};
        for (int d : data) {
            frame.push_back(128 + d);
            sum += d;
        }
        frame.push_back(128 + (128 - sum % 128) % 128);
        port.queue(frame);
        toggle ^= 64;
    }

    // The data bytes of every request frame written so far (wake-up burst and the empty
    // synchronising frame dropped), and forgets them.
    std::vector<std::vector<int>> frames()
    {
        std::vector<int> w = port.take();
        const std::vector<int> burst{0, 0, 0, 255, 255, 255, 170, 170, 170};
        std::size_t i = 0;
        if (w.size() >= 12 && std::equal(burst.begin(), burst.end(), w.begin()))
            i = 12;
        std::vector<std::vector<int>> out;
        while (i + 1 < w.size()) {
            const int header = w[i + 1];
            const std::size_t size = header & 15;
            i += 2 + ((header & 16) ? 1 : 0);
            std::vector<int> data;
            for (std::size_t k = 0; k < size && i < w.size(); ++k)
                data.push_back(w[i++] - 128);
            out.push_back(data);
            ++i; // check byte
        }
        return out;
    }
};

// A session wired in process to a simulated module at bus address 0.
struct SimRig {
    sim::SimBus bus;
    sim::SimModule& module = bus.addModule(0);
    sim::SimPort port{bus};
    FakeClock clock;
    RecordingDialogs dialogs;
    Session session{port, clock, dialogs};

    SimRig()
    {
        port.open();
        port.setWaitHook([this](int ms) { clock.advance(ms / 1000.0); });
    }
    sim::PinMemory& modulePin(int p) { return module.memory().pins[p]; }
};

} // namespace kestrel::test
