#pragma once
#include "FakeClock.h"
#include "base/SerialPort.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kestrel::test {

// A serial port for unit tests: records every byte written and hands out scripted
// replies. When the link waits and nothing is waiting, the next queued chunk arrives;
// with no chunk left the wait lasts its full time-out on the fake clock.
class ScriptedPort : public SerialPort {
public:
    explicit ScriptedPort(FakeClock& clock) : clock(clock) {}

    std::vector<int> written;
    std::deque<std::vector<int>> chunks; // arrive one per wait
    std::deque<int> input;               // waiting now
    // Called after each byte written (e.g. to answer a frame as it completes).
    std::function<void(ScriptedPort&, int)> onWrite;
    bool failOpen = false;
    bool writesFail = false;
    std::string name;
    std::string settingsText = "19200,o,8,1";
    bool opened = true;
    int waits = 0;

    void queue(std::vector<int> bytes) { chunks.push_back(std::move(bytes)); }
    void feed(const std::vector<int>& bytes) { input.insert(input.end(), bytes.begin(), bytes.end()); }
    // Takes and returns what was written so far.
    std::vector<int> take() { return std::exchange(written, {}); }

    void select(const std::string& n) override { name = n; }
    std::string selected() const override { return name; }
    bool open() override
    {
        if (failOpen)
            return false;
        opened = true;
        return true;
    }
    void close() override { opened = false; }
    bool isOpen() const override { return opened; }
    void setSettings(const std::string& s) override { settingsText = s; }
    std::string settings() const override { return settingsText; }
    bool writeByte(std::uint8_t b) override
    {
        if (writesFail || !opened)
            return false;
        written.push_back(b);
        if (onWrite)
            onWrite(*this, b);
        return true;
    }
    int bytesWaiting() override { return static_cast<int>(input.size()); }
    int readByte() override
    {
        if (input.empty())
            return -1;
        const int b = input.front();
        input.pop_front();
        return b;
    }
    bool waitForBytes(int timeoutMs) override
    {
        ++waits;
        if (input.empty() && !chunks.empty()) {
            feed(chunks.front());
            chunks.pop_front();
            clock.advance(0.01);
            return true;
        }
        if (!input.empty())
            return true;
        clock.advance(timeoutMs / 1000.0);
        return false;
    }
    std::string errorString() const override { return writesFail ? "device removed" : ""; }
    // Where in `written` each flush happened, and the last reply-length hint.
    std::vector<std::size_t> flushedAt;
    int hint = 0;
    bool flush() override
    {
        flushedAt.push_back(written.size());
        return opened && !writesFail;
    }
    void expectBytes(int count) override { hint = count; }

private:
    FakeClock& clock;
};

} // namespace kestrel::test
