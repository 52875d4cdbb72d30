// CSV in. The separator is a comma, a semicolon or a tab, whichever the first row shows; the decimal sign is a point.
// Fields may be quoted; lines end in LF or CRLF; empty lines at the end do not matter. A first row that names the
// columns is recognised.
#pragma once
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quordsp::cli {

// The rows of a text, one after the other, without copying.
class CsvRows {
public:
    // The file name is for messages.
    CsvRows(std::string_view text, char separator, std::string fileName);

    // Goes to the next row; false at the end of the text. Throws a Failure for a quote that is not closed and for an
    // empty line between rows.
    bool next();

    // The row's fields without the blanks and the quotes around them. A doubled quote inside stays doubled.
    [[nodiscard]] std::span<const std::string_view> fields() const { return fields_; }
    // The line of the text that the row starts in, from 1.
    [[nodiscard]] std::size_t line() const { return line_; }
    // How many bytes of the text are behind the reader.
    [[nodiscard]] std::size_t position() const { return position_; }

private:
    std::string_view takeField();
    std::string_view takeQuoted();
    bool takeLineEnd();
    void skipBlanks();
    [[nodiscard]] bool restIsEmpty() const;

    std::string_view text_;
    std::string fileName_;
    std::size_t position_ = 0;
    std::size_t line_ = 0;
    std::size_t nextLine_ = 1;
    char separator_;
    std::vector<std::string_view> fields_;
};

class CsvDocument {
public:
    CsvDocument(std::string text, std::string fileName);

    // The names of the first row; "column 1", "column 2" and so on when it has none.
    [[nodiscard]] const std::vector<std::string>& names() const { return names_; }
    [[nodiscard]] bool hasHeader() const { return hasHeader_; }

    // The numbers of the chosen columns, in one pass. Throws a Failure, with the line and the column, at the first
    // field that is missing or not a number.
    [[nodiscard]] std::vector<std::vector<double>> columns(std::span<const std::size_t> chosen) const;
    // A column as it stands, and its first field; that is empty when there is none.
    [[nodiscard]] std::vector<std::string> texts(std::size_t column) const;
    [[nodiscard]] std::string firstText(std::size_t column) const;

    // Throws a Failure about a row, counted from 0 without the names.
    [[noreturn]] void failAt(std::size_t row, const std::string& what, const std::string& advice) const;

private:
    [[nodiscard]] CsvRows rows() const;
    [[nodiscard]] CsvRows rowsBehindTheNames() const;
    void readNames();
    [[nodiscard]] double number(const CsvRows& row, std::size_t column) const;
    [[noreturn]] void fail(std::size_t line, const std::string& what, const std::string& advice) const;

    std::string text_;
    std::string fileName_;
    char separator_;
    bool hasHeader_ = false;
    std::vector<std::string> names_;
};

} // namespace quordsp::cli
