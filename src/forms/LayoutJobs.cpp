#include "forms/LayoutJobs.h"

#include "base/Translatable.h"
#include "files/Backups.h"
#include "files/ConfigurationFile.h"
#include "forms/ConfigDiff.h"
#include "ops/Bulk.h"

#include <optional>
#include <utility>

namespace kestrel {

namespace {

// A module's share of the progress of the whole list: the steps of its Read All are
// scaled into it and named after the module.
class ShareOfProgress : public Progress {
public:
    static constexpr int kShare = 1000;
    ShareOfProgress(Progress& outer, int index, int count, std::string prefix)
        : outer(outer), index(index), count(count), prefix(std::move(prefix))
    {
    }
    void step(int done, int total, const std::string& what) override
    {
        outer.step(index * kShare + (total > 0 ? done * kShare / total : 0), count * kShare, prefix + what);
    }
    void exchanged() override { outer.exchanged(); }
    bool cancelled() override { return outer.cancelled(); }

private:
    Progress& outer;
    int index, count;
    std::string prefix;
};

// Keeps the messages of a backup being loaded from the user: a backup that cannot be
// read is told in the module's result.
class QuietDialogs : public UserDialogs {
public:
    std::string first;
    void message(const std::string& text, Icon) override
    {
        if (first.empty())
            first = text.substr(0, text.find_first_of("\r\n"));
    }
    Answer ask(const std::string&, Buttons, Icon) override { return Answer::Ok; }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
};

// The newest complete backup of the module with this ID string.
std::optional<BackupEntry> newestBackup(const std::string& root, const std::string& id)
{
    for (BackupEntry& e : listBackups(root))
        if (!e.incomplete && e.id == id)
            return std::move(e);
    return std::nullopt;
}

bool loadBackup(const std::string& path, Configuration& config, GeneralSettings& general, std::string& error)
{
    QuietDialogs quiet;
    std::string why;
    if (loadConfigurationFile(path, config, general, quiet, &why) == LoadResult::Loaded)
        return true;
    error = "cannot read the backup " + path + ": " + (why.empty() ? quiet.first : why);
    return false;
}

// Read All of the module addressed into module and gmodule, read over `over` (so that what
// the module does not hold comes from it); what is shown stays as it was.
bool readOver(Session& s, const Configuration& over, const GeneralSettings& gover, Configuration& module,
              GeneralSettings& gmodule)
{
    struct Shown {
        Session& s;
        Configuration config = s.config;
        GeneralSettings general = s.general;
        ~Shown()
        {
            s.config = std::move(config);
            s.general = std::move(general);
        }
    } shown{s};
    s.config = over;
    s.general = gover;
    return ReadAllInto(s, module, gmodule);
}

// Why the module's read failed: the first message shown while it ran, else where it stopped.
std::string failure(const Session& s, std::size_t problemsBefore)
{
    const JobOutcome& o = s.lastJob();
    if (o.problems.size() > problemsBefore)
        return o.problems[problemsBefore];
    Progress* p = s.link.currentProgress();
    return std::string(p && p->cancelled() ? "Read All cancelled" : "Read All stopped") +
           (o.step.empty() ? "" : " at " + o.step);
}

// Runs `one` on each module in turn as one job of the session, each addressed and with its
// share of the progress; a Cancel ends the list after the module it cut short.
template <typename Result, typename One>
std::vector<Result> eachModule(Session& s, const char* job, const std::vector<FoundModule>& modules, One one)
{
    std::vector<Result> results;
    Progress* outer = s.link.currentProgress();
    const int count = static_cast<int>(modules.size());
    s.asJob(job, [&] {
        bool cancelled = false;
        for (int i = 0; i < count; ++i) {
            if (outer && outer->cancelled()) {
                cancelled = true;
                break;
            }
            const FoundModule& m = modules[static_cast<std::size_t>(i)];
            std::optional<ShareOfProgress> share;
            if (outer) {
                share.emplace(*outer, i, count, moduleName(m, s.config.NumberingBase) + ": ");
                s.link.setProgress(&*share);
            }
            Result r;
            r.module = m;
            try {
                withModule(s, m, [&] {
                    one(m, r);
                    return true;
                });
            } catch (...) {
                s.link.setProgress(outer);
                throw;
            }
            s.link.setProgress(outer);
            results.push_back(std::move(r));
        }
        if (!cancelled)
            s.reportStep(count, count, KC_TRANSLATABLE("Messages", "Done"));
        return !cancelled;
    });
    return results;
}

} // namespace

std::vector<ModuleBackup> backUpAll(Session& s, const std::vector<FoundModule>& modules,
                                    const std::string& root,
                                    const std::function<std::chrono::system_clock::time_point()>& now)
{
    return eachModule<ModuleBackup>(s, "Back Up All", modules, [&](const FoundModule& m, ModuleBackup& r) {
        // Descriptions from the newest backup; one that cannot be read gives none.
        Configuration over;
        GeneralSettings gover;
        over.NumberingBase = s.config.NumberingBase;
        std::string unread;
        if (const auto newest = newestBackup(root, m.id);
            newest && !loadBackup(newest->path, over, gover, unread)) {
            over = Configuration{};
            over.NumberingBase = s.config.NumberingBase;
            gover = GeneralSettings{};
        }
        const std::size_t before = s.lastJob().problems.size();
        Configuration module;
        GeneralSettings gmodule;
        if (!readOver(s, over, gover, module, gmodule)) {
            r.error = failure(s, before);
            return;
        }
        Progress* p = s.link.currentProgress();
        r.incomplete = s.lastJob().problems.size() > before || (p && p->cancelled());
        r.file = saveBackup(root, module, gmodule, now(), r.error,
                            r.incomplete ? BackupKind::Incomplete : BackupKind::Complete);
        r.ok = !r.file.empty();
    });
}

std::vector<ModuleCheck> checkAll(Session& s, const std::vector<FoundModule>& modules,
                                  const std::string& root)
{
    return eachModule<ModuleCheck>(s, "Check All", modules, [&](const FoundModule& m, ModuleCheck& r) {
        const auto newest = newestBackup(root, m.id);
        if (!newest) {
            r.verdict = CheckVerdict::NoBackup;
            return;
        }
        r.backup = newest->path;
        const int base = s.config.NumberingBase;
        Configuration backup;
        GeneralSettings gbackup;
        backup.NumberingBase = base;
        if (!loadBackup(newest->path, backup, gbackup, r.error))
            return;
        const std::size_t before = s.lastJob().problems.size();
        Configuration module;
        GeneralSettings gmodule;
        if (!readOver(s, backup, gbackup, module, gmodule) || s.lastJob().problems.size() > before) {
            r.error = failure(s, before);
            return;
        }
        for (const Difference& d : differences(module, gmodule, backup, gbackup, base))
            r.differences.push_back(differenceLine(d, "module", "file"));
        r.verdict = r.differences.empty() ? CheckVerdict::Equal : CheckVerdict::Differs;
    });
}

} // namespace kestrel
