#include "platform/PortRouter.h"

#include "link/LinkControl.h"

namespace kestrel {

PortRouter::PortRouter(std::unique_ptr<SerialPort> r, std::unique_ptr<SerialPort> s)
    : real(std::move(r)), sim(std::move(s))
{
}

bool PortRouter::simulatedChosen() const
{
    return name == LinkControl::kSimPortName || name == LinkControl::kSimCorvidPortName;
}

SerialPort& PortRouter::active() const { return simulatedChosen() ? *sim : *real; }

void PortRouter::select(const std::string& n)
{
    if (n != name) {
        real->close();
        sim->close();
    }
    name = n;
    active().select(n);
}

void PortRouter::close()
{
    real->close();
    sim->close();
}

void PortRouter::setSettings(const std::string& s)
{
    real->setSettings(s);
    sim->setSettings(s);
}

} // namespace kestrel
