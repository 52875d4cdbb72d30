#include "file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>

#include "failure.h"
#include "os.h"

namespace quordsp::cli {
namespace fs = std::filesystem;
namespace {

std::string reason(int code)
{
    return code == 0 ? "the system gives no reason" : std::generic_category().message(code);
}

[[noreturn]] void cannotRead(const fs::path& path, const std::string& why)
{
    throw Failure(ExitCode::Input, "cannot read " + display(path) + ": " + why, "check the name and the access rights");
}

// Two runs that write to the same target must not share a temporary file.
fs::path temporaryName(const fs::path& path)
{
    std::array<char, 24> name{};
    std::snprintf(name.data(), name.size(), "quordsp-%08x.tmp", std::random_device{}());
    return path.parent_path() / name.data();
}

// A link keeps its place: what it points to is written.
fs::path linkTarget(const fs::path& path)
{
    std::error_code error;
    const fs::path target = fs::is_symlink(path, error) ? fs::canonical(path, error) : path;
    return error ? path : target;
}

void requireReplaceable(const fs::path& path)
{
    std::error_code error;
    if (fs::exists(path, error) && !fs::is_regular_file(path, error))
        cannotWrite(path, "it is not a regular file", "name a file that is new or may be replaced");
}

// Where a file is or would be, by whatever name.
std::string placeOf(const fs::path& path)
{
    std::error_code error;
    const fs::path full = fs::absolute(path, error);
    const fs::path place = fs::weakly_canonical(full, error);
    return display(error ? full.lexically_normal() : place);
}

} // namespace

fs::path pathFromUtf8(const std::string& text)
{
    return std::u8string(text.begin(), text.end());
}

std::string display(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

bool sameFile(const fs::path& one, const fs::path& other)
{
    if (one.empty() || other.empty())
        return false;
    std::error_code error;
    return os::sameName(placeOf(one), placeOf(other)) || fs::equivalent(one, other, error);
}

std::string readFile(const fs::path& path)
{
    std::error_code error;
    if (fs::is_directory(path, error))
        cannotRead(path, "it is a folder");
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        cannotRead(path, reason(errno));
    std::string bytes;
    if (const auto size = fs::file_size(path, error); !error)
        bytes.reserve(size);
    std::array<char, 1 << 16> block;
    while (stream.read(block.data(), block.size()) || stream.gcount() > 0)
        bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    if (stream.bad())
        cannotRead(path, reason(errno));
    return bytes;
}

void cannotWrite(const fs::path& path, const std::string& why, const std::string& advice)
{
    throw Failure(ExitCode::Output, "cannot write " + display(path) + ": " + why, advice);
}

PendingFile::PendingFile(const fs::path& path) : path_(linkTarget(path)), temporary_(temporaryName(path_))
{
    requireReplaceable(path_);
}

PendingFile::~PendingFile()
{
    std::error_code error;
    fs::remove(temporary_, error); // after a commit there is none
}

std::ofstream PendingFile::create() const
{
    errno = 0;
    std::ofstream stream(temporary_, std::ios::binary);
    if (!stream)
        fail(errno);
    return stream;
}

void PendingFile::fail(int code) const
{
    cannotWrite(path_, reason(code), "check the folder, its access rights and the free space");
}

void PendingFile::commit()
{
    std::error_code error;
    fs::rename(temporary_, path_, error);
    if (error)
        cannotWrite(path_, error.message(), "close the program that holds the file, or name another one");
}

OutputFile::OutputFile(const fs::path& path) : pending_(path), stream_(pending_.create()) {}

void OutputFile::write(std::string_view bytes)
{
    endIfInterrupted();
    errno = 0;
    if (!stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
        pending_.fail(errno);
}

void OutputFile::commit()
{
    errno = 0;
    stream_.close();
    if (!stream_)
        pending_.fail(errno);
    pending_.commit();
}

} // namespace quordsp::cli
