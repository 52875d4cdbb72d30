#include <cstring>
#include <new>

#include "audio/file_image.h"
#include "audio/os_file.h"

namespace quordsp {

FileImage::FileImage(std::uint64_t size) noexcept : size_{size}, bytes_{new(std::nothrow) std::byte[size]}
{
    if (bytes_)
        os::expectToFill({bytes_.get(), size});
}

FileImage& FileImage::text(std::string_view characters) noexcept
{
    if (!characters.empty())
        std::memcpy(space(characters.size()), characters.data(), characters.size());
    return *this;
}

FileImage& FileImage::integer(std::uint32_t number, int size) noexcept
{
    std::byte* const bytes = space(static_cast<std::uint64_t>(size));
    for (int i = 0; i < size; ++i)
        bytes[i] = static_cast<std::byte>(number >> 8 * i);
    return *this;
}

std::byte* FileImage::space(std::uint64_t size) noexcept
{
    std::byte* const begin = bytes_.get() + filled_;
    filled_ += size;
    return begin;
}

bool FileImage::save(const char* path) const noexcept
{
    return path && os::writeFile(path, {bytes_.get(), size_});
}

} // namespace quordsp
