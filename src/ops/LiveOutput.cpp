#include "ops/LiveOutput.h"
#include "base/Wire.h"

#include "pins/PinMode.h"
#include "session/Session.h"

#include <cstdint>

namespace kestrel {

namespace {

bool sendLive(Session& session, int subCommand, int value)
{
    return session.link.send({0, subCommand, session.config.CurrentPin, value});
}

} // namespace

bool sendServoLevel(Session& session, int position, bool dynamic)
{
    session.config.pin(session.config.CurrentPin).OutputValue = storedSigned(position);
    return sendLive(session, dynamic ? kServoDynamic : kServoDirect, position + kSignedOffset);
}

bool sendServoJump(Session& session, int position)
{
    return sendLive(session, kServoDirect, position + kSignedOffset);
}

bool sendPwmLevel(Session& session, int level, bool slow)
{
    session.config.pin(session.config.CurrentPin).OutputValue = static_cast<std::uint8_t>(level);
    return sendLive(session, slow ? kPwmSlow : kPwmDirect, level);
}

bool sendPwmJump(Session& session, int level) { return sendLive(session, kPwmDirect, level); }

} // namespace kestrel
