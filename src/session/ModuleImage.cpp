#include "session/ModuleImage.h"
#include "base/Wire.h"

namespace kestrel {

namespace {

void takeConfiguration(PinRecord& to, const PinRecord& from)
{
    to.ConfigMode = from.ConfigMode;
    to.ConfigParams = from.ConfigParams;
}

} // namespace

void ModuleImage::take(const Configuration& c, const GeneralSettings& g, bool pinConfigs)
{
    const Configuration before = config;
    config = c;
    general = g;
    for (int p = 0; p < kPinCount; ++p) {
        if (pinConfigs)
            pinConfigKnown[p] = true;
        else
            takeConfiguration(config.pin(p), before.pin(p));
    }
}

void ModuleImage::takePin(const Configuration& c, int p, bool pinConfig)
{
    PinRecord& to = config.pin(p);
    const PinRecord kept = to;
    to = c.pin(p);
    if (pinConfig)
        pinConfigKnown[p] = true;
    else
        takeConfiguration(to, kept);
}

bool changesModule(const std::vector<int>& frame)
{
    if (frame.empty())
        return false;
    const int c = frame[0];
    return c == kGeneralWrite || c == kSendFlashConfig || (c >= kWriteLayout && c <= kWriteAddrConfig);
}

} // namespace kestrel
