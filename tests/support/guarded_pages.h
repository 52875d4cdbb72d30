// Memory between two unreadable pages, alike on every system.
#pragma once
#include <cstddef>
#include <span>

namespace support {

class GuardedPages {
public:
    // As many pages as hold so many bytes.
    explicit GuardedPages(std::size_t bytes);
    ~GuardedPages();
    GuardedPages(const GuardedPages&) = delete;
    GuardedPages& operator=(const GuardedPages&) = delete;

    // All bytes between the unreadable pages.
    std::span<std::byte> bytes() const { return bytes_; }

    // Whether they may be written; reading is always allowed.
    void setWritable(bool writable);

private:
    std::span<std::byte> bytes_;
    bool writable_ = true;
};

} // namespace support
