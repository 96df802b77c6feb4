#include "forms/WorkState.h"
#include "base/Translatable.h"
#include "base/UserDialogs.h"
#include "files/ConfigurationFile.h"
#include "files/TextFile.h"
#include "forms/ConfigDiff.h"

#include <functional>

namespace kestrel {

namespace {
// The file's bytes as a number, or none when it cannot be read.
std::optional<std::size_t> fingerprintOf(const std::string& path)
{
    std::string content, error;
    if (!readTextFile(path, content, error))
        return std::nullopt;
    return std::hash<std::string>{}(content);
}

// Loads a data file without telling anyone anything: what a compact file gives back.
class SilentDialogs : public UserDialogs {
public:
    void message(const std::string&, Icon) override {}
    Answer ask(const std::string&, Buttons, Icon) override { return Answer::Cancel; }
    std::string openFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
    std::string saveFileName(const std::string&, const std::string&, const std::string&) override
    {
        return {};
    }
};

// What only the data file keeps: the module has no place for it.
Configuration withoutFileOnly(Configuration c)
{
    for (PinRecord& pin : c.Pins) {
        pin.Description.clear();
        pin.DeviceDescription.clear();
        for (AspectRecord& aspect : pin.Aspects)
            aspect.Description.clear();
    }
    return c;
}
} // namespace

std::string fileContent(const Configuration& config, const GeneralSettings& general)
{
    Configuration copy = config; // the writer tidies what it writes
    return writeConfigurationText(copy, general, SaveForm::Full);
}

bool WorkState::unsaved(const Configuration& config, const GeneralSettings& general) const
{
    if (!unsavedMemo.holds(nullptr, config, general))
        unsavedMemo.keep(nullptr, config, general, !heldText || *heldText != fileContent(config, general));
    return *unsavedMemo.answer;
}

std::string WorkState::moduleState(const ModuleImage* image, const Configuration& config,
                                   const GeneralSettings& general) const
{
    if (!moduleMemo.holds(image, config, general))
        moduleMemo.keep(image, config, general, moduleStateText(image, config, general));
    return *moduleMemo.answer;
}

void WorkState::fileHolds(const std::string& file, const Configuration& config,
                          const GeneralSettings& general)
{
    path = file;
    unsavedMemo.answer.reset();
    heldText = fileContent(config, general);
    heldId = general.TextGenIDString;
    fingerprint = fingerprintOf(file);
}

void WorkState::compactSaved(const std::string& file)
{
    path = file;
    unsavedMemo.answer.reset();
    fingerprint = fingerprintOf(file);
    Configuration config;
    GeneralSettings general;
    SilentDialogs quiet;
    if (loadConfigurationFile(file, config, general, quiet) == LoadResult::Loaded) {
        heldText = fileContent(config, general);
        heldId = general.TextGenIDString;
    } else
        heldText.reset();
}

void WorkState::untitled(const Configuration* asShown, const GeneralSettings* general)
{
    path.clear();
    unsavedMemo.answer.reset();
    fingerprint.reset();
    heldId.clear();
    if (asShown && general)
        heldText = fileContent(*asShown, *general);
    else
        heldText.reset();
}

bool WorkState::readFromModule(const GeneralSettings& read)
{
    if (path.empty() || read.TextGenIDString == heldId)
        return false;
    untitled();
    return true;
}

bool WorkState::changedOnDisk() const { return !path.empty() && fingerprintOf(path) != fingerprint; }

std::string moduleStateText(const ModuleImage* image, const Configuration& config,
                            const GeneralSettings& general)
{
    if (!image)
        return KC_TRANSLATABLE("WorkState", "What the module holds is not known");
    const std::size_t n = differences(withoutFileOnly(image->config), image->general, withoutFileOnly(config),
                                      general, config.NumberingBase)
                              .size();
    if (n == 0)
        return KC_TRANSLATABLE("WorkState", "The module holds what is shown");
    return "The module differs in " + std::to_string(n) + (n == 1 ? " item" : " items");
}

} // namespace kestrel
