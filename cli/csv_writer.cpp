#include "csv_writer.h"

#include "number.h"
#include "progress.h"

namespace quordsp::cli {
namespace {

constexpr std::size_t kBlock = 1 << 16;

std::string quotedIfNeeded(const std::string& name)
{
    if (name.find_first_of(",;\t\"\r\n") == std::string::npos)
        return name;
    std::string quoted = "\"";
    for (const char c : name)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

std::string header(const std::vector<OutputColumn>& columns)
{
    std::string text;
    for (const OutputColumn& column : columns)
        text += quotedIfNeeded(column.name) + ',';
    text.back() = '\n';
    return text;
}

void appendField(std::string& text, const OutputColumn& column, std::size_t row)
{
    if (column.text)
        text += quotedIfNeeded(column.text(row));
    else
        appendShortest(text, column.value(row));
}

} // namespace

void writeCsv(OutputFile& file, const std::vector<OutputColumn>& columns, std::size_t rows)
{
    Progress progress("writing the table", rows);
    std::string text = header(columns);
    for (std::size_t row = 0; row < rows; ++row) {
        for (const OutputColumn& column : columns) {
            appendField(text, column, row);
            text += ',';
        }
        text.back() = '\n';
        if (text.size() >= kBlock) {
            file.write(text);
            text.clear();
            progress.reach(row);
        }
    }
    file.write(text);
}

} // namespace quordsp::cli
