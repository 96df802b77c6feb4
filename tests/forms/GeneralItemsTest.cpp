// Every general item, taken from its table rows alone, is named by the traffic monitor,
// written by Write All and counted by the estimate, checked before it is sent, kept by the
// data file and told apart by the comparison: a row added there is not forgotten elsewhere.
#include "files/ConfigurationFile.h"
#include "files/DemoConfiguration.h"
#include "forms/ConfigDiff.h"
#include "forms/FrameDecoder.h"
#include "ops/Bulk.h"
#include "ops/Estimate.h"
#include "ops/SendCheck.h"
#include "support/Frames.h"
#include "support/SimSession.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace kestrel;
using namespace kestrel::test;

namespace {

std::string itemText(const GeneralItemCodec& row)
{
    return "item " + std::to_string(row.item) + " (" + generalItemInfo(row.item)->name + ")";
}

// Settings whose every item holds something else than in g.
GeneralSettings otherThan(const GeneralSettings& g, const GeneralItemCodec& row)
{
    GeneralSettings other = g;
    GeneralBytes bytes = row.encode(g);
    for (int& b : bytes)
        b ^= 1;
    row.decode(other, bytes, 0);
    return other;
}

} // namespace

TEST(GeneralItems, EveryRowIsNamedWrittenCountedCheckedFiledAndCompared)
{
    SimSession sim;
    Session& s = sim.session;
    fillDemoConfiguration(s.config, s.general);
    s.link.settings.CheckKestrelBD = true;
    const std::vector<std::vector<int>> planned = plannedWrites(s, s.config, s.general);

    std::string text = writeConfigurationText(s.config, s.general, SaveForm::Full);
    Configuration loadedConfig;
    GeneralSettings loaded;
    ASSERT_EQ(readConfigurationText(text, loadedConfig, loaded, sim.dialogs), LoadResult::Loaded);

    GeneralSettings refused = s.general;
    for (int* box : {&refused.OptGenDCC_PRP, &refused.CheckGenSerialEnable, &refused.CheckInitEE[0],
                     &refused.ChkGenHWCSink[0], &refused.CheckLCGreen[6], &refused.CheckGenXGM[3]})
        *box = 300;
    refused.TextGenIDString = "\xe9";
    refused.TextGenDCCAddress = refused.TextGenXDCCAddress = "9000";
    refused.ExtendedAddress = refused.LynxFlexAddress = 300;

    for (const GeneralItemCodec& row : kGeneralCodecs) {
        SCOPED_TRACE(itemText(row));
        const GeneralBytes data = row.encode(s.general);
        std::vector<int> write{kGeneralWrite, row.item};
        write.insert(write.end(), data.begin(), data.end());
        std::vector<int> reply{kGeneralRead, row.item};
        reply.insert(reply.end(), data.begin(), data.end());

        // The traffic monitor names the item both ways.
        const int header = 128 + static_cast<int>(write.size());
        EXPECT_NE(
            decodeFrame(FrameDirection::Out, FrameRoute::Direct, frame<std::vector<int>>({1, header}, write))
                .text.find(itemText(row)),
            std::string::npos);
        EXPECT_NE(decodeFrame(FrameDirection::In, FrameRoute::Direct, moduleReply(1, reply))
                      .text.find(itemText(row)),
                  std::string::npos);

        // Write All sends it once, as long as its row says.
        EXPECT_EQ(std::count(planned.begin(), planned.end(), write), 1);
        if (generalWriteLength(row.item) != 0) {
            EXPECT_EQ(static_cast<int>(write.size()), generalWriteLength(row.item));
        }

        // Nothing of it goes out when a value cannot be sent.
        EXPECT_NE(unsendableFamily(refused, row.family), "");

        // The data file keeps it under its keyword.
        if (*row.record != '\0') {
            EXPECT_NE(text.find(std::string("\"") + row.record + "\""), std::string::npos);
            EXPECT_EQ(row.encode(loaded), data);
        }

        // The comparison tells it apart, and taking every difference makes it the same.
        if (*row.record != '\0') {
            const GeneralSettings other = otherThan(s.general, row);
            ASSERT_NE(row.encode(other), data);
            GeneralSettings taken = s.general;
            Configuration scratch = s.config;
            for (const Difference& d : differences(s.config, s.general, s.config, other, 0)) {
                EXPECT_EQ(d.item.rfind("general ", 0), 0u) << d.item;
                d.take(s.config, other, scratch, taken);
            }
            EXPECT_EQ(row.encode(taken), row.encode(other));
        }
    }

    // The estimate counts every frame Write All sends, each acknowledged by the module.
    const JobTraffic traffic = jobTraffic(LongJob::WriteAll, s.config, s.general, s.link.settings, true);
    long bytes = 0;
    for (const auto& f : planned)
        bytes += static_cast<long>(f.size()) + 3;
    EXPECT_EQ(traffic.exchanges, static_cast<long>(planned.size()));
    EXPECT_EQ(traffic.bytesOut, bytes);
}
