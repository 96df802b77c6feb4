#include "ops/VerifyGeneral.h"

#include "ops/GeneralCommands.h"

#include <string>

namespace kestrel {

namespace {

// One item's exchange during verification.
class ItemCheck {
public:
    explicit ItemCheck(Session& s) : s(s) {}

    // Sends the read request; false when no valid reply came back.
    bool request(int item)
    {
        reply = s.link.request({kGeneralRead, item});
        return reply.valid;
    }
    int length() const { return reply.length(); }
    bool echoes(int item) const { return reply.echoes(kGeneralRead, item); }
    int data(int i) const { return reply.bytes[static_cast<std::size_t>(i)]; }

    // What is wrong with the reply, after the item's name; "" when it is right.
    std::string bad(const std::string& what, GeneralItem item) const
    {
        const std::string text = badGeneralReply(reply, item);
        return text.empty() ? text : what + ": " + text;
    }

private:
    Session& s;
    KestrelReply reply;
};

} // namespace

bool VerifyGeneralSettings(Session& session)
{
    auto& report = session.report;
    const auto& g = session.general;
    ItemCheck c(session);
    bool ok = true;
    auto mismatch = [&](const std::string& line) {
        report.line(line);
        ok = false;
    };
    // A reply error: its line, and the run ends.
    auto stop = [&](const std::string& line) {
        report.line(line);
        return false;
    };
    auto step = [&](int n, const char* what) { session.reportStep(n, 10, what); };

    session.link.setBidirectional(true);
    report.line("Start General Settings Verification");

    // 1. ID string.
    step(0, "Verifying ID string");
    if (!c.request(kItemIdString))
        return false;
    if (c.length() <= 1 || !c.echoes(kItemIdString))
        return stop("ReadIDString: No valid response");
    {
        std::string read;
        for (int i = 0; i < c.length() - 2; ++i)
            read += static_cast<char>(static_cast<unsigned char>(c.data(4 + i)));
        if (read != g.TextGenIDString)
            mismatch("ID does not compare: KestrelConfig = <" + g.TextGenIDString + "> Kestrel = <" + read +
                     ">");
    }

    // 2. Hardware configuration.
    step(1, "Verifying hardware configuration");
    if (!c.request(kItemHardwareConfig))
        return false;
    if (c.length() != 6)
        return stop("HWCRead: No valid response size");
    if (!c.echoes(kItemHardwareConfig))
        return stop("HWCRead: No valid response type");
    {
        const auto want = hardwareConfigBytes(g);
        for (int grp = 0; grp < 4; ++grp)
            if (c.data(4 + grp) != want[grp]) {
                mismatch("Hardware configuration does not compare");
                break;
            }
    }

    // 3. and 4. DCC and eXtended DCC address: a wrong length is reported and the run
    // goes on; a wrong echo ends it.
    struct Address {
        int item;
        const std::string* text;
        const char* errorLine;
        const char* mismatchLine;
    };
    const Address addresses[] = {
        {kItemDccAddress, &g.TextGenDCCAddress, "DCC Address: No valid response",
         "DCC address does not compare"},
        {kItemXDccAddress, &g.TextGenXDCCAddress, "eXtended DCC Address: No valid response",
         "eXtended DCC address does not compare"},
    };
    int n = 2;
    for (const auto& a : addresses) {
        step(n++, "Verifying DCC addresses");
        if (!c.request(a.item))
            return false;
        if (c.length() != 4) {
            mismatch(a.errorLine);
            continue;
        }
        if (!c.echoes(a.item))
            return stop(a.errorLine);
        const auto want = dccAddressBytes(*a.text);
        if (c.data(4) != want[0] || c.data(5) != want[1])
            mismatch(a.mismatchLine);
    }

    // 5. DCC options.
    step(4, "Verifying DCC options");
    if (!c.request(kItemDccOptions))
        return false;
    if (c.length() != 3 || !c.echoes(kItemDccOptions))
        return stop("DCC Options: No valid response");
    if (c.data(4) != dccOptionsByte(g))
        mismatch("DCC Options do not compare");

    // 6. Serial addressing.
    step(5, "Verifying serial addressing");
    if (!c.request(kItemSerialAddressing))
        return false;
    if (const std::string bad = c.bad("Serial Address Settings", kItemSerialAddressing); !bad.empty())
        return stop(bad);
    if (c.data(4) != (g.CheckGenLynxaddr == 1 ? 1 : 0) || c.data(5) != serialAddressModeByte(g))
        mismatch("Serial Address Settings do not compare");

    // 7. eXtended address.
    step(6, "Verifying eXtended address");
    if (!c.request(kItemExtendedAddress))
        return false;
    if (const std::string bad = c.bad("eXtended Address", kItemExtendedAddress); !bad.empty())
        return stop(bad);
    if (c.data(4) != g.ExtendedAddress)
        mismatch("eXtended Address does not compare");

    // 8. eXtended group mask.
    step(7, "Verifying eXtended group mask");
    if (!c.request(kItemGroupMask))
        return false;
    if (const std::string bad = c.bad("eXtended Group Mask", kItemGroupMask); !bad.empty())
        return stop(bad);
    {
        const auto want = groupMaskBytes(g);
        for (int grp = 0; grp < 4; ++grp)
            if (c.data(4 + grp) != want[grp]) {
                mismatch("eXtended Group Mask does not compare");
                break;
            }
    }

    // 9. LED control, green then orange.
    step(8, "Verifying LED control");
    const std::pair<int, const char*> leds[] = {
        {kItemGreenLed, "Green LED configuration does not compare"},
        {kItemOrangeLed, "Orange LED configuration does not compare"}};
    for (const auto& [item, line] : leds) {
        if (!c.request(item))
            return false;
        if (c.length() != 3 || !c.echoes(item))
            return stop("ReadLEDConfig: No valid response");
        const auto& boxes = item == kItemGreenLed ? g.CheckLCGreen : g.CheckLCOrange;
        if (c.data(4) != ledByte(boxes))
            mismatch(line);
    }

    // 10. The module's serial port.
    step(9, "Verifying serial port");
    if (!c.request(kItemSerialPort))
        return false;
    if (const std::string bad = c.bad("Serial Port Config", kItemSerialPort); !bad.empty())
        return stop(bad);
    if (c.data(4) != g.CheckGenSerialEnable || c.data(5) != serialPortByte(g))
        mismatch("Serial Port Configuration does not compare");

    return ok;
}

} // namespace kestrel
