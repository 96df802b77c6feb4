#include "forms/LayoutList.h"
#include "base/Translatable.h"

#include <algorithm>
#include <charconv>
#include <sstream>
#include <tuple>

namespace kestrel {

namespace {

bool sameModule(const FoundModule& a, const FoundModule& b)
{
    return a.corvid == b.corvid && a.address == b.address && a.xaddress == b.xaddress && a.id == b.id;
}

bool samePlace(const FoundModule& a, const FoundModule& b)
{
    return a.corvid == b.corvid && a.address == b.address && a.xaddress == b.xaddress;
}

// The entry of `list` for `module`, or null.
LayoutEntry* entryOf(std::vector<LayoutEntry>& list, const FoundModule& module)
{
    const auto at = std::find_if(list.begin(), list.end(),
                                 [&](const LayoutEntry& e) { return sameModule(e.module, module); });
    return at == list.end() ? nullptr : &*at;
}

void sortList(std::vector<LayoutEntry>& list)
{
    std::stable_sort(list.begin(), list.end(), [](const LayoutEntry& a, const LayoutEntry& b) {
        return std::tuple(a.module.corvid, a.module.address, a.module.xaddress.value_or(-1)) <
               std::tuple(b.module.corvid, b.module.address, b.module.xaddress.value_or(-1));
    });
}

constexpr char kSeparator = '\t';

} // namespace

std::string shownAddress(const FoundModule& m, int base)
{
    std::string text = std::to_string(m.address + base);
    return m.xaddress ? text + "/" + std::to_string(*m.xaddress + base) : text;
}

std::string shownModule(const FoundModule& m, int base)
{
    return shownAddress(m, base) + " \"" + m.id + "\"";
}

std::string stateText(const LayoutEntry& e)
{
    switch (e.state) {
    case LayoutState::Holds:
        return KC_TRANSLATABLE("LayoutList", "holds its newest backup");
    case LayoutState::Differs:
        return "differs (" + std::to_string(e.differing) + (e.differing == 1 ? " item)" : " items)");
    case LayoutState::NoAnswer:
        return KC_TRANSLATABLE("LayoutList", "did not answer");
    case LayoutState::NotChecked:
        break;
    }
    return KC_TRANSLATABLE("LayoutList", "not checked");
}

std::vector<LayoutEntry> afterScan(const std::vector<LayoutEntry>& listed,
                                   const std::vector<FoundModule>& found, bool corvid)
{
    std::vector<LayoutEntry> list;
    std::vector<LayoutEntry> before = listed;
    for (const FoundModule& m : found) {
        LayoutEntry e{m, LayoutState::NotChecked, 0};
        if (const LayoutEntry* was = entryOf(before, m))
            std::tie(e.state, e.differing) = std::tuple(was->state, was->differing);
        list.push_back(e);
    }
    for (LayoutEntry e : listed) {
        const bool there = std::any_of(list.begin(), list.end(),
                                       [&](const LayoutEntry& n) { return samePlace(n.module, e.module); });
        if (there)
            continue;
        if (e.module.corvid == corvid)
            e.state = LayoutState::NoAnswer;
        list.push_back(e);
    }
    sortList(list);
    return list;
}

void noteResults(std::vector<LayoutEntry>& list, const std::vector<ModuleBackup>& backups)
{
    for (const ModuleBackup& b : backups)
        if (LayoutEntry* e = entryOf(list, b.module))
            e->state = !b.ok          ? LayoutState::NoAnswer
                       : b.incomplete ? LayoutState::NotChecked
                                      : LayoutState::Holds;
}

void noteResults(std::vector<LayoutEntry>& list, const std::vector<ModuleCheck>& checks)
{
    for (const ModuleCheck& c : checks)
        if (LayoutEntry* e = entryOf(list, c.module)) {
            e->differing = static_cast<int>(c.differences.size());
            e->state = c.verdict == CheckVerdict::Equal     ? LayoutState::Holds
                       : c.verdict == CheckVerdict::Differs ? LayoutState::Differs
                       : c.verdict == CheckVerdict::Failed  ? LayoutState::NoAnswer
                                                            : LayoutState::NotChecked;
        }
}

std::vector<std::string> encodeLayout(const std::vector<LayoutEntry>& list)
{
    std::vector<std::string> lines;
    for (const LayoutEntry& e : list) {
        std::ostringstream line;
        line << e.module.corvid << kSeparator << e.module.address << kSeparator
             << e.module.xaddress.value_or(-1) << kSeparator << static_cast<int>(e.state) << kSeparator
             << e.differing << kSeparator << e.module.version << kSeparator << e.module.id;
        lines.push_back(line.str());
    }
    return lines;
}

std::vector<LayoutEntry> decodeLayout(const std::vector<std::string>& lines)
{
    std::vector<LayoutEntry> list;
    for (const std::string& line : lines) {
        std::vector<std::string> fields;
        std::istringstream in(line);
        for (std::string field; fields.size() < 6 && std::getline(in, field, kSeparator);)
            fields.push_back(field);
        std::string id;
        if (fields.size() < 6 || !std::getline(in, id))
            id.clear();
        int number[5] = {};
        bool read = fields.size() == 6;
        for (std::size_t i = 0; read && i < 5; ++i) {
            const char* end = fields[i].data() + fields[i].size();
            const auto [ptr, ec] = std::from_chars(fields[i].data(), end, number[i]);
            read = ec == std::errc() && ptr == end;
        }
        const auto [corvid, address, xaddress, state, differing] = number;
        if (!read || corvid < 0 || corvid > 1 || address < 0 ||
            address >= (corvid ? kTunnelAddresses : kDirectAddresses) || xaddress < -1 ||
            xaddress >= kExtendedAddresses || state < 0 || state > static_cast<int>(LayoutState::NoAnswer))
            continue;
        LayoutEntry e{
            {corvid == 1, address, std::nullopt, fields[5], id}, static_cast<LayoutState>(state), differing};
        if (xaddress >= 0)
            e.module.xaddress = xaddress;
        list.push_back(e);
    }
    return list;
}

SummaryRow summaryRow(const ModuleBackup& b, int base)
{
    return {shownModule(b.module, base),
            !b.ok          ? "failed: " + b.error
            : b.incomplete ? "kept as incomplete"
                           : "backed up",
            b.file.empty() ? "-" : b.file};
}

SummaryRow summaryRow(const ModuleCheck& c, int base)
{
    LayoutEntry e{c.module, LayoutState::NotChecked, static_cast<int>(c.differences.size())};
    std::string result;
    switch (c.verdict) {
    case CheckVerdict::Equal:
        e.state = LayoutState::Holds;
        break;
    case CheckVerdict::Differs:
        e.state = LayoutState::Differs;
        break;
    case CheckVerdict::NoBackup:
        result = "no backup";
        break;
    case CheckVerdict::Failed:
        result = "failed: " + c.error;
        break;
    }
    return {shownModule(c.module, base), result.empty() ? stateText(e) : result,
            c.backup.empty() ? "-" : c.backup};
}

std::string summaryTable(const std::vector<SummaryRow>& rows)
{
    const SummaryRow header{"module", "result", "file"};
    std::size_t width[2] = {header.module.size(), header.result.size()};
    for (const SummaryRow& r : rows) {
        width[0] = std::max(width[0], r.module.size());
        width[1] = std::max(width[1], r.result.size());
    }
    std::string text;
    const auto line = [&](const SummaryRow& r) {
        text += r.module + std::string(width[0] - r.module.size() + 2, ' ') + r.result +
                std::string(width[1] - r.result.size() + 2, ' ') + r.file + "\n";
    };
    line(header);
    for (const SummaryRow& r : rows)
        line(r);
    return text;
}

} // namespace kestrel
