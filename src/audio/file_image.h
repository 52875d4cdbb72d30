// A file that is put together in memory from its first byte to its last and then written in one piece.
#pragma once
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace quordsp {

class FileImage {
public:
    // Of a fixed size, to be filled exactly; false as a condition when there is no memory for it.
    explicit FileImage(std::uint64_t size) noexcept;
    explicit operator bool() const noexcept { return bytes_ != nullptr; }

    // What comes next. Numbers are little-endian; of each its low bits.
    FileImage& text(std::string_view characters) noexcept;
    FileImage& u16(std::uint32_t number) noexcept { return integer(number, 2); }
    FileImage& u32(std::uint32_t number) noexcept { return integer(number, 4); }
    std::byte* space(std::uint64_t size) noexcept;

    // False for a null path, and where the system cannot create or complete the file.
    bool save(const char* path) const noexcept;

private:
    FileImage& integer(std::uint32_t number, int size) noexcept;

    std::uint64_t size_;
    std::uint64_t filled_ = 0;
    std::unique_ptr<std::byte[]> bytes_;
};

} // namespace quordsp
