#include "forms/GeneralForm.h"
#include "base/Translatable.h"

#include "base/Text.h"
#include "session/Session.h"

#include <algorithm>

namespace kestrel {

void CheckGenLynxaddr_Click(Session& session)
{
    auto& g = session.general;
    if (g.CheckGenLynxaddr == 1 && !g.SuppressAddrWarning) {
        const Answer a = session.dialogs().ask(
            KC_TRANSLATABLE("Messages", "Lynx Flexible Addressing is a complex concept !!\r\n"
                                        "It should only be activated by experienced users\r\n"
                                        "that understand the details very well !"),
            Buttons::OkCancel, Icon::Warning);
        if (a != Answer::Ok)
            g.CheckGenLynxaddr = 0;
    }
    applyAddressingVisibility(g);
}

void CheckGenKestrelNative_Click(Session& session)
{
    auto& g = session.general;
    g.CheckGenLynxaddrVisible = g.CheckGenKestrelNative != 1;
}

std::string clampedDccAddress(const std::string& typed)
{
    return std::to_string(std::clamp<long>(valInt(typed), 0, kDccAddressMax));
}

void takeFlexAddress(GeneralSettings& g, const std::string& typed, int base)
{
    const long shown = valInt(typed) - base;
    g.LynxFlexAddress = static_cast<int>(std::clamp<long>(shown < 0 ? 0 : shown / 4, 0, kFlexAddressMaximum));
    g.TextGenLynxaddr = std::to_string(g.LynxFlexAddress * 4 + base);
}

void takeExtendedAddress(GeneralSettings& g, const std::string& typed, int base)
{
    g.ExtendedAddress = static_cast<int>(std::clamp<long>(valInt(typed) - base, 0, kExtendedAddressMax));
    g.TextGenXaddr = std::to_string(g.ExtendedAddress + base);
}

} // namespace kestrel
