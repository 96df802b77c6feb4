#pragma once
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kestrel {

// A fault in the items of a data or definitions file: what went wrong and where. The
// loaders catch it, show its text and keep what they had read.
class FileFormatError : public std::runtime_error {
public:
    FileFormatError(const std::string& what, int line, int item);
    int line() const { return where.line; }
    int item() const { return where.item; }

private:
    struct {
        int line;
        int item;
    } where;
};

// Reads the text of a data or definitions file as a stream of items. A comma or a line
// end (CR LF, LF or CR) ends an item; blanks before an item are skipped; a text item's
// double quotes are removed (a comma between them belongs to the text, there is no
// escape). Blank lines give no item. Bytes are taken as they stand (single-byte text).
class ItemReader {
public:
    explicit ItemReader(std::string text);

    // True when no item is left.
    bool atEnd();

    // The next item; at the end of the text a FileFormatError saying that the file ends
    // before "End", placed just after the last item there was (on its line).
    std::string next();
    // The first item of a file, its header; "" for an empty text.
    std::string firstItem() { return atEnd() ? std::string() : next(); }

    // The next item as a number of the given kind. A missing item, a text that is not a
    // number and a value outside the kind's range are FileFormatErrors.
    int nextByte();  // 0..255
    int nextInt16(); // -32768..32767
    double nextReal();
    // A whole number that the module can be sent: outside lo..hi it is a FileFormatError
    // "<what> <value> cannot be sent: <lo>..<hi>".
    int nextSendable(int lo, int hi, std::string_view what);

    // Where the item last returned stood (line and item within the line, from 1), or,
    // after next() found no item, the place just after the last one.
    int line() const { return itemLine; }
    int item() const { return itemInLine; }

    // A FileFormatError at the item last returned: "<what> at line L, item I".
    [[noreturn]] void fail(const std::string& what) const;

private:
    void skipToItem();
    std::string data;
    std::size_t pos = 0;
    int curLine = 1;
    int curItem = 1; // number the next item on the current line will get
    int itemLine = 1;
    int itemInLine = 0;
    bool lastEndedByComma = false;
};

// Whether an item is a number as the files write it: an optional sign, digits with an
// optional decimal point (at least one digit), and an optional exponent.
bool isNumberItem(std::string_view item);

// Numbers as the files spell them: plain decimal with a point whatever the locale, no
// thousands separator; a whole value carries no point.
std::string formatNumber(long value);
std::string formatNumber(double value);

// Builds the text of a data or definitions file, line by line, CR LF line ends.
class ItemWriter {
public:
    // Starts a line with the given indentation (blanks before the first item).
    ItemWriter& line(int indent = 0);
    ItemWriter& text(std::string_view value); // in double quotes, as it stands
    ItemWriter& number(long value);
    ItemWriter& real(double value);
    // Ends the current line with CR LF.
    void end();

    const std::string& result() const { return out; }

private:
    void separate();
    std::string out;
    bool lineHasItem = false;
};

} // namespace kestrel
