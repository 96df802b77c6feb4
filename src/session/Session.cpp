#include "session/Session.h"

namespace kestrel {

Session::Session(SerialPort& port, Clock& clock, UserDialogs& dialogs)
    : jobDialogs(dialogs, outcome), link(port, clock, jobDialogs), linkControl(link, config.NumberingBase)
{
    link.onExchange = [this](const std::vector<int>& bytes, bool expectReply, bool ok) {
        exchanged(bytes, expectReply, ok);
    };
}

void Session::exchanged(const std::vector<int>& bytes, bool expectReply, bool ok)
{
    if (!ok || (!expectReply && changesModule(bytes) && trackedWrites == 0)) {
        if (trackedWrites > 0)
            trackedWriteFailed = true;
        dropImage();
    }
}

ModuleKey Session::moduleKey() const
{
    const LinkSettings& s = link.settings;
    return {linkControl.ComboPortText, s.CheckCorvid, s.TargetAddress, s.CheckXaddress,
            s.CheckXaddress ? s.TargetXAddress : 0};
}

const ModuleImage* Session::moduleImage() const
{
    const auto found = images.find(moduleKey());
    return found == images.end() ? nullptr : &found->second;
}

void Session::imageHolds(const Configuration& c, const GeneralSettings& g)
{
    images[moduleKey()].take(c, g, true);
}

void Session::dropImage() { images.erase(moduleKey()); }

void Session::noteModuleId(const std::string& id)
{
    if (const ModuleImage* image = moduleImage(); image && image->general.TextGenIDString != id)
        dropImage();
}

bool Session::trackedWrite(const std::function<bool()>& write, bool create,
                           const std::function<void(ModuleImage&)>& update)
{
    if (link.recording) // only listing the frames: nothing reaches the module
        return write();
    if (trackedWrites++ == 0)
        trackedWriteFailed = false;
    bool ok = false;
    try {
        ok = write();
    } catch (...) {
        endTrackedWrite(false, create, update);
        throw;
    }
    endTrackedWrite(ok, create, update);
    return ok;
}

void Session::endTrackedWrite(bool ok, bool create, const std::function<void(ModuleImage&)>& update)
{
    if (trackedWrites == 0 || --trackedWrites > 0)
        return;
    if (!ok || trackedWriteFailed) {
        dropImage();
        return;
    }
    const auto found = images.find(moduleKey());
    if (found != images.end())
        update(found->second);
    else if (create)
        update(images[moduleKey()]);
}

void Session::JobDialogs::message(const std::string& text, Icon icon)
{
    if (outcome.running && icon != Icon::Information)
        outcome.problems.push_back(text.substr(0, text.find_first_of("\r\n")));
    ui.message(text, icon);
}

void Session::beginJob(const std::string& name)
{
    if (jobDepth++ > 0)
        return;
    outcome = JobOutcome{};
    outcome.job = name;
    outcome.running = true;
}

bool Session::asJob(const std::string& name, const std::function<bool()>& job)
{
    beginJob(name);
    bool ok = false;
    try {
        ok = job();
    } catch (...) {
        endJob(false);
        throw;
    }
    endJob(ok);
    return ok;
}

void Session::endJob(bool completed)
{
    if (jobDepth == 0 || --jobDepth > 0)
        return;
    outcome.running = false;
    outcome.completed = completed;
    Progress* progress = link.currentProgress();
    outcome.cancelled = progress && progress->cancelled();
}

void Session::reportStep(int done, int total, const std::string& what)
{
    outcome.step = what;
    if (Progress* p = link.currentProgress())
        p->step(done, total, what);
}

std::string Session::jobSummary() const
{
    const JobOutcome& o = outcome;
    if (!o.incomplete() || o.job.empty())
        return {};
    const std::string at = o.step.empty() ? std::string() : " at " + o.step;
    if (o.cancelled)
        return o.job + " cancelled" + at;
    // A job that stopped has just said why; one that stopped before its first step (a
    // value that cannot be sent) names it here.
    if (!o.completed)
        return o.job + " stopped" + at +
               (o.step.empty() && !o.problems.empty() ? ": " + o.problems.front() : "");
    const std::size_t n = o.problems.size();
    return o.job + " incomplete: " + std::to_string(n) + (n == 1 ? " problem" : " problems") +
           " reported, the first: " + o.problems.front();
}

} // namespace kestrel
