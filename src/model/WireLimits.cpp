#include "model/WireLimits.h"

namespace kestrel {

std::string cannotSendText(std::string_view what, std::string_view value, long lo, long hi)
{
    return std::string(what) + " " + std::string(value) + " cannot be sent: " + std::to_string(lo) + ".." +
           std::to_string(hi);
}

std::string cannotSendText(std::string_view what, long value, long lo, long hi)
{
    return cannotSendText(what, std::to_string(value), lo, hi);
}

std::string quoteForMessage(std::string_view text)
{
    constexpr std::size_t kQuoted = 60;
    if (text.size() <= kQuoted)
        return "\"" + std::string(text) + "\"";
    return "\"" + std::string(text.substr(0, kQuoted)) + "...\"";
}

bool isIdStringCharacter(char c) { return static_cast<unsigned char>(c) <= kDataByteMax; }

IdStringCheck checkIdString(std::string_view id)
{
    IdStringCheck check;
    for (std::size_t i = 0; i < id.size(); ++i) {
        if (!isIdStringCharacter(id[i])) {
            check.refused = true;
            check.message =
                cannotSendText("ID string character", static_cast<unsigned char>(id[i]), 0, kDataByteMax);
            check.message.insert(check.message.find(" cannot"), " at position " + std::to_string(i + 1));
            check.text = std::string(id.substr(0, kIdStringLength));
            return check;
        }
    }
    check.text = std::string(id.substr(0, kIdStringLength));
    if (id.size() > kIdStringLength)
        check.message = "ID string cut to 12 characters: " + check.text;
    return check;
}

} // namespace kestrel
