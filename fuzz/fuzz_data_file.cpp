// The configuration data file reader, fed arbitrary text. Whatever the text, reading
// ends in one of the reader's results without a program fault, nothing it lets into the
// model is a value that cannot be sent, and what it read can be written and read back.
#include "FuzzSupport.h"
#include "base/ProgramFault.h"
#include "files/ConfigurationFile.h"
#include "ops/SendCheck.h"
#include "support/RecordingDialogs.h"

using namespace kestrel;

namespace {

bool storable(const std::string& text) { return text.find_first_of("\"\r\n") == std::string::npos; }

// Texts with a double quote or a line end cannot be stored (the files have no escape),
// so the read-back check only applies when none of the texts holds one.
bool allTextsStorable(const Configuration& c, const GeneralSettings& g)
{
    if (!storable(g.TextGenIDString))
        return false;
    for (const auto& pin : c.Pins) {
        if (!storable(pin.Description) || !storable(pin.DeviceDescription))
            return false;
        for (const auto& aspect : pin.Aspects)
            if (!storable(aspect.Description))
                return false;
    }
    return true;
}

LoadResult read(const std::string& text, Configuration& config, GeneralSettings& general,
                UserDialogs& dialogs)
{
    try {
        return readConfigurationText(text, config, general, dialogs);
    } catch (const ProgramFault& fault) {
        fuzz::finding(std::string("ProgramFault while reading: ") + fault.what());
        return LoadResult::FormatError;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::InputReader in(data, size);
    const std::string text = in.restAsText();

    Configuration config;
    GeneralSettings general;
    test::RecordingDialogs dialogs;
    const LoadResult result = read(text, config, general, dialogs);
    fuzz::expect(result != LoadResult::CannotOpen, "text reader says it cannot open");
    if (result == LoadResult::InvalidHeader)
        return 0;
    // Nothing that cannot be sent gets into the model from a file.
    const std::string unsendable = unsendableConfiguration(config, general, true);
    if (!unsendable.empty())
        fuzz::finding("a loaded value cannot be sent: " + unsendable);

    // Whatever was read can be written, both ways.
    const std::string full = writeConfigurationText(config, general, SaveForm::Full);
    const std::string compact = writeConfigurationText(config, general, SaveForm::Compact);
    if (!allTextsStorable(config, general))
        return 0;

    // And what was written reads back completely, without a message.
    for (const std::string* written : {&full, &compact}) {
        Configuration again;
        GeneralSettings generalAgain;
        test::RecordingDialogs quiet;
        const LoadResult back = read(*written, again, generalAgain, quiet);
        if (back != LoadResult::Loaded || !quiet.messages.empty()) {
            std::fprintf(stderr, "written text:\n%s\n", written->c_str());
            for (const auto& m : quiet.messages)
                std::fprintf(stderr, "message: %s\n", m.text.c_str());
            fuzz::finding("a written data file does not read back");
        }
    }
    return 0;
}
