#include "forms/DevicesForm.h"
#include "base/Translatable.h"

#include "base/UserDialogs.h"
#include "files/TextFile.h"
#include "model/PinTools.h"

#include <filesystem>

namespace kestrel {

std::string standardDeviceFile(const std::string& programFolder)
{
    const std::filesystem::path beside = std::filesystem::path(programFolder) / kStandardDeviceFile;
    const std::filesystem::path installed =
        std::filesystem::path(programFolder) / ".." / "share" / "kestrel-config" / kStandardDeviceFile;
    std::error_code error;
    return (std::filesystem::exists(beside, error) || !std::filesystem::exists(installed, error) ? beside
                                                                                                 : installed)
        .string();
}

void loadStandardDeviceList(DeviceList& list, const std::string& programFolder, UserDialogs& dialogs)
{
    const std::string standard = standardDeviceFile(programFolder);
    if (readDeviceList(list, standard, ListMode::Replace, dialogs) != ListLoad::CannotOpen)
        return;
    dialogs.message(
        KC_TRANSLATABLE("Messages", "Can not find Device Configuration file at standard location"),
        Icon::Warning);
    const std::string chosen = dialogs.openFileName(KC_TRANSLATABLE("Messages", "Load Device Definitions"),
                                                    kDeviceFileFilter, kStandardDeviceFile);
    if (chosen.empty() || readDeviceList(list, chosen, ListMode::Replace, dialogs) == ListLoad::CannotOpen)
        dialogs.message(KC_TRANSLATABLE("Messages", "No Device Configuration available"), Icon::Warning);
}

void CommandReloadDD_MouseDown(DeviceList& list, UserDialogs& dialogs, int button, int shift)
{
    if (button != 1)
        return;
    const ListMode mode = shift == 1 ? ListMode::Append : ListMode::Replace;
    const std::string path =
        dialogs.openFileName(KC_TRANSLATABLE("Messages", "Load Device Definitions"), kDeviceFileFilter, "");
    if (readDeviceList(list, path, mode, dialogs) == ListLoad::CannotOpen)
        dialogs.message(KC_TRANSLATABLE("Messages", "No Device Configuration file selected"), Icon::Warning);
}

bool CommandPAspPreLoad_Click(const DeviceList& list, Configuration& config, UserDialogs& dialogs)
{
    if (list.selected < 0 || list.selected >= static_cast<int>(list.cboDevice.size())) {
        dialogs.message(KC_TRANSLATABLE("Messages", "Select Devicename to load"), Icon::Warning);
        return false;
    }
    const std::string& path = list.paths[list.selected];
    std::string text;
    std::string error;
    if (!readTextFile(path, text, error)) {
        dialogs.message("Can not open " + path + ": " + error, Icon::Warning);
        return false;
    }
    return loadDeviceFromText(text, list.cboDevice[list.selected], config, dialogs);
}

bool CommandSaveDevice_Click(Configuration& config, UserDialogs& dialogs)
{
    const int head = deviceHead(config, config.CurrentPin);
    if (config.pin(head).DeviceOffset != 0) {
        dialogs.message(KC_TRANSLATABLE("Messages", "Referral is not a device"), Icon::Warning);
        return false;
    }
    const std::string path =
        dialogs.saveFileName(KC_TRANSLATABLE("Messages", "Save Device"), kDeviceFileFilter, "");
    if (path.empty())
        return false;
    std::string error;
    if (!saveDeviceFile(path, config, head, error)) {
        dialogs.message("The device was not saved: " + error, Icon::Warning);
        return false;
    }
    return true;
}

} // namespace kestrel
