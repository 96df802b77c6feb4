// Google Benchmark of the core's hot paths: framing and checksum of a request, a whole
// request/reply exchange through the link against an in-memory module, and writing and
// reading the data file of a fully populated configuration.
#include "FullConfiguration.h"
#include "files/ConfigurationFile.h"
#include "files/DeviceDefinitions.h"
#include "files/TextFile.h"
#include "link/Link.h"
#include "ops/BusScan.h"
#include "session/Session.h"
#include "sim/SimBus.h"
#include "sim/SimPort.h"
#include "support/FakeClock.h"
#include "support/Frames.h"
#include "support/RecordingDialogs.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <stdexcept>
#include <sys/resource.h>
#include <vector>

using namespace kestrel;

namespace {

// A port in memory. Bytes written are discarded, except that a whole request frame with
// the bidirectional bit is answered at once with a reply from the same address and toggle
// (echoed command and item, then four values), as a module on the bus would.
class MemoryPort : public SerialPort {
public:
    explicit MemoryPort(bool answer) : answer(answer)
    {
        for (int toggle : {0, 64})
            replies[toggle / 64] = test::moduleReply(3 + toggle, {112, 0, 1, 2, 3, 4});
    }
    void select(const std::string&) override {}
    std::string selected() const override { return "memory"; }
    bool open() override { return true; }
    void close() override {}
    bool isOpen() const override { return true; }
    void setSettings(const std::string&) override {}
    std::string settings() const override { return "19200,o,8,1"; }
    bool writeByte(std::uint8_t b) override
    {
        if (answer && frames.push(b) && frames.wantsReply() && !frames.data.empty()) {
            const auto& r = replies[(frames.first & 64) ? 1 : 0];
            input.insert(input.end(), r.begin(), r.end());
        }
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
    bool waitForBytes(int) override { return !input.empty(); }
    std::string errorString() const override { return {}; }

private:
    bool answer;
    std::array<std::vector<int>, 2> replies;
    std::deque<int> input;
    test::FrameReader frames;
};

// The running-sum checksum over a step-write frame (address, header, nine data bytes).
void BM_FrameChecksum(benchmark::State& state)
{
    std::array<int, 11> frame{67, 233, 227, 133, 129, 130, 152, 129, 140, 128, 128};
    for (auto _ : state) {
        benchmark::DoNotOptimize(frame.data()); // the frame as data, not constants folded away
        benchmark::ClobberMemory();
        FrameChecksum sum(frame[0]);
        for (std::size_t i = 1; i < frame.size(); ++i)
            sum.add(frame[i]);
        benchmark::DoNotOptimize(sum.value());
    }
}
BENCHMARK(BM_FrameChecksum);

// Framing, checking and writing a nine-byte step write without a reply (one-way link).
void BM_FrameRequest(benchmark::State& state)
{
    MemoryPort port(false);
    test::FakeClock clock; // stands still: every reply is already there
    test::RecordingDialogs dialogs;
    Link link(port, clock, dialogs);
    link.settings.CheckKestrelBD = false;
    for (auto _ : state)
        benchmark::DoNotOptimize(link.SendKestrelMessage(false, 9, {99, 5, 1, 2, 24, 1, 0, 0, 0}));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FrameRequest);

// A whole exchange: Request Version framed, written, its reply received and checked.
void BM_RequestReply(benchmark::State& state)
{
    MemoryPort port(true);
    test::FakeClock clock; // stands still: every reply is already there
    test::RecordingDialogs dialogs;
    Link link(port, clock, dialogs);
    for (auto _ : state) {
        link.SendKestrelMessage(true, 2, {112, 0});
        if (!link.state.ReplyValid)
            throw std::runtime_error("benchmark reply was not valid");
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_RequestReply);

// The full data file (32 pins with 36 steps) written to text.
void BM_DataFileWrite(benchmark::State& state)
{
    Configuration config;
    GeneralSettings general;
    bench::fillFullConfiguration(config, general);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const std::string text = writeConfigurationText(config, general, SaveForm::Full);
        bytes = text.size();
        benchmark::DoNotOptimize(text.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
    state.counters["file_bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_DataFileWrite)->Unit(benchmark::kMicrosecond);

// The same text read back into a fresh configuration.
void BM_DataFileRead(benchmark::State& state)
{
    Configuration config;
    GeneralSettings general;
    bench::fillFullConfiguration(config, general);
    const std::string text = writeConfigurationText(config, general, SaveForm::Full);
    test::RecordingDialogs dialogs;
    for (auto _ : state) {
        Configuration loaded;
        GeneralSettings loadedGeneral;
        if (readConfigurationText(text, loaded, loadedGeneral, dialogs) != LoadResult::Loaded)
            throw std::runtime_error("benchmark data file did not load");
        benchmark::DoNotOptimize(loaded.Pins.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * text.size()));
}
BENCHMARK(BM_DataFileRead)->Unit(benchmark::kMicrosecond);

// The largest files that are read at all (1 MB): a data file whose pin blocks repeat
// until it is full, and a definitions file of nothing but device names, read into the
// device list as the window does at its start. peak_rss_MiB is the process's peak.
std::string largestDataFile()
{
    Configuration config;
    GeneralSettings general;
    bench::fillFullConfiguration(config, general);
    const std::string full = writeConfigurationText(config, general, SaveForm::Full);
    const std::size_t pins = full.find("\"Pin\",0,");
    const std::string body = full.substr(pins, full.rfind("\"End\"") - pins);
    std::string text = full.substr(0, pins);
    while (text.size() + body.size() + 7 <= kTextFileLimit)
        text += body;
    return text + "\"End\"\r\n";
}

void reportPeak(benchmark::State& state, std::size_t bytes)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["file_bytes"] = static_cast<double>(bytes);
    state.counters["peak_rss_MiB"] = static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void BM_LargestDataFileRead(benchmark::State& state)
{
    const std::string text = largestDataFile();
    test::RecordingDialogs dialogs;
    for (auto _ : state) {
        Configuration loaded;
        GeneralSettings loadedGeneral;
        if (readConfigurationText(text, loaded, loadedGeneral, dialogs) != LoadResult::Loaded)
            throw std::runtime_error("largest data file did not load");
        benchmark::DoNotOptimize(loaded.Pins.data());
    }
    reportPeak(state, text.size());
}
BENCHMARK(BM_LargestDataFileRead)->Unit(benchmark::kMillisecond);

void BM_LargestDefinitionsList(benchmark::State& state)
{
    std::string text = std::string("\"") + kDeviceFileKeyword + " 1.0\"\r\n";
    for (int i = 0; text.size() + 40 < kTextFileLimit; ++i)
        text += "\"Dev\",\"D" + std::to_string(i) + "\"\r\n";
    text += "\"End\"\r\n";
    test::RecordingDialogs dialogs;
    const std::string path = "/usr/share/kestrel-config/KestrelDevices.def";
    for (auto _ : state) {
        DeviceList list;
        readDeviceListText(list, text, path, ListMode::Replace, dialogs);
        benchmark::DoNotOptimize(list.cboDevice.data());
    }
    reportPeak(state, text.size());
}
BENCHMARK(BM_LargestDefinitionsList)->Unit(benchmark::kMillisecond);

// Find Modules on a bus with one module, the 15 silent addresses waited for on the machine's
// clock as on a real line. The simulator answers at once, so scan_s adds the time the
// 19200 bit/s wire needs for the bytes both ways: the scan as it takes on that bus.
// Target: scan_s <= 10.
void BM_ScanOneModuleAt19200(benchmark::State& state)
{
    sim::SimBus bus;
    bus.addModule(0);
    sim::SimPort port(bus);
    port.setRealTimeWaits(true);
    port.open();
    SystemClock clock;
    test::RecordingDialogs dialogs;
    Session session(port, clock, dialogs);
    double seconds = 0;
    for (auto _ : state) {
        bus.resetStats();
        const auto start = std::chrono::steady_clock::now();
        if (findModules(session).size() != 1 || !dialogs.messages.empty())
            throw std::runtime_error("the scan did not find the one module quietly");
        seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() +
                  bus.stats().wireSeconds(19200);
    }
    state.counters["scan_s"] = seconds;
    state.counters["target_s"] = 10;
}
BENCHMARK(BM_ScanOneModuleAt19200)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

BENCHMARK_MAIN();
