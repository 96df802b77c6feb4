#pragma once
#include "base/Wire.h"
#include "model/WireLimits.h"
#include "session/GeneralCodec.h"
#include "session/Session.h"

#include <array>
#include <optional>
#include <string>

namespace kestrel {

// The readers and writers of the General page. Each works on session.general, sends
// its requests through session.link and returns True when the module answered as
// required (a writer: when the transport took its frames). Messages go through the
// session's dialogs; readers stay silent when no valid reply came back (the link has
// already said so).

// The module's fixed confirmation sequence of an erase.
constexpr std::array<int, 8> kEraseSequence = {61, 17, 92, 8, 33, 70, 15, 44};

// What is wrong with the reply to the read of a general item: "No valid response, size =
// 5 expected = 4" for a length other than the item's, else "No valid response, msg =
// 112,3 expected = 112,2" for another command or item; "" when it is right. The readers
// show it, the verification writes it after the item's name.
std::string badGeneralReply(const KestrelReply& reply, GeneralItem item);

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

// "Erase Flash": two questions, then the erase frame without waiting for a reply.
// True when the erase was sent.
bool EraseFlash(Session& session);

// Companion handlers of the General page.
// Shows the serial addressing controls that the current modes allow.
void applyAddressingVisibility(GeneralSettings& g);
// The CommandGenAddrRead button: the read with the flex-addressing warning suppressed.
bool CommandGenAddrRead_Click(Session& session);

} // namespace kestrel
