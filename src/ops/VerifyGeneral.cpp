#include "ops/VerifyGeneral.h"

#include "ops/GeneralCommands.h"

#include <algorithm>
#include <string>

namespace kestrel {

namespace {

// The verified items in their order.
std::vector<const GeneralItemCodec*> verifiedItems()
{
    std::vector<const GeneralItemCodec*> rows;
    for (const GeneralItemCodec& row : kGeneralCodecs)
        if (row.verifyAt >= 0)
            rows.push_back(&row);
    std::stable_sort(rows.begin(), rows.end(), [](const GeneralItemCodec* a, const GeneralItemCodec* b) {
        return a->verifyAt < b->verifyAt;
    });
    return rows;
}

} // namespace

bool VerifyGeneralSettings(Session& session)
{
    auto& report = session.report;
    const auto& g = session.general;
    bool ok = true;
    auto mismatch = [&](const std::string& line) {
        report.line(line);
        ok = false;
    };

    session.link.setBidirectional(true);
    report.line("Start General Settings Verification");

    const auto rows = verifiedItems();
    const int steps =
        static_cast<int>(std::count_if(rows.begin(), rows.end(), [](const GeneralItemCodec* row) {
            return !generalItemWords(row->item).step.empty();
        }));
    int step = 0;
    for (const GeneralItemCodec* row : rows) {
        const GeneralItemWords words = generalItemWords(row->item);
        if (!words.step.empty())
            session.reportStep(step++, steps, words.step);
        const KestrelReply reply = session.link.request({kGeneralRead, row->item});
        if (!reply.valid)
            return false;
        if (const std::string bad = verifierReplyText(reply, row->item); !bad.empty()) {
            // A wrong reply ends the run, unless the item counts a wrong length as a difference.
            if (words.lengthGoesOn && generalReplyFault(reply, row->item) == ReplyFault::Length) {
                mismatch(bad);
                continue;
            }
            report.line(bad);
            return false;
        }
        const GeneralBytes read = replyData(reply);
        if (words.mismatch.empty()) {
            // The text as the module holds it against the page's whole text.
            GeneralSettings module;
            row->decode(module, read, 0);
            if (module.TextGenIDString != g.TextGenIDString)
                mismatch("ID does not compare: KestrelConfig = <" + g.TextGenIDString + "> Kestrel = <" +
                         module.TextGenIDString + ">");
        } else if (read != row->encode(g)) {
            mismatch(words.mismatch);
        }
    }
    return ok;
}

} // namespace kestrel
