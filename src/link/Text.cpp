#include "link/Text.h"

#include <cmath>

namespace kestrel {

double val(const std::string& text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    double value = 0;
    bool any = false;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
        value = value * 10 + (text[i] - '0');
        any = true;
        ++i;
    }
    if (i < text.size() && text[i] == '.') {
        ++i;
        double scale = 0.1;
        while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
            value += (text[i] - '0') * scale;
            scale /= 10;
            any = true;
            ++i;
        }
    }
    if (!any)
        return 0;
    return negative ? -value : value;
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
