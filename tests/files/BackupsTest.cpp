// Automatic backups: names, the side file's ID and version, the newest first, pruning.
#include "files/Backups.h"
#include "files/ConfigurationFile.h"
#include "model/AddressIndex.h"
#include "support/Files.h"
#include "support/RecordingDialogs.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

#include <set>

using namespace kestrel;
using namespace kestrel::test;

TEST(Backups, SavedPerModuleListedNewestFirstAndPrunedToTheLastThirty)
{
    ScratchDir dir("backups");
    const std::string root = dir.file("backups");
    Configuration config = fullConfiguration();
    RecalcAddressIndex(config);                      // as a read leaves it
    GeneralSettings general = fullGeneralSettings(); // "Up Main 7", version "1.2.3.4"
    const auto start = std::chrono::system_clock::now();
    std::string error;
    std::vector<std::string> saved;
    // Two within the same second, then one a minute for a while.
    for (int i = 0; i < 33; ++i)
        saved.push_back(
            saveBackup(root, config, general, start + std::chrono::minutes(i == 0 ? 0 : i - 1), error));
    general.TextGenIDString = "";
    general.LabelGenVersionString = "Unknown";
    const std::string other = saveBackup(root, config, general, start + std::chrono::hours(1), error);
    ASSERT_EQ(error, "");
    EXPECT_NE(saved[0], saved[1]);
    EXPECT_EQ(std::filesystem::path(saved[0]).parent_path().filename(), "Up%20Main%207");
    EXPECT_EQ(std::filesystem::path(other).parent_path().filename(), "no-id");

    const auto list = listBackups(root);
    ASSERT_EQ(list.size(), kBackupsKept + 1u);
    // The three oldest went, the second of one second too.
    EXPECT_EQ(std::tuple(list[0].path, list[0].version, list[1].path, list[1].id, list[1].version,
                         list[1].when.size(), list.back().path, std::filesystem::exists(saved[1])),
              std::tuple(other, "Unknown", saved.back(), "Up Main 7", "1.2.3.4", 19u, saved[3], false));

    Configuration back;
    GeneralSettings general2;
    RecordingDialogs dialogs;
    ASSERT_EQ(loadConfigurationFile(list[1].path, back, general2, dialogs), LoadResult::Loaded);
    EXPECT_TRUE(back == config);

    std::set<std::string> folders; // every ID a folder of its own
    for (const std::string id :
         {"Demo layout", "Demo.layout", "Demo_layout", "Demo-layout", "no-id", "", "D\0"})
        folders.insert(backupFolderName(id == "D" ? std::string("D\0", 2) : id));
    EXPECT_EQ(folders.size(), 7u);
}

TEST(Backups, TheNewOneOutlivesItsPruningAndIncompleteReadsComeLast)
{
    ScratchDir dir("backups-prune");
    const std::string root = dir.file("backups");
    Configuration config;
    const GeneralSettings general;
    const auto now = std::chrono::system_clock::now();
    std::string error, last;
    for (int i = 0; i < 32; ++i) // within one second: the last is the newest
        last = saveBackup(root, config, general, now, error);
    EXPECT_EQ(listBackups(root)[0].path, last);
    for (int i = 0; i < 30; ++i) // named an hour later (a clock put back), then one more now
        saveBackup(root, config, general, now + std::chrono::hours(1), error);
    last = saveBackup(root, config, general, now, error);
    ASSERT_TRUE(std::filesystem::exists(last)) << error;
    // An incomplete read is kept beside the 30 complete ones, marked and listed last.
    const std::string incomplete = saveBackup(root, config, general, now, error, BackupKind::Incomplete);
    const auto list = listBackups(root);
    ASSERT_EQ(list.size(), kBackupsKept + 1u);
    EXPECT_EQ(
        std::tuple(list.back().path, list.back().incomplete, list[0].incomplete, list[kBackupsKept - 1].path),
        std::tuple(incomplete, true, false, last));
}
