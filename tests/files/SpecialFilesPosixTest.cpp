// Saving over FIFOs and symbolic links (POSIX only: not built for Windows).
#include "files/ConfigurationFile.h"
#include "files/TextFile.h"
#include "support/Files.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace kestrel;
using namespace kestrel::test;

TEST(DataFileSaving, RefusesAFifoAndFollowsALink)
{
    ScratchDir dir("special");
    Configuration c;
    const GeneralSettings general;
    std::string error, text;

    // A FIFO is refused, saying why, is never waited on and leaves no temporary file.
    const std::string fifo = dir.file("fifo.dat");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(saveConfigurationFile(fifo, c, general, SaveForm::Full, error));
    EXPECT_EQ(error, "Can not replace " + fifo + ": Not a regular file");
    EXPECT_FALSE(std::filesystem::exists(temporaryPathFor(fifo)));
    EXPECT_FALSE(readTextFile(fifo, text, error));
    EXPECT_EQ(std::filesystem::status(fifo).type(), std::filesystem::file_type::fifo);

    // A symbolic link is followed: its target is replaced and keeps its permissions (0600);
    // a link left at the temporary name is not written through.
    const std::string link = dir.file("link.dat"), linked = dir.file("linked.dat");
    spit(linked, "old");
    chmod(linked.c_str(), 0600);
    std::filesystem::create_symlink("linked.dat", link);
    spit(dir.file("elsewhere"), "kept");
    std::filesystem::create_symlink("elsewhere", temporaryPathFor(link));
    ASSERT_TRUE(saveConfigurationFile(link, c, general, SaveForm::Full, error)) << error;
    EXPECT_EQ(std::tuple(std::filesystem::is_symlink(link), slurp(linked),
                         std::filesystem::status(linked).permissions(), slurp(dir.file("elsewhere"))),
              std::tuple(true, writeConfigurationText(c, general, SaveForm::Full),
                         std::filesystem::perms::owner_read | std::filesystem::perms::owner_write, "kept"));
}
