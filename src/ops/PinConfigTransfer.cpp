#include "ops/PinConfigTransfer.h"
#include "base/Translatable.h"

#include "ops/SendCheck.h"
#include "session/Session.h"

#include <array>

namespace kestrel {

bool ReadPinConfig(Session& session, int source, int pin)
{
    Link& link = session.link;
    link.setBidirectional(true);
    const KestrelReply reply = link.request({kReadActiveConfig + 32 * source, pin});
    if (!reply.valid)
        return false;
    const auto& r = reply.bytes;
    const int lengthField = reply.length();
    const int n = lengthField - 2;
    if (n < 1 || (r[2] != kReadFlashConfig && r[2] != kReadActiveConfig) || r[3] != pin || pin > 32) {
        link.dialogs().message(KC_TRANSLATABLE("Messages", "No valid response"));
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
    if (hasMode(rec, PinMode::Servo))
        rec.P(2) = servoModeToStore(rec.P(2));
    const std::vector<int> data = pinConfigBytes(rec, target);
    std::vector<int> message{kSendActiveConfig + 32 * target, pin};
    message.insert(message.end(), data.begin(), data.end());
    return session.link.send(message);
}

} // namespace kestrel
