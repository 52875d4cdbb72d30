#include "csv.h"

#include <algorithm>
#include <utility>

#include "failure.h"
#include "number.h"
#include "progress.h"

namespace quordsp::cli {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view firstLine(std::string_view text)
{
    return text.substr(0, text.find_first_of("\r\n"));
}

// A semicolon or a tab outside quotes is hardly ever anything else than a separator; a comma may be a decimal sign.
char findSeparator(std::string_view line)
{
    bool quoted = false;
    for (const char c : line) {
        quoted ^= c == '"';
        if (!quoted && (c == ';' || c == '\t'))
            return c;
    }
    return ',';
}

std::vector<std::string> copy(std::span<const std::string_view> fields)
{
    return {fields.begin(), fields.end()};
}

// A name stands above numbers. Where the second row does not tell, as when both rows start with a date, the other
// columns do.
bool namesColumns(const std::vector<std::string>& first, const std::vector<std::string>& second)
{
    for (std::size_t i = 0; i < first.size(); ++i)
        if (!looksLikeNumber(first[i]) && !first[i].empty() && (i >= second.size() || looksLikeNumber(second[i])))
            return true;
    return std::ranges::none_of(first, looksLikeNumber);
}

std::string unescaped(std::string name)
{
    for (auto quote = name.find("\"\""); quote != std::string::npos; quote = name.find("\"\"", quote + 1))
        name.erase(quote, 1);
    return name;
}

std::string shortened(std::string_view field)
{
    constexpr std::size_t kLongest = 40;
    return field.size() <= kLongest ? std::string(field) : std::string(field.substr(0, kLongest)) + "...";
}

} // namespace

CsvDocument::CsvDocument(std::string text, std::string fileName)
    : text_(std::move(text)), fileName_(std::move(fileName))
{
    if (text_.starts_with("\xFF\xFE") || text_.starts_with("\xFE\xFF"))
        fail(1, "the text is in UTF-16", "save it as UTF-8 or plain ASCII");
    if (text_.starts_with(kByteOrderMark))
        text_.erase(0, kByteOrderMark.size());
    separator_ = findSeparator(firstLine(text_));
    readNames();
}

CsvRows CsvDocument::rows() const
{
    return {text_, separator_, fileName_};
}

void CsvDocument::readNames()
{
    CsvRows row = rows();
    if (!row.next())
        fail(1, "the file is empty", "name a file with one sample a line");
    names_ = copy(row.fields());
    hasHeader_ = namesColumns(names_, row.next() ? copy(row.fields()) : std::vector<std::string>{});
    for (std::size_t i = 0; i < names_.size(); ++i)
        names_[i] = hasHeader_ && !names_[i].empty() ? unescaped(names_[i]) : "column " + std::to_string(i + 1);
}

CsvRows CsvDocument::rowsBehindTheNames() const
{
    CsvRows row = rows();
    if (hasHeader_)
        row.next();
    return row;
}

std::vector<std::vector<double>> CsvDocument::columns(std::span<const std::size_t> chosen) const
{
    std::vector<std::vector<double>> values(chosen.size());
    CsvRows row = rowsBehindTheNames();
    Progress progress("reading " + fileName_, text_.size());
    for (; row.next(); progress.reach(row.position()))
        for (std::size_t i = 0; i < chosen.size(); ++i)
            values[i].push_back(number(row, chosen[i]));
    return values;
}

std::vector<std::string> CsvDocument::texts(std::size_t column) const
{
    std::vector<std::string> values;
    CsvRows row = rowsBehindTheNames();
    while (row.next())
        values.emplace_back(column < row.fields().size() ? row.fields()[column] : std::string_view{});
    return values;
}

std::string CsvDocument::firstText(std::size_t column) const
{
    CsvRows row = rowsBehindTheNames();
    return row.next() && column < row.fields().size() ? std::string(row.fields()[column]) : "";
}

void CsvDocument::failAt(std::size_t row, const std::string& what, const std::string& advice) const
{
    CsvRows reader = rowsBehindTheNames();
    for (std::size_t i = 0; i <= row && reader.next(); ++i)
        continue;
    fail(reader.line(), what, advice);
}

double CsvDocument::number(const CsvRows& row, std::size_t column) const
{
    const std::string_view field = column < row.fields().size() ? row.fields()[column] : std::string_view{};
    if (const auto value = parseNumber(field))
        return *value;
    const std::string where = "column '" + names_[column] + "'";
    if (column >= row.fields().size())
        fail(row.line(), where + " is missing: the line has " + std::to_string(row.fields().size()) + " fields",
             "every line needs the same number of fields");
    const bool decimalComma = field.find(',') != std::string_view::npos;
    fail(row.line(), where + ": '" + shortened(field) + "' is not a number",
         decimalComma ? "write numbers with a decimal point" : "correct the field, or choose another --column");
}

void CsvDocument::fail(std::size_t line, const std::string& what, const std::string& advice) const
{
    throw Failure(ExitCode::Input, fileName_ + ":" + std::to_string(line) + ": " + what, advice);
}

} // namespace quordsp::cli
