#include "csv_writer.h"

#include "number.h"

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

} // namespace

void writeCsv(OutputFile& file, const std::vector<OutputColumn>& columns, std::size_t rows)
{
    std::string text = header(columns);
    for (std::size_t row = 0; row < rows; ++row) {
        for (const OutputColumn& column : columns) {
            appendShortest(text, column.value(row));
            text += ',';
        }
        text.back() = '\n';
        if (text.size() >= kBlock) {
            file.write(text);
            text.clear();
        }
    }
    file.write(text);
}

} // namespace quordsp::cli
