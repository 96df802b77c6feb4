#include "files/ItemStream.h"

#include "model/WireLimits.h"

#include <charconv>
#include <system_error>

namespace kestrel {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }

std::string position(int line, int item)
{
    return " at line " + std::to_string(line) + ", item " + std::to_string(item);
}

} // namespace

FileFormatError::FileFormatError(const std::string& what, int line, int item)
    : std::runtime_error(what + position(line, item)), where{line, item}
{
}

ItemReader::ItemReader(std::string text) : data(std::move(text)) {}

void ItemReader::skipToItem()
{
    while (pos < data.size()) {
        const char c = data[pos];
        if (isBlank(c)) {
            ++pos;
        } else if (isLineEnd(c) && !lastEndedByComma) {
            // A line without items (or the rest of one after its last item).
            ++pos;
            if (c == '\r' && pos < data.size() && data[pos] == '\n')
                ++pos;
            ++curLine;
            curItem = 1;
        } else {
            return;
        }
    }
}

bool ItemReader::atEnd()
{
    skipToItem();
    return pos >= data.size();
}

std::string ItemReader::next()
{
    skipToItem();
    if (pos >= data.size()) {
        // The missing item is due right after the last one that was there.
        lastEndedByComma = false;
        if (itemInLine == 0)
            itemLine = 1;
        itemInLine += 1;
        fail("The file ends before \"End\"");
    }
    itemLine = curLine;
    itemInLine = curItem;

    std::string value;
    if (data[pos] == '"') {
        ++pos;
        const std::size_t start = pos;
        while (pos < data.size() && data[pos] != '"' && !isLineEnd(data[pos]))
            ++pos;
        value.assign(data, start, pos - start);
        if (pos < data.size() && data[pos] == '"')
            ++pos;
        // Anything between the closing quote and the item's end is not part of it.
        while (pos < data.size() && data[pos] != ',' && !isLineEnd(data[pos]))
            ++pos;
    } else {
        const std::size_t start = pos;
        while (pos < data.size() && data[pos] != ',' && !isLineEnd(data[pos]))
            ++pos;
        std::size_t end = pos;
        while (end > start && isBlank(data[end - 1]))
            --end;
        value.assign(data, start, end - start);
    }

    lastEndedByComma = false;
    if (pos < data.size()) {
        const char c = data[pos++];
        if (c == ',') {
            lastEndedByComma = true;
            ++curItem;
        } else {
            if (c == '\r' && pos < data.size() && data[pos] == '\n')
                ++pos;
            ++curLine;
            curItem = 1;
        }
    }
    return value;
}

void ItemReader::fail(const std::string& what) const { throw FileFormatError(what, itemLine, itemInLine); }

namespace {

long long wholeNumber(const ItemReader& reader, const std::string& item, long long lo, long long hi)
{
    const char* first = item.data();
    const char* last = item.data() + item.size();
    if (first != last && *first == '+')
        ++first;
    long long value = 0;
    const auto [ptr, ec] = std::from_chars(first, last, value);
    const auto range = [&] { return " out of range " + std::to_string(lo) + ".." + std::to_string(hi); };
    if (ec == std::errc::result_out_of_range)
        reader.fail("Value " + quoteForMessage(item) + range());
    if (ec != std::errc() || ptr != last || item.empty()) {
        if (isNumberItem(item))
            reader.fail("Whole number expected, found " + quoteForMessage(item));
        reader.fail("Number expected, found " + quoteForMessage(item));
    }
    if (value < lo || value > hi)
        reader.fail("Value " + std::to_string(value) + range());
    return value;
}

} // namespace

int ItemReader::nextByte() { return static_cast<int>(wholeNumber(*this, next(), 0, 255)); }

int ItemReader::nextInt16() { return static_cast<int>(wholeNumber(*this, next(), -32768, 32767)); }

double ItemReader::nextReal()
{
    const std::string item = next();
    if (!isNumberItem(item))
        fail("Number expected, found " + quoteForMessage(item));
    const char* first = item.data();
    if (*first == '+')
        ++first;
    double value = 0;
    const auto [ptr, ec] = std::from_chars(first, item.data() + item.size(), value);
    if (ec != std::errc() || ptr != item.data() + item.size())
        fail("Value " + quoteForMessage(item) + " out of range");
    return value;
}

int ItemReader::nextSendable(int lo, int hi, std::string_view what)
{
    const int value = nextInt16();
    if (value < lo || value > hi)
        fail(cannotSendText(what, value, lo, hi));
    return value;
}

namespace {
// Moves i past a sign at s[i], if there is one.
void skipSign(std::string_view s, std::size_t& i)
{
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        ++i;
}

// Moves i past the digits from s[i] on; true when there was at least one.
bool skipDigits(std::string_view s, std::size_t& i)
{
    const std::size_t from = i;
    while (i < s.size() && s[i] >= '0' && s[i] <= '9')
        ++i;
    return i > from;
}
} // namespace

bool isNumberItem(std::string_view s)
{
    std::size_t i = 0;
    skipSign(s, i);
    bool digits = skipDigits(s, i);
    if (i < s.size() && s[i] == '.') {
        ++i;
        digits = skipDigits(s, i) || digits;
    }
    if (!digits)
        return false;
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E')) {
        ++i;
        skipSign(s, i);
        if (!skipDigits(s, i))
            return false;
    }
    return i == s.size();
}

std::string formatNumber(long value)
{
    char buf[32];
    const auto r = std::to_chars(buf, buf + sizeof buf, value);
    return std::string(buf, r.ptr);
}

std::string formatNumber(double value)
{
    if (value == 0)
        return "0"; // also for -0
    char buf[400];
    const auto r = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed);
    return std::string(buf, r.ptr);
}

ItemWriter& ItemWriter::line(int indent)
{
    out.append(static_cast<std::size_t>(indent), ' ');
    lineHasItem = false;
    return *this;
}

void ItemWriter::separate()
{
    if (lineHasItem)
        out += ',';
    lineHasItem = true;
}

ItemWriter& ItemWriter::text(std::string_view value)
{
    separate();
    out += '"';
    out += value;
    out += '"';
    return *this;
}

ItemWriter& ItemWriter::number(long value)
{
    separate();
    out += formatNumber(value);
    return *this;
}

ItemWriter& ItemWriter::real(double value)
{
    separate();
    out += formatNumber(value);
    return *this;
}

void ItemWriter::end()
{
    out += "\r\n";
    lineHasItem = false;
}

} // namespace kestrel
