#include "files/ItemStream.h"
#include "support/Files.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

using namespace kestrel;

namespace {

std::vector<std::string> allItems(const std::string& text)
{
    ItemReader in(text);
    std::vector<std::string> out;
    while (!in.atEnd())
        out.push_back(in.next());
    return out;
}

} // namespace

TEST(ItemReader, CommasAndLineEndsEndItemsBlanksAndQuotesGo)
{
    using V = std::vector<std::string>;
    EXPECT_EQ(allItems("\"Pin\",3,2,1,\"Lamp\"\r\n  \"Dev\",0,\"\"\r\n"),
              (V{"Pin", "3", "2", "1", "Lamp", "Dev", "0", ""}));
    // A comma between quotes belongs to the text; LF-only and CR-only line ends work too.
    EXPECT_EQ(allItems("\"Signal, home\",  7\n8\r9"), (V{"Signal, home", "7", "8", "9"}));
    // Blank lines give no item; a record may be spread over lines.
    EXPECT_EQ(allItems("\r\n\r\n\"Cfg\",\r\n  4,1\r\n\r\n"), (V{"Cfg", "", "4", "1"}));
    // Single-byte text stays as its bytes.
    EXPECT_EQ(allItems("\"Gr\xFCn\""), (V{"Gr\xFCn"}));
}

TEST(ItemReader, TellsLineAndItemAndWhereTheTextEnded)
{
    ItemReader in("\"A\",1\r\n  \"B\",2,3\r\n");
    in.next();
    in.next();
    EXPECT_EQ(in.next(), "B");
    EXPECT_EQ(std::tuple(in.line(), in.item()), std::tuple(2, 1));
    in.next();
    EXPECT_EQ(in.nextByte(), 3);
    EXPECT_EQ(in.item(), 3);
    try {
        in.next();
        FAIL() << "no item is left";
    } catch (const FileFormatError& e) {
        EXPECT_STREQ(e.what(), "The file ends before \"End\" at line 2, item 4");
        EXPECT_EQ(e.line(), 2);
    }
}

TEST(ItemReader, NumbersAreCheckedForFormAndRange)
{
    auto message = [](const std::string& text, auto read) {
        ItemReader in(text);
        try {
            read(in);
        } catch (const FileFormatError& e) {
            return std::string(e.what());
        }
        return std::string("no error");
    };
    auto byte = [](ItemReader& in) { in.nextByte(); };
    auto int16 = [](ItemReader& in) { in.nextInt16(); };
    auto real = [](ItemReader& in) { in.nextReal(); };
    EXPECT_EQ(message("x", byte), "Number expected, found \"x\" at line 1, item 1");
    EXPECT_EQ(message("1,256", [](ItemReader& in) { in.nextByte(), in.nextByte(); }),
              "Value 256 out of range 0..255 at line 1, item 2");
    EXPECT_EQ(message("-1", byte), "Value -1 out of range 0..255 at line 1, item 1");
    EXPECT_EQ(message("2.5", byte), "Whole number expected, found \"2.5\" at line 1, item 1");
    EXPECT_EQ(message("32768", int16), "Value 32768 out of range -32768..32767 at line 1, item 1");
    EXPECT_EQ(message("-32768", int16), "no error");
    EXPECT_EQ(message("1.2.3", real), "Number expected, found \"1.2.3\" at line 1, item 1");

    ItemReader in("12.5,-0.25,+7,1e3");
    for (double want : {12.5, -0.25, 7.0, 1000.0})
        EXPECT_DOUBLE_EQ(in.nextReal(), want);

    EXPECT_EQ(std::tuple(isNumberItem("31"), isNumberItem(".5"), isNumberItem(""), isNumberItem("PAM"),
                         isNumberItem("-")),
              std::tuple(true, true, false, false, false));
}

TEST(ItemWriter, WritesQuotedTextNumbersIndentationAndCrLfWhateverTheLocale)
{
    ItemWriter w;
    w.line().text("Pin").number(5).number(-1).text("a, b").end();
    w.line(4).text("Ins").real(12.5).real(202).real(-0.0).end();
    EXPECT_EQ(w.result(), "\"Pin\",5,-1,\"a, b\"\r\n    \"Ins\",12.5,202,0\r\n");

    // Numbers keep their point under a comma-decimal locale.
    test::CommaDecimalLocale comma;
    std::ostringstream probe;
    probe << 1234.5;
    EXPECT_EQ(probe.str(), "1.234,5"); // the locale is really in force

    EXPECT_EQ(formatNumber(1234.5), "1234.5");
    EXPECT_EQ(formatNumber(12345L), "12345");
}
