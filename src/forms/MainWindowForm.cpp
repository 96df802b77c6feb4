#include "forms/MainWindowForm.h"

#include "base/UserDialogs.h"
#include "session/Session.h"

namespace kestrel {

std::string CommandSave_MouseDown(Session& session, int button, int shift)
{
    if (button != 1 || (shift != 0 && shift != 1))
        return {};
    const SaveForm form = shift == 1 ? SaveForm::Compact : SaveForm::Full;
    const std::string path = session.dialogs().saveFileName("Save Configuration", kConfigFileFilter, "");
    if (path.empty() || !saveConfigurationTo(session, path, form))
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
    const std::string path = session.dialogs().openFileName("Load Configuration", kConfigFileFilter, "");
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
    else if (result != LoadResult::InvalidHeader && session.onConfigurationChanged)
        session.onConfigurationChanged();
    return {path, result};
}

} // namespace kestrel
