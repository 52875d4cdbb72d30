#include "csv.h"

#include <gmock/gmock.h>

#include "failure_of.h"

namespace quordsp::cli {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<double> column(const std::string& text, std::size_t index = 0)
{
    return CsvDocument(text, "f.csv").columns(std::vector{index})[0];
}

std::string failure(const std::string& text, std::size_t index = 0)
{
    return messageOf([&] { column(text, index); });
}

TEST(Csv, ReadsAColumnBelowItsName)
{
    const CsvDocument document("x_g,y_g\n1,2\n3,4.5\n", "f.csv");
    EXPECT_THAT(document.names(), ElementsAre("x_g", "y_g"));
    EXPECT_THAT(document.columns(std::vector<std::size_t>{1})[0], ElementsAre(2, 4.5));
}

TEST(Csv, ReadsSeveralColumnsInTheOrderAskedFor)
{
    const CsvDocument document("a,b,c\n1,2,3\n4,5,6\n", "f.csv");
    EXPECT_THAT(document.columns(std::vector<std::size_t>{2, 0}), ElementsAre(ElementsAre(3, 6), ElementsAre(1, 4)));
}

TEST(Csv, NumbersTheColumnsOfAFileWithoutNames)
{
    const CsvDocument document("1,2\n3,4\n", "f.csv");
    EXPECT_FALSE(document.hasHeader());
    EXPECT_THAT(document.names(), ElementsAre("column 1", "column 2"));
    EXPECT_THAT(document.columns(std::vector<std::size_t>{0})[0], ElementsAre(1, 3));
}

TEST(Csv, TakesTheFirstRowAsNamesWhenOnlySomeOfThemAreNumbers)
{
    EXPECT_TRUE(CsvDocument("time,1,2\n0,5,6\n", "f.csv").hasHeader());
}

TEST(Csv, TakesARowOfADateAndNumbersAsData)
{
    EXPECT_FALSE(CsvDocument("2026-05-26 09:04:27,1\n2026-05-26 09:04:28,2\n", "f.csv").hasHeader());
}

TEST(Csv, TakesNamesAboveADateColumnAsNames)
{
    EXPECT_TRUE(CsvDocument("timestamp,emf_mV\n2026-05-26 09:04:27,9.28\n", "f.csv").hasHeader());
}

TEST(Csv, RecognisesSemicolons)
{
    EXPECT_THAT(column("a;b\n1;2\n", 1), ElementsAre(2));
}

TEST(Csv, RecognisesTabs)
{
    EXPECT_THAT(column("a\tb\n1\t2\n", 1), ElementsAre(2));
}

TEST(Csv, KeepsEmptyFieldsBetweenTabs)
{
    EXPECT_THAT(column("a\tb\tc\n\t\t2\n", 2), ElementsAre(2));
}

TEST(Csv, IgnoresASemicolonInsideQuotesWhenItLooksForTheSeparator)
{
    EXPECT_THAT(column("\"a;b\",c\n1,2\n", 1), ElementsAre(2));
}

TEST(Csv, ReadsLinesThatEndInCarriageReturnAndLineFeed)
{
    EXPECT_THAT(column("a,b\r\n1,2\r\n3,4\r\n", 1), ElementsAre(2, 4));
}

TEST(Csv, ReadsALastLineWithoutAnEnd)
{
    EXPECT_THAT(column("a\n1\n2"), ElementsAre(1, 2));
}

TEST(Csv, IgnoresEmptyLinesAtTheEnd)
{
    EXPECT_THAT(column("a\n1\n2\n\n \r\n\n"), ElementsAre(1, 2));
}

TEST(Csv, IgnoresTheByteOrderMarkOfUtf8)
{
    EXPECT_EQ(CsvDocument("\xEF\xBB\xBFx_g\n1\n", "f.csv").names()[0], "x_g");
}

TEST(Csv, UnquotesFields)
{
    const CsvDocument document("\"say \"\"x\"\", m\",b\n\"1\", \"2\" \n", "f.csv");
    EXPECT_THAT(document.names(), ElementsAre("say \"x\", m", "b"));
    EXPECT_THAT(document.columns(std::vector<std::size_t>{0, 1}), ElementsAre(ElementsAre(1), ElementsAre(2)));
}

TEST(Csv, IgnoresBlanksAroundNumbersAndAPlusSign)
{
    EXPECT_THAT(column("a,b\n 1 , +2e3\n", 1), ElementsAre(2000));
}

TEST(Csv, CountsLinesInsideQuotedFields)
{
    EXPECT_THAT(failure("\"a\nb\",c\n1,2\n1,x\n", 1), HasSubstr("f.csv:4:"));
}

TEST(Csv, NamesTheLineAndTheColumnOfAFieldThatIsNoNumber)
{
    EXPECT_EQ(failure("x_g,y_g\n1,2\n3,abc\n", 1), "f.csv:3: column 'y_g': 'abc' is not a number");
}

TEST(Csv, DoesNotMindTextInAColumnThatIsNotChosen)
{
    EXPECT_THAT(column("when,x\nmonday,1\ntuesday,2\n", 1), ElementsAre(1, 2));
}

TEST(Csv, RejectsNanAndInfinityAsSamples)
{
    EXPECT_EQ(failure("x\n1\nnan\n"), "f.csv:3: column 'x': 'nan' is not a number");
    EXPECT_EQ(failure("x\n1\n-inf\n"), "f.csv:3: column 'x': '-inf' is not a number");
}

TEST(Csv, TakesAFirstRowOfNumbersThatNoSampleCanBeAsData)
{
    for (const std::string field : {"nan", "inf", "-inf", "1e999", "1e-999"})
        EXPECT_EQ(failure(field + "\n1\n2\n"), "f.csv:1: column 'column 1': '" + field + "' is not a number");
}

TEST(Csv, FindsNamesAboveARowWithNan)
{
    EXPECT_EQ(failure("x,y\nnan,1\n"), "f.csv:2: column 'x': 'nan' is not a number");
}

TEST(Csv, AdvisesADecimalPointWhereAFieldHasAComma)
{
    EXPECT_EQ(failureOf([] { column("a;b\n1;2\n1,5;2\n"); }).advice(), "write numbers with a decimal point");
}

TEST(Csv, NamesTheLineThatIsTooShort)
{
    EXPECT_EQ(failure("a,b\n1,2\n3\n", 1), "f.csv:3: column 'b' is missing: the line has 1 fields");
}

TEST(Csv, RejectsAnEmptyLineBetweenRows)
{
    EXPECT_EQ(failure("a\n1\n\n2\n"), "f.csv:3: the line is empty");
}

TEST(Csv, RejectsAQuoteThatIsNotClosed)
{
    EXPECT_EQ(failure("a\n1\n\"2\n3\n"), "f.csv:3: a quoted field has no end");
}

TEST(Csv, RejectsTextBehindAQuotedField)
{
    EXPECT_EQ(failure("a\n1\n\"2\"3\n"), "f.csv:3: text follows a quoted field");
}

TEST(Csv, RejectsAnEmptyFile)
{
    EXPECT_EQ(failure(""), "f.csv:1: the file is empty");
    EXPECT_EQ(failure("\n\n"), "f.csv:1: the file is empty");
}

TEST(Csv, RejectsUtf16)
{
    EXPECT_EQ(failure(std::string("\xFF\xFE\x31\x00", 4)), "f.csv:1: the text is in UTF-16");
}

TEST(Csv, ShortensALongFieldInItsMessage)
{
    EXPECT_LT(failure("a\n1\n" + std::string(100000, 'x') + "\n").size(), 100u);
}

TEST(Csv, SurvivesEveryPrefixOfATrickyText)
{
    const std::string text = "\"a\"\"\",b;c\r\n1,\"2\n\"\r\n\t3 , 4\n\n";
    for (std::size_t length = 0; length <= text.size(); ++length)
        try {
            const CsvDocument document(text.substr(0, length), "f.csv");
            EXPECT_LE(document.columns(std::vector<std::size_t>{0})[0].size(), 3u);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.code(), ExitCode::Input);
        }
}

TEST(CsvDocument, GivesAColumnAsText)
{
    const CsvDocument document("when,x\n09:04,1\n\"9, 5\",2\n", "f.csv");
    EXPECT_THAT(document.texts(0), testing::ElementsAre("09:04", "9, 5"));
    EXPECT_EQ(document.firstText(1), "1");
    EXPECT_EQ(CsvDocument("when,x\n", "f.csv").firstText(1), "");
}

TEST(CsvDocument, NamesTheLineOfARow)
{
    const CsvDocument document("a\n\"1\n\"\n2\n3\n", "f.csv");
    EXPECT_THAT(messageOf([&] { document.failAt(0, "bad", ""); }), testing::HasSubstr("f.csv:2: bad"));
    EXPECT_THAT(messageOf([&] { document.failAt(2, "bad", ""); }), testing::HasSubstr("f.csv:5: bad"));
}

} // namespace
} // namespace quordsp::cli
