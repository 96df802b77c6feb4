#pragma once
#include "link/Link.h"
#include "link/LinkControl.h"
#include "model/Configuration.h"
#include "session/EventControlPage.h"
#include "session/GeneralSettings.h"
#include "session/ModuleImage.h"
#include "session/Report.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kestrel {

// What the last job left undone, so that a front end can say so when it ends (the batch
// tool's last line on stderr, the window's status bar). Cleared when a job begins; while
// it runs, every message the core shows (a reader's or writer's complaint, the link's
// missing reply; not notices with the information icon) is noted, and so is the last
// step the job reported through its progress.
struct JobOutcome {
    std::string job; // "Read All", "Write All", ... as begun
    bool running = false;
    bool completed = false;            // every step of the job returned True
    bool cancelled = false;            // the user cancelled it
    std::string step;                  // the last step reported ("Reading pin 12")
    std::vector<std::string> problems; // the first line of every message shown, in order
    // The job stopped, was cancelled, or something was reported on the way.
    bool incomplete() const { return !completed || cancelled || !problems.empty(); }
};

// Everything the program holds for its whole life about the one module it talks
// to: the configuration, the link and its settings. Both front ends own one.
class Session {
private:
    // Passes everything on to the front end's dialogs, noting messages for the job.
    class JobDialogs : public UserDialogs {
    public:
        JobDialogs(UserDialogs& ui, JobOutcome& outcome) : ui(ui), outcome(outcome) {}
        void message(const std::string& text, Icon icon) override;
        Answer ask(const std::string& text, Buttons buttons, Icon icon) override
        {
            return ui.ask(text, buttons, icon);
        }
        std::string openFileName(const std::string& t, const std::string& f, const std::string& d) override
        {
            return ui.openFileName(t, f, d);
        }
        std::string saveFileName(const std::string& t, const std::string& f, const std::string& d) override
        {
            return ui.saveFileName(t, f, d);
        }

    private:
        UserDialogs& ui;
        JobOutcome& outcome;
    };
    // Declared before the link, which is built with jobDialogs.
    JobOutcome outcome;
    JobDialogs jobDialogs;
    int jobDepth = 0;
    std::map<ModuleKey, ModuleImage> images;
    int trackedWrites = 0;
    bool trackedWriteFailed = false;
    void exchanged(const std::vector<int>& bytes, bool expectReply, bool ok);
    void endTrackedWrite(bool ok, bool create, const std::function<void(ModuleImage&)>& update);

public:
    Session(SerialPort& port, Clock& clock, UserDialogs& dialogs);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Configuration config;
    Link link;
    LinkControl linkControl; // follows config.NumberingBase
    GeneralSettings general;
    EventControlPage eventControl;
    Report report;

    UserDialogs& dialogs() { return link.dialogs(); }

    // Jobs. beginJob clears lastJob and names it; a job begun while another runs (Write
    // All begun by the window's "WriteAll" job) is part of the outer one. endJob takes
    // whether the job ran to its end; only the outermost call counts.
    void beginJob(const std::string& name);
    void endJob(bool completed);
    // Runs `job` between beginJob and endJob; it returns whether it ran to its end, and a
    // fault thrown from it ends the job as incomplete. Returns what the job returned.
    bool asJob(const std::string& name, const std::function<bool()>& job);
    const JobOutcome& lastJob() const { return outcome; }
    // "" when the last job ran to its end and nothing was reported; otherwise one line
    // saying what was incomplete: "Read All incomplete: 1 problem reported, the first:
    // Read Event-Off: Function not supported by Device", "Write All stopped at Writing
    // pin 12", "Write All stopped: DCC address 9000 cannot be sent: 0..8191", "Read All
    // cancelled at Reading pin 3".
    std::string jobSummary() const;
    // A job's progress: noted for the summary and passed to the front end's Progress.
    void reportStep(int done, int total, const std::string& what);

    // Verify All has written its report: the window shows its verification window
    // (optional). What a job or a load changes the session does not announce: the window
    // shows it on every page when the job or the load has ended.
    std::function<void()> onShowVerification;

    // The image of each module (by port and addresses) as last read, written or verified,
    // so that only what changed need be written. An exchange that fails, and any write
    // that changes the module outside a tracked write, drop the image of the module
    // addressed; so does a different module answering (noteModuleId).
    ModuleKey moduleKey() const;
    // The image of the module now addressed; null when there is none.
    const ModuleImage* moduleImage() const;
    // The module now addressed holds this configuration and these general settings (after
    // a Read All or a Verify All that compared equal, or as a file says): every pin's
    // configuration too.
    void imageHolds(const Configuration& c, const GeneralSettings& g);
    void dropImage();
    // The module answered with this ID string: a different one from the image's means
    // another module answers at this address.
    void noteModuleId(const std::string& id);
    // Runs a write whose frames the image follows. Sends inside it keep the image; when it
    // ends, a write that succeeded brings the image up to date through `update` (creating
    // it first when `create`), and one that failed (or threw) drops it. Tracked writes
    // nest: only the outermost one updates.
    bool trackedWrite(const std::function<bool()>& write, bool create,
                      const std::function<void(ModuleImage&)>& update);
};

} // namespace kestrel
