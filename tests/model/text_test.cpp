#include "model/text.h"

#include <gtest/gtest.h>

using namespace wayscribe;

TEST(TextValue, ReadsTheLeadingNumberLikeTheOriginalConversion)
{
    EXPECT_EQ(textValue("42"), 42);
    EXPECT_EQ(textValue("  42abc"), 42);
    EXPECT_EQ(textValue("abc"), 0);
    EXPECT_EQ(textValue(""), 0);
    EXPECT_EQ(textValue("-3.5x"), -3.5);
    EXPECT_EQ(textValue("1 2"), 12);
    EXPECT_EQ(textValue(".5"), 0.5);
    EXPECT_EQ(textValue("2e3"), 2000);
    EXPECT_EQ(textValue("2e"), 2);
    EXPECT_EQ(textValue("\t7"), 0) << "only blanks are skipped";
}

TEST(TextValue, IndexValuesRoundHalvesToEven)
{
    EXPECT_EQ(indexValue("2.5"), 2);
    EXPECT_EQ(indexValue("3.5"), 4);
    EXPECT_EQ(indexValue("-2.5"), -2);
    EXPECT_EQ(indexValue("2.51"), 3);
    EXPECT_EQ(indexValue("1e300"), 1000000000000000LL);
}

TEST(GeneralFormat, PutsABlankBeforeNumbersThatAreNotNegative)
{
    EXPECT_EQ(formatGeneral(31), " 31");
    EXPECT_EQ(formatGeneral(0), " 0");
    EXPECT_EQ(formatGeneral(-2), "-2");
    EXPECT_EQ(formatGeneral(1.5), " 1.5");
    EXPECT_EQ(formatGeneral(0.25), " .25");
    EXPECT_EQ(formatGeneral(-0.5), "-.5");
}

TEST(Trim, RemovesBlanksOnlyNeverTabsOrLineBreaks)
{
    EXPECT_EQ(trimBlanks("  a b  "), "a b");
    EXPECT_EQ(trimBlanks("\ta\r\n "), "\ta\r\n");
}

TEST(OneLine, EveryLineBreakCharacterBecomesABlankAndNothingElseChanges)
{
    EXPECT_EQ(oneLine("Iron\r\nSword"), "Iron  Sword");
    EXPECT_EQ(oneLine("\ra\nb\r"), " a b ");
    EXPECT_EQ(oneLine("\t\"@/@\""), "\t\"@/@\"") << "tabs, quotes and the note escape stay";
    EXPECT_EQ(oneLine(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(Cuts, OneBasedAndACutThatCannotBeMadeIsEmpty)
{
    EXPECT_EQ(leftChars("abc", 10), "abc");
    EXPECT_EQ(leftChars("abc", -1), "");
    EXPECT_EQ(midChars("abc", 2), "bc");
    EXPECT_EQ(midChars("abc", 4), "");
    EXPECT_EQ(midChars("abc", 0), "") << "a phrase that is absent gives position 0";
    EXPECT_EQ(midChars("abcdef", 2, 3), "bcd");
    EXPECT_EQ(midChars("abcdef", 5, 9), "ef");
    EXPECT_EQ(midChars("abcdef", 2, -1), "");
    EXPECT_EQ(dropLast("abcdef", 2), "abcd");
    EXPECT_EQ(dropLast("ab", 3), "");

    EXPECT_EQ(positionOf("a(b)(c)", "("), 2);
    EXPECT_EQ(positionOf("a(b)(c)", "(", 3), 5);
    EXPECT_EQ(positionOf("a(b)(c)", "(", -4), 2);
    EXPECT_EQ(positionOf("abc", "", 4), 4);
    EXPECT_EQ(positionOf("abc", "", 5), 0);
    EXPECT_EQ(positionOf("abc", "x"), 0);
}

TEST(ChangeCase, ProperAndLowerCase)
{
    EXPECT_EQ(changeCase("hELLO wORLD", true), "Hello World");
    EXPECT_EQ(changeCase("hELLO wORLD", false), "hello world");
    EXPECT_EQ(changeCase("o'neil\tthe\xe9LAN", true), "O'neil\tThe\xe9lan");
    EXPECT_EQ(changeCase("\xe9t\xc9", true), "\xc9t\xe9");
    EXPECT_EQ(changeCase(std::string("a\vb\fc\rd\ne\0f", 11), true), std::string("A\vB\fC\rD\nE\0F", 11));
}

TEST(CsvReader, ReadsValuesAsCommaSeparatedInputDoes)
{
    CsvReader r("  a b  ,\"c, d\"x,e\r\n\r\nWMOL = C:\\x,y\nlast");
    std::string v;
    std::vector<std::string> got;
    while (r.next(v))
        got.push_back(v);
    EXPECT_EQ(got, (std::vector<std::string>{"a b", "c, d", "e", "", "WMOL = C:\\x", "y", "last"}));
}
