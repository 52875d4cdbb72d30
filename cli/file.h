// Whole files in, and files out that are there complete or not at all.
#pragma once
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "interrupt.h"

namespace quordsp::cli {

// The bytes of a file; throws a Failure when it cannot be read.
std::string readFile(const std::filesystem::path& path);

// Paths from and to UTF-8, which arguments and messages are in. A path made from a plain string is in the encoding of
// the locale.
std::filesystem::path pathFromUtf8(const std::string& text);
std::string display(const std::filesystem::path& path);

// True when both paths lead to the same file, whether it is there or not; an empty one leads nowhere.
bool sameFile(const std::filesystem::path& one, const std::filesystem::path& other);

[[noreturn]] void cannotWrite(const std::filesystem::path& path, const std::string& why, const std::string& advice);

// The place of a file to be: a temporary name in the target's folder, of ASCII letters whatever the target is called.
// commit() gives what was written there the target's name, over an older file of that name; without it the destructor
// leaves nothing behind. Interruptions are noted for that long.
class PendingFile {
public:
    // Throws a Failure when the target is there and is no regular file.
    explicit PendingFile(const std::filesystem::path& path);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    [[nodiscard]] const std::filesystem::path& target() const { return path_; }
    [[nodiscard]] const std::filesystem::path& temporary() const { return temporary_; }
    // The temporary file, empty; throws a Failure when it cannot be created.
    [[nodiscard]] std::ofstream create() const;
    [[noreturn]] void fail(int code) const;
    void commit();

private:
    InterruptionsNoted noted_;
    std::filesystem::path path_;
    std::filesystem::path temporary_;
};

// A pending file as a stream.
class OutputFile {
public:
    explicit OutputFile(const std::filesystem::path& path);

    // Also throws an Interrupted.
    void write(std::string_view bytes);
    void commit();

private:
    PendingFile pending_;
    std::ofstream stream_; // closed before the pending file goes
};

} // namespace quordsp::cli
