#include "sim/SimOptions.h"

#include <sstream>
#include <stdexcept>

namespace kestrel::sim {

const char* const kSimUsage =
    "usage: kestrel-sim [--help] [--address N[,N...]]... [--xaddress N] [--version [A.B.C.D]]\n"
    "                   [--pace-baud RATE] [--layout]\n"
    "                   [--corvid [--system-version X.Y] [--unit hub-a|hub-b|linkbox]\n"
    "                             [--unit-version N]]\n"
    "  --address N      a module at bus address N (0..31; 16..31 only through --corvid);\n"
    "                   repeat it or give a list for several modules (default 0)\n"
    "  --xaddress N     give the modules eXtended address N (0..127)\n"
    "  --version A.B.C.D  firmware version of the modules (default 1.2.3.4); without a\n"
    "                   value: print the program's version and exit\n"
    "  --pace-baud RATE deliver replies no faster than a wire at RATE baud would carry\n"
    "                   request and reply (11 bits a byte)\n"
    "  --corvid         put a simulated Corvid system in front of the modules\n"
    "  --system-version X.Y  Corvid system version, e.g. 6.45 = 6045 (default 6.45)\n"
    "  --unit TYPE      interface unit: hub-a (default), hub-b or linkbox\n"
    "  --unit-version N interface unit version, e.g. 1020 or 1.20 (default 1020)\n"
    "  --load FILE.dat  every module starts with the configuration of this data file\n"
    "  --layout         the simulated layout of kestrel-config's \"sim\": the demonstration\n"
    "                   module at 0 (ID \"Demo layout\"), \"Yard east\" at 3, \"Crossing 2\" at 5\n"
    "                   answering eXtended address 7 too, and \"Station\" at 15, each with its\n"
    "                   own configuration (with --corvid: as \"sim (Corvid)\"); modules of\n"
    "                   --address go beside them and only they take --load, --version,\n"
    "                   --xaddress and the fault switches (a silent module: --address 9\n"
    "                   --drop-replies 1000000)\n"
    "fault switches (every module; with --layout those of --address):\n"
    "  --drop-replies N     leave the next N replies unsent\n"
    "  --corrupt-copies N   send the next N replies first as a copy with a bad check byte\n"
    "  --garbage N          send N stray bytes before every reply\n"
    "  --refuse CMD[,ITEM][:noreply|echo|length]  answer a command (for one item or pin)\n"
    "                       not at all, with a wrong echo or with a wrong length\n";

namespace {

int parseInt(const std::string& text, int lo, int hi, const std::string& what)
{
    std::size_t used = 0;
    int v = 0;
    try {
        v = std::stoi(text, &used);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used != text.size() || text.empty() || v < lo || v > hi)
        throw std::invalid_argument(what + " must be a number from " + std::to_string(lo) + " to " +
                                    std::to_string(hi) + ", not \"" + text + "\"");
    return v;
}

// "6.45" = 6045 (thousands, then the rest), or a plain four-digit number.
int parseCorvidVersion(const std::string& text, const std::string& what)
{
    const auto dot = text.find('.');
    int v = dot == std::string::npos ? parseInt(text, 0, 9999, what)
                                     : parseInt(text.substr(0, dot), 0, 9, what) * 1000 +
                                           parseInt(text.substr(dot + 1), 0, 999, what);
    encodeCorvidVersion(v); // throws when the digits cannot be carried
    return v;
}

} // namespace

void takeSimOption(SimOptions& o, const std::string& option, const std::string& value)
{
    if (option == "--address") {
        std::stringstream list(value);
        std::string item;
        while (std::getline(list, item, ','))
            o.addresses.push_back(parseInt(item, 0, 31, "--address"));
    } else if (option == "--xaddress") {
        o.xaddress = static_cast<std::uint8_t>(parseInt(value, 0, 127, "--xaddress"));
    } else if (option == "--version") {
        std::stringstream parts(value);
        std::string item;
        int n = 0;
        while (std::getline(parts, item, '.')) {
            if (n == 4)
                throw std::invalid_argument("--version takes four numbers A.B.C.D");
            o.version[n++] = static_cast<std::uint8_t>(parseInt(item, 0, 127, "--version part"));
        }
        if (n != 4)
            throw std::invalid_argument("--version takes four numbers A.B.C.D");
    } else if (option == "--pace-baud") {
        o.paceBaud = parseInt(value, 1, 10000000, "--pace-baud");
    } else if (option == "--drop-replies") {
        o.faults.dropReplies = parseInt(value, 0, 1000000, "--drop-replies");
    } else if (option == "--corrupt-copies") {
        o.faults.corruptCopies = parseInt(value, 0, 1000000, "--corrupt-copies");
    } else if (option == "--garbage") {
        const int n = parseInt(value, 0, 64, "--garbage");
        o.faults.garbage.assign(static_cast<std::size_t>(n), 0xAA);
    } else if (option == "--refuse") {
        // CMD[,ITEM][:noreply|echo|length]
        std::string text = value;
        Refusal how = Refusal::NoReply;
        const auto colon = text.find(':');
        if (colon != std::string::npos) {
            const std::string kind = text.substr(colon + 1);
            if (kind == "echo")
                how = Refusal::WrongEcho;
            else if (kind == "length")
                how = Refusal::WrongLength;
            else if (kind != "noreply")
                throw std::invalid_argument("--refuse: the kind must be noreply, echo or length");
            text.resize(colon);
        }
        const auto comma = text.find(',');
        const int command = parseInt(text.substr(0, comma), 0, 127, "--refuse command");
        const int item =
            comma == std::string::npos ? -1 : parseInt(text.substr(comma + 1), 0, 127, "--refuse item");
        o.faults.refuse(command, how, item);
    } else if (option == "--corvid") {
        o.corvid = true;
    } else if (option == "--layout") {
        o.layout = true;
    } else if (option == "--system-version") {
        o.systemVersion = parseCorvidVersion(value, "--system-version");
    } else if (option == "--unit") {
        const std::string& u = value;
        if (u == "hub-a")
            o.unit = CorvidUnit::HubA;
        else if (u == "hub-b")
            o.unit = CorvidUnit::HubB;
        else if (u == "linkbox")
            o.unit = CorvidUnit::Linkbox;
        else
            throw std::invalid_argument("--unit must be hub-a, hub-b or linkbox");
    } else if (option == "--unit-version") {
        o.unitVersion = parseCorvidVersion(value, "--unit-version");
    } else if (option == "--load") {
        o.load = value;
    } else {
        throw std::invalid_argument("unknown option " + option);
    }
}

} // namespace kestrel::sim
