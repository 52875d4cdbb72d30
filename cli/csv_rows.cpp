#include <utility>

#include "csv.h"
#include "failure.h"

namespace quordsp::cli {
namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view withoutTrailingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

CsvRows::CsvRows(std::string_view text, char separator, std::string fileName)
    : text_(text), fileName_(std::move(fileName)), separator_(separator)
{}

bool CsvRows::next()
{
    fields_.clear();
    line_ = nextLine_;
    if (restIsEmpty())
        return false;
    do
        fields_.push_back(takeField());
    while (!takeLineEnd());
    if (fields_.size() == 1 && fields_[0].empty())
        throw Failure(ExitCode::Input, fileName_ + ":" + std::to_string(line_) + ": the line is empty",
                      "remove the line, or fill in the missing sample");
    return true;
}

// Blank lines at the end are no rows. Only a text that ends soon is looked at to its end: any other character stops the
// search.
bool CsvRows::restIsEmpty() const
{
    return text_.find_first_not_of(" \t\r\n", position_) == std::string_view::npos;
}

void CsvRows::skipBlanks()
{
    while (position_ < text_.size() && isBlank(text_[position_]) && text_[position_] != separator_)
        ++position_;
}

std::string_view CsvRows::takeField()
{
    skipBlanks();
    if (position_ < text_.size() && text_[position_] == '"')
        return takeQuoted();
    const std::size_t first = position_;
    while (position_ < text_.size() && text_[position_] != separator_ && text_[position_] != '\n' &&
           text_[position_] != '\r')
        ++position_;
    return withoutTrailingBlanks(text_.substr(first, position_ - first));
}

std::string_view CsvRows::takeQuoted()
{
    const std::size_t first = ++position_;
    for (;; ++position_) {
        if (position_ >= text_.size())
            throw Failure(ExitCode::Input, fileName_ + ":" + std::to_string(line_) + ": a quoted field has no end",
                          "close the quote, or remove it");
        if (text_[position_] == '\n')
            ++nextLine_;
        if (text_[position_] != '"')
            continue;
        if (position_ + 1 >= text_.size() || text_[position_ + 1] != '"')
            break;
        ++position_;
    }
    const std::size_t last = position_++;
    skipBlanks();
    return text_.substr(first, last - first);
}

// Behind a field: true when the row ends, false when the next field follows.
bool CsvRows::takeLineEnd()
{
    if (position_ < text_.size() && text_[position_] == separator_) {
        ++position_;
        return false;
    }
    if (position_ < text_.size() && text_[position_] == '\r')
        ++position_;
    if (position_ < text_.size() && text_[position_] == '\n')
        ++position_;
    else if (position_ < text_.size() && text_[position_ - 1] != '\r')
        throw Failure(ExitCode::Input, fileName_ + ":" + std::to_string(line_) + ": text follows a quoted field",
                      "double the quotes inside the field");
    ++nextLine_;
    return true;
}

} // namespace quordsp::cli
