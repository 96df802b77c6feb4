#pragma once
#include "base/Wire.h"
#include "model/WireLimits.h"
#include "session/GeneralSettings.h"
#include "session/Session.h"

#include <array>
#include <optional>
#include <string>

namespace kestrel {

// The readers and writers of the General page. Each works on session.general, sends
// its requests through session.link and returns True when the module answered as
// required (a writer: when the transport took its frames). Messages go through the
// session's dialogs; readers stay silent when no valid reply came back (the link has
// already said so). Every item goes through its row of kGeneralCodecs.

// The module's fixed confirmation sequence of an erase.
constexpr std::array<int, 8> kEraseSequence = {61, 17, 92, 8, 33, 70, 15, 44};

// ---- A bad reply, worded here and nowhere else ----

enum class ReplyFault { None, Length, Echo };
// What is wrong with the reply to the read of a general item: a length other than the
// item's (for a text, no character), or another command or item.
ReplyFault generalReplyFault(const KestrelReply& reply, GeneralItem item);

// The detailed wording: "No valid response, size = 5 expected = 4" for a length other
// than the item's, else "No valid response, msg = 112,3 expected = 112,2" for another
// command or item; "" when it is right.
std::string badGeneralReply(const KestrelReply& reply, GeneralItem item);
// The message a reader shows for a bad reply ("" when it is right): the detailed wording,
// or the item's own older one ("Get DCC Address: No valid response, size <> 4").
std::string readerReplyText(const KestrelReply& reply, GeneralItem item);
// The message a reader shows for a byte the item cannot hold.
std::string readerByteText(GeneralItem item);
// The verification's line for a bad reply ("" when it is right): the item's name as the
// report knows it, then the fault ("eXtended Address: No valid response, size = ...").
std::string verifierReplyText(const KestrelReply& reply, GeneralItem item);
// The start of a verification of pins or events: the link made bidirectional, the title
// line, and a note when the numbering starts at 1.
void startVerification(Session& session, const std::string& title);

// What else a reader and the verification do with an item.
struct GeneralItemWords {
    std::string step;          // the verification's progress step; "": the step of the item before
    std::string mismatch;      // the verification's line for a difference; "": the text's own line
    bool failsRead = false;    // a bad reply ends the family's read with False
    bool lengthGoesOn = false; // the verification counts a wrong length as a difference
};
GeneralItemWords generalItemWords(GeneralItem item);

// The data bytes of a reply (after the echoed command and item).
GeneralBytes replyData(const KestrelReply& reply);

// ---- The page's readers and writers, one family each ----

// "Request Version": the link's version request; LabelGenVersionString shows the result.
bool RequestVersion(Session& session);

bool ReadIDString(Session& session);
// The module's ID string without showing it; no value when no valid reply came.
std::optional<std::string> requestIDString(Session& session);
bool WriteIDString(Session& session);

bool ReadDCCSettings(Session& session);
bool WriteDCCSettings(Session& session);

// Callers set general.SuppressAddrWarning around the call (CommandGenAddrRead_Click
// and Read All do).
bool ReadSerialAddressing(Session& session);
bool WriteSerialAddressing(Session& session);

bool ReadHardwareConfig(Session& session);
bool WriteHardwareConfig(Session& session);

bool ReadLEDControl(Session& session);
bool WriteLEDControl(Session& session);

bool ReadSerialPortSettings(Session& session);
bool WriteSerialPortSettings(Session& session);

// The items of a family, read in their order; a bad reply is told and the next item is
// read (unless the item's bad reply ends the read), a byte the item cannot hold ends it.
bool readFamily(Session& session, GeneralFamily family);
// The items of a family checked (nothing is sent when one cannot be) and sent. The
// serial addressing stops at the first frame the transport did not take; the other
// families send every item, True only when all were taken.
bool writeFamily(Session& session, GeneralFamily family);

// "Erase Flash": two questions, then the erase frame without waiting for a reply.
// True when the erase was sent.
bool EraseFlash(Session& session);

// The CommandGenAddrRead button: the read with the flex-addressing warning suppressed.
bool CommandGenAddrRead_Click(Session& session);

} // namespace kestrel
