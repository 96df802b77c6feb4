#pragma once

namespace kestrel {

class Session;

// Live commands to CurrentPin's output: (False, 4, 0, sub-command, CurrentPin, value).
// Sub-command 39 moves a servo straight to the position, 55 with its dynamic parameters;
// 38 sets a PWM level at once, 54 slowly. Positions are given as shown (-64..63) and sent
// + 64; levels 0..31. The sliders send the same command as their buttons. Each returns
// the transport's result.

// CommandSrvLevel: 39, or 55 with CheckSrvDynamic; OutputValue = position + 64.
bool sendServoLevel(Session& session, int position, bool dynamic);
// CommandStopSrv ("Jump"): 39; the model is not changed.
bool sendServoJump(Session& session, int position);
// CommandPWMLevel: 38, or 54 with CheckPWMSlow; OutputValue = level.
bool sendPwmLevel(Session& session, int level, bool slow);
// CommandPWMJump ("Jump"): 38; the model is not changed.
bool sendPwmJump(Session& session, int level);

} // namespace kestrel
