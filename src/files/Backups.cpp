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
constexpr std::size_t kStampLength = 19; // 2026-11-23_14-05-09
constexpr int kMostInOneSecond = 999;

// "2026-11-23_14-05-09" or the same with "_002" .. "_999": a backup's name without suffix.
bool isBackupStem(const std::string& stem)
{
    const std::string pattern = "dddd-dd-dd_dd-dd-dd";
    if (stem.size() != kStampLength && stem.size() != kStampLength + 4)
        return false;
    const std::string full = stem.size() == kStampLength ? pattern : pattern + "_ddd";
    for (std::size_t i = 0; i < full.size(); ++i) {
        const bool digit = std::isdigit(static_cast<unsigned char>(stem[i])) != 0;
        if (full[i] == 'd' ? !digit : stem[i] != full[i])
            return false;
    }
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

// The backups of one module folder, newest first (the names sort as their times do).
std::vector<fs::path> backupsIn(const fs::path& folder)
{
    std::vector<fs::path> found;
    std::error_code ec;
    for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
        const fs::path& p = it->path();
        if (p.extension() == kDataSuffix && isBackupStem(p.stem().string()) && it->is_regular_file(ec))
            found.push_back(p);
    }
    std::sort(found.begin(), found.end(), [](const fs::path& a, const fs::path& b) { return a > b; });
    return found;
}

fs::path infoPath(fs::path data) { return data.replace_extension(kInfoSuffix); }

std::string infoText(const GeneralSettings& g)
{
    return "id=" + g.TextGenIDString + "\nversion=" + g.LabelGenVersionString + "\n";
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

} // namespace

std::string backupFolderName(const std::string& id)
{
    if (id.empty())
        return "no-id";
    std::string name = id;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '-' && c != '_')
            c = '_';
    return name;
}

std::string saveBackup(const std::string& root, Configuration& config, const GeneralSettings& general,
                       std::chrono::system_clock::time_point now, std::string& error)
{
    const fs::path folder = fs::path(root) / backupFolderName(general.TextGenIDString);
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (ec) {
        error = "cannot create " + folder.string() + ": " + ec.message();
        return "";
    }
    const std::string stamp = stampOf(now);
    fs::path data;
    for (int n = 1; n <= kMostInOneSecond && data.empty(); ++n) {
        char counter[8] = "";
        if (n > 1)
            std::snprintf(counter, sizeof counter, "_%03d", n);
        const fs::path candidate = folder / (stamp + counter + kDataSuffix);
        if (!fs::exists(fs::symlink_status(candidate, ec)) &&
            !fs::exists(fs::symlink_status(infoPath(candidate), ec)))
            data = candidate;
    }
    if (data.empty()) {
        error = "too many backups within one second in " + folder.string();
        return "";
    }
    // The side file first, so that a listed data file always has its version.
    if (!replaceFile(infoPath(data).string(), infoText(general), error) ||
        !saveConfigurationFile(data.string(), config, general, SaveForm::Full, error)) {
        fs::remove(infoPath(data), ec);
        return "";
    }
    const auto kept = backupsIn(folder);
    for (std::size_t i = kBackupsKept; i < kept.size(); ++i) {
        fs::remove(kept[i], ec);
        fs::remove(infoPath(kept[i]), ec);
    }
    return data.string();
}

std::vector<BackupEntry> listBackups(const std::string& root)
{
    std::vector<BackupEntry> entries;
    std::error_code ec;
    for (fs::directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        if (!it->is_directory(ec))
            continue;
        for (const fs::path& data : backupsIn(it->path())) {
            const std::string stem = data.stem().string();
            BackupEntry e;
            e.path = data.string();
            e.when = stem.substr(0, 10) + " " + stem.substr(11, 8);
            std::replace(e.when.begin() + 11, e.when.end(), '-', ':');
            std::string info, why;
            if (readTextFile(infoPath(data).string(), info, why)) {
                e.id = infoValue(info, "id");
                e.version = infoValue(info, "version");
            }
            entries.push_back(std::move(e));
        }
    }
    // Newest first across modules: by the name's time, then by the counter within a second.
    std::stable_sort(entries.begin(), entries.end(), [](const BackupEntry& a, const BackupEntry& b) {
        return fs::path(a.path).filename() > fs::path(b.path).filename();
    });
    return entries;
}

} // namespace kestrel
