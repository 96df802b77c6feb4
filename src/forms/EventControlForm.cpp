#include "forms/EventControlForm.h"
#include "base/Translatable.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "session/Session.h"
#include <algorithm>

namespace kestrel {

int shownEventPin(Session& session)
{
    const int base = session.config.NumberingBase;
    const long shown = valInt(session.eventControl.TextECpin);
    const int pin = static_cast<int>(std::clamp<long>(shown - base, 0, kPinCount - 1));
    session.eventControl.TextECpin = std::to_string(pin + base);
    return pin;
}

void ShowEventPin(Session& session)
{
    const int pin = shownEventPin(session);
    const auto& e = session.config.events(pin);
    for (int i = 0; i < kEventSlots; ++i) {
        session.eventControl.TextECon[i] = std::to_string(e.OnEvent[i]);
        session.eventControl.TextECoff[i] = std::to_string(e.OffEvent[i]);
    }
}

bool ReadSingleEvents(Session& session)
{
    session.link.setBidirectional(true);
    const int pin = shownEventPin(session);
    bool ok = true;
    for (EventSide side : {EventSide::On, EventSide::Off}) {
        const EventRead r = ReadPinEvents(session, side, pin);
        if (r == EventRead::NoReply) {
            ok = false;
            break;
        }
        if (r == EventRead::WrongReply)
            session.dialogs().message(KC_TRANSLATABLE("Messages", "Function not supported by Device"),
                                      Icon::None);
    }
    ShowEventPin(session);
    return ok;
}

bool WriteSingleEvents(Session& session)
{
    const int pin = shownEventPin(session);
    return WritePinEvents(session, EventSide::On, pin) && WritePinEvents(session, EventSide::Off, pin);
}

void CopyEventsToAll(Session& session)
{
    const auto& page = session.eventControl;
    for (int p = 0; p < kPinCount; ++p) {
        auto& e = session.config.events(p);
        for (int i = 0; i < kEventSlots; ++i) {
            e.OnEvent[i] = static_cast<std::int16_t>(valInt(page.TextECon[i]));
            e.OffEvent[i] = static_cast<std::int16_t>(valInt(page.TextECoff[i]));
        }
    }
}

void EditEventEntry(Session& session, EventSide side, int slot)
{
    checkIndex(slot, kEventSlots, "event slot");
    auto& text =
        side == EventSide::On ? session.eventControl.TextECon[slot] : session.eventControl.TextECoff[slot];
    const long typed = valInt(text);
    const long v = std::clamp<long>(typed, kEventActionMin, kEventActionMax);
    if (v != typed) // only a clamped number is written back; the box keeps what was typed otherwise
        text = std::to_string(v);
    auto& e = session.config.events(shownEventPin(session));
    (side == EventSide::On ? e.OnEvent : e.OffEvent)[slot] = static_cast<std::int16_t>(v);
}

} // namespace kestrel
