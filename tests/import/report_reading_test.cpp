#include "import/paragraph_accumulator.h"
#include "import/report_reader.h"
#include "model/text.h"
#include "support/test_support.h"

#include <gtest/gtest.h>

namespace wayscribe::test {

TEST(ReportReading, WholeLinesAndFieldsContinueFromTheSamePlace)
{
    CsvReader r("a, b,c\r\n  \"q,x\" , tail\nlast");
    std::string t;
    ASSERT_TRUE(r.next(t));
    EXPECT_EQ(t, "a");
    ASSERT_TRUE(r.nextLine(t));
    EXPECT_EQ(t, " b,c"); // the rest of the line, untrimmed
    EXPECT_EQ(r.line(), 2);
    ASSERT_TRUE(r.next(t));
    EXPECT_EQ(t, "q,x");
    ASSERT_TRUE(r.next(t));
    EXPECT_EQ(t, "tail");
    ASSERT_TRUE(r.nextLine(t));
    EXPECT_EQ(t, "last");
    EXPECT_TRUE(r.atEnd());
    EXPECT_FALSE(r.nextLine(t));
}

TEST(ReportReading, ReportsThatCannotBeReadSayWhy)
{
    TempDir dir;
    ReportReader in;
    FileError error;
    EXPECT_FALSE(in.open(dir.file("missing.htm"), error));
    EXPECT_EQ(error.path, dir.file("missing.htm"));
    EXPECT_FALSE(error.reason.empty());
    EXPECT_FALSE(in.open(dir.path().string(), error));
    EXPECT_EQ(error.reason, "it is a folder, not a file");
}

TEST(ReportReading, AccumulatorFindsPhrasesAcrossAppendsAndCuts)
{
    ParagraphAccumulator acc;
    acc.append("xx Initial expl");
    EXPECT_FALSE(acc.contains("Initial explorations"));
    acc.append("orations and more");
    EXPECT_EQ(acc.position("Initial explorations"), 4);
    acc.append(" Initial explorations");
    EXPECT_EQ(acc.position("Initial explorations"), 4); // the first one counts
    acc.assign(acc.text().substr(10));
    EXPECT_EQ(acc.position("Initial explorations"), 24);
    EXPECT_EQ(acc.position("xx"), 0);
    acc.clear();
    EXPECT_FALSE(acc.contains("Initial explorations"));
    acc.append("Initial explorations");
    EXPECT_EQ(acc.position("Initial explorations"), 1);
}

} // namespace wayscribe::test
