#include "forms/MainWindowForm.h"
#include "base/Translatable.h"

#include <cctype>
#include <cstdio>

#include "base/UserDialogs.h"
#include "session/Session.h"

namespace kestrel {

std::string CommandSave_MouseDown(Session& session, int button, int shift,
                                  const std::function<bool(const std::string&)>& refused)
{
    if (button != 1 || (shift != 0 && shift != 1))
        return {};
    const SaveForm form = shift == 1 ? SaveForm::Compact : SaveForm::Full;
    std::string path = session.dialogs().saveFileName(KC_TRANSLATABLE("Messages", "Save Configuration"),
                                                      kConfigFileFilter, "");
    if (path.empty() || (refused && refused(path)) || !saveConfigurationTo(session, path, form))
        return {};
    return path;
}

bool saveConfigurationTo(Session& session, const std::string& path, SaveForm form)
{
    std::string error;
    if (saveConfigurationFile(path, session.config, session.general, form, error))
        return true;
    session.dialogs().message("The configuration was not saved: " + error, Icon::Warning);
    return false;
}

LoadOutcome CommandLoad_Click(Session& session)
{
    const std::string path = session.dialogs().openFileName(KC_TRANSLATABLE("Messages", "Load Configuration"),
                                                            kConfigFileFilter, "");
    if (path.empty())
        return {};
    return loadConfigurationFrom(session, path);
}

LoadOutcome loadConfigurationFrom(Session& session, const std::string& path)
{
    std::string why;
    const LoadResult result =
        loadConfigurationFile(path, session.config, session.general, session.dialogs(), &why);
    if (result == LoadResult::CannotOpen)
        session.dialogs().message("Can not open " + path + ": " + why, Icon::Warning);
    return {path, result};
}

namespace {
// Where a job stopped, from its last step: "at pin 12 of 32" or "while reading DCC settings".
std::string whereStopped(const std::string& step)
{
    if (step.empty())
        return "before its first step";
    if (step.rfind("Request", 0) == 0)
        return "at the version request";
    // "<Verb> pin <n>"
    const std::size_t space = step.find(' ');
    if (space != std::string::npos && step.compare(space, 5, " pin ") == 0) {
        const std::string number = step.substr(space + 5);
        if (!number.empty() && number.find_first_not_of("0123456789") == std::string::npos)
            return "at pin " + number + " of " + std::to_string(kPinCount);
    }
    return "while " + std::string(1, static_cast<char>(std::tolower(static_cast<unsigned char>(step[0])))) +
           step.substr(1);
}
} // namespace

std::string jobOutcomeText(const JobEnd& e)
{
    const std::string partial = e.reads ? ": the pages show a partial read" : "";
    std::string outcome;
    if (e.fault)
        return e.title + " stopped by a program error; the configuration is as it was before";
    if (e.cancelled)
        outcome = e.title + " cancelled " + whereStopped(e.lastStep) + partial;
    else if (e.verifies && e.summary.empty())
        outcome = e.ok ? (e.title == "Verify All" ? std::string("Verify OK")
                                                  : e.title + ": the module holds the configuration")
                       : e.title + ": the module differs, see the verification report";
    else if (!e.ok && e.lastStep.empty() && !e.summary.empty())
        outcome = e.summary; // stopped before its first step
    else if (!e.ok)
        outcome = e.title + " stopped " + whereStopped(e.lastStep) + partial;
    else if (!e.summary.empty())
        outcome = e.summary + partial;
    else {
        char seconds[32];
        std::snprintf(seconds, sizeof seconds, "%.1f", e.seconds);
        outcome = e.title + " done in " + seconds + " s";
    }
    // A write that went wrong on the way leaves the module's content unknown.
    if (!e.verifies && !e.reads && !e.summary.empty() && !e.imageKnown)
        outcome += "; the module may hold only part of it";
    return outcome;
}

bool onlyPinConfigurationsDiffer(const std::vector<std::string>& reportLines)
{
    bool any = false;
    for (const std::string& line : reportLines)
        if (line.find("does not compare") != std::string::npos) {
            if (line.find("Pinconfig") == std::string::npos)
                return false;
            any = true;
        }
    return any;
}

} // namespace kestrel
