#include "files/ConfigurationFile.h"
#include "base/Translatable.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "base/UserDialogs.h"
#include "files/FileRecords.h"
#include "files/ItemStream.h"
#include "files/TextFile.h"
#include "model/AddressIndex.h"
#include "model/PinTools.h"
#include "model/StepCodec.h"
#include "model/WireLimits.h"
#include "pins/PinMode.h"
#include "session/Session.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <vector>

namespace kestrel {

namespace {

int checked(int box) { return box == 1 ? 1 : 0; }

// ---- Writing ----

// The records of the general settings that carry several items, or lay them out
// otherwise than the wire; every other item's record is its keyword and its data bytes.
void writeDcc(ItemWriter& w, const GeneralSettings& g)
{
    w.line()
        .text("DCC")
        .real(val(g.TextGenDCCAddress))
        .real(val(g.TextGenXDCCAddress))
        .number(dccOptionsByte(g))
        .end();
}

void writeXad(ItemWriter& w, const GeneralSettings& g)
{
    w.line()
        .text("XAD")
        .number(fileAddressModeByte(g))
        .number(checked(g.CheckGenLynxaddr))
        .number(g.ExtendedAddress);
    for (int mask : groupMaskBytes(g))
        w.number(mask);
    w.end();
}

void writeLed(ItemWriter& w, const GeneralSettings& g)
{
    w.line().text("LED").number(ledByte(g.CheckLCGreen)).number(ledByte(g.CheckLCOrange)).end();
}

void writeSpc(ItemWriter& w, const GeneralSettings& g)
{
    checkIndex(g.ComboGenBaud, static_cast<long>(kGenBaudList.size()), "baud list entry");
    const int parity = g.OptionGenSerialParity == 2 ? 2 : (g.OptionGenSerialParity == 3 ? 3 : 0);
    w.line()
        .text("SPC")
        .number(checked(g.CheckGenSerialEnable))
        .text(kGenBaudList[g.ComboGenBaud])
        .number(g.OptionGenSerialDatabits == 1 ? 8 : 7)
        .number(parity)
        .number(g.OptionGenSerialStop == 1 ? 2 : 1)
        .end();
}

using RecordWriter = void (*)(ItemWriter&, const GeneralSettings&);
const std::pair<std::string_view, RecordWriter> kRecordWriters[] = {
    {"ID$",
     [](ItemWriter& w, const GeneralSettings& g) { w.line().text("ID$").text(g.TextGenIDString).end(); }},
    {"DCC", writeDcc},
    {"XAD", writeXad},
    {"LED", writeLed},
    {"SPC", writeSpc},
};

// Each record once, in the order of kGeneralCodecs.
void writeGeneral(ItemWriter& w, const GeneralSettings& g)
{
    std::vector<std::string_view> written;
    for (const GeneralItemCodec& row : kGeneralCodecs) {
        const std::string_view record = row.record;
        if (record.empty() || std::find(written.begin(), written.end(), record) != written.end())
            continue;
        written.push_back(record);
        const auto own = std::find_if(std::begin(kRecordWriters), std::end(kRecordWriters),
                                      [&](const auto& r) { return r.first == record; });
        if (own != std::end(kRecordWriters)) {
            own->second(w, g);
            continue;
        }
        w.line().text(std::string(record));
        for (int b : row.encode(g))
            w.number(b);
        w.end();
    }
}

void writeEvents(ItemWriter& w, const Configuration& config)
{
    for (const char* keyword : {"Eon", "Eof"}) {
        const bool on = std::strcmp(keyword, "Eon") == 0;
        for (int p = 0; p < kPinCount; ++p) {
            const EventRecord& e = config.events(p);
            w.line().text(keyword).number(p);
            for (int slot = 0; slot < 4; ++slot)
                w.number((on ? e.OnEvent[slot] : e.OffEvent[slot]) + 1);
            w.end();
        }
    }
}

} // namespace

const char* const kConfigParameterNames[12] = {
    "",
    "Configuration parameter 1",
    "Configuration parameter 2",
    "Configuration parameter 3",
    "Configuration parameter 4",
    "Configuration parameter 5",
    "Configuration parameter 6",
    "Configuration parameter 7",
    "Configuration parameter 8",
    "Configuration parameter 9",
    "Configuration parameter 10",
    "Configuration parameter 11",
};

// Shared with the definitions file: the "Cfg" record of a pin.
void writeCfgRecord(ItemWriter& w, int indent, PinRecord& pin)
{
    w.line(indent).text("Cfg").number(pin.ConfigMode);
    const int count = configParameterCount(pin.ConfigMode);
    if (hasMode(pin, PinMode::Servo))
        pin.P(2) = servoModeToStore(pin.P(2));
    for (int n = 1; n <= count; ++n)
        w.number(pin.P(n));
    w.end();
}

void writeInsRecord(ItemWriter& w, int indent, int s, const StepRecord& step)
{
    w.line(indent)
        .text("Ins")
        .number(s)
        .number(16 * step.Fade + step.Instruction)
        .number(step.Par0)
        .number(step.Par1)
        .number(step.Par2)
        .number(step.Par3)
        .end();
}

std::string writeConfigurationText(Configuration& config, const GeneralSettings& general, SaveForm form)
{
    const bool compact = form == SaveForm::Compact;
    ItemWriter w;
    w.line().text(std::string(kConfigFileKeyword) + " " + kConfigFileVersion).end();
    writeGeneral(w, general);
    writeEvents(w, config);

    for (int p = 0; p < kPinCount; ++p) {
        PinRecord& pin = config.pin(p);
        if (compact && pin.Description.empty())
            continue;
        w.line()
            .text("Pin")
            .number(p)
            .number(pin.AspectLayout)
            .number(pin.InitAspect)
            .text(pin.Description)
            .end();
        w.line(2).text("Dev").number(pin.DeviceOffset).text(pin.DeviceDescription).end();
        writeCfgRecord(w, 2, pin);
        w.line(2).text("PAM").number(pin.XDccCount).number(pin.DccCount).number(pin.LynxCount).end();

        const LayoutSlots slots = layoutSlots(pin.AspectLayout);
        for (int a = 0; a < slots.aspects; ++a) {
            const AspectRecord& aspect = config.aspect(p, a);
            if (compact && aspect.Description.empty())
                continue;
            w.line(2).text("Asp").number(a).text(aspect.Description).end();
            for (int s = 0; s < slots.steps; ++s) {
                const StepRecord& step = aspect.Steps[s];
                if (compact && step.Instruction == 0)
                    continue;
                writeInsRecord(w, 4, s, step);
            }
        }
    }
    w.line().text("End").end();
    return w.result();
}

bool saveConfigurationFile(const std::string& path, Configuration& config, const GeneralSettings& general,
                           SaveForm form, std::string& error)
{
    // The model is changed (servo parameter 2) only when the file is really written.
    Configuration copy = config;
    const std::string text = writeConfigurationText(copy, general, form);
    if (!replaceFile(path, text, error))
        return false;
    config = std::move(copy);
    return true;
}

// ---- Reading ----

namespace {

void checkRange(ItemReader& in, int value, int highest, const char* what)
{
    if (value > highest)
        in.fail(std::string(what) + " index " + std::to_string(value) + " out of range 0.." +
                std::to_string(highest));
}

// A DCC address as the writer will send it (rounded to a whole number): 0..8191.
std::string readDccAddress(ItemReader& in, const char* what)
{
    const double value = in.nextReal();
    const double sent = std::round(value);
    if (sent < 0 || sent > kDccAddressMax)
        in.fail(cannotSendText(what, formatNumber(value), 0, kDccAddressMax));
    return formatNumber(value);
}

class ConfigReader {
public:
    ConfigReader(ItemReader& in, double version, Configuration& config, GeneralSettings& general)
        : in(in), version(version), config(config), g(general)
    {
    }

    // What was changed on the way in and should be told ("ID string cut to 12 characters: ...").
    std::vector<std::string> notices;

    // Dispatches keywords until "End".
    void run()
    {
        for (;;) {
            const std::string keyword = in.next();
            if (keyword == "End")
                return;
            dispatch(keyword);
        }
    }

private:
    void dispatch(const std::string& k)
    {
        // The records with a reader of their own; the other general items are read by their
        // rows. Anything else is not a keyword: passed over, and the next item is tried.
        static const std::map<std::string, void (ConfigReader::*)()> readers = {
            {"ID$", &ConfigReader::readId},       {"DCC", &ConfigReader::readDcc},
            {"XAD", &ConfigReader::readXad},      {"LED", &ConfigReader::readLed},
            {"SPC", &ConfigReader::readSpc},      {"Eon", &ConfigReader::readEventsOn},
            {"Evt", &ConfigReader::readEventsOn}, {"Eof", &ConfigReader::readEventsOff},
            {"Pin", &ConfigReader::readPin},      {"Dev", &ConfigReader::readDev},
            {"Cfg", &ConfigReader::readCfg},      {"PAM", &ConfigReader::readPam},
            {"Asp", &ConfigReader::readAsp},      {"Ins", &ConfigReader::readIns}};
        if (const auto reader = readers.find(k); reader != readers.end())
            (this->*reader->second)();
        else if (const GeneralItemCodec* row = itemRecord(k))
            readItem(*row);
    }

    void readId()
    {
        const IdStringCheck id = checkIdString(in.next());
        if (id.refused)
            in.fail(id.message);
        if (!id.message.empty())
            notices.push_back(id.message);
        g.TextGenIDString = id.text;
    }

    void readDcc()
    {
        g.TextGenDCCAddress = readDccAddress(in, "DCC address");
        if (version >= 32)
            g.TextGenXDCCAddress = readDccAddress(in, "eXtended DCC address");
        if (version > 22) {
            setDccOptions(g, in.nextByte());
        }
    }

    void readXad()
    {
        const int a = in.nextSendable(0, kDataByteMax, "Lynx flex-address");
        const int b = in.nextInt16();
        const int c = in.nextSendable(0, kDataByteMax, "eXtended address");
        std::array<int, 4> masks{};
        for (int& m : masks)
            m = in.nextByte();

        g.LynxFlexAddress = a;
        g.CheckGenLynxaddr = b == 1 ? 1 : 0;
        // Item a is the module's mode byte: without flex-addressing its bit 6 is native mode.
        g.CheckGenKestrelNative = (b != 1 && (a & 64)) ? 1 : 0;
        g.ExtendedAddress = c;
        g.TextGenXaddr = std::to_string(c + config.NumberingBase);
        g.TextGenLynxaddr = std::to_string(g.LynxFlexAddress * 4 + config.NumberingBase);
        applyAddressingVisibility(g);
        generalCodec(kItemGroupMask)
            .decode(g, GeneralBytes(masks.begin(), masks.end()), config.NumberingBase);
    }

    // The record of an item that the file carries as its data bytes (asked after the
    // records of their own layout); nullptr for a keyword that is none.
    static const GeneralItemCodec* itemRecord(const std::string& keyword)
    {
        for (const GeneralItemCodec& row : kGeneralCodecs)
            if (keyword == row.record)
                return &row;
        return nullptr;
    }

    // The data bytes of an item (the hardware configuration's only as far as its two
    // bits of each group, as the file has always been read).
    void readItem(const GeneralItemCodec& row)
    {
        const bool hardware = row.item == kItemHardwareConfig;
        const std::string name = generalItemInfo(row.item)->name;
        GeneralBytes data;
        for (std::size_t i = 0; i < row.encode(g).size(); ++i)
            data.push_back(hardware ? in.nextInt16() & 3 : in.nextSendable(0, kDataByteMax, name));
        if (!row.decode(g, data, config.NumberingBase))
            in.fail(name + " cannot be held by the module");
    }

    void readLed()
    {
        const int green = in.nextByte();
        const int orange = in.nextByte();
        for (int k = 0; k < 7; ++k) {
            g.CheckLCGreen[k] = (green >> k) & 1;
            g.CheckLCOrange[k] = (orange >> k) & 1;
        }
        // Only the seven bit boxes: element 7 ("Idle Flash", "All Received Datagrams") is
        // not part of the record and keeps its state.
    }

    void readSpc()
    {
        const int enable = in.nextInt16();
        const std::string rate = in.next();
        const int data = in.nextInt16();
        const int parity = in.nextInt16();
        const int stop = in.nextInt16();
        g.CheckGenSerialEnable = enable != 0 ? 1 : 0;
        for (std::size_t i = 0; i < kGenBaudList.size(); ++i)
            if (rate == kGenBaudList[i])
                g.ComboGenBaud = static_cast<int>(i);
        g.OptionGenSerialDatabits = data == 8 ? 1 : 0;
        g.OptionGenSerialParity = (parity == 2 || parity == 3) ? parity : 0;
        g.OptionGenSerialStop = stop == 2 ? 1 : 0;
    }

    int readPinIndex()
    {
        const int p = in.nextByte();
        checkRange(in, p, kPinRecords - 1, "Pin");
        return p;
    }

    void readEventsOn() { readEvents(true); }
    void readEventsOff() { readEvents(false); }
    void readEvents(bool on)
    {
        const int p = readPinIndex();
        std::array<int, 4> entries{};
        for (int& e : entries)
            e = in.nextSendable(0, kEventActionWireMax + 1, on ? "Event-On entry" : "Event-Off entry") - 1;
        auto& target = on ? config.events(p).OnEvent : config.events(p).OffEvent;
        for (int slot = 0; slot < 4; ++slot)
            target[slot] = static_cast<std::int16_t>(entries[slot]);
    }

    void readPin()
    {
        const int p = readPinIndex();
        const int layout = in.nextSendable(0, kDataByteMax, "Aspect layout");
        const int init = in.nextSendable(0, kInitAspectMax, "Initial aspect");
        std::string description = in.next();

        pin = p;
        PinRecord& r = config.pin(p);
        r.AspectLayout = static_cast<std::uint8_t>(layout);
        r.InitAspect = static_cast<std::uint8_t>(init);
        r.Description = std::move(description);
        r.DccCount = 1;
        r.XDccCount = 1;
        r.LynxCount = 1;
        for (int a = 0; a < 12; ++a) {
            r.Aspects[a].Description.clear();
            clearAspectSteps(r.Aspects[a]);
        }
    }

    void readDev()
    {
        const int offset = in.nextInt16();
        std::string description = in.next();
        config.pin(pin).DeviceOffset = static_cast<std::int16_t>(offset);
        config.pin(pin).DeviceDescription = std::move(description);
    }

    void readCfg()
    {
        const int mode = in.nextByte();
        std::array<int, 12> p{}; // p[n] = parameter n
        PinRecord& r = config.pin(pin);
        switch (pinMode(mode).value_or(PinMode::None)) {
        case PinMode::Servo:
            // Parameter 2 loses its top bits before it is sent; the others go as they are.
            for (int n = 1; n <= 11; ++n)
                p[n] = n == 2 ? in.nextByte() : nextParameter(n);
            r.ConfigMode = modeByte(PinMode::Servo);
            for (int n = 1; n <= 11; ++n)
                r.P(n) = static_cast<std::uint8_t>(p[n]);
            r.P(2) = currentServoMode(r.P(2));
            break;
        case PinMode::Pwm:
        case PinMode::PwmInverted:
            for (int n = 1; n <= 3; ++n)
                p[n] = nextParameter(n);
            if (version >= 20) {
                p[4] = nextParameter(4);
                p[5] = nextParameter(5);
            }
            r.ConfigMode = static_cast<std::uint8_t>(mode);
            for (int n = 1; n <= 11; ++n)
                r.P(n) = static_cast<std::uint8_t>(p[n]);
            if (version < 20)
                setOlderPwmLimits(r);
            break;
        case PinMode::Input:
        case PinMode::InputInverted:
            for (int n = 1; n <= 4; ++n)
                p[n] = nextParameter(n);
            r.ConfigMode = static_cast<std::uint8_t>(mode);
            for (int n = 1; n <= 4; ++n)
                r.P(n) = static_cast<std::uint8_t>(p[n]);
            break;
        case PinMode::None: // and every mode the program does not know
            r.ConfigMode = modeByte(PinMode::None);
            for (int n = 1; n <= 11; ++n)
                r.P(n) = 0;
            break;
        }
        r.OutputValue = r.P(1);
    }

    int nextParameter(int n) { return in.nextSendable(0, kDataByteMax, kConfigParameterNames[n]); }

    void readPam()
    {
        PinRecord& r = config.pin(pin);
        int xdcc = r.XDccCount;
        if (version >= 32)
            xdcc = in.nextSendable(0, kXDccCountMax, "eXtended DCC address count");
        const int dcc = in.nextSendable(0, kDccCountMax, "DCC address count");
        const int lynx = in.nextSendable(0, kLynxCountMax, "Serial address count");
        r.XDccCount = static_cast<std::uint8_t>(xdcc);
        r.DccCount = static_cast<std::uint8_t>(dcc);
        r.LynxCount = static_cast<std::uint8_t>(lynx);
    }

    void readAsp() { aspect = readAspRecord(in, config, pin); }

    void readIns() { readInsRecord(in, config, pin, aspect); }

private:
    ItemReader& in;
    double version;
    Configuration& config;
    GeneralSettings& g;
    int pin = 0;
    int aspect = 0;
};

} // namespace

int readAspRecord(ItemReader& in, Configuration& config, int pin)
{
    const int a = in.nextByte();
    checkRange(in, a, kAspectRecords - 1, "Aspect");
    config.aspect(pin, a).Description = in.next();
    return a;
}

void readInsRecord(ItemReader& in, Configuration& config, int pin, int aspect)
{
    const int s = in.nextInt16();
    if (s < 0 || s > kStepRecords - 1)
        in.fail("Step index " + std::to_string(s) + " out of range 0.." + std::to_string(kStepRecords - 1));
    const int op = in.nextSendable(0, kDataByteMax, "Instruction code");
    StepRecord read = config.step(pin, aspect, s);
    read.Instruction = static_cast<std::uint8_t>(op);
    if (op >= 19 && op <= 63)
        splitCodeByte(op, read);
    // Outside 19..63 the fade stays as it was, and with it the code byte could overflow.
    if (read.Instruction + 16 * read.Fade > kDataByteMax)
        in.fail(cannotSendText("Instruction code", read.Instruction + 16 * read.Fade, 0, kDataByteMax));
    // SendSerial 1 and 2 carry Par1 and Par2 as 8-bit values and do not send Par0.
    const bool packed = read.Instruction == 4 || read.Instruction == 5;
    static const char* const kParNames[] = {"Par0", "Par1", "Par2", "Par3"};
    std::array<int, 4> par{};
    for (int n = 0; n < 4; ++n)
        par[n] = packed && n < 3 ? in.nextByte() : in.nextSendable(0, kDataByteMax, kParNames[n]);
    StepRecord& step = config.step(pin, aspect, s);
    step.Instruction = read.Instruction;
    step.Fade = read.Fade;
    step.Par0 = static_cast<std::uint8_t>(par[0]);
    step.Par1 = static_cast<std::uint8_t>(par[1]);
    step.Par2 = static_cast<std::uint8_t>(par[2]);
    step.Par3 = static_cast<std::uint8_t>(par[3]);
}

LoadResult readConfigurationText(const std::string& text, Configuration& config, GeneralSettings& general,
                                 UserDialogs& dialogs)
{
    ItemReader in(text);
    const std::string keyword = kConfigFileKeyword;
    const std::string header = in.firstItem();
    if (header.size() != keyword.size() + 5 || header.compare(0, keyword.size(), keyword) != 0) {
        dialogs.message(KC_TRANSLATABLE("Messages", "Invalid configuration file"), Icon::Warning);
        return LoadResult::InvalidHeader;
    }
    const double version = val(header.substr(header.size() - 4));
    if (version < 3100)
        dialogs.message("Data File Version = " + formatNumber(version), Icon::Information);

    LoadResult result = LoadResult::Loaded;
    ConfigReader reader(in, version, config, general);
    try {
        reader.run();
    } catch (const FileFormatError& e) {
        dialogs.message(std::string("Error in configuration file: ") + e.what() +
                            "\r\nLoading stopped; what was read before is kept.",
                        Icon::Warning);
        result = LoadResult::FormatError;
    }
    for (const std::string& notice : reader.notices)
        dialogs.message(notice, Icon::Warning);
    RecalcAddressIndex(config);
    return result;
}

LoadResult loadConfigurationFile(const std::string& path, Configuration& config, GeneralSettings& general,
                                 UserDialogs& dialogs, std::string* why)
{
    std::string text;
    std::string error;
    if (!readTextFile(path, text, error)) {
        if (why)
            *why = error;
        return LoadResult::CannotOpen;
    }
    return readConfigurationText(text, config, general, dialogs);
}

} // namespace kestrel
