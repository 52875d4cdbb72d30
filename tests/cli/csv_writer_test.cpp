#include "csv_writer.h"

#include <gtest/gtest.h>

#include "csv.h"
#include "scratch_folder.h"

namespace quordsp::cli {
namespace {

std::string written(const std::vector<OutputColumn>& columns, std::size_t rows)
{
    const ScratchFolder folder;
    OutputFile file(folder / "f.csv");
    writeCsv(file, columns, rows);
    file.commit();
    return ScratchFolder::get(folder / "f.csv");
}

TEST(CsvWriter, WritesOneRowOfNamesAndTheNumbersShort)
{
    const std::vector<OutputColumn> columns{{"time_s", [](std::size_t i) { return static_cast<double>(i) / 10; }},
                                            {"x_g", [](std::size_t i) { return static_cast<double>(i) - 1; }}};
    EXPECT_EQ(written(columns, 3), "time_s,x_g\n0,-1\n0.1,0\n0.2,1\n");
}

TEST(CsvWriter, QuotesANameThatHoldsASeparatorOrAQuote)
{
    EXPECT_EQ(written({{"x (m, \"true\")", [](std::size_t) { return 1.0; }}}, 1), "\"x (m, \"\"true\"\")\"\n1\n");
}

TEST(CsvWriter, WritesTextAsItIsAndQuotedWhereItMust)
{
    const std::vector<std::string> texts{"2026-05-26 09:04:27", "a, b"};
    const std::vector<OutputColumn> columns{
        {.name = "when", .value = {}, .text = [&](std::size_t i) -> const std::string& { return texts[i]; }},
        {.name = "x", .value = [](std::size_t i) { return static_cast<double>(i); }}};
    EXPECT_EQ(written(columns, 2), "when,x\n2026-05-26 09:04:27,0\n\"a, b\",1\n");
}

TEST(CsvWriter, WritesWhatTheReaderReadsBackExactlyAcrossManyBlocks)
{
    const auto value = [](std::size_t i) { return 1 / (static_cast<double>(i) - 0.3); };
    const std::string text = written({{"a", value}, {"b", value}}, 20000);
    const auto columns = CsvDocument(text, "f.csv").columns(std::vector<std::size_t>{1});
    ASSERT_EQ(columns[0].size(), 20000u);
    for (std::size_t i = 0; i < 20000; ++i)
        ASSERT_EQ(columns[0][i], value(i));
}

} // namespace
} // namespace quordsp::cli
