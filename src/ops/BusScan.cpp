#include "ops/BusScan.h"

#include "base/Translatable.h"
#include "base/Wire.h"
#include "ops/GeneralCommands.h"

namespace kestrel {

namespace {

// The link as the user set it, put back when the scan or a module's job ends: its settings
// ("Bidirectional Comm." through setBidirectional, so that the window follows), the reply
// time-out, and the unsynchronised state that every change of address leaves.
class KeptLink {
public:
    explicit KeptLink(Link& l)
        : link(l), settings(l.settings), timeout(l.replyTimeout), quiet(l.quietMissingReply)
    {
    }
    KeptLink(const KeptLink&) = delete;
    KeptLink& operator=(const KeptLink&) = delete;
    ~KeptLink()
    {
        const bool bidirectional = link.settings.CheckKestrelBD;
        link.settings = settings;
        link.settings.CheckKestrelBD = bidirectional;
        link.setBidirectional(settings.CheckKestrelBD);
        link.replyTimeout = timeout;
        link.quietMissingReply = quiet;
        link.state.LinkToggle = 128;
    }

private:
    Link& link;
    const LinkSettings settings;
    const double timeout;
    const bool quiet;
};

// Request Version to the address now set; the module found there (ID string asked next),
// or none when nothing valid came back. `stopped` is set when the request could not go
// out at all (Cancel, no port, the Corvid system not answering): the scan ends there.
std::optional<FoundModule> ask(Session& s, bool& stopped)
{
    const KestrelReply r = s.link.request({kGeneralRead, kItemVersionErase});
    if (!r.sent) {
        stopped = true;
        return std::nullopt;
    }
    if (!r.is(6, kGeneralRead, kItemVersionErase))
        return std::nullopt;
    FoundModule m;
    m.corvid = s.link.settings.CheckCorvid;
    m.address = s.link.settings.TargetAddress;
    if (s.link.settings.CheckXaddress)
        m.xaddress = s.link.settings.TargetXAddress;
    m.version = std::to_string(r.data(0)) + "." + std::to_string(r.data(1)) + "." +
                std::to_string(r.data(2)) + "." + std::to_string(r.data(3));
    m.id = requestIDString(s).value_or("");
    return m;
}

} // namespace

std::string moduleName(const FoundModule& m, int numberingBase)
{
    std::string name = "address " + std::to_string(m.address + numberingBase);
    if (m.xaddress)
        name += ", eXtended address " + std::to_string(*m.xaddress + numberingBase);
    return m.corvid ? name + " (Corvid)" : name;
}

std::vector<FoundModule> findModules(Session& s, const ScanOptions& options)
{
    std::vector<FoundModule> found;
    s.asJob("Find Modules", [&] {
        bool stopped = false;
        KeptLink kept(s.link);
        Link& link = s.link;
        link.replyTimeout = kScanReplyTimeoutMs / 1000.0;
        link.quietMissingReply = true;
        link.setBidirectional(true);
        const int base = s.config.NumberingBase;
        const int addresses = link.settings.CheckCorvid ? kTunnelAddresses : kDirectAddresses;
        int total = addresses;
        int done = 0;
        const auto askAt = [&](int address, std::optional<int> xaddress) {
            link.settings.CheckXaddress = xaddress.has_value();
            if (xaddress)
                link.settings.TargetXAddress = *xaddress;
            FoundModule at{link.settings.CheckCorvid, address, xaddress, {}, {}};
            s.reportStep(done++, total, "Asking " + moduleName(at, base));
            return ask(s, stopped);
        };
        for (int a = 0; a < addresses && !stopped; ++a) {
            link.settings.TargetAddress = a;
            link.state.LinkToggle = 128; // a change of address, as in the link area
            const std::optional<FoundModule> plain = askAt(a, std::nullopt);
            if (!plain)
                continue;
            std::vector<FoundModule> extended;
            if (options.extendedRange) {
                total += kExtendedAddresses;
                for (int x = 0; x < kExtendedAddresses && !stopped; ++x)
                    if (auto m = askAt(a, x))
                        extended.push_back(*m);
            }
            if (extended.empty())
                found.push_back(*plain);
            else
                found.insert(found.end(), extended.begin(), extended.end());
        }
        if (!stopped)
            s.reportStep(total, total, KC_TRANSLATABLE("Messages", "Done"));
        return !stopped;
    });
    return found;
}

bool withModule(Session& s, const FoundModule& m, const std::function<bool()>& job)
{
    KeptLink kept(s.link);
    LinkSettings& to = s.link.settings;
    to.CheckCorvid = m.corvid;
    to.TargetAddress = m.address;
    to.CheckXaddress = m.xaddress.has_value();
    if (m.xaddress)
        to.TargetXAddress = *m.xaddress;
    s.link.state.LinkToggle = 128;
    return job();
}

} // namespace kestrel
