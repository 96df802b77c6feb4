#include "ops/GeneralCommands.h"

#include "base/Text.h"
#include "ops/SendCheck.h"

namespace kestrel {

namespace {

// Data byte i of the last reply (after the echoed command and item).
int data(Session& s, int i) { return s.link.lastReply().data(i); }
int replyLength(Session& s) { return s.link.lastReply().length(); }
bool echoes(Session& s, int command, int item) { return s.link.lastReply().echoes(command, item); }

// One read request (True, 2, kGeneralRead, item); True when a valid reply came back.
bool requestItem(Session& s, int item) { return s.link.request({kGeneralRead, item}).valid; }

void say(Session& s, const std::string& text) { s.dialogs().message(text, Icon::None); }

int bit(int value, int k) { return (value >> k) & 1; }

} // namespace

std::string badGeneralReply(const KestrelReply& reply, GeneralItem item)
{
    const int expected = generalReplyLength(item);
    if (reply.length() != expected)
        return "No valid response, size = " + std::to_string(reply.length()) +
               " expected = " + std::to_string(expected);
    if (!reply.echoes(kGeneralRead, item))
        return "No valid response, msg = " + std::to_string(reply.command()) + "," +
               std::to_string(reply.item()) + " expected = " + std::to_string(kGeneralRead) + "," +
               std::to_string(item);
    return {};
}

bool RequestVersion(Session& session)
{
    const bool ok = session.link.GetVersion();
    session.general.LabelGenVersionString = session.link.VersionText;
    return ok;
}

// ---- ID string ----

std::optional<std::string> requestIDString(Session& session)
{
    session.link.setBidirectional(true);
    if (!requestItem(session, kItemIdString))
        return std::nullopt;
    const int n = replyLength(session);
    if (n <= 1 || !echoes(session, kGeneralRead, kItemIdString)) {
        say(session, "No valid response");
        return std::nullopt;
    }
    std::string text;
    for (int i = 0; i < n - 2; ++i)
        text += static_cast<char>(static_cast<unsigned char>(data(session, i)));
    session.noteModuleId(text);
    return text;
}

bool ReadIDString(Session& session)
{
    const auto text = requestIDString(session);
    if (text)
        session.general.TextGenIDString = *text;
    return text.has_value();
}

bool WriteIDString(Session& session)
{
    if (!sendable(session, unsendableIdString(session.general)))
        return false;
    auto& text = session.general.TextGenIDString;
    if (text.size() > kIdStringLength)
        text = text.substr(0, kIdStringLength);
    std::vector<int> bytes{kGeneralWrite, kItemIdString};
    for (char c : text)
        bytes.push_back(static_cast<unsigned char>(c));
    return session.link.send(bytes);
}

// ---- DCC settings ----

bool ReadDCCSettings(Session& session)
{
    auto& g = session.general;
    session.link.setBidirectional(true);

    if (!requestItem(session, kItemDccOptions))
        return false;
    if (replyLength(session) != 3)
        say(session, "Received Address, cannot read DCC options");
    else if (!echoes(session, kGeneralRead, kItemDccOptions))
        say(session, "Received Address: No valid response");
    else {
        const int b = data(session, 0);
        g.OptGenDCC_PRP = b & 3;
        g.ChkGenDCC_BPSI = bit(b, 2);
        g.ChkGenDCCAllow0 = bit(b, 3);
    }

    if (!requestItem(session, kItemDccAddress))
        return false;
    if (replyLength(session) != 4)
        say(session, "Get DCC Address: No valid response, size <> 4");
    else if (!echoes(session, kGeneralRead, kItemDccAddress))
        say(session, "Get DCC Address: No valid response");
    else {
        g.TextGenDCCAddress = std::to_string(data(session, 1) * 64 + data(session, 0));
    }

    if (!requestItem(session, kItemXDccAddress))
        return false;
    if (replyLength(session) != 4 || !echoes(session, kGeneralRead, kItemXDccAddress))
        say(session, "No valid response");
    else {
        g.TextGenXDCCAddress = std::to_string(data(session, 1) * 64 + data(session, 0));
    }
    return true;
}

bool WriteDCCSettings(Session& session)
{
    if (!sendable(session, unsendableDcc(session.general)))
        return false;
    const auto& g = session.general;
    auto& link = session.link;
    // All three are sent whatever the one before did (unlike the serial addressing
    // writes); the result is True only when the transport took every one of them.
    bool ok = link.send({kGeneralWrite, kItemDccOptions, dccOptionsByte(g)});
    const auto dcc = dccAddressBytes(g.TextGenDCCAddress);
    ok = link.send({kGeneralWrite, kItemDccAddress, dcc[0], dcc[1]}) && ok;
    const auto xdcc = dccAddressBytes(g.TextGenXDCCAddress);
    ok = link.send({kGeneralWrite, kItemXDccAddress, xdcc[0], xdcc[1]}) && ok;
    return ok;
}

// ---- Serial addressing ----

void applyAddressingVisibility(GeneralSettings& g)
{
    g.TextGenLynxaddrVisible = g.CheckGenLynxaddr == 1;
    g.CheckGenKestrelNativeVisible = g.CheckGenLynxaddr != 1;
    g.CheckGenLynxaddrVisible = g.CheckGenKestrelNative != 1;
}

bool ReadSerialAddressing(Session& session)
{
    auto& g = session.general;
    const int base = session.config.NumberingBase;
    session.link.setBidirectional(true);

    if (!requestItem(session, kItemSerialAddressing))
        return false;
    if (const std::string bad = badGeneralReply(session.link.lastReply(), kItemSerialAddressing);
        !bad.empty())
        say(session, bad);
    else {
        if (data(session, 0) != 0) {
            g.CheckGenLynxaddr = 1;
            g.CheckGenKestrelNative = 0;
            g.LynxFlexAddress = data(session, 1);
        } else {
            g.CheckGenLynxaddr = 0;
            g.CheckGenKestrelNative = bit(data(session, 1), 6);
            g.LynxFlexAddress = 0;
        }
        g.TextGenLynxaddr = std::to_string(g.LynxFlexAddress * 4 + base);
        applyAddressingVisibility(g);
    }

    if (!requestItem(session, kItemExtendedAddress))
        return false;
    if (const std::string bad = badGeneralReply(session.link.lastReply(), kItemExtendedAddress); !bad.empty())
        say(session, bad);
    else {
        g.ExtendedAddress = data(session, 0);
        g.TextGenXaddr = std::to_string(g.ExtendedAddress + base);
    }

    if (!requestItem(session, kItemGroupMask))
        return false;
    if (const std::string bad = badGeneralReply(session.link.lastReply(), kItemGroupMask); !bad.empty())
        say(session, bad);
    else {
        for (int grp = 0; grp < 4; ++grp)
            for (int k = 0; k < 4; ++k)
                g.CheckGenXGM[4 * grp + k] = bit(data(session, grp), k);
    }
    return true;
}

bool WriteSerialAddressing(Session& session)
{
    if (!sendable(session, unsendableSerialAddressing(session.general)))
        return false;
    const auto& g = session.general;
    auto& link = session.link;
    if (!link.send({kGeneralWrite, kItemSerialAddressing, g.CheckGenLynxaddr == 1 ? 1 : 0,
                    serialAddressModeByte(g)}))
        return false;
    const auto m = groupMaskBytes(g);
    if (!link.send({kGeneralWrite, kItemGroupMask, m[0], m[1], m[2], m[3]}))
        return false;
    return link.send({kGeneralWrite, kItemExtendedAddress, g.ExtendedAddress});
}

bool CommandGenAddrRead_Click(Session& session)
{
    session.general.SuppressAddrWarning = true;
    const bool ok = ReadSerialAddressing(session);
    session.general.SuppressAddrWarning = false;
    return ok;
}

// ---- Hardware configuration ----

bool ReadHardwareConfig(Session& session)
{
    auto& g = session.general;
    session.link.setBidirectional(true);
    if (!requestItem(session, kItemHardwareConfig))
        return false;
    if (replyLength(session) != 6) {
        // Deliberately True after a size or type message; only a bad group byte fails.
        say(session, "No valid response size");
        return true;
    }
    if (!echoes(session, kGeneralRead, kItemHardwareConfig)) {
        say(session, "No valid response type");
        return true;
    }
    for (int grp = 0; grp < 4; ++grp) {
        const int v = data(session, grp);
        if (v < 0 || v > 3) {
            say(session, "No valid response byte");
            return false;
        }
        g.ChkGenHWCSink[grp] = bit(v, 0);
        g.ChkGenHWCSource[grp] = bit(v, 1);
    }
    return true;
}

bool WriteHardwareConfig(Session& session)
{
    const auto b = hardwareConfigBytes(session.general);
    return session.link.send({kGeneralWrite, kItemHardwareConfig, b[0], b[1], b[2], b[3]});
}

// ---- LED control ----

bool ReadLEDControl(Session& session)
{
    session.link.setBidirectional(true);
    const std::pair<int, std::array<int, 8>*> leds[] = {{kItemGreenLed, &session.general.CheckLCGreen},
                                                        {kItemOrangeLed, &session.general.CheckLCOrange}};
    for (const auto& [item, boxes] : leds) {
        if (!requestItem(session, item))
            return false;
        if (replyLength(session) != 3 || !echoes(session, kGeneralRead, item)) {
            say(session, "No valid response");
            continue;
        }
        setLedBoxes(*boxes, data(session, 0));
    }
    return true;
}

bool WriteLEDControl(Session& session)
{
    auto& link = session.link;
    // Orange is sent also when green was not taken; True only when both were.
    const bool green = link.send({kGeneralWrite, kItemGreenLed, ledByte(session.general.CheckLCGreen)});
    const bool orange = link.send({kGeneralWrite, kItemOrangeLed, ledByte(session.general.CheckLCOrange)});
    return green && orange;
}

// ---- The module's serial port ----

bool ReadSerialPortSettings(Session& session)
{
    auto& g = session.general;
    session.link.setBidirectional(true);
    if (!requestItem(session, kItemSerialPort))
        return false;
    if (const std::string bad = badGeneralReply(session.link.lastReply(), kItemSerialPort); !bad.empty()) {
        say(session, bad);
        return false;
    }
    g.CheckGenSerialEnable = data(session, 0) != 0 ? 1 : 0;
    const int s = data(session, 1);
    g.ComboGenBaud = s & 7;
    g.OptionGenSerialDatabits = bit(s, 3);
    g.OptionGenSerialStop = bit(s, 6);
    g.OptionGenSerialParity = (s >> 4) & 3;
    return true;
}

bool WriteSerialPortSettings(Session& session)
{
    const auto& g = session.general;
    return session.link.send({kGeneralWrite, kItemSerialPort, g.CheckGenSerialEnable, serialPortByte(g)});
}

// ---- Erase ----

bool EraseFlash(Session& session)
{
    auto& ui = session.dialogs();
    if (ui.ask("WARNING !!\r\n"
               "This operation will erase the Kestrel Configuration Memory\r\n"
               "Continue?",
               Buttons::OkCancel, Icon::Warning) != Answer::Ok)
        return false;
    // Worded so that OK means "yes, cancel": only Cancel goes on.
    if (ui.ask("WARNING !!\r\n"
               "This operation will erase the Kestrel Configuration Memory\r\n"
               "The green LED on the Kestrel will be ON during this process\r\n"
               "The erase process may take up to 45 seconds, please be patient\r\n"
               "\r\n"
               "Do you want to cancel this operation?",
               Buttons::OkCancel, Icon::Warning) != Answer::Cancel)
        return false;
    auto& link = session.link;
    const bool bidirectional = link.settings.CheckKestrelBD;
    link.setBidirectional(false); // nothing answers an erase
    const auto& k = kEraseSequence;
    const bool sent =
        link.send({kGeneralWrite, kItemVersionErase, k[0], k[1], k[2], k[3], k[4], k[5], k[6], k[7]});
    link.setBidirectional(bidirectional);
    return sent;
}

} // namespace kestrel
