#include "cli/Cli.h"

#include "base/ProgramFault.h"
#include "base/Text.h"
#include "base/Wire.h"
#include "cli/ConsoleDialogs.h"
#include "cli/ConsoleProgress.h"
#include "files/Backups.h"
#include "files/ConfigurationFile.h"
#include "forms/ConfigDiff.h"
#include "forms/LayoutJobs.h"
#include "forms/LayoutList.h"
#include "link/CorvidControl.h"
#include "model/WireLimits.h"
#include "ops/Bulk.h"
#include "ops/BusScan.h"
#include "ops/GeneralCommands.h"
#include "platform/BackupFolder.h"
#include "platform/BuiltInSim.h"
#include "platform/CommandLine.h"
#include "platform/PortRouter.h"
#include "platform/ProgramSession.h"
#include "session/Session.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <optional>

namespace kestrel {

namespace {

constexpr int kOk = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;
constexpr int kCancelled = 130; // as a shell reports a program ended by Ctrl+C

const char* kUsageText =
    "usage: kestrel-cli [--version] [--port NAME|sim] [--baud 9600|19200|38400] [--address N] [--xaddress "
    "N]\n"
    "                   [--corvid] [--one-way] [--number-from-1] COMMAND\n"
    "commands:\n"
    "  ports                         list the ports (\"sim\" is the built-in simulated layout,\n"
    "                                \"sim (Corvid)\" the same behind a simulated Corvid system)\n"
    "  version                       print the module's firmware version\n"
    "  read FILE [--compact] [--backup]\n"
    "                                read the whole module and save it as a data file\n"
    "                                (--backup: also keep it with the window's automatic backups)\n"
    "  write FILE [--with-pin-config] load a data file and write it to the module\n"
    "        [--changes-from BASE]   only what differs from BASE.dat, a file the module holds\n"
    "  verify FILE                   load a data file and verify the module against it\n"
    "  compare FILE                  read the whole module and print every difference from a data file\n"
    "  show FILE                     print a data file as readable text (no port needed)\n"
    "  diff A B                      print every difference between two data files (no port needed)\n"
    "  erase --yes                   erase the module's configuration memory\n"
    "  transparent [--yes]           switch the Corvid interface unit into transparent mode\n"
    "  scan [--xaddress-range]       list every module that answers: bus addresses 0..15 (0..31 with\n"
    "                                --corvid), with --xaddress-range also eXtended addresses 0..95 on\n"
    "                                each address that answered; each address is given 500 ms to\n"
    "                                answer instead of the 2 s of every other exchange\n"
    "  backup-all [--xaddress-range] scan, then read each module found and keep it with its backups\n"
    "  check-all [--xaddress-range]  scan, then compare each module found with its newest backup\n";

struct CliOptions {
    std::string port = "sim";
    int baud = 19200;
    std::optional<std::string> address;
    std::optional<std::string> xaddress;
    bool corvid = false;
    bool oneWay = false;
    bool numberFrom1 = false;
    bool yes = false;
    bool compact = false;
    bool withPinConfig = false;
    std::optional<std::string> changesFrom; // write: BASE.dat, what the module holds
    bool backup = false;
    bool xaddressRange = false; // scan, backup-all, check-all: also every eXtended address
    std::string command;
    std::vector<std::string> operands;
};

struct CliContext {
    CliOptions& options;
    Session& session;
    CorvidControl& corvid;
    ConsoleDialogs& dialogs;
    ConsoleProgress& progress;
};

using Command = std::function<int(CliContext&)>;

int commandVersion(CliContext& c)
{
    if (!c.session.link.GetVersion())
        return kFailed;
    std::printf("%s\n", printable(c.session.link.VersionText).c_str());
    return kOk;
}

// Loads the data file named on the command line into the session. A file that cannot be
// read, is invalid or is cut short ends the command with its message as a usage error,
// before anything is sent.
int loadFile(const std::string& path, Configuration& config, GeneralSettings& general, UserDialogs& dialogs)
{
    std::string why;
    switch (loadConfigurationFile(path, config, general, dialogs, &why)) {
    case LoadResult::Loaded:
        return kOk;
    case LoadResult::CannotOpen:
        std::fprintf(stderr, "Cannot read %s: %s\n", printable(path).c_str(), why.c_str());
        return kUsage;
    default:
        return kUsage;
    }
}

int loadOperand(CliContext& c)
{
    return loadFile(c.options.operands[0], c.session.config, c.session.general, c.dialogs);
}

// Prints one line for every difference; 1 when there is any.
int printDifferences(const Configuration& first, const GeneralSettings& gfirst, const Configuration& second,
                     const GeneralSettings& gsecond, int base, const char* firstName, const char* secondName)
{
    const std::vector<Difference> found = differences(first, gfirst, second, gsecond, base);
    for (const Difference& d : found)
        std::printf("%s\n", printable(differenceLine(d, firstName, secondName)).c_str());
    return found.empty() ? kOk : kFailed;
}

// The status of a job that has ended: 1 when it stopped or anything was reported on the
// way, with the line saying what was incomplete last on stderr. A cancelled job is left
// to runCli, which says "Cancelled".
int jobStatus(CliContext& c, bool ok)
{
    if (c.progress.cancelled())
        return kCancelled;
    const std::string summary = c.session.jobSummary();
    if (summary.empty())
        return ok ? kOk : kFailed;
    c.progress.finish();
    std::fprintf(stderr, "%s\n", printable(summary).c_str());
    return kFailed;
}

// Read All, then save the data file (full, or compact with --compact) and, with --backup, a
// backup as the window keeps after Read All. A read that ran through is saved even when a
// reader reported a problem; the status then says so.
int commandRead(CliContext& c)
{
    if (!ReadAll(c.session))
        return jobStatus(c, false);
    std::string error;
    if (!saveConfigurationFile(c.options.operands[0], c.session.config, c.session.general,
                               c.options.compact ? SaveForm::Compact : SaveForm::Full, error)) {
        std::fprintf(stderr, "Cannot save %s: %s\n", printable(c.options.operands[0]).c_str(),
                     printable(error).c_str());
        jobStatus(c, false);
        return kFailed;
    }
    // A read that reported problems is kept only as an incomplete backup.
    const BackupKind kind = c.session.lastJob().incomplete() ? BackupKind::Incomplete : BackupKind::Complete;
    if (c.options.backup && saveBackup(backupRoot().toStdString(), c.session.config, c.session.general,
                                       std::chrono::system_clock::now(), error, kind)
                                .empty()) {
        std::fprintf(stderr, "Cannot save the backup: %s\n", printable(error).c_str());
        jobStatus(c, false);
        return kFailed;
    }
    return jobStatus(c, true);
}

// Load the data file, then Write All (with --with-pin-config also every pin's configuration to flash).
int commandWrite(CliContext& c)
{
    if (const int loaded = loadOperand(c); loaded != kOk)
        return loaded;
    if (!c.options.changesFrom)
        return jobStatus(c, WriteAll(c.session, c.options.withPinConfig));
    // The module holds BASE: only what FILE changes goes out.
    Configuration base;
    GeneralSettings gbase;
    base.NumberingBase = c.session.config.NumberingBase;
    if (const int loaded = loadFile(*c.options.changesFrom, base, gbase, c.dialogs); loaded != kOk)
        return loaded;
    c.session.imageHolds(base, gbase);
    return jobStatus(c, WriteChanges(c.session, c.options.withPinConfig));
}

// Load the data file, then Verify All; the report goes to stdout as the report window holds it.
int commandVerify(CliContext& c)
{
    if (const int loaded = loadOperand(c); loaded != kOk)
        return loaded;
    const bool ok = VerifyAll(c.session);
    const std::string& text = c.session.report.txtVerification;
    std::fputs(printable(text).c_str(), stdout);
    const std::string last = "Verify OK\r\n";
    const bool verified =
        text.size() >= last.size() && text.compare(text.size() - last.size(), last.size(), last) == 0;
    return jobStatus(c, ok && verified);
}

// Load the data file, keep it, then Read All over it (what the module does not hold, such
// as descriptions, stays as the file has it) and print how the module differs from the file.
int commandCompare(CliContext& c)
{
    if (const int loaded = loadOperand(c); loaded != kOk)
        return loaded;
    const Configuration file = c.session.config;
    const GeneralSettings gfile = c.session.general;
    if (!ReadAll(c.session))
        return jobStatus(c, false);
    const int base = c.session.config.NumberingBase;
    const int status =
        printDifferences(c.session.config, c.session.general, file, gfile, base, "module", "file");
    const int job = jobStatus(c, true);
    return job != kOk ? job : status;
}

// show and diff: data files only, no port.
int fileCommand(const CliOptions& o, UserDialogs& dialogs)
{
    const int base = o.numberFrom1 ? 1 : 0;
    Configuration a, b;
    GeneralSettings ga, gb;
    a.NumberingBase = b.NumberingBase = base;
    if (const int loaded = loadFile(o.operands[0], a, ga, dialogs); loaded != kOk)
        return loaded;
    if (o.command == "show") {
        std::fputs(printable(configurationText(a, ga, base)).c_str(), stdout);
        return kOk;
    }
    if (const int loaded = loadFile(o.operands[1], b, gb, dialogs); loaded != kOk)
        return loaded;
    return printDifferences(a, ga, b, gb, base, "a", "b");
}

// Erase the module's configuration memory. The second question asks whether to cancel,
// so going on means answering it with Cancel.
int commandErase(CliContext& c)
{
    // Nothing answers an erase: with replies asked for, the module shows first that it is
    // there, so that an erase of nobody is never reported as done.
    if (c.options.yes && !c.options.oneWay && !c.session.link.GetVersion())
        return kFailed;
    if (c.options.yes)
        c.dialogs.scripted = {Answer::Ok, Answer::Cancel};
    else
        c.dialogs.scripted = {Answer::Cancel};
    const int before = c.session.link.stats.exchanges;
    EraseFlash(c.session);
    return c.session.link.stats.exchanges > before ? kOk : kFailed;
}

// Switches an interface unit of the Corvid system into transparent mode.
int commandTransparent(CliContext& c) { return c.corvid.cmdSetTM_Click() ? kOk : kFailed; }

// The modules that answer on the route given, with the scan's options.
std::vector<FoundModule> scanBus(CliContext& c)
{
    return findModules(c.session, ScanOptions{c.options.xaddressRange});
}

// One line for each module that answers; 1 when none did.
int commandScan(CliContext& c)
{
    const std::vector<FoundModule> found = scanBus(c);
    c.progress.finish();
    const int base = c.session.config.NumberingBase;
    for (const FoundModule& m : found)
        std::printf("%s %s \"%s\"\n", shownAddress(m, base).c_str(), m.version.c_str(),
                    printable(m.id).c_str());
    return found.empty() ? kFailed : kOk;
}

// Scans, then runs `one` on each module found, each announced by its line of progress, and
// ends with the summary of the rows. 1 when no module answered or `one` found any not well.
template <typename One> int eachFound(CliContext& c, const char* doing, One one)
{
    const std::vector<FoundModule> found = scanBus(c);
    c.progress.finish();
    if (found.empty()) {
        if (!c.progress.cancelled())
            std::fputs("No module answered\n", stderr);
        return kFailed;
    }
    const int base = c.session.config.NumberingBase;
    std::vector<SummaryRow> rows;
    bool allWell = true;
    for (std::size_t i = 0; i < found.size() && !c.progress.cancelled(); ++i) {
        std::printf("%s %s (%zu of %zu)\n", doing, printable(shownModule(found[i], base)).c_str(), i + 1,
                    found.size());
        std::fflush(stdout);
        allWell = one(found[i], rows) && allWell;
        c.progress.finish();
    }
    std::printf("\n%s", printable(summaryTable(rows)).c_str());
    return allWell ? kOk : kFailed;
}

// Read All of every module that answers, each kept with the window's automatic backups.
int commandBackupAll(CliContext& c)
{
    const std::string root = backupRoot().toStdString();
    return eachFound(c, "Backing up", [&](const FoundModule& m, std::vector<SummaryRow>& rows) {
        const ModuleBackup b = backUpAll(c.session, {m}, root).at(0);
        rows.push_back(summaryRow(b, c.session.config.NumberingBase));
        return b.ok && !b.incomplete;
    });
}

// Every module that answers compared with its newest backup; the differences of each that
// differs printed as compare prints them.
int commandCheckAll(CliContext& c)
{
    const std::string root = backupRoot().toStdString();
    return eachFound(c, "Checking", [&](const FoundModule& m, std::vector<SummaryRow>& rows) {
        const ModuleCheck check = checkAll(c.session, {m}, root).at(0);
        c.progress.finish();
        for (const std::string& line : check.differences)
            std::printf("%s\n", printable(line).c_str());
        rows.push_back(summaryRow(check, c.session.config.NumberingBase));
        return check.verdict == CheckVerdict::Equal;
    });
}

const std::map<std::string, Command>& commands()
{
    static const std::map<std::string, Command> table = {
        {"version", commandVersion},
        {"transparent", commandTransparent},
        {"read", commandRead},
        {"write", commandWrite},
        {"verify", commandVerify},
        {"erase", commandErase},
        {"compare", commandCompare},
        {"scan", commandScan},
        {"backup-all", commandBackupAll},
        {"check-all", commandCheckAll},
    };
    return table;
}

// A bus or eXtended address as shown (with the numbering base): a whole number in
// base..highest + base. Anything else is refused, never clamped, so that no other module
// than the one named is written.
bool checkAddress(const char* option, const std::string& text, int highest, int base, std::string& error)
{
    int value = -1;
    const char* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (text.empty() || ec != std::errc() || ptr != end || value < base || value > highest + base) {
        error = std::string(option) + " must be a number from " + std::to_string(base) + " to " +
                std::to_string(highest + base) + ", not " + quoteForMessage(text);
        return false;
    }
    return true;
}

bool parse(const std::vector<std::string>& args, CliOptions& o, std::string& error)
{
    static const std::vector<CommandLineOption> known = {
        {{"port"}, true},     {{"baud"}, true}, {{"address"}, true},      {{"xaddress"}, true},
        {{"corvid"}},         {{"one-way"}},    {{"number-from-1"}},      {{"yes"}},
        {{"compact"}},        {{"backup"}},     {{"changes-from"}, true}, {{"with-pin-config"}},
        {{"xaddress-range"}}, {{"h", "help"}},
    };
    const CommandLine line = readCommandLine(args, known);
    // In the order given: the first fault ends the reading.
    for (const auto& [a, v] : line.options) {
        if (a == "--port") {
            o.port = v;
        } else if (a == "--baud") {
            o.baud = static_cast<int>(valInt(v));
            if (o.baud != 9600 && o.baud != 19200 && o.baud != 38400) {
                error = "--baud must be 9600, 19200 or 38400";
                return false;
            }
        } else if (a == "--address") {
            o.address = v;
        } else if (a == "--xaddress") {
            o.xaddress = v;
        } else if (a == "--changes-from") {
            o.changesFrom = v;
        } else if (a == "-h" || a == "--help") {
            error = "";
            return false;
        } else {
            bool CliOptions::*flag = a == "--corvid"           ? &CliOptions::corvid
                                     : a == "--one-way"        ? &CliOptions::oneWay
                                     : a == "--number-from-1"  ? &CliOptions::numberFrom1
                                     : a == "--yes"            ? &CliOptions::yes
                                     : a == "--compact"        ? &CliOptions::compact
                                     : a == "--backup"         ? &CliOptions::backup
                                     : a == "--xaddress-range" ? &CliOptions::xaddressRange
                                                               : &CliOptions::withPinConfig;
            o.*flag = true;
        }
    }
    if (!line.error.empty()) {
        error = line.error;
        return false;
    }
    for (const std::string& a : line.operands) // an empty word before the command is no command
        if (o.command.empty())
            o.command = a;
        else
            o.operands.push_back(a);
    if (o.command.empty()) {
        error = "no command given";
        return false;
    }
    const bool needsFile = o.command == "read" || o.command == "write" || o.command == "verify" ||
                           o.command == "compare" || o.command == "show";
    if (needsFile && o.operands.size() != 1) {
        error = o.command + " needs one FILE";
        return false;
    }
    if (o.command == "diff" && o.operands.size() != 2) {
        error = "diff needs two FILEs";
        return false;
    }
    if (o.backup && o.command != "read") {
        error = "--backup goes with read";
        return false;
    }
    if (o.xaddressRange && o.command != "scan" && o.command != "backup-all" && o.command != "check-all") {
        error = "--xaddress-range goes with scan, backup-all or check-all";
        return false;
    }
    if (o.changesFrom && o.command != "write") {
        error = "--changes-from goes with write";
        return false;
    }
    if (o.changesFrom && o.oneWay) {
        error = "--changes-from cannot go with --one-way: without replies the module's ID string cannot be "
                "checked, so another module could be written";
        return false;
    }
    if (o.port.empty()) {
        error = "--port needs a port name (\"sim\" for the built-in module)";
        return false;
    }
    const int base = o.numberFrom1 ? 1 : 0;
    if (o.address && !checkAddress("--address", *o.address, o.corvid ? 31 : 15, base, error))
        return false;
    if (o.xaddress && !checkAddress("--xaddress", *o.xaddress, kExtendedAddressMax, base, error))
        return false;
    return true;
}

} // namespace

int runCli(const std::vector<std::string>& args)
{
    if (std::find(args.begin(), args.end(), "--version") != args.end()) {
        std::printf("kestrel-cli %s\n", KESTREL_VERSION);
        return kOk;
    }
    CliOptions options;
    std::string error;
    if (!parse(args, options, error)) {
        if (!error.empty())
            std::fprintf(stderr, "kestrel-cli: %s\n", error.c_str());
        std::fputs(kUsageText, stderr);
        return kUsage;
    }

    ConsoleDialogs dialogs;
    dialogs.yes = options.yes;
    ConsoleProgress progress;
    ProgramSession program(dialogs);
    Session& session = *program.session;

    if (options.command == "ports") {
        session.linkControl.ScanPorts();
        for (const auto& p : session.linkControl.ComboPort)
            std::printf("%s\n", p.c_str());
        return kOk;
    }
    if (options.command == "show" || options.command == "diff") {
        try {
            return fileCommand(options, dialogs);
        } catch (const std::exception& fault) {
            std::fprintf(stderr, "%s\n", printable(programFaultMessage(fault.what())).c_str());
            return kFailed;
        }
    }
    const auto found = commands().find(options.command);
    if (found == commands().end()) {
        std::fprintf(stderr, "kestrel-cli: unknown command %s\n", options.command.c_str());
        std::fputs(kUsageText, stderr);
        return kUsage;
    }

    try {
        session.config.NumberingBase = options.numberFrom1 ? 1 : 0;
        const int rate = options.baud == 9600 ? 0 : options.baud == 38400 ? 2 : 1;
        session.linkControl.OptionBitRate_Click(rate);
        if (!session.linkControl.ComboPort_Click(options.port))
            return kUsage;
        session.link.setProgress(&progress);
        if (options.oneWay)
            session.link.settings.CheckKestrelBD = false;
        else
            session.link.missingReplyFails = true; // a job never goes on blind
        CorvidControl& corvid = *program.corvid;
        // The tunnel goes on before the address is taken, so that 16..31 are allowed.
        if (options.corvid && options.command != "transparent" && !corvid.CheckCorvid_Click(true))
            return kFailed;
        if (options.address)
            session.linkControl.TextAddress_Click(*options.address); // in range: taken as it is
        if (options.xaddress) {
            session.link.settings.CheckXaddress = true; // asking on the command line is the consent
            session.linkControl.txtXaddr_Click(*options.xaddress);
        }
        CliContext context{options, session, corvid, dialogs, progress};
        const int status = found->second(context);
        progress.finish();
        if (progress.cancelled()) {
            std::fputs("Cancelled\n", stderr);
            return kCancelled;
        }
        return status;
    } catch (const std::exception& fault) {
        progress.finish();
        std::fprintf(stderr, "%s\n", printable(programFaultMessage(fault.what())).c_str());
        return kFailed;
    }
}

} // namespace kestrel
