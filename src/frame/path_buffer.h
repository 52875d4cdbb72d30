// A path under construction in a fixed buffer: what does not fit is refused, never cut.
#pragma once
#include <array>
#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>

namespace quordsp {

class PathBuffer {
public:
    // Where a path is read into, and how many characters of it count; false when there is no room for that many and a
    // NUL.
    std::span<char> storage() noexcept { return text_; }
    bool setLength(std::size_t length) noexcept
    {
        const bool fits = length < text_.size();
        length_ = fits ? length : 0;
        return fits;
    }

    // Drops that many characters at the end; false when there are not so many.
    bool cut(std::size_t count) noexcept
    {
        if (count > length_)
            return false;
        length_ -= count;
        return true;
    }

    bool append(std::string_view more) noexcept
    {
        if (more.size() >= text_.size() - length_)
            return false;
        std::memcpy(text_.data() + length_, more.data(), more.size());
        length_ += more.size();
        text_[length_] = '\0';
        return true;
    }

    const char* text() const noexcept { return text_.data(); }
    std::string_view view() const noexcept { return {text_.data(), length_}; }

private:
    std::array<char, 1024> text_{};
    std::size_t length_ = 0;
};

} // namespace quordsp
