#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "audio/os_file.h"

namespace quordsp::os {
namespace {

bool writeAll(int file, std::span<const std::byte> bytes) noexcept
{
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written > 0)
            bytes = bytes.subspan(static_cast<std::size_t>(written));
        else if (written == 0 || errno != EINTR)
            return false;
    }
    return true;
}

void empty(int file) noexcept
{
    [[maybe_unused]] const int failed = ftruncate(file, 0); // what is not a regular file has no length
}

// Devices, pipes and links stay.
void removeRegular(const char* path) noexcept
{
    struct stat named{};
    if (lstat(path, &named) == 0 && S_ISREG(named.st_mode))
        unlink(path);
}

} // namespace

bool writeFile(const char* path, std::span<const std::byte> bytes) noexcept
{
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0)
        return false;
    const bool complete = writeAll(file, bytes);
    if (!complete)
        empty(file);                      // where its name is a link, which stays
    const bool closed = close(file) == 0; // some systems find out only now that there is no space
    if (complete && closed)
        return true;
    removeRegular(path);
    return false;
}

// Fresh memory comes page by page, at a fault each, which costs about as much as encoding into it: with large pages a
// file of 40 MB takes 27 ms of processor time instead of 34. The advice belongs to the addresses and outlives a block
// that goes back to the heap: what is put there later may get large pages, too, which does no harm. Small blocks, which
// gain nothing, are left alone.
void expectToFill(std::span<std::byte> memory) noexcept
{
#if defined(MADV_HUGEPAGE)
    constexpr std::uintptr_t kLargePage = 2u << 20;
    constexpr std::size_t kWorthwhile = 2 * kLargePage; // at least one large page lies within
    if (memory.size() < kWorthwhile)
        return;
    const auto begin = reinterpret_cast<std::uintptr_t>(memory.data());
    const std::uintptr_t first = (begin + kLargePage - 1) & ~(kLargePage - 1);
    const std::uintptr_t last = (begin + memory.size()) & ~(kLargePage - 1);
    madvise(memory.data() + (first - begin), last - first, MADV_HUGEPAGE);
#endif
}

} // namespace quordsp::os
