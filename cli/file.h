// Whole files in, and files out that are there complete or not at all.
#pragma once
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace quordsp::cli {

// The bytes of a file; throws a Failure when it cannot be read.
std::string readFile(const std::filesystem::path& path);

// Paths from and to UTF-8, which arguments and messages are in. A path made from a plain string is in the encoding of
// the locale.
std::filesystem::path pathFromUtf8(const std::string& text);
std::string display(const std::filesystem::path& path);

// Writes under a temporary name beside the target. commit() gives the file its name, over an older file of that name;
// without it the destructor leaves nothing behind.
class OutputFile {
public:
    explicit OutputFile(const std::filesystem::path& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view bytes);
    void commit();

private:
    [[noreturn]] void fail() const;

    std::filesystem::path path_;
    std::filesystem::path temporary_;
    std::ofstream stream_;
};

} // namespace quordsp::cli
