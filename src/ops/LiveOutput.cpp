#include "ops/LiveOutput.h"
#include "base/Wire.h"

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
    session.config.pin(session.config.CurrentPin).OutputValue = static_cast<std::uint8_t>(position + 64);
    return sendLive(session, dynamic ? kServoDynamic : kServoDirect, position + 64);
}

bool sendServoJump(Session& session, int position) { return sendLive(session, kServoDirect, position + 64); }

bool sendPwmLevel(Session& session, int level, bool slow)
{
    session.config.pin(session.config.CurrentPin).OutputValue = static_cast<std::uint8_t>(level);
    return sendLive(session, slow ? kPwmSlow : kPwmDirect, level);
}

bool sendPwmJump(Session& session, int level) { return sendLive(session, kPwmDirect, level); }

} // namespace kestrel
