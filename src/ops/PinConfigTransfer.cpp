#include "ops/PinConfigTransfer.h"

#include "ops/SendCheck.h"
#include "session/Session.h"

#include <array>

namespace kestrel {

bool ReadPinConfig(Session& session, int source, int pin)
{
    Link& link = session.link;
    link.setBidirectional(true);
    link.SendKestrelMessage(true, 2, {kReadActiveConfig + 32 * source, pin});
    if (!link.state.ReplyValid)
        return false;
    const auto& r = link.state.ReplyBuffer;
    const int lengthField = r[1] & 15;
    const int n = lengthField - 2;
    if (n < 1 || (r[2] != kReadFlashConfig && r[2] != kReadActiveConfig) || r[3] != pin || pin > 32) {
        link.dialogs().message("No valid response");
        return false;
    }
    std::vector<int> bytes(r.begin() + 4, r.begin() + 4 + n);
    storePinConfigReply(session.config.pin(pin), source, bytes, lengthField);
    return true;
}

bool SendPinConfig(Session& session, int target, int pin)
{
    if (!sendable(session, unsendablePinConfig(session.config, pin, target)))
        return false;
    PinRecord& rec = session.config.pin(pin);
    if (rec.ConfigMode == kModeServo)
        rec.P(2) &= 63;
    const std::vector<int> data = pinConfigBytes(rec, target);
    std::array<int, 15> message{};
    message[0] = kSendActiveConfig + 32 * target;
    message[1] = pin;
    for (std::size_t i = 0; i < data.size(); ++i)
        message[2 + i] = data[i];
    return session.link.SendKestrelMessage(false, static_cast<int>(data.size()) + 2, message);
}

} // namespace kestrel
