#include "ops/GeneralCommands.h"
#include "base/Translatable.h"

#include "base/Text.h"
#include "ops/SendCheck.h"

namespace kestrel {

namespace {

void say(Session& s, const std::string& text) { s.dialogs().message(text, Icon::None); }

// How the bad replies of an item are worded: "No valid response" alone, with "size" or
// "type", or in detail (badGeneralReply).
enum class Words { Plain, SizeType, Detailed };

// The items with words of their own; an item that is not listed here is worded in detail
// and named after its row of kGeneralItems.
struct Wording {
    GeneralItem item;
    Words words;
    const char* reader;     // before the reader's message ("": nothing)
    const char* readerSize; // the reader's own message for a wrong length, or nullptr
    const char* verifier;   // before the verification's line
    const char* step;       // the verification's progress step; "": the step of the item before
    const char* mismatch;   // the verification's line for a difference; "": the text's own line
    bool failsRead;         // GeneralItemWords
    bool lengthGoesOn;      // GeneralItemWords
};
constexpr Wording kWordings[] = {
    {kItemIdString, Words::Plain, "", nullptr, "ReadIDString",
     KC_TRANSLATABLE("Messages", "Verifying ID string"), "", true, false},
    {kItemHardwareConfig, Words::SizeType, "", nullptr, "HWCRead",
     KC_TRANSLATABLE("Messages", "Verifying hardware configuration"),
     "Hardware configuration does not compare", false, false},
    {kItemDccAddress, Words::Plain, "Get DCC Address", "Get DCC Address: No valid response, size <> 4",
     "DCC Address", KC_TRANSLATABLE("Messages", "Verifying DCC addresses"), "DCC address does not compare",
     false, true},
    {kItemXDccAddress, Words::Plain, "", nullptr, "eXtended DCC Address",
     KC_TRANSLATABLE("Messages", "Verifying DCC addresses"), "eXtended DCC address does not compare", false,
     true},
    {kItemDccOptions, Words::Plain, "Received Address", "Received Address, cannot read DCC options",
     "DCC Options", KC_TRANSLATABLE("Messages", "Verifying DCC options"), "DCC Options do not compare", false,
     false},
    {kItemSerialAddressing, Words::Detailed, "", nullptr, "Serial Address Settings",
     KC_TRANSLATABLE("Messages", "Verifying serial addressing"), "Serial Address Settings do not compare",
     false, false},
    {kItemExtendedAddress, Words::Detailed, "", nullptr, "eXtended Address",
     KC_TRANSLATABLE("Messages", "Verifying eXtended address"), "eXtended Address does not compare", false,
     false},
    {kItemGroupMask, Words::Detailed, "", nullptr, "eXtended Group Mask",
     KC_TRANSLATABLE("Messages", "Verifying eXtended group mask"), "eXtended Group Mask does not compare",
     false, false},
    {kItemGreenLed, Words::Plain, "", nullptr, "ReadLEDConfig",
     KC_TRANSLATABLE("Messages", "Verifying LED control"), "Green LED configuration does not compare", false,
     false},
    {kItemOrangeLed, Words::Plain, "", nullptr, "ReadLEDConfig", "",
     "Orange LED configuration does not compare", false, false},
    {kItemSerialPort, Words::Detailed, "", nullptr, "Serial Port Config",
     KC_TRANSLATABLE("Messages", "Verifying serial port"), "Serial Port Configuration does not compare", true,
     false},
    {kItemEventEnable, Words::SizeType, "", nullptr, "ECInit", "", "", true, false},
};

struct ResolvedWording {
    Words words = Words::Detailed;
    std::string reader, verifier;
    const char* readerSize = nullptr;
    GeneralItemWords more;
};

ResolvedWording wording(GeneralItem item)
{
    for (const Wording& w : kWordings)
        if (w.item == item)
            return {w.words,
                    w.reader,
                    w.verifier,
                    w.readerSize,
                    {w.step, w.mismatch, w.failsRead, w.lengthGoesOn}};
    const GeneralItemInfo* info = generalItemInfo(item);
    const std::string name = info ? info->name : "item " + std::to_string(item);
    return {
        Words::Detailed, "", name, nullptr, {"Verifying " + name, name + " does not compare", false, false}};
}

std::string prefixed(const std::string& prefix, const std::string& text)
{
    return prefix.empty() ? text : prefix + ": " + text;
}

// The fault itself, without whose it is.
std::string faultText(const KestrelReply& reply, GeneralItem item, Words words)
{
    const ReplyFault fault = generalReplyFault(reply, item);
    switch (words) {
    case Words::Plain:
        return "No valid response";
    case Words::SizeType:
        return fault == ReplyFault::Length ? "No valid response size" : "No valid response type";
    case Words::Detailed:
        break;
    }
    return badGeneralReply(reply, item);
}

KestrelReply requestItem(Session& s, GeneralItem item) { return s.link.request({kGeneralRead, item}); }

} // namespace

ReplyFault generalReplyFault(const KestrelReply& reply, GeneralItem item)
{
    const int expected = generalReplyLength(item);
    if (expected == 0 ? reply.length() <= 1 : reply.length() != expected)
        return ReplyFault::Length;
    if (!reply.echoes(kGeneralRead, item))
        return ReplyFault::Echo;
    return ReplyFault::None;
}

std::string badGeneralReply(const KestrelReply& reply, GeneralItem item)
{
    switch (generalReplyFault(reply, item)) {
    case ReplyFault::None:
        return {};
    case ReplyFault::Length:
        return "No valid response, size = " + std::to_string(reply.length()) +
               " expected = " + std::to_string(generalReplyLength(item));
    case ReplyFault::Echo:
        break;
    }
    return "No valid response, msg = " + std::to_string(reply.command()) + "," +
           std::to_string(reply.item()) + " expected = " + std::to_string(kGeneralRead) + "," +
           std::to_string(item);
}

std::string readerReplyText(const KestrelReply& reply, GeneralItem item)
{
    const ReplyFault fault = generalReplyFault(reply, item);
    if (fault == ReplyFault::None)
        return {};
    const ResolvedWording w = wording(item);
    if (fault == ReplyFault::Length && w.readerSize)
        return w.readerSize;
    return prefixed(w.reader, faultText(reply, item, w.words));
}

std::string readerByteText(GeneralItem item)
{
    return prefixed(wording(item).reader, "No valid response byte");
}

std::string verifierReplyText(const KestrelReply& reply, GeneralItem item)
{
    if (generalReplyFault(reply, item) == ReplyFault::None)
        return {};
    const ResolvedWording w = wording(item);
    return prefixed(w.verifier, faultText(reply, item, w.words));
}

void startVerification(Session& session, const std::string& title)
{
    session.link.setBidirectional(true);
    session.report.line(title);
    if (session.config.NumberingBase == 1)
        session.report.line("Note: Numbering starts at 1");
}

GeneralItemWords generalItemWords(GeneralItem item) { return wording(item).more; }

GeneralBytes replyData(const KestrelReply& reply)
{
    GeneralBytes data;
    for (int i = 0; i < reply.length() - 2; ++i)
        data.push_back(reply.data(i));
    return data;
}

bool RequestVersion(Session& session)
{
    const bool ok = session.link.GetVersion();
    session.general.LabelGenVersionString = session.link.VersionText;
    return ok;
}

// ---- Every family ----

bool readFamily(Session& session, GeneralFamily family)
{
    session.link.setBidirectional(true);
    for (const GeneralItemCodec* row : familyReadOrder(family)) {
        const KestrelReply reply = requestItem(session, row->item);
        if (!reply.valid)
            return false;
        if (const std::string bad = readerReplyText(reply, row->item); !bad.empty()) {
            say(session, bad);
            if (generalItemWords(row->item).failsRead)
                return false;
            continue;
        }
        if (!row->decode(session.general, replyData(reply), session.config.NumberingBase)) {
            say(session, readerByteText(row->item));
            return false;
        }
    }
    return true;
}

bool writeFamily(Session& session, GeneralFamily family)
{
    if (!sendable(session, unsendableFamily(session.general, family)))
        return false;
    bool ok = true;
    for (const GeneralItemCodec* row : familyWriteOrder(family)) {
        std::vector<int> frame{kGeneralWrite, row->item};
        const GeneralBytes data = row->encode(session.general);
        frame.insert(frame.end(), data.begin(), data.end());
        ok = session.link.send(frame) && ok;
        if (!ok && family == GeneralFamily::Addressing)
            return false;
    }
    return ok;
}

// ---- ID string ----

std::optional<std::string> requestIDString(Session& session)
{
    session.link.setBidirectional(true);
    const KestrelReply reply = requestItem(session, kItemIdString);
    if (!reply.valid)
        return std::nullopt;
    if (const std::string bad = readerReplyText(reply, kItemIdString); !bad.empty()) {
        say(session, bad);
        return std::nullopt;
    }
    GeneralSettings read;
    generalCodec(kItemIdString).decode(read, replyData(reply), 0);
    session.noteModuleId(read.TextGenIDString);
    return read.TextGenIDString;
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
    return writeFamily(session, GeneralFamily::IdString);
}

bool ReadDCCSettings(Session& session) { return readFamily(session, GeneralFamily::Dcc); }
bool WriteDCCSettings(Session& session) { return writeFamily(session, GeneralFamily::Dcc); }

bool ReadSerialAddressing(Session& session) { return readFamily(session, GeneralFamily::Addressing); }
bool WriteSerialAddressing(Session& session) { return writeFamily(session, GeneralFamily::Addressing); }

bool CommandGenAddrRead_Click(Session& session)
{
    session.general.SuppressAddrWarning = true;
    const bool ok = ReadSerialAddressing(session);
    session.general.SuppressAddrWarning = false;
    return ok;
}

bool ReadHardwareConfig(Session& session) { return readFamily(session, GeneralFamily::Hardware); }
bool WriteHardwareConfig(Session& session) { return writeFamily(session, GeneralFamily::Hardware); }

bool ReadLEDControl(Session& session) { return readFamily(session, GeneralFamily::Led); }
bool WriteLEDControl(Session& session) { return writeFamily(session, GeneralFamily::Led); }

bool ReadSerialPortSettings(Session& session) { return readFamily(session, GeneralFamily::SerialPort); }
bool WriteSerialPortSettings(Session& session) { return writeFamily(session, GeneralFamily::SerialPort); }

// ---- Erase ----

bool EraseFlash(Session& session)
{
    auto& ui = session.dialogs();
    if (ui.ask(KC_TRANSLATABLE("Messages", "WARNING !!\r\n"
                                           "This operation will erase the Kestrel Configuration Memory\r\n"
                                           "Continue?"),
               Buttons::OkCancel, Icon::Warning) != Answer::Ok)
        return false;
    // Worded so that OK means "yes, cancel": only Cancel goes on.
    if (ui.ask(KC_TRANSLATABLE("Messages",
                               "WARNING !!\r\n"
                               "This operation will erase the Kestrel Configuration Memory\r\n"
                               "The green LED on the Kestrel will be ON during this process\r\n"
                               "The erase process may take up to 45 seconds, please be patient\r\n"
                               "\r\n"
                               "Do you want to cancel this operation?"),
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
