#pragma once
#include "model/Configuration.h"
#include "session/GeneralSettings.h"
#include "session/ModuleImage.h"

#include <optional>
#include <string>

namespace kestrel {

// What the window tells apart about the configuration it shows: whether its data file
// keeps it (the title's "*"), and whether the module holds it (the status bar).
//
// The file side counts everything a full data file holds, what only the file keeps
// (descriptions, device names) included; nothing but a load or a save changes which file
// that is or what it holds. Reading or writing the module never makes the work saved.
class WorkState {
public:
    // The file of the configuration, "" while it is untitled.
    const std::string& file() const { return path; }
    // Whether the configuration differs from what its file holds, or was never saved.
    bool unsaved(const Configuration& config, const GeneralSettings& general) const;

    // The file was loaded, or saved in full: it holds exactly this configuration.
    void fileHolds(const std::string& file, const Configuration& config, const GeneralSettings& general);
    // A compact file was saved: it holds what it loads back to, which need not be all.
    void compactSaved(const std::string& file);
    // The configuration belongs to no file: Save asks for a name. `asShown` is what the user
    // has not changed since (a backup just restored); without it the work counts unsaved.
    void untitled(const Configuration* asShown = nullptr, const GeneralSettings* general = nullptr);
    // The module answered a Read All with these general settings: when its ID string is
    // not the one the file was saved with, the file belongs to another module and the
    // configuration becomes untitled. True when it did.
    bool readFromModule(const GeneralSettings& read);
    // Whether the file changed on disk since it was loaded or saved here (changed, gone or
    // replaced by something else); false for an untitled configuration.
    bool changedOnDisk() const;

    // moduleStateText, worked out again only when something it depends on changed.
    std::string moduleState(const ModuleImage* image, const Configuration& config,
                            const GeneralSettings& general) const;

private:
    // The last question and its answer: a window asks after every keystroke, and the
    // configuration compares far faster than it is written out.
    template <typename Answer> struct Memo {
        Configuration config;
        GeneralSettings general;
        std::optional<ModuleImage> image;
        std::optional<Answer> answer;
        bool holds(const ModuleImage* i, const Configuration& c, const GeneralSettings& g) const
        {
            return answer && config == c && general == g && image.has_value() == (i != nullptr) &&
                   (!i || (image->config == i->config && image->general == i->general));
        }
        void keep(const ModuleImage* i, const Configuration& c, const GeneralSettings& g, Answer a)
        {
            config = c;
            general = g;
            image = i ? std::optional<ModuleImage>(*i) : std::nullopt;
            answer = std::move(a);
        }
    };
    mutable Memo<bool> unsavedMemo;
    mutable Memo<std::string> moduleMemo;

    std::string path;
    std::optional<std::string> heldText; // the full data file text of what the file holds
    std::string heldId;                  // the ID string the file holds
    std::optional<std::size_t> fingerprint;
};

// The full data file text of a configuration: what "saved" is measured by.
std::string fileContent(const Configuration& config, const GeneralSettings& general);

// Whether the module holds what is shown, as the status bar says it: "The module holds what
// is shown", "The module differs in 3 items", "What the module holds is not known". What
// only the data file keeps (descriptions, device names) does not count.
std::string moduleStateText(const ModuleImage* image, const Configuration& config,
                            const GeneralSettings& general);

} // namespace kestrel
