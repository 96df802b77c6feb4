#include "window/ModuleJobs.h"
#include "window/Language.h"

#include "forms/ConfigDiff.h"
#include "forms/LayoutList.h"
#include "model/AddressIndex.h"
#include "ops/Bulk.h"
#include "ops/BusScan.h"
#include "ops/EventControl.h"
#include "ops/PinTransfer.h"
#include "platform/BackupFolder.h"
#include "window/AspectsPage.h"
#include "window/Bindings.h"
#include "window/CompareDialog.h"
#include "window/EventPage.h"
#include "window/FileActions.h"
#include "window/GeneralPage.h"
#include "window/JobRunner.h"
#include "window/KestrelConfig.h"
#include "window/LayoutPage.h"
#include "window/PinConfigPage.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>

namespace kestrel {

void ModuleJobs::add(KestrelConfig& w)
{
    Session& s = *w.core;
    JobRunner& runner = *w.runner;
    JobDispatcher& jobs = w.jobs;
    auto pinConfigToo = [&w] { return w.CheckWritePinConfig->isChecked(); };
    // A verification of a part adds its lines to the report; only Verify All starts it afresh.
    auto verify = [&s](bool (*run)(Session&)) {
        return [&s, run] {
            const bool ok = run(s);
            if (s.onShowVerification)
                s.onShowVerification();
            return ok;
        };
    };
    jobs.add(Jobs::ReadAll, [&w, &runner, &s] {
        bool completed = false;
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Read All"), [&s, &completed] { return completed = ReadAll(s); }, true,
            false, LongJob::ReadAll);
        if (!completed)
            return;
        w.files->saveReadBackup();
        if (w.work.readFromModule(s.general)) {
            w.LabelStatusJob->setText(
                w.LabelStatusJob->text() +
                Lang::tr("; the file held another module, so the configuration is now untitled"));
            w.updateWindowState();
        }
    });
    jobs.add(Jobs::WriteAll, [&runner, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner.writes(withConfig);
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Write All"), [&s, withConfig] { return WriteAll(s, withConfig); },
            false, false, LongJob::WriteAll);
    });
    jobs.add(Jobs::VerifyAll, [&runner, &s] {
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Verify All"), [&s] { return VerifyAll(s); }, false, true,
            LongJob::VerifyAll);
    });
    jobs.add(Jobs::ReadPin, [&runner, &s] {
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Read Pin"), [&s] { return ReadPin(s, s.config.CurrentPin); }, true);
    });
    jobs.add(Jobs::WritePin, [&runner, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner.writes(withConfig);
        runner.run(QT_TRANSLATE_NOOP("Lang", "Write Pin"),
                   [&s, withConfig] { return WritePin(s, s.config.CurrentPin, withConfig); });
    });
    jobs.add(Jobs::ReadDevice, [&runner, &s] {
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Read Device"), [&s] { return ReadDevice(s); }, true);
    });
    jobs.add(Jobs::WriteDevice, [&runner, &s] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Write Device"), [&s] { return WriteDevice(s); });
    });
    jobs.add(Jobs::ReadAllPins, [&runner, &s] {
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Read All Pins"), [&s] { return ReadAllPins(s); }, true, false,
            LongJob::ReadAllPins);
    });
    jobs.add(Jobs::WriteAllPins, [&runner, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner.writes(withConfig);
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Write All Pins"),
            [&s, withConfig] { return WriteAllPins(s, withConfig); }, false, false, LongJob::WriteAllPins);
    });
    jobs.add(Jobs::PAspReadPin, [&runner, &s] {
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Read Pin"), [&s] { return PAspReadPin(s, s.config.CurrentPin); },
            true);
    });
    jobs.add(Jobs::PAspWritePin, [&runner, &s] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Write Pin"), [&s] { return WritePin(s, s.config.CurrentPin); });
    });
    jobs.add(Jobs::VerifyAllPins, [&runner, verify] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Verify All Pins"), verify(&VerifyAllPins), false, true,
                   LongJob::VerifyAllPins);
    });
    jobs.add(Jobs::ECWriteAll, [&runner, &s] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Write All Events"), [&s] { return WriteAllEvents(s); });
    });
    jobs.add(Jobs::ECReadAll, [&runner, &s] {
        runner.run(
            QT_TRANSLATE_NOOP("Lang", "Read All Events"), [&s] { return ReadAllEvents(s); }, true);
    });
    jobs.add(Jobs::ECVerify, [&runner, verify] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Verify Event Control"), verify(&VerifyEventControl), false,
                   true);
    });
    jobs.add(Jobs::WriteChanges, [&runner, &s, pinConfigToo] {
        const bool withConfig = pinConfigToo();
        runner.writes(withConfig);
        runner.run(QT_TRANSLATE_NOOP("Lang", "Write Changes"),
                   [&s, withConfig] { return WriteChanges(s, withConfig); });
    });
    jobs.add(Jobs::CompareModule, [&w, &runner, &s] {
        Configuration module;
        GeneralSettings gmodule;
        bool read = false;
        runner.run(QT_TRANSLATE_NOOP("Lang", "Compare with Module"),
                   [&] { return read = ReadAllInto(s, module, gmodule); });
        if (!read)
            return;
        (*w.guard)([&] { showComparison(w, module, gmodule); });
    });
    jobs.add(Jobs::PAspWriteAspect, [&runner, &s] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Write Aspect"),
                   [&s] { return WriteAspect(s, s.config.CurrentPin, s.config.CurrentAspect); });
    });
    addLayoutJobs(w);
}

void ModuleJobs::addLayoutJobs(KestrelConfig& w)
{
    Session& s = *w.core;
    JobRunner& runner = *w.runner;
    LayoutPage& page = *w.layoutPage;
    // The scan of the route in use; Back Up All and Check All scan first when the list is empty.
    const auto scan = [&s, &page] {
        const bool corvid = s.link.settings.CheckCorvid;
        const std::vector<FoundModule> found = findModules(s, {page.CheckXaddressRange->isChecked()});
        page.found(found, corvid);
        Progress* p = s.link.currentProgress();
        return !(p && p->cancelled());
    };
    const auto listed = [&page, scan] {
        if (page.entries().empty() && !scan())
            return std::vector<FoundModule>{};
        return page.modules();
    };
    w.jobs.add(Jobs::FindModules, [&runner, &w, scan] {
        runner.run(QT_TRANSLATE_NOOP("Lang", "Find Modules"), scan);
        w.tabs->setCurrentWidget(w.layoutPage);
    });
    w.jobs.add(Jobs::BackUpAll, [&runner, &s, &page, listed] {
        std::vector<ModuleBackup> results;
        runner.run(QT_TRANSLATE_NOOP("Lang", "Back Up All"), [&] {
            results = backUpAll(s, listed(), backupRoot().toStdString());
            return std::all_of(results.begin(), results.end(), [](const ModuleBackup& b) { return b.ok; });
        });
        page.backedUp(results);
        std::vector<SummaryRow> rows;
        rows.reserve(results.size());
        for (const ModuleBackup& b : results)
            rows.push_back(summaryRow(b, s.config.NumberingBase));
        page.showSummary(Lang::tr("Back Up All"), latin1(summaryTable(rows)));
    });
    w.jobs.add(Jobs::CheckAll, [&runner, &s, &page, listed] {
        std::vector<ModuleCheck> results;
        runner.run(QT_TRANSLATE_NOOP("Lang", "Check All"), [&] {
            results = checkAll(s, listed(), backupRoot().toStdString());
            return std::all_of(results.begin(), results.end(),
                               [](const ModuleCheck& c) { return c.verdict != CheckVerdict::Failed; });
        });
        page.checked(results);
        // Each module that differs with its differences, as compare prints them; then the table.
        std::string text;
        std::vector<SummaryRow> rows;
        for (const ModuleCheck& c : results) {
            rows.push_back(summaryRow(c, s.config.NumberingBase));
            if (c.differences.empty())
                continue;
            text += shownModule(c.module, s.config.NumberingBase) + " differs from " + c.backup + ":\n";
            for (const std::string& line : c.differences)
                text += line + "\n";
            text += "\n";
        }
        page.showSummary(Lang::tr("Check All"), latin1(text + summaryTable(rows)));
    });
}

void ModuleJobs::setButtons(KestrelConfig& w)
{
    // The buttons that do nothing but start their job.
    const std::pair<QPushButton*, JobName> starters[] = {
        {w.CommandReadAllPins, Jobs::ReadAllPins},
        {w.CommandWriteAllPins, Jobs::WriteAllPins},
        {w.CommandVerifyAllPins, Jobs::VerifyAllPins},
        {w.CommandWriteChanges, Jobs::WriteChanges},
        {w.CommandCompare, Jobs::CompareModule},
        {w.layoutPage->CommandFindModules, Jobs::FindModules},
        {w.layoutPage->CommandBackUpAll, Jobs::BackUpAll},
        {w.layoutPage->CommandCheckAll, Jobs::CheckAll}};
    for (const auto& starter : starters) {
        const JobName job = starter.second;
        QObject::connect(starter.first, &QPushButton::clicked, &w, [&w, job] { w.startJob(job); });
    }
    const AspectsPage& a = *w.aspectsPage;
    const EventPage& e = *w.eventPage;
    const GeneralPage& g = *w.generalPage;
    const LayoutPage& l = *w.layoutPage;
    w.runner->setButtons(
        {w.CommandReadAll,     w.CommandWriteAll,     w.CommandVerifyAll,       w.CommandWriteChanges,
         w.CommandCompare,     w.CommandReadAllPins,  w.CommandWriteAllPins,    w.CommandVerifyAllPins,
         a.CommandReadPin,     a.CommandWritePin,     a.CommandReadDevice,      a.CommandWriteDevice,
         a.CommandPAspReadPin, a.CommandPAspWritePin, a.CommandPAspWriteAspect, e.CommandECRead,
         e.CommandECWrite,     e.CommandECVerify,     l.CommandFindModules,     l.CommandBackUpAll,
         l.CommandCheckAll},
        {w.CommandWriteAll, w.CommandWriteChanges, w.CommandWriteAllPins, a.CommandWritePin,
         a.CommandWriteDevice, a.CommandPAspWritePin, a.CommandPAspWriteAspect, e.CommandECWrite,
         e.CommandECWriteSingle, e.CommandECInitWrite, g.CommandGenIDWrite, g.CommandGenDCCWrite,
         g.CommandGenAddrWrite, g.CommandGenHWCWrite, g.CommandLCWrite, g.CommandGenSerialWrite,
         g.CommandGenEraseFlash, w.pinConfigPage->CommandPCFGSetParam[1]});
}

void ModuleJobs::showComparison(KestrelConfig& w, const Configuration& module, const GeneralSettings& gmodule)
{
    Session& s = *w.core;
    if (!w.frmCompare) {
        w.frmCompare = new CompareDialog(&w);
        QObject::connect(w.frmCompare, &CompareDialog::applyChosen, &w, [&w, &s](bool thenWrite) {
            if (w.frmCompare->chosenCount() > 0)
                (*w.guard)(Lang::tr("Take from Module").toStdString(), [&w, &s] {
                    w.frmCompare->takeChosen(s.config, s.general);
                    RecalcAddressIndex(s.config);
                });
            w.frmCompare->accept();
            w.refreshAll();
            if (thenWrite)
                w.startJob(Jobs::WriteChanges);
        });
    }
    const int base = s.config.NumberingBase;
    w.frmCompare->showDifferences(differences(module, gmodule, s.config, s.general, base), module, gmodule,
                                  base);
    w.frmCompare->show();
    w.frmCompare->raise();
}

} // namespace kestrel
