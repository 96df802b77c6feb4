#include "link/CorvidControl.h"
#include "base/Translatable.h"

namespace kestrel {

namespace {
const char* kNotSupported = KC_TRANSLATABLE("Messages", "Your system does not support this function");
}

CorvidControl::CorvidControl(Link& l, LinkControl& c) : link(l), control(c) {}

int CorvidControl::versionFrom(int x, int y)
{
    return (x >> 3) * 1000 + (x & 7) * 100 + (y >> 3) * 10 + (y & 7);
}

bool CorvidControl::systemVersionValid() const
{
    const auto& r = link.state.ReplyBuffer;
    return r[0] == 4 && r[1] == 1 && r[2] == 2;
}

bool CorvidControl::CheckCorvid_Click(bool checked)
{
    if (!checked) {
        link.settings.CheckCorvid = false;
        cmdSetTMVisible = true;
        // The direct route carries a 4-bit address: clamp what was typed for the tunnel.
        control.TextAddress_Click(control.addressText());
        return false;
    }
    if (!link.port().isOpen()) {
        link.settings.CheckCorvid = false;
        link.dialogs().message(KC_TRANSLATABLE("Messages", "Select communications port"), Icon::Warning);
        return false;
    }
    link.state.CorvidToggle = 1;
    if (!poll()) {
        link.settings.CheckCorvid = false;
        return false;
    }
    bool on = true;
    if (requestSystemVersion()) {
        if (!systemVersionValid()) {
            on = false;
            link.dialogs().message(kNotSupported, Icon::Warning);
        } else {
            const auto& r = link.state.ReplyBuffer;
            const int v = versionFrom(r[3], r[4]);
            if (v >= 3200) {
                cmdSetTMVisible = false;
            } else {
                on = false;
                link.dialogs().message(std::string(kNotSupported) + "\r\nProtocol = " +
                                           std::to_string(v / 1000) + "." + std::to_string(v % 1000),
                                       Icon::Warning);
            }
        }
    }
    link.settings.CheckCorvid = on;
    poll();
    return on;
}

bool CorvidControl::cmdSetTM_Click()
{
    if (!link.port().isOpen()) {
        link.dialogs().message(KC_TRANSLATABLE("Messages", "Select communications port"), Icon::Warning);
        return false;
    }
    if (!poll() || !requestSystemVersion())
        return false;
    const auto& r = link.state.ReplyBuffer;
    if (systemVersionValid() && versionFrom(r[3], r[4]) >= 3200) {
        poll();
        const Answer a = link.dialogs().ask(
            KC_TRANSLATABLE("Messages", "Your Corvid system supports Kestrel Tunneling\r\n"
                                        "We recommend to use the Corvid Tunneling option instead\r\n"
                                        "Do you still want to activate Transparant Mode?"),
            Buttons::YesNo, Icon::Question);
        if (a != Answer::Yes)
            return false;
    }
    if (!link.CorvidExchange(2, {1, 10}))
        return false;
    if (!(r[0] == 5 && r[1] == 1 && r[2] == 10)) {
        poll();
        link.dialogs().message(kNotSupported, Icon::Warning);
        return false;
    }
    // The units that can pass bytes straight through, and the firmware each needs for it.
    struct Unit {
        int type;
        const char* name;
        int firmware;
    };
    static constexpr Unit kUnits[] = {{2, "Hub-A", 1020}, {3, "Hub-B", 0}, {10, "Linkbox", 1030}};
    const Unit* unit = nullptr;
    for (const Unit& u : kUnits)
        if (u.type == r[3])
            unit = &u;
    if (unit == nullptr) {
        poll();
        link.dialogs().message(kNotSupported, Icon::Warning);
        return false;
    }
    if (versionFrom(r[4], r[5]) < unit->firmware) {
        poll();
        link.dialogs().message(std::string("Your ") + unit->name + " does not support this function",
                               Icon::Warning);
        return false;
    }
    const std::string result = std::string("Your ") + unit->name + " has been put in Transparent Mode";
    if (!link.CorvidExchange(3, {1, 5, 16}))
        return false;
    link.dialogs().message(result, Icon::Information);
    // From here the unit passes bytes straight through: the direct route must wake up again.
    link.state.LinkToggle = 128;
    return true;
}

} // namespace kestrel
