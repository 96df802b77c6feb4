#include "base/Text.h"

#include <charconv>
#include <cmath>
#include <system_error>

namespace kestrel {

double val(const std::string& text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    const std::size_t signAt = i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-'))
        ++i;
    std::string number = signAt < i && text[signAt] == '-' ? "-" : "";
    bool any = false;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
        number += text[i++];
        any = true;
    }
    if (i < text.size() && text[i] == '.') {
        number += text[i++];
        while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
            number += text[i++];
            any = true;
        }
    }
    if (!any)
        return 0;
    // Converted in one go, correctly rounded: "0.3" is the double nearest 0.3, so that
    // it is written back as "0.3" and not with the noise of digit-by-digit sums.
    double value = 0;
    const auto r = std::from_chars(number.data(), number.data() + number.size(), value);
    if (r.ec == std::errc::result_out_of_range && number.find('.') == std::string::npos)
        return number[0] == '-' ? -HUGE_VAL : HUGE_VAL;
    return value;
}

long valInt(const std::string& text)
{
    const double v = val(text);
    if (v > 2e9)
        return 2000000000L;
    if (v < -2e9)
        return -2000000000L;
    return std::lround(v);
}

std::string hexUpper(unsigned value)
{
    static const char digits[] = "0123456789ABCDEF";
    if (value == 0)
        return "0";
    std::string out;
    while (value) {
        out.insert(out.begin(), digits[value & 15]);
        value >>= 4;
    }
    return out;
}

} // namespace kestrel
