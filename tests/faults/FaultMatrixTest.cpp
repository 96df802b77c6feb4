// The fault matrix: every operation family against every fault of the wire, one request of
// the job hit, the rest left to run. Each cell states the messages (or report lines), the
// result, the 2 s time-outs waited out (pauses pacing one-way writes aside) and what of the
// job's data arrived; then the same session must read the whole module without a word.
// Why the cells are what they are:
// - a reply that fails its check byte is dropped silently, so it ends like no reply at all;
// - a write succeeds once its frame is out: after a time-out the job goes on one-way, and as
//   writes never look inside the acknowledgement, content faults are harmless to them;
// - a bad copy before the good one, and bytes before a frame start, are ignored by design;
// - on the tunnel a missing reply shows after 2 s of polls as an empty one, rejected by size;
// - a lost port gives one message and ends the job at once, without a time-out.
#include "FaultRig.h"
#include "base/Text.h"
#include "ops/EventControl.h"
#include "ops/GeneralCommands.h"
#include "ops/PinTransfer.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace kestrel;
using namespace kestrel::test;
using namespace kestrel::test::faults;

namespace {

const std::string kNoResponse = "No response received, resetting bidirectional communication";
const std::string kNoCorvidAnswer = "No answer from Corvid";
// Placeholders filled in from the request hit, as both carry its toggle: the address byte
// claimed under OtherAddress, and the checksum message of the corrupted Corvid answer.
const std::string kCorvidChecksum = "{checksum}";
std::string otherAddress(int header)
{
    return "Invalid response received, \r\nReceived: Addr = {address} Header = " + std::to_string(header) +
           "\r\nExpected: Addr = 3 Header > 95 ";
}

// How much of the job's data arrived (reads: in the model; writes: in the module).
enum class Model {
    Whole,         // all of it
    BeforeTarget,  // everything before the request hit; that one and the rest not at all
    ThroughTarget, // everything up to and including the request hit (a write that was out)
    AllButTarget,  // everything but what the request hit should have brought (the job went on)
    Untouched,     // nothing
};

struct Family {
    std::string name;
    bool tunnel = false;
    bool writes = false; // the module starts erased and the job writes the source to it
    std::vector<int> target;
    std::function<bool(FaultRig&)> run;
    std::function<void(FaultRig&, Model)> check;
};

struct Case {
    const Family* family;
    Fault fault;
    bool result;
    std::vector<std::string> messages;
    int timeouts; // 2 s time-outs waited out
    Model model;
    std::vector<std::string> report = {}; // Verify All's report lines
};

void checkDccSettings(FaultRig& rig, Model m)
{
    const GeneralSettings& g = rig.session.general;
    const GeneralSettings& src = rig.sourceGeneral;
    const GeneralSettings def;
    // The options come first and are read in every case; the ID string is not part of the job.
    const bool address = m == Model::Whole;
    const bool xaddress = m == Model::Whole || m == Model::AllButTarget;
    EXPECT_EQ(std::tuple(g.OptGenDCC_PRP, g.ChkGenDCC_BPSI, g.ChkGenDCCAllow0, g.TextGenDCCAddress,
                         g.TextGenXDCCAddress, g.TextGenIDString),
              std::tuple(src.OptGenDCC_PRP, src.ChkGenDCC_BPSI, src.ChkGenDCCAllow0,
                         address ? src.TextGenDCCAddress : def.TextGenDCCAddress,
                         xaddress ? src.TextGenXDCCAddress : def.TextGenXDCCAddress, def.TextGenIDString));
}

// Pin 3 has layout 3 (4 aspects of 9 steps); the request hit is the step read or write
// of aspect 1, step 4, the 14th of 36.
constexpr int kPin = 3;
constexpr int kHitStep = 1 * 9 + 4;

void checkPinRead(FaultRig& rig, Model m)
{
    const Configuration def;
    const PinRecord& src = rig.source.pin(kPin);
    PinRecord want = m == Model::Whole ? src : def.pin(kPin);
    if (m == Model::BeforeTarget) { // the layout comes first, then the steps in order
        want.AspectLayout = src.AspectLayout;
        for (int i = 0; i < kHitStep; ++i)
            want.Aspects[i / 9].Steps[i % 9] = src.Aspects[i / 9].Steps[i % 9];
    }
    EXPECT_EQ(rig.session.config.pin(kPin), want);
    EXPECT_EQ(std::tuple(rig.session.config.pin(kPin - 1), rig.session.config.pin(kPin + 1)),
              std::tuple(def.pin(kPin - 1), def.pin(kPin + 1)));
}

void checkPinWrite(FaultRig& rig, Model m)
{
    const sim::PinMemory& factory = rig.module.factoryMemory().pins[kPin];
    sim::PinMemory want = rig.seeded.pins[kPin];
    want.eventOn = factory.eventOn; // the events are not part of a pin write
    want.eventOff = factory.eventOff;
    // Layout, initial aspect and address configuration go before the steps.
    const int written = m == Model::Whole ? 36 : kHitStep + (m == Model::ThroughTarget ? 1 : 0);
    for (int i = written; i < 36; ++i)
        want.steps[i / 9][i % 9] = factory.steps[i / 9][i % 9];
    EXPECT_EQ(rig.module.memory().pins[kPin], want);
    EXPECT_EQ(rig.module.memory().pins[kPin + 1], rig.module.factoryMemory().pins[kPin + 1]);
}

// Events: the request hit is Event-On of pin 5 (reads) or Event-Off of pin 7 (writes).
void checkEventsRead(FaultRig& rig, Model m)
{
    for (int p = 0; p < kPinCount; ++p) {
        const EventRecord& src = rig.source.events(p);
        EventRecord want = m == Model::Whole ? src : Configuration{}.events(p);
        if (p < 5)
            want.OnEvent = src.OnEvent;
        if (m == Model::AllButTarget)
            want.OffEvent = src.OffEvent;
        EXPECT_EQ(rig.session.config.events(p), want) << p;
    }
}

void checkEventsWrite(FaultRig& rig, Model m)
{
    const int offWritten = m == Model::Whole ? kPinCount : m == Model::ThroughTarget ? 8 : 7;
    for (int p = 0; p < kPinCount; ++p) {
        const auto& pin = rig.module.memory().pins[p];
        EXPECT_EQ(pin.eventOn, rig.seeded.pins[p].eventOn) << p;
        EXPECT_EQ(pin.eventOff,
                  p < offWritten ? rig.seeded.pins[p].eventOff : rig.module.factoryMemory().pins[p].eventOff)
            << p;
    }
}

void checkEnableMapsRead(FaultRig& rig, Model m)
{
    EXPECT_EQ(rig.session.general.CheckInitEE,
              m == Model::Whole ? rig.sourceGeneral.CheckInitEE : GeneralSettings{}.CheckInitEE);
}

void checkEnableMapsWrite(FaultRig& rig, Model m)
{
    const auto& want = m == Model::Whole ? rig.seeded : rig.module.factoryMemory();
    EXPECT_EQ(rig.module.memory().eventOnEnable, want.eventOnEnable);
    EXPECT_EQ(rig.module.memory().eventOffEnable, want.eventOffEnable);
}

// Read All: the request hit is the layout read of pin 4, after every general setting and
// pins 0 to 3.
void checkReadAll(FaultRig& rig, Model m)
{
    const Configuration def;
    const Session& s = rig.session;
    GeneralSettings general = rig.sourceGeneral;
    if (m != Model::Whole)
        general.CheckInitEE = GeneralSettings{}.CheckInitEE; // the enable maps come last
    EXPECT_EQ(s.general, general);
    for (int p = 0; p < kPinCount; ++p) {
        const bool read = m == Model::Whole || p < 4;
        EXPECT_EQ(s.config.pin(p), read ? rig.source.pin(p) : def.pin(p)) << p;
        EXPECT_EQ(s.config.events(p), m == Model::Whole ? rig.source.events(p) : def.events(p)) << p;
    }
}

// Write All: the request hit is Event-Off of pin 7; the enable maps and the serial
// addressing come after it.
void checkWriteAll(FaultRig& rig, Model m)
{
    sim::ModuleMemory want = rig.seeded;
    if (m != Model::Whole) {
        const sim::ModuleMemory& factory = rig.module.factoryMemory();
        for (int p = m == Model::ThroughTarget ? 8 : 7; p < kPinCount; ++p)
            want.pins[p].eventOff = factory.pins[p].eventOff;
        want.eventOnEnable = factory.eventOnEnable;
        want.eventOffEnable = factory.eventOffEnable;
        want.flexEnable = factory.flexEnable;
        want.addressMode = factory.addressMode;
        want.groupMask = factory.groupMask;
        want.extendedAddress = factory.extendedAddress;
    }
    EXPECT_TRUE(rig.module.memory() == want);
}

// Verify All only reads: the model stays as it was.
void checkVerifyAll(FaultRig& rig, Model) { rig.expectWholeModel(); }

std::function<bool(FaultRig&)> job(bool (*procedure)(Session&))
{
    return [procedure](FaultRig& r) { return procedure(r.session); };
}

const Family kGeneralRead{"GeneralRead", false, false, {112, 4}, job(ReadDCCSettings), checkDccSettings};
const Family kPinRead{
    "PinRead",   false, false, {115, kPin, 1, 4}, [](FaultRig& r) { return ReadPin(r.session, kPin); },
    checkPinRead};
const Family kPinWrite{
    "PinWrite",   false, true, {99, kPin, 1, 4}, [](FaultRig& r) { return WritePin(r.session, kPin); },
    checkPinWrite};
const Family kEventsRead{"EventsReadAll", false, false, {116, 5}, job(ReadAllEvents), checkEventsRead};
const Family kEventsWrite{"EventsWriteAll", false, true, {101, 7}, job(WriteAllEvents), checkEventsWrite};
const Family kMapsRead{"EnableMapsRead", false, false, {112, 11}, job(ReadEnableMaps), checkEnableMapsRead};
const Family kMapsWrite{"EnableMapsWrite", false, true, {96, 11}, job(WriteEnableMaps), checkEnableMapsWrite};
const Family kReadAll{"ReadAll", false, false, {114, 4}, job(ReadAll), checkReadAll};
const Family kWriteAll{"WriteAll",   false, true, {101, 7}, [](FaultRig& r) { return WriteAll(r.session); },
                       checkWriteAll};
const Family kVerifyAll{"VerifyAll", false, false, {116, 4}, job(VerifyAll), checkVerifyAll};
const Family kTunnelRead{"TunnelledRead", true, false, {112, 4}, job(ReadDCCSettings), checkDccSettings};

const std::vector<std::string> kVerifyStopped{"Start General Settings Verification", "Start EC Verification",
                                              "Verification Stopped"};
const std::vector<std::string> kVerifyOk{"Start General Settings Verification", "Start EC Verification",
                                         "Start Pin Verification", "Verify OK"};
const std::vector<std::string> kVerifyNotSupported{
    "Start General Settings Verification", "Start EC Verification",
    "Read Event-On: Function not supported by Device", "Verification Stopped"};

// Reads that end at a missing reply, with the header of the reply that OtherAddress sends.
// A wrong echo, then a wrong length, give the read's own message (the same for both when
// `length` is empty; none when `echo` is) and end the read or let it go on.
std::vector<Case> readCells(const Family& f, int replyHeader, bool goesOn, Model m, const std::string& echo,
                            const std::string& length = {})
{
    std::vector<Case> cases{
        {&f, Fault::NoReply, false, {kNoResponse}, 1, Model::BeforeTarget},
        {&f, Fault::CorruptNoGoodCopy, false, {kNoResponse}, 1, Model::BeforeTarget},
        {&f, Fault::CorruptThenGood, true, {}, 0, Model::Whole},
        {&f, Fault::Garbage, true, {}, 0, Model::Whole},
        {&f, Fault::OtherAddress, false, {otherAddress(replyHeader)}, 0, Model::BeforeTarget},
        {&f, Fault::PortGoneWaiting, false, {kPortLost}, 0, Model::BeforeTarget},
        {&f, Fault::PortGoneWriting, false, {kPortLost}, 0, Model::BeforeTarget},
    };
    for (const auto& [fault, text] : {std::pair{Fault::WrongEcho, echo}, {Fault::WrongLength, length}}) {
        const std::string shown = text.empty() ? echo : text;
        cases.push_back(
            {&f, fault, goesOn, shown.empty() ? std::vector<std::string>{} : std::vector{shown}, 0, m});
    }
    return cases;
}

// Writes: only a lost port stops them; the acknowledgement's content is not looked at.
std::vector<Case> writeCells(const Family& f)
{
    return {
        {&f, Fault::NoReply, true, {kNoResponse}, 1, Model::Whole},
        {&f, Fault::CorruptNoGoodCopy, true, {kNoResponse}, 1, Model::Whole},
        {&f, Fault::CorruptThenGood, true, {}, 0, Model::Whole},
        {&f, Fault::Garbage, true, {}, 0, Model::Whole},
        {&f, Fault::WrongEcho, true, {}, 0, Model::Whole},
        {&f, Fault::WrongLength, true, {}, 0, Model::Whole},
        {&f, Fault::OtherAddress, true, {otherAddress(98)}, 0, Model::Whole},
        {&f, Fault::PortGoneWaiting, false, {kPortLost}, 0, Model::ThroughTarget},
        {&f, Fault::PortGoneWriting, false, {kPortLost}, 0, Model::BeforeTarget},
    };
}

std::vector<Case> matrix()
{
    std::vector<Case> all;
    auto add = [&](std::vector<Case> cases) { all.insert(all.end(), cases.begin(), cases.end()); };

    add(readCells(kGeneralRead, 100, true, Model::AllButTarget, "Get DCC Address: No valid response",
                  "Get DCC Address: No valid response, size <> 4"));
    add(readCells(kPinRead, 105, false, Model::BeforeTarget, "No valid response"));
    add(writeCells(kPinWrite));
    add(readCells(kEventsRead, 103, true, Model::AllButTarget,
                  "Read Event-On: Function not supported by Device"));
    add(writeCells(kEventsWrite));
    add(readCells(kMapsRead, 100, false, Model::Untouched, "No valid response type",
                  "No valid response size"));
    // A single write: when the port goes while its acknowledgement is awaited, it is done.
    for (Case c : writeCells(kMapsWrite)) {
        if (c.model == Model::ThroughTarget)
            c.model = Model::Whole;
        if (c.model == Model::BeforeTarget)
            c.model = Model::Untouched;
        all.push_back(c);
    }
    add(readCells(kReadAll, 99, false, Model::BeforeTarget, "No valid response"));
    add(writeCells(kWriteAll));
    // Verify All tells a content error in its report.
    for (Case c : readCells(kVerifyAll, 103, false, Model::Untouched, "")) {
        const bool content = c.fault == Fault::WrongEcho || c.fault == Fault::WrongLength;
        c.report = content ? kVerifyNotSupported : c.result ? kVerifyOk : kVerifyStopped;
        all.push_back(c);
    }
    const std::string tooShort = "Get DCC Address: No valid response, size <> 4";
    const Family* t = &kTunnelRead;
    add({
        {t, Fault::NoReply, true, {tooShort}, 1, Model::AllButTarget},
        {t, Fault::CorvidSilent, false, {kNoCorvidAnswer}, 1, Model::BeforeTarget},
        {t, Fault::CorruptNoGoodCopy, false, {kCorvidChecksum, kNoCorvidAnswer}, 0, Model::BeforeTarget},
        {t, Fault::Garbage, true, {}, 0, Model::Whole},
        {t, Fault::WrongEcho, true, {"Get DCC Address: No valid response"}, 0, Model::AllButTarget},
        {t, Fault::WrongLength, true, {tooShort}, 0, Model::AllButTarget},
        {t, Fault::OtherAddress, true, {tooShort}, 1, Model::AllButTarget},
        {t, Fault::PortGoneWaiting, false, {kPortLost}, 0, Model::BeforeTarget},
        {t, Fault::PortGoneWriting, false, {kPortLost}, 0, Model::BeforeTarget},
    });
    return all;
}

// The message as the user must see it, for the request that the fault hit.
std::string expectedMessage(std::string text, const FaultRig& rig)
{
    if (text == kCorvidChecksum) {
        // The empty answer frame of the request's toggle, its check byte off by one.
        const int header = 40 + (rig.wire.hitFirst & 64);
        const int check = ((128 - header % 128) % 128) ^ 1;
        return "Checksum Error\r\nSize = 0< " + hexUpper(header) + hexUpper(check);
    }
    const int claimed = kOtherAddress * 4 + 3 + (rig.wire.hitFirst & 64);
    if (const auto at = text.find("{address}"); at != std::string::npos)
        text.replace(at, 9, std::to_string(claimed));
    return text;
}

// For failure output.
void PrintTo(const Case& c, std::ostream* os) { *os << c.family->name << " / " << faultName(c.fault); }

class FaultMatrix : public ::testing::TestWithParam<Case> {};

TEST_P(FaultMatrix, EndsAsItShould)
{
    const Family& family = *GetParam().family;
    const Case& cell = GetParam();
    FaultRig rig(family.tunnel);
    ASSERT_TRUE(rig.ready) << ::testing::PrintToString(rig.dialogs.texts());
    if (family.writes)
        rig.eraseModule();
    else if (family.name != "VerifyAll")
        rig.forgetModel();

    rig.wire.arm(cell.fault, family.target);
    const auto waited = [&rig] { return rig.clock.now - rig.clock.slept / 1000.0; }; // pacing aside
    const double start = waited();
    const bool result = family.run(rig);
    const double spent = waited() - start;

    EXPECT_EQ(rig.wire.hits, 1) << "the fault never went off";
    EXPECT_EQ(result, cell.result);
    std::vector<std::string> expected;
    for (const auto& m : cell.messages)
        expected.push_back(expectedMessage(m, rig));
    EXPECT_EQ(rig.dialogs.texts(), expected);
    // Time-outs are waited out in full, and nothing else is waited for.
    const double slack = family.tunnel ? 0.25 : 1e-9;
    EXPECT_GE(spent, 2.0 * cell.timeouts - 1e-9);
    EXPECT_LE(spent, 2.0 * cell.timeouts + slack);
    if (!family.tunnel) { // a time-out unchecks bidirectional communication; nothing else does
        EXPECT_EQ(rig.session.link.settings.CheckKestrelBD, expected.empty() || expected[0] != kNoResponse);
    }
    if (!cell.report.empty()) {
        EXPECT_EQ(reportLines(rig.session), cell.report);
    }
    family.check(rig, cell.model);

    // The same session reads the whole module on the next job; after a lost port, once
    // the port is back and chosen again.
    const bool lost = cell.fault == Fault::PortGoneWaiting || cell.fault == Fault::PortGoneWriting;
    EXPECT_EQ(rig.port.isOpen(), !lost);
    if (lost)
        rig.bringBack();
    rig.dialogs.clear();
    const sim::ModuleMemory module = rig.module.memory();
    rig.forgetModel();
    EXPECT_TRUE(ReadAll(rig.session));
    EXPECT_EQ(std::tuple(rig.dialogs.texts(), rig.corvid.pendingReplies()),
              std::tuple(std::vector<std::string>{}, 0u));
    EXPECT_TRUE(rig.dialogs.questions.empty()); // flex-addressing comes back on without the warning
    if (module == rig.seeded)
        checkReadAll(rig, Model::Whole);
}

std::string caseName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.family->name + "_" + faultName(info.param.fault);
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, FaultMatrix, ::testing::ValuesIn(matrix()), caseName);

} // namespace
