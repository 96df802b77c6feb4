#include "files/Backups.h"

#include "files/ConfigurationFile.h"
#include "files/TextFile.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace kestrel {

namespace fs = std::filesystem;

namespace {

constexpr const char* kDataSuffix = ".dat";
constexpr const char* kInfoSuffix = ".info";
constexpr const char* kIncompleteMark = "_incomplete";
constexpr std::size_t kStampLength = 19;  // 2026-11-23_14-05-09
constexpr std::size_t kCounterLength = 4; // _002
constexpr std::size_t kMarkLength = 11;   // _incomplete
constexpr int kMostInOneSecond = 999;

// A backup's name without suffix: "2026-11-23_14-05-09", then "_002" .. "_999" for a later
// one within the same second, then "_incomplete" for an incomplete read.
struct BackupName {
    std::string stamp; // the time and the counter: what orders the backups
    int counter = 1;   // 1 for none
    bool incomplete = false;
};

bool parseBackupStem(std::string stem, BackupName& name)
{
    name.incomplete = stem.size() > kMarkLength &&
                      stem.compare(stem.size() - kMarkLength, kMarkLength, kIncompleteMark) == 0;
    if (name.incomplete)
        stem.resize(stem.size() - kMarkLength);
    const std::string pattern = "dddd-dd-dd_dd-dd-dd";
    if (stem.size() != kStampLength && stem.size() != kStampLength + kCounterLength)
        return false;
    const std::string full = stem.size() == kStampLength ? pattern : pattern + "_ddd";
    for (std::size_t i = 0; i < full.size(); ++i) {
        const bool digit = std::isdigit(static_cast<unsigned char>(stem[i])) != 0;
        if (full[i] == 'd' ? !digit : stem[i] != full[i])
            return false;
    }
    name.counter = stem.size() == kStampLength ? 1 : std::stoi(stem.substr(kStampLength + 1));
    name.stamp = std::move(stem);
    return true;
}

std::string stampOf(std::chrono::system_clock::time_point now)
{
    const std::time_t t = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&t, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d_%H-%M-%S", &local);
    return text;
}

struct FoundBackup {
    fs::path data;
    BackupName name;
};

// Complete ones first, each kind newest first (the names sort as their times do).
bool listedBefore(const FoundBackup& a, const FoundBackup& b)
{
    if (a.name.incomplete != b.name.incomplete)
        return b.name.incomplete;
    return a.name.stamp > b.name.stamp;
}

// The backups of one module folder, in the order they are listed.
std::vector<FoundBackup> backupsIn(const fs::path& folder)
{
    std::vector<FoundBackup> found;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const fs::path& p = it->path();
        BackupName name;
        if (p.extension() == kDataSuffix && parseBackupStem(p.stem().string(), name) &&
            it->is_regular_file(ec))
            found.push_back({p, std::move(name)});
    }
    std::sort(found.begin(), found.end(), listedBefore);
    return found;
}

fs::path infoPath(fs::path data) { return data.replace_extension(kInfoSuffix); }

std::string infoText(const GeneralSettings& g, BackupKind kind)
{
    return "id=" + g.TextGenIDString + "\nversion=" + g.LabelGenVersionString + "\n" +
           (kind == BackupKind::Incomplete ? "incomplete=yes\n" : "");
}

// The value of "key=..." in a side file's text.
std::string infoValue(const std::string& text, const std::string& key)
{
    const std::string start = key + "=";
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = text.find('\n', at);
        if (end == std::string::npos)
            end = text.size();
        if (text.compare(at, start.size(), start) == 0)
            return text.substr(at + start.size(), end - at - start.size());
        at = end + 1;
    }
    return "";
}

// Whether the side file of a backup names the module id (a folder of an older naming may
// hold backups of several modules; those of the others are theirs to keep).
bool backupOf(const fs::path& data, const std::string& id)
{
    std::string info, why;
    return readTextFile(infoPath(data).string(), info, why) && infoValue(info, "id") == id;
}

// Deletes the module's oldest backups beyond the last kBackupsKept, keeping `made`.
void prune(const fs::path& folder, const fs::path& made, BackupKind kind, const std::string& id)
{
    std::vector<FoundBackup> others = backupsIn(folder);
    std::erase_if(others, [&](const FoundBackup& b) { return b.data == made || !backupOf(b.data, id); });
    std::error_code ec;
    for (std::size_t i = kBackupsKept - 1; i < others.size(); ++i) {
        if (kind == BackupKind::Incomplete && !others[i].name.incomplete)
            continue;
        fs::remove(others[i].data, ec);
        fs::remove(infoPath(others[i].data), ec);
    }
}

} // namespace

std::string backupFolderName(const std::string& id)
{
    if (id.empty())
        return "no-id"; // '-' is encoded in every other name
    static const char hex[] = "0123456789ABCDEF";
    std::string name;
    for (const char c : id) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 128 && std::isalnum(byte)) || c == '_') {
            name += c;
        } else {
            name += '%';
            name += hex[byte >> 4];
            name += hex[byte & 15];
        }
    }
    return name;
}

std::string saveBackup(const std::string& root, Configuration& config, const GeneralSettings& general,
                       std::chrono::system_clock::time_point now, std::string& error, BackupKind kind)
{
    const fs::path folder = fs::path(root) / backupFolderName(general.TextGenIDString);
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (ec) {
        error = "cannot create " + folder.string() + ": " + ec.message();
        return "";
    }
    // The counter goes on from the highest one of this second, so that the names of one
    // second keep the order in which they were saved, also after the first were pruned.
    const std::string stamp = stampOf(now);
    int counter = 1;
    for (const FoundBackup& b : backupsIn(folder))
        if (b.name.stamp.compare(0, kStampLength, stamp) == 0)
            counter = std::max(counter, b.name.counter + 1);
    const char* mark = kind == BackupKind::Incomplete ? kIncompleteMark : "";
    fs::path data;
    for (; counter <= kMostInOneSecond && data.empty(); ++counter) {
        char number[8] = "";
        if (counter > 1)
            std::snprintf(number, sizeof number, "_%03d", counter);
        const fs::path candidate = folder / (stamp + number + mark + kDataSuffix);
        if (!fs::exists(fs::symlink_status(candidate, ec)) &&
            !fs::exists(fs::symlink_status(infoPath(candidate), ec)))
            data = candidate;
    }
    if (data.empty()) {
        error = "too many backups within one second in " + folder.string();
        return "";
    }
    // The side file first, so that a listed data file always has its version.
    if (!replaceFile(infoPath(data).string(), infoText(general, kind), error) ||
        !saveConfigurationFile(data.string(), config, general, SaveForm::Full, error)) {
        fs::remove(infoPath(data), ec);
        return "";
    }
    prune(folder, data, kind, general.TextGenIDString);
    return data.string();
}

std::vector<BackupEntry> listBackups(const std::string& root)
{
    std::vector<FoundBackup> found;
    std::error_code ec;
    for (fs::directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        if (!it->is_directory(ec))
            continue;
        for (FoundBackup& b : backupsIn(it->path()))
            found.push_back(std::move(b));
    }
    // Across modules in the same order: complete first, each kind newest first.
    std::stable_sort(found.begin(), found.end(), listedBefore);
    std::vector<BackupEntry> entries;
    for (const FoundBackup& b : found) {
        BackupEntry e;
        e.path = b.data.string();
        e.when = b.name.stamp.substr(0, 10) + " " + b.name.stamp.substr(11, 8);
        std::replace(e.when.begin() + 11, e.when.end(), '-', ':');
        e.incomplete = b.name.incomplete;
        std::string info, why;
        if (readTextFile(infoPath(b.data).string(), info, why)) {
            e.id = infoValue(info, "id");
            e.version = infoValue(info, "version");
        }
        entries.push_back(std::move(e));
    }
    return entries;
}

} // namespace kestrel
